#!/usr/bin/env python3
"""Changes the sources mechanically, one change at a time, and reports the changes that no related test notices.

A survivor is either a gap in the tests or a change that makes no difference; which of the two, the reader decides.
"""
import argparse
import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
# The copy that is changed, and what it is put back to after each change together with its object files: so a change
# costs no more than its own compilation.
NOW, KEPT = ROOT / "build/mutate/now", ROOT / "build/mutate/kept"

# The programs that test a folder, nearest first; the first pattern that fits counts.
RELATED = {
    "Qiv/TimePoints/": ["TimePointsTests", "fuzz_timecode", "fuzz_duration", "ConvertersTests"],
    "Qiv/Common/Serialization/Json/Details/(NumberText|ValueView)": ["TextTests", "fuzz_textandtree", "ConvertersTests"],
    "Qiv/Common/": ["CommonTests", "fuzz_stringer", "ConvertersTests", "InspectionTests"],
    "Qiv/BusinessEntityModel/BaseTypes/": ["BaseTypesTest", "EntitiesTest", "ConvertersTests"],
    "Qiv/DataModel/Tarvonel/Serialization/Json/(Channels|Documents)/": ["DocumentsTests"],
    "Qiv/DataModel/Tarvonel/Serialization/Json/(Mirrors|Updates)/": ["UpdatesTests", "fuzz_updates"],
    "Qiv/DataModel/Tarvonel/Serialization/Json/Details/(Quote|Text|ToTree|Utf8)":
        ["TextTests", "fuzz_text", "InspectionTests"],
    "Qiv/DataModel/Tarvonel/Serialization/Json/Details/SameContent": ["UpdatesTests", "fuzz_updates", "DocumentsTests"],
    "Qiv/DataModel/Tarvonel/Serialization/Json/": ["InspectionTests", "ConvertersTests", "tarvonel-json"],
    "Qiv/.*/Serialization/": ["ConvertersTests", "InspectionTests"],
    "Qiv/": ["EntitiesTest", "ConvertersTests"],
    "tools/": ["tarvonel-json"],
}

# Comments and texts; in code, a text is replaced by as many NULs between its quotation marks.
TEXT = re.compile(r"""\d'\d|//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])*'""", re.S)
UNTOUCHED = re.compile(r"^\s*#.*$|static_assert\(.*|= 0;|\[\[.*?\]\]", re.M)
SWAPS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||", "||": "&&", "+": "-",
         "-": "+", "*": "/", "/": "*", "%": "*", "true": "false", "false": "true", "+=": "-=", "-=": "+="}
CHANGES = [  # what is looked for in code, and what comes in its place
    (r"(?<= )(?:[=!<>]=|[<>+*/%-]|&&|\|\||[+-]=)(?= )|\b(?:true|false)\b", lambda old: SWAPS[old]),
    (r"(?<![\w.'])\d+(?![\w.'])", lambda old: str(int(old) + 1)),
    (r"(?:(?<=\bif )|(?<=hile ))\((?!const |auto )[^;\n]*\)(?=\n)", lambda old: f"(!{old})"),
    (r"(?<=    )(?!return|using|case|default|static|const|auto|friend|typedef|throw)"
     r"(?:[\w.:>*-]+(?:\(.*\)| [-+|*/%]?= .*|\[.*)|(?:\+\+|--)\w+|break|continue);$", lambda old: ";"),
    (r"(?<=')\0(?=')", lambda old: "~" if old != "~" else "!"),
    (r'(?<=")\0*(?=")', lambda old: "~" + old),
]


# All (name, position, end, replacement) of a file.
def changes(name):
    text = (KEPT / name).read_text()
    code = TEXT.sub(lambda m: m[0][0] + "\0" * (len(m[0]) - 2) + m[0][-1] if m[0][0] in "\"'" else " " * len(m[0]), text)
    barred = [match.span() for match in UNTOUCHED.finditer(text)]
    for pattern, replace in CHANGES:
        for match in re.finditer(pattern, code, re.M):
            if not any(first <= match.start() < last for first, last in barred):
                yield name, match.start(), match.end(), replace(text[match.start():match.end()])


