#!/bin/sh
# A platform may lack what the library's sources name with "#pragma weak": the library must ask for these names weakly
# wherever it uses them, or it could not be loaded.
#   optional_names.sh LIBRARY SOURCE-FOLDER
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C
grep -rhoE '^#pragma weak \w+' "$2" | awk '{ print $3 }' | sort -u >"$work/named"
nm -D --undefined-only "$1" | awk '$1 == "w" { sub(/@.*/, "", $2); print $2 }' | sort -u >"$work/weak"
[ -s "$work/named" ] || { echo "$2: no optional names"; exit 1; }
comm -23 "$work/named" "$work/weak" >"$work/strong"
if [ -s "$work/strong" ]; then
    echo "$1 cannot be loaded without:" $(cat "$work/strong")
    exit 1
fi
