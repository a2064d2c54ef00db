#!/bin/sh
# schemac_test.sh SCHEMAC SOURCE_DIR: the schema is a schema, the committed sources are what it gives, and
# schemac tells when they are not.
set -u
schemac=$1
top=$2
parser=$top/shared_pkg/common/schema/parser
xsd=$top/schema/OrvelianInventory.xsd
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

expect() { # expect WANTED_STATUS WHAT COMMAND...
    wanted=$1
    what=$2
    shift 2
    "$@" >"$work/out" 2>&1
    got=$?
    if [ "$got" -ne "$wanted" ]; then
        echo "FAILED: $what: exit $got, not $wanted"
        cat "$work/out"
        failures=$((failures + 1))
    fi
}

says() { # says TEXT: in the last command's output
    grep -q "$1" "$work/out" || {
        echo "FAILED: output lacks \"$1\""
        cat "$work/out"
        failures=$((failures + 1))
    }
}

printf '<fanTray name="f" type="ORVL_ENTITY_TYPE_MODULE" subtype="ORVL_ENTITY_SUBTYPE_MODULE_FANTRAY" instance="0" replicationScope="ORVL_REPLICATION_TYPE_NONE" xmlInstance="1"/>' >"$work/good.xml"
sed 's/ name="f"//' "$work/good.xml" >"$work/bad.xml"
expect 0 "xmllint accepts the schema" xmllint --noout --schema "$xsd" "$work/good.xml"
expect 3 "xmllint refuses a document by it" xmllint --noout --schema "$xsd" "$work/bad.xml"

undocumented='//*[local-name()="element" or local-name()="attribute" or local-name()="complexType" or
    local-name()="simpleType"][@name][not(*[local-name()="annotation"]/*[local-name()="documentation"]
    [normalize-space()])]/@name'
expect 0 "what an author may write is documented" test -z "$(xmllint --xpath "$undocumented" "$xsd" 2>/dev/null)"
expect 0 "and the schema has such names" test -n "$(xmllint --xpath '//*[@name]/@name' "$xsd")"

expect 0 "the committed sources are current" \
    "$schemac" "$xsd" --source-dir "$parser/src" --header-dir "$parser/include/inv_parser" --check

mkdir "$work/first" "$work/second"
expect 0 "sources can be written" "$schemac" "$xsd" --source-dir "$work/first" --header-dir "$work/first"
expect 0 "and once more" "$schemac" "$xsd" --source-dir "$work/second" --header-dir "$work/second"
expect 0 "both times the same" diff -r "$work/first" "$work/second"
for file in "$work"/first/*; do
    expect 0 "$(basename "$file") says what it is made from" \
        sh -c "head -1 '$file' | grep -q 'Generated from schema/OrvelianInventory.xsd by schemac'"
    expect 1 "$(basename "$file") keeps to 110 columns" grep -qE '^.{111,}' "$file"
done

echo "/* touched */" >>"$work/first/inventory_Derivations.cpp"
expect 1 "a changed file is found" "$schemac" "$xsd" --source-dir "$work/first" --header-dir "$work/first" --check
says "inventory_Derivations.cpp differs"
rm "$work/second/inventory_tokens.h"
expect 1 "an absent file is found" "$schemac" "$xsd" --source-dir "$work/second" --header-dir "$work/second" --check
says "inventory_tokens.h differs"

expect 2 "no options are a usage error" "$schemac"
expect 2 "an unknown option is a usage error" "$schemac" "$xsd" --source-dir a --header-dir b --fast
expect 2 "a schema that is not there" "$schemac" "$work/none.xsd" --source-dir "$work/first" --header-dir "$work/first"
says "none.xsd"
expect 2 "a folder that is not there" "$schemac" "$xsd" --source-dir "$work/none" --header-dir "$work/none"
says "cannot be written"

broken() { # broken SED_SCRIPT MESSAGE
    sed "$1" "$xsd" >"$work/broken.xsd"
    cmp -s "$xsd" "$work/broken.xsd" && echo "FAILED: $1 changes nothing" && failures=$((failures + 1))
    expect 2 "$1" "$schemac" "$work/broken.xsd" --source-dir "$work/first" --header-dir "$work/first"
    says "$2"
}
broken '0,/<xs:sequence>/s//<xs:choice>/' 'broken.xsd:[0-9]*:[0-9]*: cannot be read'
broken 's/type="NodeInfoType"/type="NoSuchType"/' 'unknown type "NoSuchType"'
broken 's/base="BasePortType"/base="NoSuchType"/' 'unknown base type "NoSuchType"'
broken 's/base="BaseEntityType"/base="BaseConsoleType"/' 'contains itself'
broken 's/before="size"/before="nothing"/' 'no element "nothing" to stand at'
broken 's/ORVL_PCI_GEN_GEN4/ORVL_PCI_GEN_GEN3/' 'ORVL_PCI_GEN_GEN3 exists already'
broken 's/<xs:length value="1"\/>//' 'hexadecimal without a length'
broken 's/<xs:complexType name="NodeInfoType">/<xs:complexType>/' 'a complex type without a name'
broken 's/<xs:complexType name="NodeInfoType">/<xs:complexType name="SpiPortType">/' 'SpiPortType: named twice'

[ "$failures" -eq 0 ]
