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
FIRST_LIMITS = {"handling": {"open": 2, "save": 0.9}, "definition": {"open": 1.5, "save": 0.6},
                "colour": {"open": 1.3, "save": 0.8}}
AGAIN_LIMITS = {("handling", "open"): 1.6, ("handling", "save"): 0.6}
HERE = Path(__file__).parent

build, folder = Path(sys.argv[1]).resolve(), Path(sys.argv[2])


def run(command, **options):
    """Wall time in ms, peak memory in MB and output of a command."""
    start = time.perf_counter()
    child = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, **options)
    output = child.stdout.read()
    _, status, usage = os.wait4(child.pid, 0)
    if status != 0:
        raise SystemExit(f"{command} failed")
    return (time.perf_counter() - start) * 1e3, usage.ru_maxrss / 1024, output


def median_ms(command):
    return statistics.median(run(command)[0] for _ in range(ROUNDS))


def data_file(kind, vehicles=VEHICLES):
    path = folder / f"{vehicles}.{KINDS[kind]}"
    if not path.exists():
        run([build / "wheelwright-bench-data", kind, str(vehicles), path])
    return path


def first_times():
    """Median times in ms of the first action of a process, by "kind/action/vehicles"."""
    times = {}
    for kind in KINDS:
        for vehicles in (4000, VEHICLES):
            command = [build / "wheelwright-bench-first", kind, data_file(kind, vehicles), build]
            rounds = [[float(word) for word in run(command)[2].split()] for _ in range(ROUNDS)]
            for action, taken in zip(("open", "save"), zip(*rounds)):
                times[f"{kind}/{action}/{vehicles}"] = statistics.median(taken)
    return times


def google_benchmarks():
    """Median real times in ms by "screen/kind/action/vehicles"."""
    out = folder / "benchmarks.json"
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    run([build / "wheelwright-bench", build, folder, f"--benchmark_out={out}",
         "--benchmark_out_format=json", "--benchmark_repetitions=7", "--benchmark_min_time=0.05",
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


def start_up(program):
    """Median time in ms and resident memory in MB of a program that ends when it is idle."""
    rounds = [run([build / program]) for _ in range(ROUNDS)]
    resident = [int(output.split()[-2]) / 1024 for _, _, output in rounds]
    return statistics.median(t for t, _, _ in rounds), statistics.median(resident)


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


def file_rows(first, times):
    for kind, limits in FIRST_LIMITS.items():
        words = ("`wc -w`", median_ms(["wc", "-w", data_file(kind)]))
        for action, limit in limits.items():
            row(f"first {action}, {kind}", first[f"{kind}/{action}/{VEHICLES}"], words, limit)
            again = times[f"plain/{kind}/{action}/{VEHICLES}"]
            row(f"{action} again, {kind}", again, words, AGAIN_LIMITS.get((kind, action)))
    both = sum(first[f"handling/{action}/{VEHICLES}"] for action in ("open", "save"))
    for script in ("normalise", "normalise-terse"):
        command = ["mawk", "-f", HERE / f"{script}.awk", data_file("handling")]
        row("first open and save, handling", both, (f"mawk, {script}.awk", median_ms(command)), 0.35)
    row("first open, handling", first[f"handling/open/{VEHICLES}"],
        ("`cat`", median_ms(["cat", data_file("handling")])))


def growth_rows(first, times):
    for kind in KINDS:
        for action in ("open", "save"):
            key = f"{kind}/{action}/"
            row(f"first {action}, {kind}, 32,000", first[f"{key}{VEHICLES}"], ("4,000", first[key + "4000"]), 9)
            again = times[f"plain/{key}{VEHICLES}"]
            row(f"{action} again, {kind}, 32,000", again, ("4,000", times[f"plain/{key}4000"]), 9)
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
    editor, window = with_display(
        lambda: (start_up("wheelwright-bench-editor"), start_up("wheelwright-bench-window")))
    row("start to the idle window", editor[0], ("window with a label", window[0]), 1.5)
    row("resident when idle", editor[1], ("window with a label", window[1]), 1.2, "MB")
    size = data_file("handling").stat().st_size / 2**20
    row("peak memory, handling, plain", peak_memory("handling", "--plain"), ("the file", size), 5, "MB")
    row("peak memory, handling, real windows", peak_memory("handling"), ("the file", size), 8, "MB")


def main():
    first, times = first_times(), google_benchmarks()
    print("| What | Took | Beside | That took | Ratio | Target | |")
    print("| --- | --- | --- | --- | --- | --- | --- |")
    file_rows(first, times)
    growth_rows(first, times)
    program_rows()


main()
