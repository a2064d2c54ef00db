#!/usr/bin/env python3
"""Writes the words of inventory documents as a fuzzer's dictionary, taken from the schema.

    fuzz_dictionary.py SCHEMA > fuzz/inventory.dict
"""
import sys
import xml.etree.ElementTree as ElementTree

XS = "{http://www.w3.org/2001/XMLSchema}"


def names(schema, tags):
    return sorted({node.get("name") for tag in tags for node in schema.iter(XS + tag) if node.get("name")})


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def main():
    schema = ElementTree.parse(sys.argv[1]).getroot()
    # Items that several types share stand in annotations, in a namespace of their own or none.
    shared = {node.get("name") for node in schema.iter() if str(node.tag).endswith("sharedElement")}
    elements = sorted(set(names(schema, ["element"])) | {name for name in shared if name})
    sections = [
        ("Elements.", [word for name in elements for word in (f"<{name}>", f"</{name}>")]),
        ("Attributes.", [f' {name}="' for name in names(schema, ["attribute"])]),
        ("Types.", [f' xsi:type="{name}"' for name in names(schema, ["complexType"])]),
        ("Tokens of enumerations.",
         sorted({node.get("value") for node in schema.iter(XS + "enumeration")})),
    ]
    print("# Made by tools/fuzz_dictionary.py from the schema: `make regenerate` rewrites it.")
    for title, words in sections:
        print(f"# {title}")
        print("\n".join(quoted(word) for word in words))


main()
