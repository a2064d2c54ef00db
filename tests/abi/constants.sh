#!/bin/sh
# Compares the constants of the public headers with the committed list: clients have their values compiled in, and no
# symbol or layout shows them. INV_REGENERATE_GOLDEN=1 rewrites the list.
#   constants.sh PROGRAM LIST
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$1" >"$work/compiled"
[ "$(wc -l <"$work/compiled")" -ge 800 ] || { echo "suspiciously few constants"; exit 1; }
if [ "${INV_REGENERATE_GOLDEN:-}" = 1 ]; then
    cp "$work/compiled" "$2"
elif ! diff -u "$2" "$work/compiled"; then
    echo "$2 (-) and the public headers (+) differ"
    exit 1
fi
