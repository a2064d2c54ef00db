#!/bin/sh
# Runs each fuzz target for some seconds from the kept corpus; what it finds stands in build/findings.
#   fuzz_smoke.sh FOLDER-OF-TARGETS SECONDS
set -eu
cd "$(dirname "$0")/.."
. tools/fuzz_targets.sh
mkdir -p build/findings
for target in $FUZZ_TARGETS; do
    work=$(mktemp -d)
    echo "fuzz_$target for $2 seconds"
    # shellcheck disable=SC2046 -- lists of options and folders
    "$1/fuzz_$target" $(fuzz_options "$target") -max_total_time="$2" -print_final_stats=0 -verbosity=0 \
        -artifact_prefix="build/findings/$target-" "$work" $(fuzz_seeds "$target")
    rm -rf "$work"
done
