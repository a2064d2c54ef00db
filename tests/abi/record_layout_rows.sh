#!/bin/sh
# Turns the names of record_layouts.txt into rows of C that compute offset and size.
#   record_layout_rows.sh LIST ROWS
set -eu
LC_ALL=C awk '
/^#/ || NF == 0 { next }
/^[^ ]/ {
    record = $1
    printf "{\"%s\", NULL, _Alignof(%s), sizeof(%s)},\n", record, record, record
    next
}
{ member = $1 }
# A bit-field has no offset: its row has the number of its first bit in the record, and its width.
sub(/:1$/, "", member) {
    printf "{\"%s\", \"%s:1\", first_bit(&(%s){.%s = 1}, sizeof(%s)), 1},\n", record, member, record, member, record
    next
}
# An array without bound adds nothing to the size.
sub(/\[\]$/, "", member) {
    printf "{\"%s\", \"%s[]\", offsetof(%s, %s), 0},\n", record, member, record, member
    next
}
{ printf "{\"%s\", \"%s\", offsetof(%s, %s), sizeof(((%s *)0)->%s)},\n", record, member, record, member, record, member }
' "$1" >"$2"
