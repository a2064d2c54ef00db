#!/bin/sh
# Compares the variables that the libraries can write with the list in docs/concurrency.md: data, zero data and those
# of each thread. Needs libraries with their symbol tables.
#   shared_state.sh DOCUMENT LIBRARY...
set -eu
document=$1
shift
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C
# What the compiler and the linker put there themselves goes, and so do scopes in front of a name.
objdump -tC "$@" | awk '/ O? *\.(bss|data|tbss|tdata)\t/ { sub(/.*\t[0-9a-f]+ +/, ""); print }' |
    sed -e '/^completed\./d' -e '/^__/d' -e '/^\.hidden __/d' -e '/^DW\.ref\./d' -e '/^\./d' -e 's/.*:://' | sort -u \
    >"$work/libraries"
awk -F '|' '/^\| variables/ { inside = 1 } !/^\|/ { inside = 0 } inside { print $2 }' "$document" |
    grep -oE '`\w+`' | tr -d '`' | sort >"$work/told"
if ! diff -u "$work/told" "$work/libraries"; then
    echo "$document (-) and the libraries' writable data (+) differ"
    exit 1
fi
