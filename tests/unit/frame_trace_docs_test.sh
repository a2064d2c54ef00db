#!/bin/sh
# docs/trace-messages.md is what tools/trace_docs.sh makes of the catalogue, with one row per message.
set -eu
made=$("$1/tools/trace_docs.sh" "$1/shared_pkg/common/schema/parser/src/frame/trace_messages.def")
printf '%s\n' "$made" | diff -u "$1/docs/trace-messages.md" -
rows=$(printf '%s\n' "$made" | grep -c '^| [0-9]')
[ "$rows" -eq 259 ] || { echo "$rows rows instead of 259" >&2; exit 1; }
