"""The command-line tool as its users see it. TARVONEL_JSON is the program."""

import fcntl
import json
import os
import pathlib
import pty
import re
import resource
import signal
import subprocess
import tempfile
import termios
import time
import unittest

import jsonschema

TOOL = os.environ["TARVONEL_JSON"]
ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCUMENTS = ROOT / "examples/documents"

NODE = '{"_type":"Node","id":"n1"}'


def run(*arguments, text="", **options):
    """Exit status, standard output, standard error."""
    options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, "cwd": DOCUMENTS, **options}
    done = subprocess.run([TOOL, *arguments], input=text if isinstance(text, bytes) else text.encode(), timeout=200,
                          **options)
    return done.returncode, (done.stdout or b"").decode(), (done.stderr or b"").decode()


def shown_on(terminal, side):
    os.write(side, b"\0")
    shown = b""
    while not shown.endswith(b"\0"):
        shown += os.read(terminal, 10000)
    os.close(terminal), os.close(side)
    return shown[:-1].decode().replace("\r\n", "\n")


def on_terminal(*arguments, text="", streams=("stdout", "stderr"), **options):
    """What a terminal shows."""
    terminal, side = pty.openpty()
    run(*arguments, text=text, **dict.fromkeys(streams, side), **options)
    return shown_on(terminal, side)


