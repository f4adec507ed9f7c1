"""Says how much of the logic was reached, from what llvm-cov has exported.

usage: reached.py LINES BRANCHES [--missing]

LINES is the export in the form of lcov, BRANCHES the one in JSON. The logic is all of src but the real
windows and the main program. A branch is one of the two outcomes of a condition; a template counts once,
reached where any of its instances is. --missing lists what is not reached, file by file. The exit code
is 1 if less is reached than must be.
"""

import argparse
import collections
import json
import pathlib
import sys

SOURCES = pathlib.Path(__file__).resolve().parents[2] / "src"
LEAST_LINES = 98
LEAST_BRANCHES = 95


def is_logic(file):
    path = pathlib.Path(file)
    if SOURCES not in path.parents:
        return False
    return path != SOURCES / "main.cpp" and SOURCES / "forms" / "qt" not in path.parents


def lines_of(export):
    """How often each line of each file ran."""
    runs = collections.defaultdict(dict)
    file = ""
    for entry in export.splitlines():
        word, _, values = entry.partition(":")
        if word == "SF":
            file = values
        elif word == "DA" and is_logic(file):
            line, count = values.split(",")
            runs[file][f"line {line}"] = int(count)
    return runs


def branches_of(export):
    """How often each outcome of each condition came out in each file."""
    runs = collections.defaultdict(collections.Counter)
    for function in json.loads(export)["data"][0]["functions"]:
        for line, column, _, _, true_count, false_count, file_number, *_ in function["branches"]:
            file = function["filenames"][file_number]
            if is_logic(file):
                runs[file][f"line {line}, column {column}: true"] += true_count
                runs[file][f"line {line}, column {column}: false"] += false_count
    return runs


def print_missing(lines, branches):
    for file in sorted(lines):
        missing = [place for runs in (lines[file], branches[file])
                   for place, count in runs.items() if count == 0]
        if missing:
            print(pathlib.Path(file).relative_to(SOURCES.parent), *missing, sep="\n    ")


def percentage(name, runs):
    counts = [count for places in runs.values() for count in places.values()]
    reached = sum(count > 0 for count in counts)
    share = 100 * reached / len(counts)
    print(f"{name}: {share:.2f} % ({reached} of {len(counts)})")
    return share


def main():
    parser = argparse.ArgumentParser(usage=__doc__.split("\n\n")[1][len("usage: "):])
    parser.add_argument("lines", type=pathlib.Path)
    parser.add_argument("branches", type=pathlib.Path)
    parser.add_argument("--missing", action="store_true")
    options = parser.parse_args()
    lines = lines_of(options.lines.read_text(encoding="utf-8"))
    branches = branches_of(options.branches.read_text(encoding="utf-8"))
    if options.missing:
        print_missing(lines, branches)
    enough = [percentage("lines", lines) >= LEAST_LINES,
              percentage("branches", branches) >= LEAST_BRANCHES]
    sys.exit(0 if all(enough) else 1)


if __name__ == "__main__":
    main()
