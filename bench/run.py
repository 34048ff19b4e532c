#!/usr/bin/env python3
"""Runs the benchmarks of a build folder, prints how the library compares with its peers in this one run, and writes
the table and a picture to bench/results/."""

import json
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile

# work, peer, the ratio that is wanted at most
GOALS = {
    ("write full MediaInput", "RapidJSON"): 0.30,
    ("write full MediaOutput", "RapidJSON"): 0.33,
    ("write full Node", "RapidJSON"): 0.45,
    ("write 1000 channels", "RapidJSON"): 0.45,
    ("write 10000 channels", "RapidJSON"): 0.45,
    ("write long text with escapes", "RapidJSON"): 0.50,
    ("write long text with non-ASCII letters", "RapidJSON"): 0.50,
    ("read full MediaInput", "plain look-ups"): 0.60,
    ("read full MediaOutput", "plain look-ups"): 0.60,
    ("read full MediaInput", "nlohmann"): 1.00,
    ("read full MediaOutput", "nlohmann"): 1.00,
    ("text to full MediaInput", "nlohmann"): 1.00,
    ("text to full MediaOutput", "nlohmann"): 1.00,
    ("time code: parse", "std::regex"): 0.04,
    ("time code: check and parse", "std::regex"): 0.06,
    ("time code: format", "snprintf"): 0.17,
    ("duration: check and parse", "std::regex"): 0.03,
}
ROUNDS = 9  # each with copies of the program and the libraries: their places in memory change times by up to a sixth
REPETITIONS = 5


def run(program, *options, **settings):
    return subprocess.run([program, *options], check=True, stdout=subprocess.PIPE, text=True, **settings).stdout


def measure(build):
    """The times of each work by who does it, a median for each round. A process does one work, by all in turn: the
    machine may be slower a second later."""
    names = run(build / "bin/qiv_bench", "--benchmark_list_tests").splitlines()
    times = {}
    for _ in range(ROUNDS):
        with tempfile.TemporaryDirectory() as folder:
            program = shutil.copy(build / "bin/qiv_bench", folder)
            libraries = shutil.copytree(build / "lib", pathlib.Path(folder) / "lib", symlinks=True)
            for work in dict.fromkeys(name.split("|")[0] for name in names):
                report = json.loads(run(
                    program, f"--benchmark_filter=^{work}[|]", "--benchmark_format=json", "--benchmark_min_time=0.02",
                    f"--benchmark_repetitions={REPETITIONS}", "--benchmark_enable_random_interleaving=true",
                    env={"LD_LIBRARY_PATH": str(libraries)}))
                for result in report["benchmarks"]:
                    if result.get("aggregate_name") == "median":
                        who = result["run_name"].split("|")[1]
                        times.setdefault(work, {}).setdefault(who, []).append(result["cpu_time"])
    return times


def ratios(times):
    for work, by_who in times.items():
        own = by_who["library"]
        for peer, peer_times in by_who.items():
            if peer != "library":
                ratio = statistics.median(mine / theirs for mine, theirs in zip(own, peer_times))
                yield (work, statistics.median(own), peer, statistics.median(peer_times), ratio,
                       GOALS.get((work, peer)))


def markdown(rows, times, allocations):
    lines = ["| work | library, ns | beside | ns | ratio | goal |", "|---|---:|---|---:|---:|---:|"]
    for work, own, peer, peer_time, ratio, goal in rows:
        verdict = "" if goal is None else f"{goal:.2f}" + ("" if ratio <= goal else " missed")
        lines.append(f"| {work} | {own:,.0f} | {peer} | {peer_time:,.0f} | {ratio:.3f} | {verdict} |")
    each = [statistics.median(times[f"write {count} channels"]["library"]) / count for count in (1000, 10000)]
    lines += ["", f"Per channel in one writer: {each[0]:.0f} ns of 1,000 and {each[1]:.0f} ns of 10,000.", "",
              "| work | allocations |", "|---|---:|"]
    lines += [f"| {work} | {count} |" for work, count in allocations]
    return "\n".join(lines) + "\n"


def picture(rows):
    left, width, step = 330, 420, 26
    height = step * (len(rows) + 2)
    longest = max(1.0, max(ratio for *_, ratio, _ in rows))
    x = lambda ratio: left + width * ratio / longest
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{left + width + 80}" height="{height}" '
             'font-family="sans-serif" font-size="12">',
             f'<rect width="{left + width + 80}" height="{height}" fill="white"/>',
             f'<text x="{left}" y="16">time in proportion to the peer (line: as long as the peer; mark: goal)</text>']
    for i, (work, _, peer, _, ratio, goal) in enumerate(rows):
        y = step * (i + 1) + 4
        parts.append(f'<text x="{left - 6}" y="{y + 13}" text-anchor="end">{work} / {peer}</text>')
        parts.append(f'<rect x="{left}" y="{y}" width="{x(ratio) - left:.1f}" height="18" fill="#3572a5"/>')
        parts.append(f'<text x="{x(ratio) + 4:.1f}" y="{y + 13}">{ratio:.2f}</text>')
        if goal is not None:
            parts.append(f'<line x1="{x(goal):.1f}" y1="{y - 2}" x2="{x(goal):.1f}" y2="{y + 20}" stroke="#c33"/>')
    parts.append(f'<line x1="{x(1):.1f}" y1="{step}" x2="{x(1):.1f}" y2="{height - step + 8}" stroke="#333"/></svg>')
    return "\n".join(parts) + "\n"


def main():
    build = pathlib.Path(sys.argv[1])
    results = pathlib.Path(__file__).parent / "results"
    results.mkdir(exist_ok=True)
    times = measure(build)
    counted = run(build / "bin/qiv_allocations")
    rows = sorted(ratios(times), key=lambda row: (row[0], row[2]))
    table = markdown(rows, times, [line.split("|") for line in counted.splitlines()])
    print(table)
    (results / "ratios.md").write_text(table)
    (results / "ratios.svg").write_text(picture(rows))


if __name__ == "__main__":
    main()
