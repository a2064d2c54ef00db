#!/bin/sh
# Checks that every source is formatted as .clang-format says; --fix rewrites the files.
set -eu
cd "$(dirname "$0")/.."
mode="--dry-run -Werror"
[ "${1:-}" = "--fix" ] && mode="-i"
# Generated sources are written by schemac in its own layout.
# shellcheck disable=SC2086 -- the mode is meant to be split
git ls-files -co --exclude-standard '*.h' '*.c' '*.cpp' |
    grep -vE '/(OrvelianInventorySchema(Dec)?|inventory_Derivations(Dec)?|inventory_tokens)\.(h|cpp)$' |
    xargs clang-format --style=file $mode
