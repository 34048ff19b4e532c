"""The command-line tool as its users see it. TARVONEL_JSON is the program."""

import json
import os
import pathlib
import pty
import re
import subprocess
import tempfile
import unittest

TOOL = os.environ["TARVONEL_JSON"]
ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCUMENTS = ROOT / "examples/documents"

NODE = '{"_type":"Node","id":"n1"}'
FATAL = '{"_type":"MediaOutput",\n "currentTimePointOnAir":{"_type":"TimePoint","value":"soon"}}'

FINDINGS = """\
<stdin>:1:41: /recordingStatus: "Recordin" is none of Idle, Pause, Recording; it is read as Idle
<stdin>:2:11: /colour: "colour" is no member of MediaInput; it is skipped
"""


def run(*arguments, text="", **options):
    """Exit status, standard output, standard error."""
    options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, "cwd": DOCUMENTS, **options}
    done = subprocess.run([TOOL, *arguments], input=text.encode(), timeout=200, **options)
    return done.returncode, (done.stdout or b"").decode(), (done.stderr or b"").decode()


class Tool(unittest.TestCase):
    def check(self, arguments, text, status, out, error):
        """Compares standard output as it is, standard error with a pattern for the whole of it."""
        with self.subTest(arguments=arguments, text=text[:80]):
            result = run(*arguments, text=text)
            self.assertEqual((result[0], result[1]), (status, out), result)
            self.assertRegex(result[2], re.compile(r"\A" + error + r"\n?\Z", re.DOTALL))

    def test_WritesEveryDocumentInItsCanonicalForm(self):
        files = sorted(file.name for file in DOCUMENTS.iterdir() if file.is_file())
        merged = "recorder-merged.json"
        self.assertEqual(sorted(os.listdir(DOCUMENTS / "canonical")), sorted([*files, merged]))
        for file in files:
            lines = ["--ndjson"] if file.endswith(".ndjson") else []
            canonical = (DOCUMENTS / "canonical" / file).read_text()
            self.check(["convert", *lines, file], "", 0, canonical, "")
            # The canonical form is one that nothing can be said about and that stays as it is.
            self.check(["convert", *lines], canonical, 0, canonical, "")
            for source in (file, "canonical/" + file):
                self.check(["check", *lines, source], "", 0, "", "")
        canonical = (DOCUMENTS / "canonical" / merged).read_text()
        self.check(["merge", "recorder.json", "recorder-update.json"], "", 0, canonical, "")
        pretty = '{\n  "_type": "MediaInput",\n  "recordingStatus": "Idle"\n}\n'
        self.check(["convert", "--pretty", "recorder-minimal.json"], "", 0, pretty, "")

    def test_ReportsWhatCannotBeConvertedAndGoesOn(self):
        expected = ": MediaInput, .*, BoundaryAbsolute or BoundaryRelative expected"
        for text, error in [
            ('{"_type":"Node",\n "id":}', r"<stdin>:2:7: \S.*"),
            ("", r"<stdin>:1:1: \S.*"),
            (NODE + "x", r"<stdin>:1:\d+: \S.*"),
            ('{"id":"n1"}', '<stdin>:1:1: no "_type"' + expected),
            ('{"_type":null}', '<stdin>:1:1: no "_type"' + expected),
            ('\n {"_type":"R\\u0007\\""}', r'<stdin>:2:2: unknown "_type" "R\\u0007\\""' + expected),
            ('[{"_type":"Node"}]', '<stdin>:1:1: no "_type"' + expected),
            ('{"_type":"Node"}', "<stdin>:1:1: Node has no identifier \\(required\\)"),
            ('{"_type":"MediaOutput",\n"speedOnAir":{}}', "<stdin>:2:14: /speedOnAir: Speed is empty"),
            (FATAL, "<stdin>:2:55: /currentTimePointOnAir/value: refused: .*soon.*ends the process"),
            ('{"_type":"BoundaryRelative","origin":"Absolute"}', "<stdin>:1:38: /origin: refused: .*"),
        ]:
            self.check(["convert"], text, 1, "", error)
        self.check(["convert", "nothing.json", "-", "."], NODE, 1, NODE + "\n",
                   r"nothing\.json: No such file or directory\n\.: Is a directory")

    def test_HandlesLineAfterLine(self):
        lines = [NODE, "", "{", NODE + "\r", FATAL.replace("\n", ""), NODE]
        errors = r"<stdin>:3:2: [^\n]*\n<stdin>:5:78: /[^\n]*"
        self.check(["convert", "--ndjson", "-"], "\n".join(lines), 1, 3 * (NODE + "\n"), errors)
        text = "[" + " " * (64 << 20) + "\n" + NODE
        self.check(["convert", "--ndjson"], text, 1, NODE + "\n", "<stdin>:1:1: the line is too long, .*64 MiB.*")
        # What was read is written before more is waited for.
        with subprocess.Popen([TOOL, "convert", "--ndjson"], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as process:
            process.stdin.write(NODE.encode() + b"\n")
            process.stdin.flush()
            self.assertEqual(process.stdout.readline().decode(), NODE + "\n")

    def test_ShowsProgressOfLargeInputsOnTerminalsOnly(self):
        terminal, error = pty.openpty()
        run("convert", "--ndjson", text=NODE, stderr=error)
        with tempfile.NamedTemporaryFile() as large:
            large.write(b" \n" * (9 << 20))
            large.flush()
            run("convert", "--ndjson", large.name, stderr=error)
            self.assertEqual(run("convert", "--ndjson", large.name), (0, "", ""))
            shown = f"\r{large.name}: 16 MiB of 18 MiB, 88 %\r\x1b[K"
        self.assertEqual(os.read(terminal, 1000).decode(), shown)
        with subprocess.Popen([TOOL, "convert"], stdin=error, stderr=subprocess.PIPE) as process:
            os.write(terminal, b"\x04")
            self.assertIn(b"reading from the terminal, end with Ctrl-D\n", process.communicate()[1])

    def test_ChecksDocuments(self):
        text = '{"_type":"MediaInput","recordingStatus":"Recordin",\n "colour":1}'
        self.check(["check"], text, 1, FINDINGS, "")
        text = text.replace("\n", "") + "\n{"
        status, out, _ = run("check", "--ndjson", "--output=json", "-", "speed.json", text=text)
        findings = json.loads(out)
        self.assertEqual(status, 1)
        self.assertEqual(list(findings[0]), ["file", "line", "column", "pointer", "kind", "sentence"])
        found = [tuple(entry[key] for key in ("file", "line", "pointer", "kind")) for entry in findings]
        self.assertEqual(found[:4], [("<stdin>", 1, "/recordingStatus", "invalid-value"),
                                     ("<stdin>", 1, "/colour", "unknown-member"),
                                     ("<stdin>", 2, "", "invalid-json"), ("speed.json", 1, "", "invalid-json")])

        found = json.loads(run("check", "--output=json", text='{"_type":"MediaOutput","speedOnAir":{}}')[1])
        self.assertEqual(found[0]["readerMessage"], "Speed is empty")
        self.check(["check", "--output", "json", "node.json"], "", 0, "[]\n", "")
        self.check(["check", "node.json", "nothing.json"], "", 2, "", r"nothing\.json: No such file or directory")
        self.assertRegex(run("check", text=FATAL)[1], r"\A<stdin>:2:55: /currentTimePointOnAir/value: FATAL: .*\n\Z")
        self.assertRegex(run("check", text="{}")[1], r'\A<stdin>:1:1: no "_type": .*\n\Z')

    def test_MergesWholeUpdatesOnly(self):
        base = '{"_type":"MediaInput","recordingStatus":"Pause"}'
        self.check(["merge", "-", "recorder-minimal.json"], base, 0, base + "\n", "")
        for text, error in [
            ("{", r"<stdin>:1:\d: .*"),
            (NODE, "<stdin>:1:1: only channels can be merged: MediaInput or MediaOutput expected"),
            ('{"_type":"x"}', '<stdin>:1:1: unknown "_type" "x".*'),
            (FATAL, "<stdin>:2:55: /currentTimePointOnAir/value: .*"),
            ('{"_type":"MediaOutput"}', r"recorder-minimal\.json:\d:\d+: .*cannot merge JSON-MediaInput .*"),
        ]:
            self.check(["merge", "-", "recorder-minimal.json"], text, 1, "", error)
        self.check(["merge", "-", "recorder-minimal.json", "nothing"], base, 1, "", "nothing: No such file or directory")

    def test_ExplainsTimeCodes(self):
        known = "2016-03-21T14:05:09;17@30\n  date          2016-03-21\n  time          14:05:09\n  frame         17\n"
        known += "  rate          30 frames per second\n  counting      drop-frame\n  total sample  109916710549\n"
        known += "  canonical     2016-03-21T14:05:09;17@30\n"
        bad = [("00:01:00;00@30", "In dropped TimeCode, this value doesn't exist 1:0;0"),
               ("10:00", "QivTimeCodeParser the string '10:00' has not the expected format."),
               ("00:00:00:00@9999999999", "stoi")]
        error = "\n".join(f"{text}: {re.escape(message)}" for text, message in bad)
        self.check(["timecode", bad[0][0], known[:25], *[text for text, _ in bad[1:]]], "", 1, known, error)
        undated = run("timecode", "10:00:00:00@25")[1]
        for line in ("date          none", "total sample  55225620000", "canonical     -1-0-1-0-1T10:00:00:00@25"):
            self.assertIn(f"\n  {line}\n", undated)

    def test_TellsWrongUsageAndFailedWriting(self):
        for arguments in ([], ["copy"], ["convert", "--fast"], ["convert", "-", "-"], ["merge", "-"],
                          ["merge", "-", "-"], ["timecode"], ["check", "--output", "xml"]):
            status, out, error = run(*arguments)
            self.assertEqual((status, out, bool(error)), (2, "", True), arguments)
        self.assertEqual(run("--version")[0], 0)
        message = "tarvonel-json: standard output: "
        with open("/dev/full", "w") as full:
            for command, expected in (("convert node.json", 1), ("--help", 1), ("check --output=json node.json", 2)):
                status, _, error = run(*command.split(), stdout=full)
                self.assertEqual((status, error), (expected, message + "No space left on device\n"))
        reader, writer = os.pipe()
        os.close(reader)
        self.assertEqual(run("convert", "node.json", stdout=writer)[::2], (1, message + "Broken pipe\n"))

    def test_DocumentsItselfAlikeEverywhere(self):
        self.assertEqual(run("--man-page"), (0, (ROOT / "tools/tarvonel-json.1").read_text(), ""))
        complete = ('source "$1"; COMP_WORDS=("${@:2}"); COMP_CWORD=$(($# - 2));'
                    '_tarvonel_json "$2"; echo "${COMPREPLY[@]}"')
        for words, expected in [([""], "convert check merge timecode"), (["c"], "convert check"), (["--v"], "--version"),
                                (["convert", "--"], "--help --ndjson --pretty"), (["check", "--output", "j"], "json"),
                                (["--version", "merge", "x", "--p"], "--pretty"), (["convert", "x"], "")]:
            script = ["bash", "-c", complete, "bash", str(ROOT / "tools/tarvonel-json.bash"), TOOL, *words]
            result = subprocess.run(script, capture_output=True, text=True)
            self.assertEqual((result.stdout.split(), result.stderr), (expected.split(), ""), words)


if __name__ == "__main__":
    unittest.main()
