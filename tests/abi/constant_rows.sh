#!/bin/sh
# Turns the constants of public headers, enumerators and macros that stand for a value, into rows of C.
#   constant_rows.sh ROWS HEADER...
set -eu
rows=$1
shift
LC_ALL=C awk '
# Each header as a whole, without comments. Include guards have no value.
function constants_of(text,    lines, count, i, parts, enumerators, at, name) {
    gsub(/\/\*([^*]|\*+[^*\/])*\*+\//, "", text)
    gsub(/\/\/[^\n]*/, "", text)
    count = split(text, lines, "\n")
    for (i = 1; i <= count; ++i)
        if (split(lines[i], parts, " ") >= 3 && parts[1] == "#define" && parts[2] !~ /\(/)
            printf "{\"%s\", %s},\n", parts[2], parts[2]
    while (match(text, /enum[ \n]+([A-Za-z_0-9]+[ \n]*)?\{[^}]*\}/)) {
        enumerators = substr(text, RSTART, RLENGTH)
        text = substr(text, RSTART + RLENGTH)
        sub(/^[^{]*\{/, "", enumerators)
        sub(/\}$/, "", enumerators)
        count = split(enumerators, parts, ",")
        for (at = 1; at <= count; ++at)
            if (match(parts[at], /[A-Za-z_][A-Za-z_0-9]*/)) {
                name = substr(parts[at], RSTART, RLENGTH)
                printf "{\"%s\", %s},\n", name, name
            }
    }
}
FNR == 1 { constants_of(text); text = "" }
{ text = text $0 "\n" }
END { constants_of(text) }
' "$@" >"$rows"
