#!/usr/bin/env python3
"""Runs the benchmarks and what they are compared with, and prints one table of all.

usage: table.py BUILD-FOLDER EMPTY-FOLDER
"""

import json
import os
import statistics
import subprocess
import sys
import time
from pathlib import Path

ROUNDS = 15
KINDS = {"handling": "handling.cfg", "definition": "default.ide", "colour": "carcols.dat"}
FILTERS = {"handling": 1, "definition": 2, "colour": 3}
VEHICLES = 32000
ACTIONS = ("first open", "first save", "open again", "save again")
LIMITS = {("first open", "handling"): 2, ("first save", "handling"): 0.9,
          ("open again", "handling"): 1.6, ("save again", "handling"): 0.6,
          ("first open", "definition"): 1.5, ("first save", "definition"): 0.6,
          ("first open", "colour"): 1.3, ("first save", "colour"): 0.8}
HERE = Path(__file__).parent

build, folder = Path(sys.argv[1]).resolve(), Path(sys.argv[2])


def run(command, **options):
    """Wall time in ms, peak memory in MB and the end of the output of a command. A child begins with the
    memory of this process, which therefore keeps no more."""
    start = time.perf_counter()
    child = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, **options)
    output = child.stdout.read()
    _, status, usage = os.wait4(child.pid, 0)
    if status != 0:
        raise SystemExit(f"{command} failed")
    return (time.perf_counter() - start) * 1e3, usage.ru_maxrss / 1024, output[-100:]


def rounds_of(commands):
    """What each of the named commands gives in every round. They take turns, so that a machine that gets
    slower or faster meanwhile does so for all of them."""
    rounds = {name: [] for name in commands}
    for _ in range(ROUNDS):
        for name, command in commands.items():
            rounds[name].append(run(command))
    return rounds


def data_file(kind, vehicles=VEHICLES):
    path = folder / f"{vehicles}.{KINDS[kind]}"
    if not path.exists():
        run([build / "wheelwright-bench-data", kind, str(vehicles), path])
    return path


def file_times():
    """Median times in ms of what a process does first and again, by "first open/kind/vehicles", and of
    what they are compared with, by "`wc -w`/kind"."""
    programs = {f"{kind}/{vehicles}": [build / "wheelwright-bench-first", kind, data_file(kind, vehicles), build]
                for kind in KINDS for vehicles in (4000, VEHICLES)}
    others = {f"`wc -w`/{kind}": ["wc", "-w", data_file(kind)] for kind in KINDS}
    others["`cat`"] = ["cat", data_file("handling")]
    for script in ("normalise", "normalise-terse"):
        others[f"mawk, {script}.awk"] = ["mawk", "-f", HERE / f"{script}.awk", data_file("handling")]
    rounds = rounds_of(programs | others)
    times = {name: statistics.median(took for took, _, _ in rounds[name]) for name in others}
    for name in programs:
        outputs = [[float(word) for word in output.split()] for _, _, output in rounds[name]]
        for action, taken in zip(ACTIONS, zip(*outputs)):
            times[f"{action}/{name}"] = statistics.median(taken)
    return times


def google_benchmarks():
    """Median real times in ms by "screen/kind/action/vehicles"."""
    out = folder / "benchmarks.json"
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    run([build / "wheelwright-bench", build, folder, f"--benchmark_out={out}",
         "--benchmark_out_format=json", "--benchmark_repetitions=7", "--benchmark_min_time=0.05",
         "--benchmark_enable_random_interleaving=true",
         "--benchmark_report_aggregates_only=true"], env=environment)
    return {entry["run_name"]: entry["real_time"] / 1e3
            for entry in json.loads(out.read_text())["benchmarks"]
            if entry.get("aggregate_name") == "median" and "/" in entry["run_name"]}


