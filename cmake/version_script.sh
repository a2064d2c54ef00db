#!/bin/sh
# Writes the linker's version script from a list of exported names: one name a line, # comments.
#   version_script.sh LIST NODE SCRIPT
set -eu
{
    echo "$2 {"
    echo "global:"
    sed -e 's/#.*//' -e '/^[[:space:]]*$/d' -e 's/^[[:space:]]*\([^[:space:]]*\).*/    \1;/' "$1"
    echo "local:"
    echo "    *;"
    echo "};"
} >"$3"
