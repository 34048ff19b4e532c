"""Holds the schema against documents: check_schema.py SCHEMA BAD_DOCUMENTS PRINTER GOOD_FILE..."""

import json
import subprocess
import sys

import jsonschema

schema_file, bad_file, printer, *good_files = sys.argv[1:]
with open(schema_file, encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)


def faults(document):
    return {f"{error.validator} /{'/'.join(map(str, error.absolute_path))}" for error in validator.iter_errors(document)}


def lines(name, text):
    return [(f"{name}:{number}", json.loads(line)) for number, line in enumerate(text.splitlines(), 1)]


good = lines(printer, subprocess.run([printer], check=True, capture_output=True, encoding="utf-8").stdout)
for name in good_files:
    with open(name, encoding="utf-8") as file:
        good += lines(name, file.read()) if name.endswith(".ndjson") else [(name, json.load(file))]
wrong = [f"{name}: {faults(document)}" for name, document in good if faults(document)]

with open(bad_file, encoding="utf-8") as file:
    for name, case in lines(bad_file, file.read()):
        if faults(case["document"]) != {case["fault"]}:
            wrong.append(f"{name}: {faults(case['document'])} instead of {case['fault']}")

print(*wrong, f"{len(good)} good documents", sep="\n")
sys.exit(bool(wrong) or len(good) < 600)
