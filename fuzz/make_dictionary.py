"""Prints the words of documents for libFuzzer, as the schema has them: make_dictionary.py SCHEMA"""

import json
import sys


def words(value):
    """The keys, the texts of "_type" and the enumerators below a value."""
    if isinstance(value, dict):
        yield from (f'"{key}":' for key in value.get("properties", {}))
        yield from (f'"{text}"' for text in value.get("enum", [value["const"]] if "const" in value else []))
        value = list(value.values())
    for part in value if isinstance(value, list) else []:
        yield from words(part)


with open(sys.argv[1], encoding="utf-8") as file:
    for word in sorted(set(words(json.load(file)))):
        print('"' + word.replace('"', '\\"') + '"')