def peak_memory(kind, *options):
    """Peak memory in MB of a session that opens a large file."""
    script = folder / "open.jsonl"
    script.write_text('{"start": true}\n'
                      + json.dumps({"answer": {"file": str(data_file(kind)), "filter": FILTERS[kind]}})
                      + '\n{"click": "cmdOpen"}\n')
    with open(script) as lines:
        return run([build / "wheelwright-replay", *options, "--app", build], stdin=lines,
                   env=dict(os.environ, QT_QPA_PLATFORM="offscreen"))[1]


def start_ups(*programs):
    """Median time in ms and resident memory in MB of each program, which ends when it is idle."""
    rounds = rounds_of({program: [build / program] for program in programs})
    return [(statistics.median(took for took, _, _ in rounds[program]),
             statistics.median(int(output.split()[-2]) / 1024 for _, _, output in rounds[program]))
            for program in programs]


def with_display(measure):
    """Calls it with a display of its own, if there is none."""
    if os.environ.get("DISPLAY") or os.environ.get("WAYLAND_DISPLAY"):
        return measure()
    server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1600x1200x24"],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    os.environ["DISPLAY"] = ":" + server.stdout.readline().decode().strip()
    try:
        return measure()
    finally:
        server.terminate()


def row(what, value, beside, limit=None, unit="ms"):
    ratio = value / beside[1]
    target = "" if limit is None else f"{limit:g}"
    verdict = "" if limit is None else "met" if ratio <= limit else "missed"
    shown = "{:.0f}" if value >= 100 else "{:.3g}"
    print(f"| {what} | {shown.format(value)} {unit} | {beside[0]} "
          f"| {beside[1]:.3g} {unit} | {ratio:.2f} | {target} | {verdict} |")


def file_rows(times):
    for kind in KINDS:
        words = ("`wc -w`", times[f"`wc -w`/{kind}"])
        for action in ACTIONS:
            row(f"{action}, {kind}", times[f"{action}/{kind}/{VEHICLES}"], words, LIMITS.get((action, kind)))
    first_open = times[f"first open/handling/{VEHICLES}"]
    both = first_open + times[f"first save/handling/{VEHICLES}"]
    for script in ("mawk, normalise.awk", "mawk, normalise-terse.awk"):
        row("first open and save, handling", both, (script, times[script]), 0.35)
    row("first open, handling", first_open, ("`cat`", times["`cat`"]))
    for kind in KINDS:
        for action in ACTIONS:
            row(f"{action}, {kind}, 32,000", times[f"{action}/{kind}/{VEHICLES}"],
                ("4,000", times[f"{action}/{kind}/4000"]), 9)


def action_rows(times):
    for kind in KINDS:
        row(f"open, {kind}, real windows", times[f"widgets/{kind}/open/32000"],
            ("plain", times[f"plain/{kind}/open/32000"]), 1.5)
    for screen in ("plain", "widgets"):
        for kind in KINDS:
            for action in ("select", "keystroke"):
                key = f"{screen}/{kind}/{action}/"
                row(f"{action}, {kind}, {screen}, 32,000", times[key + "32000"],
                    ("500", times[key + "500"]), 1.5)


def program_rows():
    editor, window = with_display(lambda: start_ups("wheelwright-bench-editor", "wheelwright-bench-window"))
    row("start to the idle window", editor[0], ("window with a label", window[0]), 1.5)
    row("resident when idle", editor[1], ("window with a label", window[1]), 1.2, "MB")
    size = data_file("handling").stat().st_size / 2**20
    row("peak memory, handling, plain", peak_memory("handling", "--plain"), ("the file", size), 5, "MB")
    row("peak memory, handling, real windows", peak_memory("handling"), ("the file", size), 8, "MB")


def main():
    files, actions = file_times(), google_benchmarks()
    print("| What | Took | Beside | That took | Ratio | Target | |")
    print("| --- | --- | --- | --- | --- | --- | --- |")
    file_rows(files)
    action_rows(actions)
    program_rows()


main()
