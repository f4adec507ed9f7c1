#!/usr/bin/env python3
"""Finds what no source should hold: trailing blanks, tabs, carriage returns, a missing or doubled
last line end, leftovers, and files that have grown too long.

usage: lint.py [SOURCE_TREE]
"""

import os
import pathlib
import re
import sys

SUFFIXES = {".cpp", ".h", ".py", ".cmake", ".md", ".json", ".yml"}
NAMES = {"CMakeLists.txt", ".clang-format", ".clang-tidy", ".gitignore", ".gitattributes"}
SKIPPED_FOLDERS = re.compile(r"^(\.git|build.*|dist|__pycache__)$")
CODE_SUFFIXES = {".cpp", ".h", ".py"}
MOST_LINES = 600

# Put together here so that this file doesn't hold the words itself.
LEFTOVERS = re.compile(
    rb"\b(TO" rb"DO|FIX" rb"ME|XX" rb"X|DISAB" rb"LED_\w+|GTEST_" rb"SKIP|QS" rb"KIP)\b")


def is_source(file):
    if file.suffix in SUFFIXES or file.name in NAMES:
        return True
    if file.suffix:
        return False
    with file.open("rb") as opened:
        return opened.read(2) == b"#!"


def sources_of(tree):
    for folder, folders, names in os.walk(tree):
        folders[:] = sorted(name for name in folders if not SKIPPED_FOLDERS.match(name))
        for name in sorted(names):
            file = pathlib.Path(folder, name)
            if file.is_file() and is_source(file):
                yield file


def faults_of_line(line):
    if b"\r" in line:
        yield "carriage return"
    if b"\t" in line:
        yield "tab"
    if line.rstrip(b"\r") != line.rstrip(b" \t\r"):
        yield "trailing blank"
    if LEFTOVERS.search(line):
        yield "leftover"


def faults_of(file):
    """The faults of one file, each with the number of its line."""
    text = file.read_bytes()
    lines = text.split(b"\n")
    for number, line in enumerate(lines, 1):
        for fault in faults_of_line(line):
            yield number, fault
    if text and not text.endswith(b"\n"):
        yield len(lines), "no line end at the end of the file"
    if text.endswith(b"\n\n"):
        yield len(lines) - 1, "empty line at the end of the file"
    if file.suffix in CODE_SUFFIXES and len(lines) > MOST_LINES + 1:
        yield len(lines), f"more than {MOST_LINES} lines"


def main():
    own_tree = pathlib.Path(__file__).resolve().parent.parent.parent
    tree = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else own_tree
    faults = [f"{file.relative_to(tree)}:{number}: {fault}"
              for file in sources_of(tree) for number, fault in faults_of(file)]
    print("\n".join(faults))
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
