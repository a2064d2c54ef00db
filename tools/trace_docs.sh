#!/bin/sh
# Writes docs/trace-messages.md from the trace catalogue, to standard output.
#     tools/trace_docs.sh shared_pkg/common/schema/parser/src/frame/trace_messages.def >docs/trace-messages.md
set -eu
cat <<'HEAD'
# Trace messages

Made from `shared_pkg/common/schema/parser/src/frame/trace_messages.def` by `tools/trace_docs.sh`; edit
the catalogue, not this file.

Every line of the library's trace channel has the id of the one place that writes it. Kinds has a letter
for each argument: `s` a text, `d` a 32-bit integer, `D` a 64-bit value or pointer. The size word is 4, plus
1 for each `d`, 2 for each `D`, and 1 more when these make 6 or more. Texts are as written, newlines as `\n`.

| Id | Size | Kinds | Name | Text |
|---:|---:|---|---|---|
HEAD
LC_ALL=C awk '
/^\/\/ / { next }
/^INV_TRACE_MESSAGE\(/ {
    row = $0
    sub(/^INV_TRACE_MESSAGE\(/, "", row)
    sub(/\)$/, "", row)
    # Only the text, which is last, may hold commas.
    for (field = 1; field <= 4; ++field) {
        at = index(row, ", ")
        part[field] = substr(row, 1, at - 1)
        row = substr(row, at + 2)
    }
    kinds = substr(part[3], 2, length(part[3]) - 2)
    text = substr(row, 2, length(row) - 2)
    gsub(/\|/, "\\|", text)
    printf "| %s | %s | %s | `%s` | `%s` |\n", part[1], part[2], kinds == "" ? "" : "`" kinds "`", part[4], text
}' "$1"
