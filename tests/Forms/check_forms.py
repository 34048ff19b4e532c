"""Holds what no compiler sees against the forms: check_forms.py ROOT PROGRAM

The schema, the page docs/json.md, the fuzz dictionary and the documents of the tests must have the members and the
texts of enumerations that the forms have, which PROGRAM prints, and no others."""

import json
import re
import subprocess
import sys

root, program = sys.argv[1:]
done = subprocess.run([program], stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=True, encoding="utf-8")
told = json.loads(done.stdout)
forms, documents = told["forms"], told["documents"]
wrong = done.stderr.splitlines()
RESERVED = ("MediaOutput", "locationOnAir")  # no reader takes it and no writer writes it
# Their members are left out.
UNWRITTEN = {("MediaOutput", "globalLoopMode", "Unknown"), ("MediaOutput", "primaryTimecodeType", "NotSet"),
             ("MediaInput", "primaryTimecodeType", "NotSet")}

members = {(form, key) for form in forms for key in forms[form]}
texts = {(form, key, text) for form, key in members for text in forms[form][key]["texts"]}
written = members - {RESERVED}


def read(name):
    with open(f"{root}/{name}", encoding="utf-8") as file:
        return file.read()


def expect(file, found, expected):
    for *where, last in sorted(found ^ expected):
        state = "lacks" if (*where, last) in expected else "has, but the forms lack,"
        wrong.append(" ".join((f"{file}:", *where, state, last)))


def occurring(value, name=""):
    """The members in a document, and the texts of those that are an enumeration or "_type"."""
    if isinstance(value, list):
        return set().union(*map(occurring, value))
    if not isinstance(value, dict):
        return set()
    form = "Metadata" if name == "metadata" else value.get("_type")
    found = {(form, key) for key in value if form != "Metadata" or key.startswith("qiv.peloperator.")}
    found |= {(form, key, text) for form, key in found if forms.get(form, {}).get(key, {}).get("texts")
              for text in [value[key]]}
    return found.union(*(occurring(part, key) for key, part in value.items()))


# The schema.
definitions = json.loads(read("schema/documents.schema.json"))["definitions"]
found = set()
for name, definition in definitions.items():
    properties = definition.get("properties", {})
    if "enum" in properties.get("_type", {}):  # one of several objects
        continue
    form = properties.get("_type", {}).get("const", name)
    for key, value in properties.items():
        while "type" not in value and ("$ref" in value or "allOf" in value):
            value = definitions[value["$ref"].split("/")[-1]] if "$ref" in value else value["allOf"][0]
        found.add((form, key))
        found |= {(form, key, text) for text in value.get("enum", [value["const"]] if "const" in value else [])}
        kind = forms.get(form, {}).get(key, {}).get("type", "any")
        if kind not in ("any", value.get("type", "string")):
            wrong.append(f"schema/documents.schema.json: {form} {key} is not of the type {kind}, as in the forms")
expect("schema/documents.schema.json", found, written | texts)

# The page. The tables of common members and of metadata have no row "_type".
found = set()
for headline, section in re.findall(r"^## (.*)\n([\s\S]*?)(?=^## |\Z)", read("docs/json.md"), re.M):
    for table in re.findall(r"(?:^\|.*\n)+", section, re.M):
        rows = [[re.findall('"(.*?)"', cell) for cell in row.split(" | ")[:2]]
                for row in table.splitlines() if row.startswith("| ")]
        kinds = next((values for keys, values in rows if keys == ["_type"]), [headline])
        kinds = ["MediaInput", "MediaOutput"] if headline.startswith("Common") else kinds
        for keys, values in rows:
            for key in keys:
                own = [kind for kind in kinds if key in forms.get(kind, {})] or kinds
                found |= {(kind, key) for kind in own}
                found |= {(kind, key, text) for kind in own for text in values if key != "_type" or text == kind}
    for example in re.findall(r"^\| [\w ]+ \| `(\{.*?\})`", section, re.M):
        found |= occurring(json.loads(example))
expect("docs/json.md", found - {("Metadata", "profile.name.key")}, members | texts)

# The documents. Only those that are generated have each enumerator.
for file, values in documents.items():
    found = occurring(values)
    if file.startswith("the rules"):
        expect(file, found, written | texts - UNWRITTEN)
    else:
        expect(file, {fact for fact in found if len(fact) == 2}, written)

# The dictionary for libFuzzer, most of which is made of the schema.
words = {(f'"{key}":',) for _, key in members} | {(f'"{text}"',) for *_, text in texts}
made = subprocess.check_output([sys.executable, f"{root}/fuzz/make_dictionary.py",
                                f"{root}/schema/documents.schema.json"], encoding="utf-8")
found = re.findall(r'^"\\"([\w.]+)\\"(:?)"$', made + read("fuzz/tokens.dict"), re.M)
expect("fuzz/tokens.dict", {(f'"{word}"{colon}',) for word, colon in found},
       words | {('"a.b":',), ('"Absolute"',)})  # a key of metadata, and an origin that ends the process

print(*wrong, f"{len(members)} members and {len(texts)} texts", sep="\n")
sys.exit(bool(wrong) or len(texts) < 30)
