#!/bin/sh
# Installs the Debian packages that the named sets need and the machine lacks, and says so.
#   tools/install_packages.sh build [test] [coverage] [check] [bench] [package] [mutation]
set -eu

packages_of() {
    case $1 in
    build) echo g++ cmake ninja-build libexpat1-dev libboost-dev libcli11-dev nlohmann-json3-dev ;;
    test) echo libgtest-dev libgmock-dev libxml2-utils python3-jsonschema zsh fish mandoc ;;
    coverage) echo gcovr ;;
    bench) echo libpugixml-dev librapidxml-dev libxml2-dev libbenchmark-dev ;;
    check) echo clang libclang-rt-14-dev clang-format clang-tidy cppcheck abigail-tools pkgconf binutils ;;
    mutation) echo python3-clang-14 ;;
    package) echo debhelper dpkg-dev fakeroot lintian debootstrap ;;
    *) echo "unknown package set: $1" >&2; exit 2 ;;
    esac
}

missing=
for set in "$@"; do
    for package in $(packages_of "$set"); do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
    done
done
[ -n "$missing" ] || exit 0

as_root=
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install:$missing" >&2; exit 1; }
    as_root=sudo
fi
echo "Installing missing Debian packages:$missing"
export DEBIAN_FRONTEND=noninteractive
$as_root apt-get update -qq
# shellcheck disable=SC2086 -- the list is meant to be split
$as_root apt-get install -y -qq --no-install-recommends $missing >/dev/null