def put_back():
    for kept in KEPT.rglob("*"):
        now = NOW / kept.relative_to(KEPT)
        if kept.is_file() and kept.stat().st_mtime_ns != now.stat().st_mtime_ns:
            shutil.copy2(kept, now)


# Whether a command ends well in time; what it started is ended with it.
def run(timeout, *command):
    nowhere = dict.fromkeys(("stdin", "stdout", "stderr"), subprocess.DEVNULL)
    return subprocess.run(["timeout", "-s", "KILL", str(timeout), *command], **nowhere).returncode == 0


def build(*targets):
    return run(1800, "cmake", "--build", NOW / "build", "--target", *targets)


def passes(program, timeout):
    if program == "tarvonel-json":
        return run(timeout, "python3", "-B", NOW / "tests/Tool/ToolTest.py", "-f")
    if program.startswith("fuzz_"):
        corpus = ROOT / "fuzz/corpus" / program[len("fuzz_"):]
        return run(timeout, NOW / "build/bin" / program, "-runs=20000", corpus)
    return run(timeout, NOW / "build/bin" / program, "--gtest_fail_fast")


def copy_if_different(source, target):
    if not os.path.exists(target) or pathlib.Path(source).read_bytes() != pathlib.Path(target).read_bytes():
        shutil.copy(source, target)


# Copies and builds the tree, from what the last run left; gives the seconds that each program may take.
def prepare():
    put_back()
    shutil.copytree(ROOT, NOW, ignore=shutil.ignore_patterns(".git", "build*", "corpus", "results"),
                    copy_function=copy_if_different, dirs_exist_ok=True)
    programs = sorted(set(sum(RELATED.values(), [])))
    if not run(300, "cmake", "-S", NOW, "-B", NOW / "build", "-G", "Ninja", "-DCMAKE_CXX_FLAGS=-O0 -w",
               "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON") or not build(*programs):
        raise SystemExit("mutate: the unchanged sources do not build")
    limits = {}
    for program in programs:
        start = time.monotonic()
        if not passes(program, 600):
            raise SystemExit(f"mutate: {program} fails on the unchanged sources")
        limits[program] = 20 + 5 * (time.monotonic() - start)
    shutil.copytree(NOW, KEPT, dirs_exist_ok=True)
    return limits


def outcome(name, limits):
    for program in next(programs for pattern, programs in RELATED.items() if re.match(pattern, name)):
        if not build(program):
            return "does not compile"
        if not passes(program, limits[program]):
            return "killed"
    return "survived"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("count", nargs="?", type=int, default=80, help="how many changes (80)")
    parser.add_argument("--seed", type=int, default=1, help="which changes (1)")
    parser.add_argument("--path", default="", help="a regular expression that the paths of the changed files have")
    arguments = parser.parse_args()
    os.environ["TARVONEL_JSON"] = str(NOW / "build/bin/tarvonel-json")
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    limits = prepare()
    names = sorted(str(path.relative_to(KEPT)) for top in ("Qiv", "tools") for path in (KEPT / top).rglob("*.[ch]*"))
    every = [change for name in names if re.search(arguments.path, name) for change in changes(name)]
    chosen = random.Random(arguments.seed).sample(every, min(arguments.count, len(every)))
    print(f"{len(chosen)} of {len(every)} possible changes", flush=True)
    outcomes = []
    for name, first, last, replacement in chosen:
        text = (KEPT / name).read_text()
        (NOW / name).write_text(text[:first] + replacement + text[last:])
        outcomes.append(outcome(name, limits))
        line, begin, end = text.count("\n", 0, first) + 1, text.rfind("\n", 0, first) + 1, text.find("\n", last)
        print(f"{outcomes[-1]}: {name}:{line}: {text[begin:first].lstrip()}[{text[first:last]} -> {replacement}]"
              + text[last:end], flush=True)
        put_back()
    print(", ".join(f"{outcomes.count(result)} {result}" for result in sorted(set(outcomes))))


if __name__ == "__main__":
    main()
