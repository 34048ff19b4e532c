#!/usr/bin/env python3
"""Runs the benchmarks of a build folder, prints how the library compares with its peers in this one run, and writes
the tables and a picture to bench/results/. With --instructions it counts instead, under callgrind, which no other load
of the machine disturbs, and writes nothing."""

import argparse
import json
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile

JOBS = {
    "writing": "Writing: entities to text",
    "reading": "Reading: trees to entities",
    "text": "Text: to entities and trees",
    "time codes": "Time codes and durations",
    "updates": "Updates and the mirror",
}
CONVERT = "text: convert --quiet, each of 20000 MediaInputs"

# work, peer: the ratio that is wanted at most, on x86-64 and with -m32
GOALS = {
    ("writing: full MediaInput", "RapidJSON"): (0.30, None),
    ("writing: full MediaOutput", "RapidJSON"): (0.33, None),
    ("writing: full Node", "RapidJSON"): (0.45, None),
    ("writing: 1000 channels", "RapidJSON"): (0.45, None),
    ("writing: 10000 channels", "RapidJSON"): (0.45, None),
    ("writing: long text with escapes", "RapidJSON"): (0.50, None),
    ("writing: long text with non-ASCII letters", "RapidJSON"): (0.50, None),
    **{(f"reading: full {entity}", "plain look-ups"): (0.70, None) for entity in ("MediaInput", "MediaOutput", "Node")},
    **{(f"reading: full {entity}", "nlohmann"): (1.20, None) for entity in ("MediaInput", "MediaOutput", "Node")},
    **{(f"text: full {entity}", "nlohmann"): (0.16, 0.20) for entity in ("MediaInput", "MediaOutput", "Node")},
    **{(f"text: full {entity}", "RapidJSON"): (0.50, 0.65) for entity in ("MediaInput", "MediaOutput", "Node")},
    **{(f"text: tree of full {entity}", "nlohmann"): (1.15, 1.25) for entity in ("MediaInput", "MediaOutput", "Node")},
    ("text: small update merged into full MediaInput", "nlohmann"): (0.25, 0.30),
    ("text: each of 10000 MediaInputs", "10 of them"): (1.20, 1.20),
    (CONVERT, "jq -c"): (0.12, None),
    ("time codes: parse", "std::regex"): (0.04, None),
    ("time codes: check and parse", "std::regex"): (0.06, None),
    ("time codes: format", "snprintf"): (0.17, None),
    ("time codes: duration, check and parse", "std::regex"): (0.03, None),
    ("updates: apply to one of 10000 channels", "10 channels"): (1.50, None),
    ("updates: apply to one of 10000 channels", "MergeText at hand"): (1.50, None),
    ("updates: write a small one", "whole channel"): (0.50, None),
}
EXTRA_ALLOCATIONS = 3  # of a snapshot from text, beyond those that the entity keeps

REPETITIONS = 5


def run(program, *options, **settings):
    return subprocess.run([program, *options], check=True, stdout=subprocess.PIPE, text=True, **settings).stdout


def user_nanoseconds(command, environment):
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, env={**os.environ, **environment})
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"{command[0]} fails")
    return usage.ru_utime * 1e9


def write_channels(path, count):
    channel = json.loads((pathlib.Path(__file__).parents[1] / "examples/documents/recorder.json").read_text())
    with open(path, "w") as file:
        for number in range(count):
            channel["id"] = f"server-41230-recorder-{number}"
            file.write(json.dumps(channel, ensure_ascii=False, separators=(",", ":")) + "\n")


