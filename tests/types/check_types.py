"""Holds schema and types against each other and against two languages: check_types.py ROOT

The types must be what the script makes of the schema; tsc must take the documents of the examples and refuse those of
the cases that types can refuse; ajv and python3-jsonschema must judge all documents alike; and the code that
docs/integrators.md shows must write what it says."""

import glob
import json
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile

import jsonschema

root = sys.argv[1]
schema_file = f"{root}/schema/documents.schema.json"
# What only the numbers and the letters of a value decide, types do not see.
UNSEEN = re.compile(r"(pattern|minimum|maximum|multipleOf) |\w+ /metadata")


def read(name):
    with open(f"{root}/{name}", encoding="utf-8") as file:
        return file.read()


def run(*command, **options):
    environment = {**os.environ, "NODE_PATH": "/usr/share/nodejs"}
    return subprocess.run(command, stdout=subprocess.PIPE, encoding="utf-8", env=environment, **options).stdout


def values(value):
    """The value and all that it holds."""
    yield value
    for part in value.values() if isinstance(value, dict) else value if isinstance(value, list) else []:
        yield from values(part)


def documents_of_cases():
    """Every object in the case files that may stand for a document, and all that is to be read, also as a text."""
    for name in glob.glob(f"{root}/tests/cases/**/*.json", recursive=True):
        for value in values(json.loads(read(os.path.relpath(name, root)))):
            if isinstance(value, dict):
                yield from [value] if "_type" in value else []
                yield from [value["document"]] if "document" in value else []
                yield from value.get("documents", [])
                for text in value.get("texts", [value["text"]] if "text" in value else []):
                    try:
                        document = json.loads(text)
                        json.dumps(document, allow_nan=False)
                        yield document
                    except ValueError:
                        pass


def generated(count):
    lines = (line.partition(" = ") for line in read("tests/cases/model.txt").split("\n"))
    rules = {rule: text.split(" | ") for rule, _, text in lines}

    def made(rule):
        text = random.choice(rules[rule])
        return re.sub(r"<(\w+)>", lambda name: made(name[1]), text if text != "NOTHING" else "")

    kinds = ("MediaInput", "MediaOutput", "SequenceOutput", "Speed", "Boundary", "Node")
    return [json.loads(made(kinds[number % len(kinds)])) for number in range(count)]


def damaged(document):
    """A copy with one value changed into another that looks much like it."""
    copy = json.loads(json.dumps(document))
    holder = random.choice([value for value in values(copy) if isinstance(value, (dict, list)) and value])
    key = random.choice(list(holder) if isinstance(holder, dict) else range(len(holder)))
    old = holder[key]
    holder[key] = random.choice([None, True, 0, 10, -1, 1.5, 2.0, 2**31, "", "0", "a.b", [], {}, f"{old}\n", f" {old}"])
    if isinstance(holder, dict) and random.random() < 0.3:
        holder[random.choice(["_type", "x", "x.y", f"{key}\n", "qiv.peloperator.z"])] = holder.pop(key)
    return copy


examples = [json.loads(line) for name in glob.glob(f"{root}/examples/documents/**/*.ndjson", recursive=True)
            for line in read(os.path.relpath(name, root)).splitlines()]
examples += [json.loads(read(os.path.relpath(name, root)))
             for name in glob.glob(f"{root}/examples/documents/**/*.json", recursive=True)]
random.seed(1)
made = generated(2000)
wrong = []

types = subprocess.check_output([sys.executable, f"{root}/schema/make_types.py", schema_file], encoding="utf-8")
if types != read("schema/documents.d.ts"):
    wrong.append("documents.d.ts is not what make_types.py makes of the schema: schema/make_types.py "
                 "schema/documents.schema.json >schema/documents.d.ts")

missing = [package for package, file in (("nodejs", "/usr/bin/nodejs"),
                                         ("node-typescript", "/usr/share/nodejs/typescript/lib/tsc.js"),
                                         ("node-ajv", "/usr/share/nodejs/ajv")) if not os.path.exists(file)]
if missing and not wrong:
    print("not installed, so that only documents.d.ts itself was looked at:", *missing)
    sys.exit(1 if os.environ.get("CI") else 77)

# One document a line, so that the place of a complaint names it.
cases = json.loads(read("tests/cases/Schema.json"))["cases"]
typed = [(document, None) for document in examples + made[:100]]
typed += [(case["document"], case.get("fault")) for case in cases]
shown = re.findall(r"^```(ts|python)\n(.*?)^```\n\n```text\n(.*?)^```$", read("docs/integrators.md"), re.M | re.S)
sources = {f"shown.{language}": code for language, code, _ in shown}
sources["typed.ts"] = 'import { Document } from "./documents";' + "".join(
    f"const _{number}: Document = {json.dumps(document)};\n" for number, (document, _) in enumerate(typed))
with tempfile.TemporaryDirectory() as folder:
    for name in ("documents.d.ts", "documents.schema.json"):
        shutil.copy(f"{root}/schema/{name}", folder)
    for name, code in sources.items():
        with open(f"{folder}/{name}", "w", encoding="utf-8") as file:
            file.write(code)
    complaints = run("/usr/bin/nodejs", "/usr/share/nodejs/typescript/lib/tsc.js", "--strict", "--target", "es2020",
                     "--module", "commonjs", "typed.ts", "shown.ts", cwd=folder)
    written = {"ts": run("/usr/bin/nodejs", "shown.js", cwd=folder),
               "python": run(sys.executable, "shown.python", cwd=folder)}
for language, _, output in shown:
    if written.pop(language) != output or f"shown.{language}" in complaints:
        wrong.append(f"the {language} code of docs/integrators.md writes something else")
if written:
    wrong.append("docs/integrators.md shows other code")
refused = {int(line) - 1 for line in re.findall(r"typed\.ts\((\d+),", complaints)}
if len(refused) < 10 or "documents.d.ts" in complaints:
    wrong.append(f"tsc: {complaints}")
for number, (document, fault) in enumerate(typed):
    if (number in refused) != (fault is not None) and not (fault and UNSEEN.match(fault)):
        wrong.append(f"tsc {'refuses' if number in refused else 'takes'} {json.dumps(document)}")

everything = examples + list(documents_of_cases()) + made + [damaged(document) for document in made]
validator = jsonschema.Draft7Validator(json.loads(read("schema/documents.schema.json")))
here = [validator.is_valid(document) for document in everything]
lines = "".join(json.dumps(document) + "\n" for document in everything)
verdicts = run("/usr/bin/nodejs", f"{root}/tests/types/verdicts.js", schema_file, input=lines)
there = [line == "true" for line in verdicts.splitlines()]
wrong += [f"ajv says {other}, jsonschema {one} of {json.dumps(document)}"
          for document, one, other in zip(everything, here, there) if one != other]
print(*wrong[:50], f"of {len(typed)} documents types refuse {len(refused)}",
      f"of {len(here)} documents the schema refuses {here.count(False)}", sep="\n")
sys.exit(bool(wrong) or len(here) != len(there) or not 500 < here.count(False) < len(here) - 2000)
