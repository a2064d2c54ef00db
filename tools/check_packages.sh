#!/bin/sh
# Installs the Debian packages with dpkg in a fresh minimal system (a folder, entered by chroot) and takes the first
# look from there: the tree of an installed sample, the way to a sensor, the tutorial, and a client that
# is built with the installed headers and finds its document by the installed catalogue. Needs root and a Debian mirror.
#   check_packages.sh FOLDER-OF-THE-PACKAGES
set -eu
packages=$(realpath "$1")
cd "$(dirname "$0")/.."
mirror=$(sed -nE 's,^(deb|URIs:).* (https?://[^ ]+/debian)/? .*,\2,p; s,^URIs: *(https?://[^ ]+/debian)/?$,\1,p' \
    /etc/apt/sources.list /etc/apt/sources.list.d/* 2>/dev/null | head -n 1)
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
debootstrap --variant=minbase --include=libexpat1,libstdc++6,python3 bookworm "$root" ${mirror:+"$mirror"} >"$packages/debootstrap.log" 2>&1 ||
    { tail -n 20 "$packages/debootstrap.log"; exit 1; }

mkdir "$root/packages"
find "$packages" -maxdepth 1 -name '*.deb' ! -name '*-dbgsym_*' -exec cp -t "$root/packages" {} +
chroot "$root" sh -c 'dpkg -i /packages/*.deb' >"$root/log" 2>&1 || { cat "$root/log"; exit 1; }

samples=/usr/share/inv_parser/inventories
chroot "$root" invctl tree --depth 2 $samples/line_card_small.xml
chroot "$root" invctl path $samples/line_card_48.xml --instance 290 --from $samples/route_processor.xml --slot 0 \
    --node-type linecard --position 3 | grep -q temperature_sensor_local
cp tests/cli/console_blocks.py docs/tutorial.md "$root/packages"
chroot "$root" /packages/console_blocks.py /packages/tutorial.md --commands /usr/bin --folder $samples

# No $INV_CATALOG: the reference lookup knows the installed one.
libraries=$root/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
cc -std=c11 tests/consumers/consumer.c -o "$root/consumer" -I"$root/usr/include" -L"$libraries" \
    -Wl,-rpath-link,"$libraries" -linv_parser
env -u INV_CATALOG chroot "$root" /consumer >"$root/printed"
sed '/opened by C++/,$d' tests/consumers/expected.txt | diff -u - "$root/printed"
# shellcheck disable=SC2016
chroot "$root" sh -c 'dpkg --purge $(dpkg-query -W -f "\${Package} " "libinv-*" "inv-parser-*" invctl)' >/dev/null
[ -z "$(find "$root/usr" -name '*inv_p*' -o -name invctl)" ] || { echo "a purge leaves files"; exit 1; }
echo "packages: installed, used, purged"
