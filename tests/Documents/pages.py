"""Holds the pages to what they show.

    pages.py extract FRAME FOLDER PAGE...   makes programs of the C++ code of the pages and prints their names
    pages.py [TEST]...                      the tests; QIV_BUILD is the build folder

A block of C++ with a main function is a program of its own. The others are fragments: all those of a page make one
program, each a function in FRAME, which declares the names that they use; its argument is the number of the fragment. A
block of plain text right behind one of C++ is what the code writes.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGES = [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]


def blocks(page):
    """Language, first line, content, and what follows: the content of a block of plain text, or None."""
    text = page.read_text()
    found = [(match[1], text.count("\n", 0, match.start(2)) + 1, match[2])
             for match in re.finditer(r"^```(\w+)\n(.*?)^```$", text, re.M | re.S)]
    for block, after in zip(found, [*found[1:], ("", 0, "")]):
        yield *block, after[2] if after[0] == "text" else None


def programs(page):
    """Name, source and, for each way to call it, the argument and the expected output, which may be None."""
    name = page.stem.capitalize()
    fragments = []
    count = 0
    for language, line, code, output in blocks(page):
        located = f'#line {line} "{page.relative_to(ROOT)}"\n{code}'
        if language == "cpp" and "int main(" in code:
            count += 1
            yield f"{name}Program{count}", located, [([], output)]
        elif language == "cpp":
            fragments.append((located, output))
    if fragments:
        yield (f"{name}Fragments", [code for code, _ in fragments],
               [([str(i)], output) for i, (_, output) in enumerate(fragments)])


def extract(frame, folder, *pages):
    for page in pages:
        for name, code, _ in programs(pathlib.Path(page)):
            if isinstance(code, list):
                code = pathlib.Path(frame).read_text().replace("FRAGMENTS", "".join(
                    f"case {i}:\n{{\n{fragment}break;\n}}\n" for i, fragment in enumerate(code)))
            file = pathlib.Path(folder) / f"{name}.cpp"
            if not file.exists() or file.read_text() != code:
                file.write_text(code)
            print(name)


def run(command, **options):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=250, text=True, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command} ends with {done.returncode}:\n{done.stdout}")
    return done.stdout


class Pages(unittest.TestCase):
    def test_CodeWritesWhatThePagesSay(self):
        count = 0
        for page in PAGES:
            for name, _, calls in programs(page):
                for arguments, output in calls:
                    with self.subTest(program=name, arguments=arguments):
                        count += 1
                        written = run([f"{os.environ['QIV_BUILD']}/bin/{name}", *arguments])
                        self.assertEqual(written, written if output is None else output)
        self.assertGreater(count, 5)

    def test_DocumentsComeBackAsTheyStand(self):
        count = 0
        for page in PAGES:
            for language, line, text, _ in blocks(page):
                if language != "json":
                    continue
                with self.subTest(page=page.name, line=line):
                    count += 1
                    document = json.loads(text)
                    if "_type" not in document:
                        document = {"_type": "MediaInput", "metadata": document, "recordingStatus": "Idle"}
                    written = run([f"{os.environ['QIV_BUILD']}/bin/tarvonel-json", "convert", "-"], input=json.dumps(document))
                    self.assertEqual(written, json.dumps(document, separators=(",", ":"), ensure_ascii=False) + "\n")
        self.assertGreater(count, 5)

    def test_MessagesOccurInTheCases(self):
        cases = "".join(file.read_text(errors="replace") for file in (ROOT / "tests").rglob("*")
                         if file.is_file() and file != pathlib.Path(__file__))
        guide = re.sub(r"^```.*?^```$|`[^`\n]*`", "", (ROOT / "docs/guide.md").read_text(), flags=re.M | re.S)
        messages = re.findall(r'"([A-Z][^"]* [^"]*)"', guide.replace("\n", " "))
        self.assertGreater(len(messages), 20)
        for message in messages:
            with self.subTest(message=message):
                pattern = r"(?<!\w)" + re.sub(r"\b[XY]\b", r"\\S+", re.escape(message)) + r"(?!\w)"
                self.assertTrue(re.search(pattern, cases), "is in no case")

    def test_CommandsRun(self):
        with tempfile.TemporaryDirectory() as folder:
            scratch = pathlib.Path(folder)
            (scratch / "examples").symlink_to(ROOT / "examples")
            environment = {**os.environ, "HOME": folder,
                           "PATH": f"{os.environ['QIV_BUILD']}/bin:{os.environ['PATH']}"}
            output = None
            for page in PAGES:
                for language, line, text, after in blocks(page):
                    if "int main(" in text:
                        (scratch / "program.cpp").write_text(text)
                        output = after
                    elif language == "cmake":
                        (scratch / "CMakeLists.txt").write_text(text)
                    elif language == "sh":
                        # The tests run in a tree that is built already.
                        text = text.replace("cmake --preset release && cmake --build --preset release && ", "")
                        text = text.replace("build/release", os.environ["QIV_BUILD"])
                        with self.subTest(page=page.name, line=line):
                            written = run(["bash", "-euo", "pipefail", "-c", text], cwd=folder, env=environment)
                            if "/program" in text:
                                self.assertTrue(written.endswith(output), written)
                # Verbs of ./run take minutes and run on their own; here it is asked whether they are there.
                verbs = run(["./run"], cwd=ROOT)
                for verb in re.findall(r"\./run ([a-z]+)", page.read_text()):
                    self.assertRegex(verbs, rf"(?m)^\W*{verb}\b")
                self.assertNotRegex(page.read_text(), r"(?m)^    (tarvonel-json|cmake|c\+\+) ", "not in a block to run")


if __name__ == "__main__":
    if sys.argv[1:2] == ["extract"]:
        extract(*sys.argv[2:])
    else:
        unittest.main()