def measure(build, rounds, is_native):
    """The times of each work by who does it, a median for each round. A round has copies of the program and the
    libraries: their places in memory change times by up to a sixth. A process does one work, by all in turn: the
    machine may be slower a second later."""
    names = run(build / "bin/qiv_bench", "--benchmark_list_tests").splitlines()
    times = {}
    for name in names:
        work, who = name.split("|")
        times.setdefault(work, {})[who] = []
    has_jq = is_native and shutil.which("jq") is not None
    if is_native and not has_jq:
        print("jq is not installed: converting many documents is not measured", file=sys.stderr)
    for _ in range(rounds):
        with tempfile.TemporaryDirectory() as folder:
            program = shutil.copy(build / "bin/qiv_bench", folder)
            libraries = shutil.copytree(build / "lib", pathlib.Path(folder) / "lib", symlinks=True)
            environment = {"LD_LIBRARY_PATH": str(libraries)}
            for work in dict.fromkeys(name.split("|")[0] for name in names):
                report = json.loads(run(
                    program, f"--benchmark_filter=^{work}[|]", "--benchmark_format=json", "--benchmark_min_time=0.02",
                    f"--benchmark_repetitions={REPETITIONS}", "--benchmark_enable_random_interleaving=true",
                    env=environment))
                for result in report["benchmarks"]:
                    if result.get("aggregate_name") == "median":
                        who = result["run_name"].split("|")[1]
                        times[work][who].append(result["cpu_time"])
            if has_jq:
                documents = pathlib.Path(folder) / "channels.ndjson"
                write_channels(documents, 20000)
                convert = times.setdefault(CONVERT, {"library": [], "jq -c": []})
                tool = [build / "bin/tarvonel-json", "convert", "--ndjson", "--quiet", documents]
                convert["library"].append(user_nanoseconds(tool, environment) / 20000)
                convert["jq -c"].append(user_nanoseconds(["jq", "-c", ".", documents], {}) / 20000)
    return times


def count_instructions(build):
    """Instructions of each work that can be repeated, by who does it."""
    program = build / "bin/qiv_bench"

    def counted(name, times):
        result = subprocess.run(
            ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", program, "--repeat", name, str(times)],
            check=True, stderr=subprocess.PIPE, text=True, env={**os.environ, "LD_BIND_NOW": "1"})
        return int(re.search(r"Collected : (\d+)", result.stderr)[1])

    counts = {}
    for name in run(program, "--repeat").splitlines():
        work, who = name.split("|")
        if who != "10 of them" and "each of 10000" not in work:
            counts.setdefault(work, {})[who] = [(counted(name, 110) - counted(name, 10)) / 100]
    return counts


class Row:
    def __init__(self, work, peer, own, theirs, is_native):
        self.job, self.work = work.split(": ", 1)
        self.peer = peer
        self.own, self.theirs = statistics.median(own), statistics.median(theirs)
        self.ratio = statistics.median(mine / other for mine, other in zip(own, theirs))
        self.goal = GOALS.get((work, peer), (None, None))[0 if is_native else 1]
        self.is_missed = self.goal is not None and round(self.ratio, 3) > self.goal


def rows_of(times, is_native):
    rows = [Row(work, peer, by_who["library"], theirs, is_native)
            for work, by_who in times.items() for peer, theirs in by_who.items() if peer != "library"]
    return sorted(rows, key=lambda row: list(JOBS).index(row.job))  # otherwise in the order of the program


def by_job(rows):
    for job, title in JOBS.items():
        of_job = [row for row in rows if row.job == job]
        if of_job:
            yield title, of_job


def markdown(rows, unit):
    goals = [row for row in rows if row.goal is not None]
    missed = sum(row.is_missed for row in goals)
    lines = [f"{len(goals) - missed} of {len(goals)} goals are held" + (f", {missed} missed." if missed else ".")]
    for title, of_job in by_job(rows):
        lines += ["", f"## {title}", "", f"| work | library, {unit} | beside | its {unit} | ratio | goal | |",
                  "|---|---:|---|---:|---:|---:|---|"]
        for row in of_job:
            goal = "" if row.goal is None else f"{row.goal:.2f}"
            verdict = "" if row.goal is None else "**missed**" if row.is_missed else "held"
            lines.append(f"| {row.work} | {row.own:,.0f} | {row.peer} | {row.theirs:,.0f} | {row.ratio:.3f} | "
                         f"{goal} | {verdict} |")
    return "\n".join(lines) + "\n"


def more_markdown(times, allocations):
    each = [statistics.median(times[f"writing: {count} channels"]["library"]) / count for count in (1000, 10000)]
    lines = [f"Per channel in one writer: {each[0]:.0f} ns of 1,000 and {each[1]:.0f} ns of 10,000.", "",
             "## Allocations", "", "| work | allocations | of them not kept by the entity | goal | |",
             "|---|---:|---:|---:|---|"]
    for work, count, extra in allocations:
        goal = f"{EXTRA_ALLOCATIONS} | {'held' if int(extra) <= EXTRA_ALLOCATIONS else '**missed**'}" if extra else " | "
        lines.append(f"| {work} | {count} | {extra} | {goal} |")
    return "\n".join(lines) + "\n"


