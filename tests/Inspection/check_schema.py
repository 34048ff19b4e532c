"""Holds the schema against documents: check_schema.py SCHEMA CASES MODEL GOOD_FILE..."""

import json
import random
import re
import sys

import jsonschema

schema_file, case_file, model_file, *good_files = sys.argv[1:]
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


random.seed(1)
kinds = ("MediaInput", "MediaOutput", "SequenceOutput", "Speed", "Boundary", "Node")
good = [(kind, json.loads(made(kind))) for kind in kinds for _ in range(100)]
for name in good_files:
    with open(name, encoding="utf-8") as file:
        texts = file if name.endswith(".ndjson") else [file.read()]
        documents = [json.loads(text) for text in texts]
        if "cases" in documents[0]:
            documents = [case["update"] for case in documents[0]["cases"] if "update" in case]
        good += [(f"{name}:{number}", document) for number, document in enumerate(documents, 1)]
wrong = [f"{name}: {faults(document)}" for name, document in good if faults(document)]

with open(case_file, encoding="utf-8") as file:
    for case in json.load(file)["cases"]:
        if faults(case["document"]) != ({case["fault"]} if "fault" in case else set()):
            wrong.append(f"{case['name']}: {faults(case['document'])}")

print(*wrong, f"{len(good)} good documents", sep="\n")
sys.exit(bool(wrong) or len(good) < 600)
