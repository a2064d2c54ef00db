#!/bin/sh
# Builds the Debian packages from a clean copy of the sources, outside their tree, and asks lintian about them.
#   build_packages.sh FOLDER     the packages are FOLDER/*.deb
set -eu
mkdir -p "$1"
folder=$(realpath "$1")
cd "$(dirname "$0")/.."
rm -rf "${folder:?}/source" "$folder"/*.deb "$folder"/*.changes "$folder"/*.buildinfo
mkdir "$folder/source"
# What a clone has, with what is not committed yet; deleted files stay away.
git ls-files -co --exclude-standard -z | xargs -0 ls -d 2>/dev/null | tar -c -T - | tar -x -C "$folder/source"

cd "$folder/source"
dpkg-buildpackage -us -uc -b >"$folder/build.log" 2>&1 || { tail -n 40 "$folder/build.log"; exit 1; }
cd "$folder"
lintian --allow-root --fail-on error --no-cfg --suppress-tags initial-upload-closes-no-bugs ./*.changes
ls ./*.deb