STYLE = """
  text { font: 12px sans-serif; fill: #1f2328 }
  .paper { fill: #ffffff }
  .head { font-weight: bold; font-size: 14px }
  .soft { fill: #59636e }
  .bar { fill: #3572a5 }
  .bar.missed { fill: #d1441f }
  .word.missed { fill: #b3300f; font-weight: bold }
  .goal { stroke: #1f2328; stroke-width: 2 }
  .peer { stroke: #8c959f; stroke-dasharray: 3 3 }
"""
DARK_STYLE = """
  text { fill: #e6edf3 }
  .paper { fill: #0d1117 }
  .soft { fill: #9198a1 }
  .bar { fill: #4d8fc9 }
  .bar.missed { fill: #f0653d }
  .word.missed { fill: #ff8a66 }
  .goal { stroke: #e6edf3 }
  .peer { stroke: #656c76 }
"""


def picture(rows):
    """Bars, each beside its work and peer; the figures stand in columns of their own, so that no line goes through a
    word. A bar beyond the scale ends there."""
    work_x, peer_x, bar_x, bar_width, ratio_x, goal_x, width = 12, 326, 450, 320, 826, 838, 950
    step = 22
    longest = 1.6

    def x(ratio):
        return round(bar_x + bar_width * min(ratio, longest) / longest, 1)

    parts = [f'<text class="soft" x="{work_x}" y="20">Time in proportion to the peer\'s; short is fast</text>',
             f'<text class="soft" x="{x(1)}" y="20" text-anchor="middle">as slow as the peer</text>',
             f'<text class="soft" x="{goal_x}" y="20">goal (mark)</text>']
    y = 30
    for title, of_job in by_job(rows):
        y += 12
        parts.append(f'<text class="head" x="{work_x}" y="{y + 14}">{title}</text>')
        y += step
        parts.append(f'<line class="peer" x1="{x(1)}" y1="{y}" x2="{x(1)}" y2="{y + step * len(of_job)}"/>')
        last = ""
        for row in of_job:
            state = " missed" if row.is_missed else ""
            if row.work != last:
                parts.append(f'<text x="{work_x}" y="{y + 15}">{row.work}</text>')
            last = row.work
            parts.append(f'<text class="soft" x="{peer_x}" y="{y + 15}">{row.peer}</text>')
            parts.append(f'<rect class="bar{state}" x="{bar_x}" y="{y + 4}" width="{x(row.ratio) - bar_x:.1f}" '
                         'height="14"/>')
            parts.append(f'<text class="word{state}" x="{ratio_x}" y="{y + 15}" text-anchor="end">'
                         f'{row.ratio:.3f}</text>')
            if row.goal is not None:
                parts.append(f'<line class="goal" x1="{x(row.goal)}" y1="{y + 1}" x2="{x(row.goal)}" y2="{y + 21}"/>')
                parts.append(f'<text class="word{state}" x="{goal_x}" y="{y + 15}">{row.goal:.2f} '
                             f'{"missed" if row.is_missed else "held"}</text>')
            y += step
    height = y + 12
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}">',
        f"<style>{STYLE}@media (prefers-color-scheme: dark) {{{DARK_STYLE}}}</style>",
        f'<rect class="paper" width="{width}" height="{height}"/>', *parts, "</svg>"]) + "\n"


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("build", type=pathlib.Path)
    arguments.add_argument("--x86", action="store_true", help="the build folder is one of -m32")
    arguments.add_argument("--instructions", action="store_true", help="count instructions, write no results")
    arguments.add_argument("--rounds", type=int, default=9)
    arguments.add_argument("--results", type=pathlib.Path, default=pathlib.Path(__file__).parent / "results")
    chosen = arguments.parse_args()
    is_native = not chosen.x86
    if chosen.instructions:
        print(markdown(rows_of(count_instructions(chosen.build), is_native), "instructions"), end="")
        return
    times = measure(chosen.build, chosen.rounds, is_native)
    counted = [line.split("|") for line in run(chosen.build / "bin/qiv_allocations").splitlines()]
    rows = rows_of(times, is_native)
    table = markdown(rows, "ns") + "\n" + more_markdown(times, counted)
    print(table)
    chosen.results.mkdir(exist_ok=True)
    name = "ratios" if is_native else "ratios-x86"
    (chosen.results / f"{name}.md").write_text(table)
    (chosen.results / f"{name}.svg").write_text(picture(rows))


if __name__ == "__main__":
    main()
