#!/usr/bin/env python3
"""Makes the TypeScript types of the documents: make_types.py SCHEMA writes them to standard output.

Knows the keywords that the schema has; any other is an error, so that none is passed over."""

import json
import re
import sys

COLUMNS = 120
# What types cannot say becomes a tag of the comment.
TAGS = ("pattern", "minimum", "maximum", "multipleOf", "examples")
WITHOUT_EFFECT = ("description", "title", "$schema", "$id", "definitions", *TAGS)


def comment(schema, indent=""):
    lines = []
    text = schema.get("description", "")
    while text:
        cut = len(text) if len(text) <= COLUMNS - len(indent) - 3 else text.rfind(" ", 0, COLUMNS - len(indent) - 2)
        lines.append(text[:cut])
        text = text[cut:].strip()
    for tag in TAGS:
        values = [schema[tag]] if tag in schema else []
        for value in schema.get(tag, []) if tag == "examples" else values:
            lines.append(f"@{tag.removesuffix('s')} {value}")
    assert not any("*/" in line for line in lines)
    if not lines:
        return ""
    if len(lines) == 1 and len(lines[0]) <= COLUMNS - len(indent) - 7:
        return f"{indent}/** {lines[0]} */\n"
    return f"{indent}/**\n" + "".join(f"{indent} * {line}\n" for line in lines) + f"{indent} */\n"


def name_of(reference):
    return reference["$ref"].removeprefix("#/definitions/")


def known(schema, *keywords):
    unknown = set(schema) - set(keywords) - set(WITHOUT_EFFECT)
    if unknown:
        sys.exit(f"make_types.py: no rule for {sorted(unknown)}")


def is_choice(schema):
    """Whether "_type" tells which definition holds: one "if" for each of its values."""
    return "allOf" in schema and all("if" in part for part in schema["allOf"])


def choice(schema):
    known(schema, "type", "properties", "required", "allOf")
    kinds = {part["if"]["properties"]["_type"]["const"]: name_of(part["then"]) for part in schema["allOf"]}
    assert set(kinds) == set(schema["properties"]["_type"]["enum"]) and schema["required"] == ["_type"]
    return " | ".join(kinds.values())


def type_of(schema):
    if "$ref" in schema:
        known(schema, "$ref")
        return name_of(schema)
    if "allOf" in schema:
        known(schema, "allOf")
        (reference,) = schema["allOf"]
        return name_of(reference)
    if "const" in schema or "enum" in schema:
        known(schema, "const", "enum")
        return " | ".join(json.dumps(value) for value in schema.get("enum", [schema.get("const")]))
    if schema["type"] == "array":
        known(schema, "type", "items", "minItems")
        item = type_of(schema["items"])
        return f"[{item}, ...{item}[]]" if schema["minItems"] == 1 else f"{item}[]"
    known(schema, "type")
    return {"string": "string", "integer": "number", "boolean": "boolean"}[schema["type"]]


def members(schema):
    known(schema, "type", "properties", "required", "patternProperties", "additionalProperties")
    assert schema["type"] == "object" and schema["additionalProperties"] is False
    text = ""
    for key, value in schema["properties"].items():
        optional = "" if key in schema.get("required", []) else "?"
        quoted = key if re.fullmatch(r"\w+", key) else json.dumps(key)
        text += comment(value, "  ") + f"  {quoted}{optional}: {type_of(value)};\n"
    for value in schema.get("patternProperties", {}).values():
        # The type of such an index holds for the members above, too.
        types = {type_of(value), *(type_of(member) for member in schema["properties"].values())}
        text += "  [name: `${string}.${string}`]: " + " | ".join(sorted(types, reverse=True)) + " | undefined;\n"
    return text


def declaration(name, schema):
    if is_choice(schema):
        return comment(schema) + f"export type {name} = {choice(schema)};\n"
    if schema.get("type") == "object":
        return comment(schema) + f"export interface {name} {{\n{members(schema)}}}\n"
    return comment(schema) + f"export type {name} = {type_of(schema)};\n"


with open(sys.argv[1], encoding="utf-8") as file:
    root = json.load(file)
print("// Made from documents.schema.json by make_types.py.\n")
print("\n".join([declaration("Document", root)] + [declaration(*item) for item in root["definitions"].items()]), end="")
