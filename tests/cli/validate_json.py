#!/usr/bin/python3
"""validate_json.py SCHEMA FILE...: every file is valid by the JSON Schema, and the schema is one."""
import json
import sys

import jsonschema


def load(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def main():
    schema = load(sys.argv[1])
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    failures = 0
    for path in sys.argv[2:]:
        for error in validator.iter_errors(load(path)):
            where = "/".join(str(step) for step in error.absolute_path)
            print(f"{path}: {where}: {error.message[:300]}")
            failures += 1
    return 1 if failures else 0


sys.exit(main())