class Tool(unittest.TestCase):
    def test_WritesEveryDocumentInItsCanonicalForm(self):
        files = sorted(file.name for file in DOCUMENTS.iterdir() if file.is_file())
        merged = "recorder-merged.json"
        self.assertEqual(sorted(os.listdir(DOCUMENTS / "canonical")), sorted([*files, merged]))
        for file in files:
            lines = ["--ndjson"] if file.endswith(".ndjson") else []
            canonical = (DOCUMENTS / "canonical" / file).read_text()
            self.assertEqual(run("convert", *lines, file), (0, canonical, ""), file)
            # The canonical form is one that nothing can be said about and that stays as it is.
            self.assertEqual(run("convert", *lines, text=canonical), (0, canonical, ""), file)
            for source in (file, "canonical/" + file):
                self.assertEqual(run("check", *lines, source), (0, "", ""))
        canonical = (DOCUMENTS / "canonical" / merged).read_text()
        self.assertEqual(run("merge", "recorder.json", "recorder-update.json"), (0, canonical, ""))

    def test_AnswersAsTheTranscriptsSay(self):
        transcripts = (ROOT / "tests/Tool/transcripts.txt").read_text()
        with tempfile.TemporaryDirectory() as scratch:
            path = {**os.environ, "PATH": os.path.dirname(TOOL) + ":" + os.environ["PATH"], "SCRATCH": scratch}
            for transcript in re.split(r"^\$ ", re.sub(r"^#.*\n|^\n", "", transcripts, flags=re.M), flags=re.M)[1:]:
                command, expected = transcript.split("\n", 1)
                done = subprocess.run(["bash", "-c", command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                      stderr=subprocess.STDOUT, cwd=DOCUMENTS, env=path)
                actual = done.stdout.decode().replace(scratch, "$SCRATCH")
                actual += f"[{done.returncode}]\n" if done.returncode else ""
                with self.subTest(command):
                    pattern = re.escape(expected).replace(re.escape("..."), ".*")
                    self.assertTrue(re.fullmatch(pattern, actual), f"{command}\n{actual}instead of\n{expected}")

    def test_LetsNothingOfADocumentSteerTheTerminal(self):
        bad = "\x1b[2J\x07\x7f\u0085\u009b\u061c\u200f\u2028\u2029\u202e\u2069\ufeff\nFAKE.json:1:1: FATAL "
        key = json.dumps(bad * 200)
        documents = [f'{{"_type":{key}}}', f'{{"_type":"Node","id":"n1",{key}:1}}', f'{{{key}:1,{key}:2}}',
                     f'{{"_type":"MediaInput","lastTimePoint":{{"_type":{key}}}}}', '{"_type":"\x1b"}',
                     '{"_type":"MediaInput","id":"\udcff"}',
                     '{"_type":"Node","id":"n1","a' + "\U0001f600" * 500 + '":1}']
        line_of_text = r"\A\S[^\x00-\x1f\x7f-\x9f\u061c\u200f\u2028\u2029\u202e\u2069\ufeff]*\n\Z"
        with tempfile.TemporaryDirectory() as folder:
            name = (folder + "/\x1b]0;" + bad).encode() + b"\xff\xc0\xaf\xed\xa0\x80\xf4\x90\x80\x80\xe2\x82"
            for document in documents:
                with open(name, "wb") as file:
                    file.write(document.encode(errors="surrogateescape"))
                for command in ("check", "convert", "merge"):
                    status, out, error = run(command, name, *[name] * (command == "merge"))
                    for line in (out + error).splitlines(keepends=True):
                        self.assertRegex(line, line_of_text)
                        self.assertLessEqual(len(line.encode()), 1000)
                        self.assertNotRegex(line, "^FAKE")
            findings = json.loads(run("check", "--output", "json", text=documents[1])[1])
            self.assertEqual(findings[0]["pointer"], "/" + bad * 200)
        for arguments in ([bad], ["convert", "-" + bad], ["convert", bad], ["check", "--output", bad],
                          ["timecode", bad], ["help", bad]):
            error = run(*arguments)[2]
            self.assertRegex(error, r"\A(tarvonel-json: [ -~]+\n)+\Z")
        # Escapes keep the meaning of what is written.
        text = '{"_type":"Node","id":"\u202e\x7f"}\n'
        self.assertEqual(run("convert", text=text)[1], text)
        self.assertEqual(on_terminal("convert", text=text), '{"_type":"Node","id":"\\u202e\\u007f"}\n')

    def test_PrintsFindingsAsTheSchemaSays(self):
        schema = jsonschema.Draft7Validator(json.loads((ROOT / "schema/findings.schema.json").read_text()))
        documents = ["", '{"_type":"node"}', '{"_type":"MediaOutput","userTimecodeOnAir":"10:00:00:00@25"}',
                     '{"_type":"Node","a/~b":1}', '{"_type":"BoundaryRelative","origin":"Absolute"}',
                     '{"_type":"MediaOutput","locationOnAir":1,"primaryTimecodeType":"x",'
                     '"mediaAssetOnAir":{"mediaAsset":{},"id":"a"},"name":7,"currentTimePointOnAir":{}}',
                     '{"_type":"Node","id":"n1"' + "".join(f',"{i}":1' for i in range(1001)) + "}"]
        kinds = set()
        for document in documents:
            for arguments in ([], ["--summary"]):
                findings = json.loads(run("check", "--output", "json", *arguments, text=document)[1])
                schema.validate(findings)
                kinds.update(findings["kinds"] if arguments else [finding["kind"] for finding in findings])
        self.assertEqual(sorted(kinds), sorted(schema.schema["definitions"]["Kind"]["enum"]))
        for wrong in ({}, [{}], [{**findings, "kind": "x"}]):
            self.assertFalse(schema.is_valid(wrong))

    def test_FindsPlacesInTimeThatGrowsWithTheText(self):
        text = '{"_type":"Node","id":"n1"' + "".join(f',\r\n"k{i}":\n1' for i in range(40000)) + "}"
        start = time.monotonic()
        lines = run("check", "--all", text=text)[1].splitlines()
        self.assertLess(time.monotonic() - start, 5)  # with the square: minutes
        self.assertEqual((len(lines), lines[-1].split()[:2]), (40000, ["<stdin>:80001:1:", "/k39999:"]))
        lines = run("check", text=text)[1].splitlines()
        self.assertEqual((len(lines), lines[1000]), (1001, "<stdin>:2001:1: and 39000 more, which --all prints"))

    def test_GoesOnAfterALineThatMemoryDoesNotSufficeFor(self):
        text = NODE + "\r\n[" + " " * (64 << 20) + "\n" + NODE
        self.assertRegex(run("convert", "--ndjson", text=text)[2], r"\A<stdin>:2:1: more than 67108864 bytes")
        limit = lambda kilobytes: lambda: resource.setrlimit(resource.RLIMIT_AS, (kilobytes << 10,) * 2)
        suffices = [kilobytes for kilobytes in range(1000, 30000, 500)
                    if run("check", "--ndjson", text=NODE, preexec_fn=limit(kilobytes))[0] == 0]
        if not suffices:
            self.skipTest("sanitizers need all addresses")
        large = '{"_type":"Node","id":"n1","a":[' + "0," * 2000000 + "0]}"
        for kilobytes in (suffices[0] + 1000, suffices[0] + 8000, suffices[0] + 30000):
            for text in (large, "[" * 9000000, NODE[:-2] + "x" * 9000000 + '"}'):
                for command in ("convert", "check"):
                    status, out, error = run(command, "--ndjson", text=f"{NODE}\n{text}\n{NODE}",
                                             preexec_fn=limit(kilobytes))
                    self.assertIn(status, (0, 2), (kilobytes, text[:40], error))
                    self.assertEqual(out.count(NODE), 2 if command == "convert" else 0)
                    self.assertRegex(error, r"\A(<stdin>:2:\d+: [^\n]*\n)?(tarvonel-json: 1 member [^\n]*\n)?\Z")

    def test_MergesLinesInTheMemoryOfTheState(self):
        merge = lambda count, kilobytes: run(
            "merge", "--ndjson", "--quiet", "-", preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (kilobytes << 10,) * 2),
            text="".join(f'{{"_type":"MediaInput","id":"c{i % 10}","name":"{i}"}}\n' for i in range(count)))
        suffices = [k for k in range(1000, 30000, 500) if merge(10, k)[0] == 0]
        if not suffices:
            self.skipTest("sanitizers need all addresses")
        status, out, error = merge(100000, suffices[0] + 2000) # of 5 MB
        self.assertEqual((status, out.count("\n"), error), (0, 10, ""))

    def test_IsAGoodFilter(self):
        with subprocess.Popen([TOOL, "convert", "--ndjson"], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as process:
            process.stdin.write(NODE.encode() + b"\n")  # what was read is written before more is waited for
            process.stdin.flush()
            self.assertEqual(process.stdout.readline().decode(), NODE + "\n")
        message = "tarvonel-json: standard output: "
        for restored, expected in ((True, (-signal.SIGPIPE, "")), (False, (2, message + "Broken pipe\n"))):
            reader, writer = os.pipe()
            os.close(reader)
            signal.signal(signal.SIGPIPE, signal.SIG_IGN)
            self.assertEqual(run("convert", "node.json", stdout=writer, restore_signals=restored)[::2], expected)
        with open("/dev/full", "w") as full:
            for command in ("convert node.json", "convert --ndjson", "--help", "check --output=json node.json"):
                status, _, error = run(*command.split(), stdout=full, text=999 * (NODE + "\n"))
                self.assertEqual((status, error), (2, message + "No space left on device\n"), command)

    def test_ShowsProgressOnTerminalsAndWipesItBeforeMessages(self):
        text = (NODE + "\n") * 40000 + "x\n" + (NODE + "\n") * 4000
        with tempfile.NamedTemporaryFile(suffix=".ndjson") as file:
            file.write(text.encode())
            file.flush()
            for source, shown, left in (("-", r"<stdin>: \d+ [KM]iB, \d+ [KM]iB/s, ", ""),
                                        (file.name, r"\S+\.ndjson: \d+ [KM]iB of 1 MiB, ", r", \d+ s left")):
                terminal, error = pty.openpty()
                with subprocess.Popen(["cat", file.name], stdout=subprocess.PIPE) as cat, subprocess.Popen(
                        [TOOL, "convert", "--ndjson", source], stdin=cat.stdout, stdout=subprocess.PIPE,
                        stderr=error) as process:
                    cat.stdout.close()
                    while fcntl.ioctl(process.stdout, termios.FIONREAD, b"....")[1:] == b"\0\0\0":
                        time.sleep(0.01)
                    time.sleep(0.6)  # nobody reads what was written, so that what comes next is late
                    process.stdout.read()
                self.assertRegex(shown_on(terminal, error), rf"\A(\r\x1b\[K{shown}\d+ documents/s{left})+"
                                 r"\r\x1b\[K\x1b\[1m\S+:40001:1: \x1b\[0m")

    def test_UsesColoursOnTerminalsOnly(self):
        text = '{"_type":"BoundaryRelative","origin":"Absolute"}'
        start = "<stdin>:1:38: /origin: "
        sentence = '"Absolute" is the origin of a relative boundary, which ends the process'
        coloured = f"\x1b[1m{start}\x1b[0m\x1b[31mFATAL: {sentence}\x1b[0m\n"
        self.assertEqual(on_terminal("check", text=text), coloured)
        self.assertEqual(on_terminal("convert", text=text), f"\x1b[1m{start}\x1b[0m{sentence}\n")
        plain = on_terminal("check", text=text, env={**os.environ, "NO_COLOR": "1"})
        self.assertEqual((plain, run("check", text=text)[1]), (f"{start}FATAL: {sentence}\n",) * 2)

    def test_ReadsFromATerminalOnlyWhenAsked(self):
        terminal, side = pty.openpty()
        done = subprocess.run([TOOL, "check"], stdin=side, capture_output=True, timeout=20)
        self.assertEqual((done.returncode, done.stdout, done.stderr.count(b"\n")), (2, b"", 2))
        self.assertIn(b"FILE: none is named, and standard input is a terminal; - reads from it", done.stderr)
        with subprocess.Popen([TOOL, "check", "-q", "-"], stdin=side, stderr=subprocess.PIPE) as process:
            os.write(terminal, b"\x04")
            self.assertIn(b"reading from the terminal, end with Ctrl-D\n", process.communicate()[1])

    def test_DocumentsItselfAlikeEverywhere(self):
        self.assertEqual(run("--man-page"), (0, (ROOT / "tools/tarvonel-json.1").read_text(), ""))
        commands = run("help")[1].partition("Subcommands:")[2].partition("\n\n")[0]
        for command in re.findall(r"^  ([a-z]+) .*", commands, re.M):
            self.assertEqual(run("help", command), run(command, "--help"))
        complete = ('source "$1"; COMP_WORDS=("${@:2}"); COMP_CWORD=$(($# - 2));'
                    '_tarvonel_json "$2"; echo "${COMPREPLY[@]}"')
        for words, expected in [
                (["c"], "convert check"), (["--v"], "--version"), (["help", "t"], "timecode"), (["convert", "x"], ""),
                (["convert", "--"], "--help --ndjson --max-bytes --pretty --strict --quiet"),
                (["check", "--output", "j"], "json"), (["check", "--fail-on", "f"], "fatal failure"),
                (["--version", "merge", "x", "--p"], "--pretty")]:
            script = ["bash", "-c", complete, "bash", str(ROOT / "tools/tarvonel-json.bash"), TOOL, *words]
            result = subprocess.run(script, capture_output=True, text=True)
            self.assertEqual((result.stdout.split(), result.stderr), (expected.split(), ""), words)


if __name__ == "__main__":
    unittest.main()
