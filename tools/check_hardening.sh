#!/bin/sh
# Reads the libraries and the programs of an optimised build and fails when one lacks a protection that
# cmake/build_flags.cmake asks for. What leaves no trace in the code is read from the compiler's own record, so the
# build needs debug information.
#   check_hardening.sh BUILD
set -eu
export LC_ALL=C
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
faults=0

# check WHAT COMMAND...: one protection of $elf
check() {
    what=$1
    shift
    "$@" && return
    echo "$elf: $what"
    faults=$((faults + 1))
}
not() { ! "$@"; }

# Every unit of the record was compiled with the flag.
compiled_with() {
    [ -s "$work/producers" ] && ! grep -qvE -- " $1( |$)" "$work/producers"
}

check_file() {
    readelf -W --file-header --program-headers --dynamic "$elf" >"$work/headers" 2>/dev/null
    # What pthread_atfork() brings in was compiled with the C library; bound at once, its slot is not writable either.
    readelf -W --relocs "$elf" 2>/dev/null | grep -v __register_atfork >"$work/relocations"
    readelf -W --dyn-syms "$elf" >"$work/symbols"
    readelf --debug-dump=info "$elf" 2>/dev/null | grep DW_AT_producer >"$work/producers" || true

    check "relocations stay writable (no RELRO)" grep -q GNU_RELRO "$work/headers"
    check "functions are bound late (no NOW)" grep -qE 'FLAGS_1.*NOW' "$work/headers"
    check "calls go through a writable table (no -fno-plt)" not grep -q JUMP_SLO "$work/relocations"
    check "the stack is executable or unmarked" grep -qE 'GNU_STACK.* RW +0x' "$work/headers"
    check "a segment is writable and executable" not grep -qE 'LOAD.* RWE ' "$work/headers"
    check "code is relocated (TEXTREL)" not grep -q TEXTREL "$work/headers"
    check "it searches folders for libraries (RPATH)" not grep -qE '\((RPATH|RUNPATH)\)' "$work/headers"
    check "no stack protector" grep -q __stack_chk_fail "$work/symbols"
    check "no fortified call" grep -qE '__[a-z]+_chk(@|$)' "$work/symbols"
    case $elf in *.so*) ;; *) check "its address is fixed (no PIE)" grep -qE 'FLAGS_1.*PIE' "$work/headers" ;; esac

    check "no debug information" test -s "$work/producers"
    for flag in -fstack-protector-strong -fstack-clash-protection; do
        check "units without $flag" compiled_with $flag
    done
    check "units that take a protection back" not grep -qE -- \
        ' -(fno-stack|fplt|fcf-protection=(none|branch|return))' "$work/producers"
    case $(uname -m) in x86_64) check "units without -fcf-protection" compiled_with -fcf-protection=full ;; esac
    echo "$elf: $(wc -l <"$work/producers") units checked"
}

# As installed: the build's own files know their way to each other.
cmake --install "$1" --prefix "$work/prefix" >/dev/null
cd "$work/prefix"
find . \( -name '*.so.*' -o -path './bin/*' \) -type f | sort >"$work/files"
[ "$(sed -E 's:.*/([a-z_]+).*:\1:' "$work/files" | xargs)" = "invctl libinv_parser libinv_platform" ] ||
    { echo "installed are, and not the command and both libraries:"; cat "$work/files"; exit 1; }
for elf in $(cat "$work/files"); do
    check_file
done
exit $((faults > 0))
