#!/usr/bin/env python3
"""Plays the sessions of this folder and compares what comes out with what is written down.

usage: play.py REPLAY [--plain | --widgets] [--runner wine] [--accept] [NAME ...]

REPLAY is the program wheelwright-replay. Without names all sessions are played; a name is that of a
session ("language/full-table") or of a subject ("language"). Without a mode each session is played
in both. --accept writes down what came out, for review, from the first mode that is played; it needs
names, so that no session is accepted unseen. --runner wine plays a replay that was built for
Windows; the separators in paths are then left out of the comparison. The scripts that the replay must
refuse are no folders but the rows of refused.py: "refused/1" and so on.

A session is the folder SUBJECT/SESSION:
  script.jsonl   what is played
  result.jsonl   what must come out, line for line
  before/        files that are there when the session starts
  after/         files that the session changes or makes, as they must be afterwards; NAME.absent
                 means that NAME must be gone. All other files must be as they were
  prepare.json   steps on the disk before the start, in the order of the list
  exit           the exit code, if it isn't 0

What the sessions of a subject share of before/ and prepare.json lies in SUBJECT; their own comes on top.
Any other folder in a session is a case: it has its own of all but the script, on top of the session's
before/ and prepare.json, and its name stands for @CASE@ in the script. The session is then played once
for each case, SUBJECT/SESSION/CASE.

"@DIR@" in script, result and steps is the fresh folder in which a session is played. Its program
directory is @DIR@/app: app of before/ or else the app of this folder. A line {"disk": STEP} of a
script is a step on the disk in the middle of the session.

Steps: ["write", FILE, TEXT], ["remove", PATH], ["mkdir", PATH], ["readonly", FILE], ["link", TARGET,
PATH] and ["copy", FROM, PATH], where FROM is a file or folder below this folder.
"""

import argparse
import os
import pathlib
import sys
from concurrent.futures import ThreadPoolExecutor

from refused import REFUSED
from runner import RUNNERS
from session import sessions_below

MODES = {"plain": ["--plain"], "widgets": []}
JOBS = os.cpu_count()


def chosen(names, sessions):
    """The sessions of these names; every name must be that of a subject, session or case."""
    if not names:
        return sessions
    found = []
    for name in names:
        of_name = [each for each in sessions if f"{each.title}/".startswith(f"{name}/")]
        if not of_name:
            sys.exit(f"there is no session {name}")
        found += of_name
    return found


def report(session, mode, *how):
    try:
        faults = session.differences(*how)
    except Exception as error:  # one broken session must not hide the others
        faults = [f"{type(error).__name__}: {error}"]
    if faults:
        print(f"{session.title} ({mode})", *("    " + fault for fault in faults), sep="\n")
    return not faults


def main():
    parser = argparse.ArgumentParser(usage=__doc__.split("\n\n")[1][len("usage: "):])
    parser.add_argument("program")
    parser.add_argument("--plain", action="store_true")
    parser.add_argument("--widgets", action="store_true")
    parser.add_argument("--runner", choices=RUNNERS, default="native")
    parser.add_argument("--accept", action="store_true")
    parser.add_argument("names", nargs="*")
    options = parser.parse_intermixed_args()
    program = str(pathlib.Path(options.program).resolve())
    if options.accept and not options.names:
        parser.error("--accept needs the names of sessions or subjects")
    modes = [mode for mode in MODES if getattr(options, mode)] or list(MODES)
    if options.accept:
        modes = modes[:1]
    runner = RUNNERS[options.runner]
    sessions = chosen(options.names, sessions_below() + ([] if options.accept else REFUSED))
    plays = [(session, mode, [*runner.command, program, *MODES[mode]], runner, options.accept)
             for session in sessions for mode in modes]
    with ThreadPoolExecutor(JOBS) as pool:
        good = list(pool.map(lambda each: report(*each), plays))
    print(f"{good.count(True)} passed, {good.count(False)} failed")
    sys.exit(0 if all(good) else 1)


if __name__ == "__main__":
    main()
