#!/bin/sh
# Runs each fuzz target for some seconds from the kept corpus; what it finds stands in build/findings.
#   fuzz_smoke.sh FOLDER-OF-TARGETS SECONDS
set -eu
cd "$(dirname "$0")/.."
mkdir -p build/findings
for target in document open catalogue roads; do
    work=$(mktemp -d)
    dictionary=
    case $target in
    catalogue) seeds=inventories ;;
    roads) seeds= dictionary=-dict=fuzz/xml.dict ;;
    *) seeds=tests/documents/data ;;
    esac
    echo "fuzz_$target for $2 seconds"
    # shellcheck disable=SC2086 -- a list of folders, an option or nothing
    "$1/fuzz_$target" -max_total_time="$2" -max_len=16384 -timeout=20 -rss_limit_mb=4096 -print_final_stats=0 -verbosity=0 \
        -artifact_prefix="build/findings/$target-" $dictionary "$work" "fuzz/corpus/$target" $seeds
    rm -rf "$work"
done
