#!/bin/sh
# check_against_xmllint.sh BUILD: times `invctl check` beside xmllint's validation, on one document of 10,000
# entities (about 13 MB) with 1,000 faults. Fails when invctl takes three times as long.
# BUILD is a build folder with benchmarks (cmake -DINV_BENCH=ON).
set -eu

build=${1:?usage: check_against_xmllint.sh BUILD}
top=$(cd "$(dirname "$0")/.." && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

"$build/bench/inv_generate" --entities 10000 -o "$folder/clean.xml"
# Every so many lines one fault, of four kinds in turn.
awk '
    function spoil(line) {
        if (kind == 0) return gsub(/snmpEntity="[a-z]*"/, "snmpEntity=\"maybe\"", line) ? line : ""
        if (kind == 1) return gsub(/instance="[0-9]*"/, "instance=\"70000\"", line) ? line : ""
        if (kind == 2) return sub(/ORVL_ENTITY_OWNER_TYPE_[A-Z]*/, "ORVL_ENTITY_OWNER", line) ? line : ""
        return sub(/replicationScope=/, "replicationScopes=\"1\" replicationScope=", line) ? line : ""
    }
    /xmlInstance="/ && ++entity % 10 == 0 && faults < 1000 {
        spoilt = spoil($0)
        if (spoilt != "") { $0 = spoilt; ++faults }
        kind = (kind + 1) % 4
    }
    { print }
    END { print faults > "/dev/stderr" }
' "$folder/clean.xml" 2>"$folder/faults" >"$folder/faulty.xml"

# Least of five runs, in milliseconds.
least() {
    best=
    for _ in 1 2 3 4 5; do
        begin=$(date +%s%N)
        "$@" >/dev/null 2>&1 || true
        taken=$((($(date +%s%N) - begin) / 1000000))
        if [ -z "$best" ] || [ "$taken" -lt "$best" ]; then best=$taken; fi
    done
    echo "$best"
}

size=$(wc -c <"$folder/faulty.xml")
faults=$(cat "$folder/faults")
# Findings against the schema name its status; the document repeats some xml instances besides.
found=$("$build/tools/invctl/invctl" check --max 0 "$folder/faulty.xml" | grep -c '(status -') || true
[ "$found" -eq "$faults" ] || { echo "invctl finds $found of $faults faults" >&2; exit 1; }
invctl=$(least "$build/tools/invctl/invctl" check --max 0 "$folder/faulty.xml")
xmllint=$(least xmllint --noout --schema "$top/schema/OrvelianInventory.xsd" "$folder/faulty.xml")
echo "$size octets, $faults faults, all found"
echo "invctl check      $invctl ms"
echo "xmllint --schema  $xmllint ms"
[ "$invctl" -lt $((3 * xmllint)) ] || { echo "invctl takes three times as long or more" >&2; exit 1; }
