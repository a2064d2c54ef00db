#!/bin/sh
# Static analysis of libraries and tools: cppcheck, then clang-tidy with .clang-tidy; any finding fails. Needs a
# configured build folder for its compile commands.
#   check_lint.sh BUILD [JOBS]
set -eu
build=$(realpath "$1")
jobs=${2:-$(nproc)}
cd "$(dirname "$0")/.."
mkdir -p "$build/cppcheck"

echo "cppcheck"
cppcheck --project="$build/compile_commands.json" --cppcheck-build-dir="$build/cppcheck" -j "$jobs" --quiet \
    --enable=warning,performance,portability --inline-suppr --suppressions-list=tools/cppcheck_suppressions.txt \
    --relative-paths="$PWD" --error-exitcode=1

echo "clang-tidy"
# Its list of commands and counts of hidden warnings go away unless something is found.
log=$build/clang-tidy.log
run-clang-tidy -p "$build" -j "$jobs" -quiet "^$PWD/(platform|shared_pkg|tools)/" >"$log" 2>/dev/null || {
    sed -e 's/\x1b\[[0-9;]*m//g' -e '/^clang-tidy/d' "$log"
    exit 1
}
files=$(grep -c '^clang-tidy' "$log" || true)
[ "$files" -gt 0 ] || { echo "no file was looked at"; exit 1; }
echo "no findings in $files files"
