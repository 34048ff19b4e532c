"""Holds the schema against documents: check_schema.py SCHEMA BAD_DOCUMENTS MODEL GOOD_FILE..."""

import json
import random
import re
import sys

import jsonschema

schema_file, bad_file, model_file, *good_files = sys.argv[1:]
with open(schema_file, encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft7Validator.check_schema(schema)
validator = jsonschema.Draft7Validator(schema)
with open(model_file, encoding="utf-8") as file:
    rules = {rule: text.split(" | ") for rule, _, text in (line.partition(" = ") for line in file.read().split("\n"))}


def made(rule):
    text = random.choice(rules[rule])
    return re.sub(r"<(\w+)>", lambda name: made(name[1]), text if text != "NOTHING" else "")


def faults(document):
    return {f"{error.validator} /{'/'.join(map(str, error.absolute_path))}" for error in validator.iter_errors(document)}


def lines(name, text):
    return [(f"{name}:{number}", json.loads(line)) for number, line in enumerate(text.splitlines(), 1)]


random.seed(1)
kinds = ("MediaInput", "MediaOutput", "SequenceOutput", "Speed", "Boundary", "Node")
good = [(kind, json.loads(made(kind))) for kind in kinds for _ in range(100)]
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
