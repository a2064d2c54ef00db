#!/bin/sh
# Measures lines and branches of library and platform with the tests of a build that counts, and writes the report:
# coverage.txt, coverage.json and html/ in the build folder. Fails below the limits and for a line that no test runs
# and docs/uncovered.md does not name.
#   coverage.sh BUILD [JOBS]
set -eu
build=$(realpath "$1")
jobs=${2:-$(nproc)}
cd "$(dirname "$0")/.."

# Counts of an earlier build or run would be added to.
find "$build" -name '*.gcda' -delete
# Random searches are cut short: what counts here is which lines run, and counting makes them slow. The sweeps over whole
# commands are left out: each of their processes writes all counts, and what fails there fails in other sweeps, too.
INV_ROUNDS=1000 ctest --test-dir "$build" --output-on-failure -j "$jobs" -E '^Invctl/Command(Faults|WithoutMemory)'

# Left out are branches that only an exception takes, those of lines without code, and the trace catalogue: a table, of
# which each reader makes its own code. Generated sources are measured like others: what they hold beside tables is code.
mkdir -p "$build/html"
failed=0
gcovr --root . --filter 'platform/' --filter 'shared_pkg/common/schema/parser/' --exclude '.*\.def$' -j "$jobs" \
    --exclude-throw-branches --exclude-unreachable-branches --fail-under-line 98 --fail-under-branch 95 \
    --txt "$build/coverage.txt" --json "$build/coverage.json" --html-details "$build/html/index.html" \
    --print-summary "$build" || failed=$?
tools/check_coverage.py "$build/coverage.json" --figures
tools/check_coverage.py "$build/coverage.json" || failed=1
exit "$failed"
