#!/bin/sh
# Compares the dynamic symbols that a library defines with the committed list: each of them under the given
# version, nothing else. Pending names must not be exported.
#   exported_names.sh LIBRARY VERSION LEAST-NUMBER LIST [PENDING-LIST]
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C
nm -D --with-symbol-versions --defined-only "$1" | awk '$2 != "A" { print $3 }' | sort -u >"$work/exported"
sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$4" | sort >"$work/names"
uniq -d "$work/names" | grep . && { echo "names listed twice"; exit 1; }
sed "s/\$/@@$2/" "$work/names" | sort >"$work/listed"
if ! diff -u "$work/listed" "$work/exported"; then
    echo "exported_names.txt (-) and the library (+) differ"
    exit 1
fi
if [ -n "${5:-}" ]; then
    sed -e 's/#.*//' "$5" | grep -oE '^[a-zA-Z_]\w+' | sort >"$work/pending" || true
    if comm -12 "$work/pending" "$work/names" | grep .; then
        echo "names above are exported and still listed as pending"
        exit 1
    fi
fi
[ "$(wc -l <"$work/exported")" -ge "$3" ] || { echo "suspiciously few names"; exit 1; }
