#!/usr/bin/env python3
"""Plays the sessions of this folder and compares what comes out with what is written down.

usage: play.py REPLAY [--plain | --widgets] [--runner wine] [--accept] [NAME ...]

REPLAY is the program wheelwright-replay. Without names all sessions are played; a name is that of a
session ("language/full-table") or of a subject ("language"). Without a mode each session is played
in both. --accept writes down what came out, for review, from the first mode that is played; it needs
names, so that no session is accepted unseen. --runner wine plays a replay that was built for
Windows; the separators in paths are then left out of the comparison.

A session is a folder:
  script.jsonl   what is played
  result.jsonl   what must come out, line for line
  before/        files that are there when the session starts
  after/         files that the session changes or makes, as they must be afterwards; NAME.absent
                 means that NAME must be gone. All other files must be as they were
  prepare.json   steps on the disk before the start, in the order of the list
  exit           the exit code, if it isn't 0

"@DIR@" in script, result and steps is the fresh folder in which a session is played. Its program
directory is @DIR@/app: app of before/ or else the app of this folder. A line {"disk": STEP} of a
script is a step on the disk in the middle of the session.

Steps: ["write", FILE, TEXT], ["remove", PATH], ["mkdir", PATH], ["readonly", FILE] and
["link", TARGET, PATH].
"""

import argparse
import pathlib
import sys
from concurrent.futures import ThreadPoolExecutor

from disk import Folder
from expectation import Expectation
from replay import play
from runner import RUNNERS

SESSIONS = pathlib.Path(__file__).resolve().parent
MODES = {"plain": ["--plain"], "widgets": []}
JOBS = 2


def sessions_named(names, root=SESSIONS):
    """The folders of the sessions; every name must be that of a session or subject."""
    folders = sorted(script.parent for script in root.glob("*/*/script.jsonl"))
    if not names:
        return folders
    found = []
    for name in names:
        chosen = [folder for folder in folders if name in (folder.parent.name, title(folder))]
        if not chosen:
            sys.exit(f"there is no session {name}")
        found += chosen
    return found


def title(session):
    return f"{session.parent.name}/{session.name}"


def differences(program, runner, session, mode, accept):
    """Plays a session; what came out otherwise than expected, as lines of a report."""
    with Folder(session, SESSIONS / "app", runner) as folder:
        before = folder.files()
        outcome = play([*runner.command, program, *MODES[mode], "--app", folder.name("app")],
                       session / "script.jsonl", folder)
        expectation = Expectation(session, folder)
        if accept:
            expectation.accept(outcome, before)
            return []
        return list(expectation.differences(outcome, before))


def report(program, runner, session, mode, accept):
    try:
        faults = differences(program, runner, session, mode, accept)
    except Exception as error:  # one broken session must not hide the others
        faults = [f"{type(error).__name__}: {error}"]
    if faults:
        print(f"{title(session)} ({mode})", *("    " + fault for fault in faults), sep="\n")
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
    sessions = sessions_named(options.names)
    if not sessions:
        sys.exit("there is no session")
    runner = RUNNERS[options.runner]
    plays = [(program, runner, session, mode, options.accept)
             for session in sessions for mode in modes]
    with ThreadPoolExecutor(JOBS) as pool:
        good = list(pool.map(lambda each: report(*each), plays))
    print(f"{good.count(True)} passed, {good.count(False)} failed")
    sys.exit(0 if all(good) else 1)


if __name__ == "__main__":
    main()
