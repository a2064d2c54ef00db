#!/bin/sh
# Compares the interface of both libraries with the committed description in abi/: symbols, versions, functions and
# every type that these take or give. Additions differ as well, with those that clients do not notice (--harmless):
# --regenerate rewrites the description, and the change is read in review. The build needs debug information.
#   check_abi.sh [--regenerate] BUILD
set -eu
regenerate=
[ "$1" = --regenerate ] && { regenerate=yes; shift; }
build=$(realpath "$1")
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The libraries that the public headers do not name may change: no list of what is needed, no private types, and
# nothing of the machine: no paths, lines, architecture, and type names that do not depend on their order.
describe() {
    abidw --headers-dir shared_pkg/common/schema/parser/include/inv_parser --headers-dir platform/include/inv_platform \
        --drop-private-types --exported-interfaces-only --no-corpus-path --no-comp-dir-path --no-show-locs --no-architecture \
        --no-elf-needed --type-id-style hash --out-file "$2" "$1"
}

faults=0
for library in inv_parser inv_platform; do
    file=$(find "$build" -name "lib$library.so" | head -n 1)
    description=abi/lib$library.abi
    describe "$file" "$work/abi"
    # Where a build folder lies shows in relative paths.
    sed -i -E "s:path='([.][.]/)+:path=':" "$work/abi"
    if [ -n "$regenerate" ]; then
        cp "$work/abi" "$description"
    elif abidiff --no-architecture --harmless "$description" "$work/abi"; then
        echo "lib$library: as described"
    else
        echo "lib$library: the interface differs from $description; a change on purpose is written by make regenerate-abi"
        faults=1
    fi
done
exit $faults
