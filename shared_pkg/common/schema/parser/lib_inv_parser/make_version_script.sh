#!/bin/sh
# Writes the linker's version script from the list of exported names: one name a line, # comments.
set -eu
{
    echo "INV_PARSER_1 {"
    echo "global:"
    sed -e 's/#.*//' -e '/^[[:space:]]*$/d' -e 's/^[[:space:]]*\([^[:space:]]*\).*/    \1;/' "$1"
    echo "local:"
    echo "    *;"
    echo "};"
} >"$2"
