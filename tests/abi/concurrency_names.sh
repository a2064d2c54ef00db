#!/bin/sh
# Compares the names in the first columns of the entry points' tables of docs/concurrency.md with the lists of exported
# names: every name once, and none that is not exported.
#   concurrency_names.sh DOCUMENT LIST...
set -eu
document=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C
cat "$@" | sed -e 's/#.*//' -e '/^[[:space:]]*$/d' | sort >"$work/exported"
awk -F '|' '/^\| entry point/ { inside = 1 } !/^\|/ { inside = 0 } inside { print $2 }' "$document" |
    grep -oE '`\w+`' | tr -d '`' | sort >"$work/told"
if ! diff -u "$work/told" "$work/exported"; then
    echo "$document (-) and the exported names (+) differ"
    exit 1
fi
[ "$(wc -l <"$work/told")" -ge 460 ] || { echo "suspiciously few names"; exit 1; }
