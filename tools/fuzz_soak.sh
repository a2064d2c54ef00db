#!/bin/bash
# Runs the fuzz targets in turn, one process at a time, until they have had the processor time asked for. Working
# corpora stay in build/fuzz-work, so that a later call goes on where this one ended; findings stand in build/findings.
#   fuzz_soak.sh FOLDER-OF-TARGETS CPU-SECONDS [LOG [SLICE [TARGET...]]]
# One line is appended to the log (build/fuzz-soak.txt) for each slice (600 seconds) of a target. Fails when there is a
# finding.
set -euo pipefail
targets_folder=$(realpath "$1")
wanted=$2
log=$(realpath -m "${3:-build/fuzz-soak.txt}")
slice=${4:-600}
shift $(($# < 4 ? $# : 4))
cd "$(dirname "$0")/.."
. tools/fuzz_targets.sh
targets=("$@")
[ ${#targets[@]} -gt 0 ] || read -ra targets <<<"$FUZZ_TARGETS"
mkdir -p build/findings "$(dirname "$log")"
commit=$(git describe --always --dirty 2>/dev/null || echo unknown)

# read_used: sets $used to the processor time of the children that have ended so far. No subshell may ask: it has other
# children.
read_used() {
    times >"$times_file"
    used=$(awk 'NR == 2 { gsub("s", ""); split($1, u, "m"); split($2, s, "m"); print u[1] * 60 + u[2] + s[1] * 60 + s[2] }' \
        "$times_file")
}

times_file=$(mktemp)
trap 'rm -f "$times_file"' EXIT
used=0
fuzzer=0
findings=0
stopped=no
trap 'stopped=yes; if [ $fuzzer -gt 0 ]; then kill -TERM $fuzzer; fi' TERM INT

# run_slice TARGET SECONDS
run_slice() {
    local target=$1 work=build/fuzz-work/$1 output=build/fuzz-work/$1.txt before=$used result=0
    mkdir -p "$work"
    read -ra options <<<"$(fuzz_options "$target" | xargs)"
    read -ra seeds <<<"$(fuzz_seeds "$target" | xargs)"
    "$targets_folder/fuzz_$target" "${options[@]}" -max_total_time="$2" -print_final_stats=1 -verbosity=0 \
        -artifact_prefix="build/findings/$target-" "$work" "${seeds[@]}" >"$output" 2>&1 &
    fuzzer=$!
    while :; do
        wait $fuzzer && result=0 || result=$?
        kill -0 $fuzzer 2>/dev/null || break
    done
    fuzzer=0
    read_used
    local verdict=clean
    case $result in
        0) ;;
        72) verdict=stopped ;;
        126 | 127) cat "$output"; exit 2 ;;
        *)
            verdict=CRASH
            findings=$((findings + 1))
            cp "$output" "build/findings/$target-$(date +%s).txt"
            ;;
    esac
    awk -v when="$(date -u +%FT%TZ)" -v target="$target" -v commit="$commit" -v verdict=$verdict \
        -v seconds="$(awk "BEGIN { print $used - $before }")" -v corpus="$(find "$work" -type f | wc -l)" '
        /stat::number_of_executed_units/ { runs = $2 }
        END { printf "%s %-22s %-18s cpu_seconds=%-8.1f runs=%-9d corpus=%-6d %s\n", when, target, commit, seconds, runs, corpus, verdict }
    ' "$output" >>"$log"
}

while [ $stopped = no ]; do
    for target in "${targets[@]}"; do
        if [ $stopped = yes ] || awk "BEGIN { exit !($used >= $wanted) }"; then
            break 2
        fi
        run_slice "$target" "$slice"
    done
done
[ $findings -eq 0 ] || echo "$findings findings: see build/findings"
exit $((findings > 0))
