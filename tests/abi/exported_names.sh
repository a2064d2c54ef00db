#!/bin/sh
# Compares the dynamic symbols that a library defines with the committed list; pending names must
# not be exported.
#   exported_names.sh LIBRARY FOLDER-OF-THE-LISTS
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C
nm -D --defined-only "$1" | awk '$2 != "A" { sub(/@.*/, "", $3); print $3 }' | sort -u >"$work/exported"
sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$2/exported_names.txt" | sort >"$work/listed"
if ! diff -u "$work/listed" "$work/exported"; then
    echo "exported_names.txt (-) and the library (+) differ"
    exit 1
fi
uniq -d "$work/listed" | grep . && { echo "names listed twice"; exit 1; }
sed -e 's/#.*//' "$2/pending_names.txt" | grep -oE '^[a-zA-Z_]\w+' | sort >"$work/pending" || true
if comm -12 "$work/pending" "$work/exported" | grep .; then
    echo "names above are exported and still listed as pending"
    exit 1
fi
[ "$(wc -l <"$work/exported")" -gt 400 ] || { echo "suspiciously few names"; exit 1; }
