"""The command-line tool as its users see it. TARVONEL_JSON is the program."""

import os
import pathlib
import pty
import re
import shlex
import subprocess
import tempfile
import unittest

TOOL = os.environ["TARVONEL_JSON"]
ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCUMENTS = ROOT / "examples/documents"

NODE = '{"_type":"Node","id":"n1"}'


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
            self.assertRegex(result[2], re.compile(r"\A" + error + r"\n?\Z"))

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

    def test_AnswersAsTheTranscriptsSay(self):
        for transcript in (ROOT / "tests/Tool/transcripts.txt").read_text().split("\n\n")[1:]:
            command, text, out, error, status = (
                [line[2:] for line in transcript.splitlines() if line[0] == sign] for sign in "$<>!=")
            self.check(shlex.split(command[0])[1:], "\n".join(text), int(status[0]), "".join(f"{line}\n" for line in out),
                       "\n".join(error))

    def test_HandlesLineAfterLine(self):
        text = NODE + "\r\n[" + " " * (64 << 20) + "\n" + NODE
        error = "<stdin>:2:1: the line is too long, .*64 MiB.*"
        self.check(["convert", "--ndjson"], text, 1, f"{NODE}\n{NODE}\n", error)
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

    def test_TellsWrongUsageAndFailedWriting(self):
        self.assertEqual(run("--version")[0], 0)
        message = "tarvonel-json: standard output: "
        with open("/dev/full", "w") as full:
            for command, expected in (("convert node.json", 1), ("convert --ndjson", 1), ("--help", 1),
                                      ("check --output=json node.json", 2)):
                status, _, error = run(*command.split(), stdout=full, text=999 * (NODE + "\n"))
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
