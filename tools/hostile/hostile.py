#!/usr/bin/env python3
"""Plays files of hostile sizes, each in a process of its own, and prints how that ended, how long it took
and how much memory. Exit code 1 if one ended otherwise or went over its bound.

usage: hostile.py REPLAY [WORD]      with a word, only the cases whose names hold it
"""

import itertools
import multiprocessing
import os
import pathlib
import shutil
import sys
import tempfile
import time
from typing import Callable, NamedTuple

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "replay"))
from session import APP, Session, opening, vehicle

MOST = 32767  # what a counter of 16 bits reaches
LONGEST = 120  # seconds that a case may take
SIDE_BY_SIDE = 1500  # MB: what may hold more is played alone


def many(piece, megabytes=200):
    """Blocks that hold the piece again and again, until that makes as many MB or a little more."""
    pieces = -(-megabytes * 1_000_000 // len(piece))
    in_block = max(1, 65536 // len(piece))
    return [piece * in_block] * (pieces // in_block) + [piece * (pieces % in_block)]


def names(count):
    """None of them begins another."""
    return (f"N{number:06}" for number in range(count))


def names_in_names():
    """All words of two letters up to the 14 that a name may have: each is the beginning of two others."""
    words = (itertools.product("AB", repeat=length) for length in range(1, 15))
    return ["C", *map("".join, itertools.chain.from_iterable(words))]


def colors(*lines):
    return [b"col\r\n", *lines, b"end\r\n"]


def palette(count):
    return colors(*(b"1,2,3\t\t\t\t# %d c\r\n" % number for number in range(count)))


def pairs(count, palette_size=1):
    """A vehicle whose pairs name one colour after the other."""
    return [b"car\r\nbus", *(b", %d" % (n % palette_size) for n in range(2 * count)), b"\r\nend\r\n"]


def definition(number, *model):
    return b"%d, " % number, *model, b", bus, boat, BUS, BUS, null, normal, 30, 7, 0\r\n"


def definitions(*lines):
    return [b"cars\r\n", *itertools.chain(*lines), b"end\r\n"]


def bitmap(side):
    """The headers of a square of that many points, and the bytes of one of ten."""
    size = side.to_bytes(4, "little")
    return [b"BM", bytes(8), b"\x36\0\0\0\x28\0\0\0", size, size, b"\1\0\x18\0", bytes(24 + 320)]


def asked(*controls):
    return [{"get": control} for control in controls]


# What is played once the file is open.
COUNTS = asked("cmbAutos", "frmError.lstErrors")
SAVE = [{"click": "cmdSave"}, *COUNTS]
LAST_ROW = [{"pick": "cmbAutos", "row": 999_999}, {"pick": "cmbAutos", "row": 1_000_000}]
IMPORT = [{"answer": {"file": "other.cfg"}}, {"click": "cmdImportCar"}, *COUNTS]
DELETE_LAST = [{"answer": "yes"}, {"row": "lstColors", "to": 32760}, {"click": "cmdDeleteColor"},
               {"answer": "yes"}, {"tab": "SSTab3", "to": 1}, {"row": "lstCarColors", "to": 15999},
               {"click": "cmdRemColor"}, *asked("cmbColor1", "lstCarColors")]
BOTH_PICTURES = [*asked("picCar"), {"pick": "cmbAutos", "row": 1}, *asked("picCar")]
START = asked("frmMain")

# How a case ends: what comes out of it in short, and the size of the file.
SHORT = {"dialog": "", "box": "{text}", "end": "{end} {number}", "refused": "{refused} refused",
         "rows": "{count} {of}", "width": "{width} points", "title": "{get}, visible: {visible}"}
COUNTED = {"cmbAutos": "names", "frmError.lstErrors": "problems", "cmbColor1": "colours",
           "lstCarColors": "pairs"}
SAVED = "E116, 1 names, 0 problems, "
OVERFLOW = "Error: 6 - Overflow, cmdSave refused, 0 names, 0 problems, "
NO_ROW = "Error: 380 - Invalid property value, cmdSave refused, 0 names, 0 problems, "

HANDLING, DEFINITIONS, COLORS, TEXTS = "in.cfg", "in.ide", "in.dat", "Eins.lng"
FILTERS = {HANDLING: 1, DEFINITIONS: 2, COLORS: 3}
PLAIN, WINDOWS = ["--plain"], []


class Case(NamedTuple):
    name: str
    file: str
    parts: Callable  # gives the parts of the file
    ending: str
    bound: int  # MB of memory
    played: list = SAVE
    others: Callable = dict  # gives the parts of other files by their names
    screen: list = PLAIN


CASES = [
    Case("vehicle line, 200 MB of tokens", HANDLING, lambda: [vehicle("BUS"), b"VAN ", *many(b" 1")],
         OVERFLOW + "200.0 MB", 260),
    Case("vehicle line, one token of 200 MB", HANDLING, lambda: [b"BUS ", *many(b"x"), b"\r\n"],
         "E116, 1 names, 2 problems, 200.0 MB", 1210),
    Case("comment line of 200 MB", HANDLING, lambda: [b"; ", *many(b"author "), b"\r\n", vehicle("BUS")],
         SAVED + "200.0 MB", 500),
    Case("marked line of 200 MB", HANDLING, lambda: [vehicle("BUS"), b"% ", *many(b"bus van ")],
         SAVED + "200.0 MB", 500),
    Case("32,767 names", HANDLING, lambda: map(vehicle, names(MOST)),
         "E116, 32767 names, 0 problems, 4.8 MB", 85),
    # The exit code says that there is a last row and none behind it; their texts would take memory too.
    Case("1,000,000 rows without records", HANDLING,
         lambda: (f" {name} 1500.0 1.9\r\n".encode() for name in names(1_000_000)),
         "exit code 2, 21.0 MB", 155, LAST_ROW),
    Case("32,767 names, all in marked 200 MB", HANDLING,
         lambda: [*map(vehicle, names(MOST)), b"% ", *many(" ".join([*names(MOST), ""]).encode())],
         "E116, 32767 names, 0 problems, 204.8 MB", 560),
    Case("32,767 names that begin others", HANDLING, lambda: map(vehicle, names_in_names()),
         OVERFLOW + "4.7 MB", 75),
    Case("the same names imported", HANDLING, lambda: [vehicle("BUS")],
         "Error: 6 - Overflow, 32768 names, 0 problems, 0.0 MB", 75, IMPORT,
         lambda: {"other.cfg": map(vehicle, names_in_names())}),
    # Each of the lines makes a record for each of the names: 32,761.
    Case("181 equal names", HANDLING, lambda: [vehicle("BUS")] * 181,
         "E116, 181 names, 0 problems, 871.7 MB", 1210),
    Case("182 equal names", HANDLING, lambda: [vehicle("BUS")] * 182, OVERFLOW + "0.0 MB", 65),
    Case("50 MB of bare line feeds", HANDLING, lambda: many(b"\n", 50), NO_ROW + "100.0 MB", 200),
    Case("50 MB of empty lines", HANDLING, lambda: many(b"\r", 50), NO_ROW + "50.0 MB", 80),
    Case("colour with a name of 200 MB", COLORS,
         lambda: colors(b"1,2,3\t# 0 ", *many(b"x"), b"\r\n") + pairs(1), SAVED + "200.0 MB", 2650),
    Case("colour line of 200 MB without tab", COLORS,
         lambda: colors(b"1,2,3 # 0 black ", *many(b"y "), b"\r\n") + pairs(1), SAVED + "0.0 MB", 260),
    Case("vehicle with 100 million numbers", COLORS,
         lambda: [*palette(1), b"car\r\nbus", *many(b",0"), b"\r\nend\r\n"], OVERFLOW + "200.0 MB", 500),
    Case("32,762 colours and 16,000 pairs", COLORS, lambda: palette(32762) + pairs(16000, 32762),
         SAVED + "0.9 MB", 50),
    Case("the same, one of each deleted", COLORS, lambda: palette(32762) + pairs(16000, 32762),
         "E153, E153, 32761 colours, 15999 pairs, 0.9 MB", 50, DELETE_LAST),
    Case("32,767 colours", COLORS, lambda: palette(MOST) + pairs(1), OVERFLOW + "0.6 MB", 50),
    Case("vehicle with 16,383 pairs", COLORS, lambda: palette(1) + pairs(16383), SAVED + "0.1 MB", 50),
    Case("vehicle with 16,384 pairs", COLORS, lambda: palette(1) + pairs(16384), OVERFLOW + "0.1 MB", 50),
    Case("definition with a field of 200 MB", DEFINITIONS,
         lambda: definitions(definition(130, *many(b"bus"))), SAVED + "200.0 MB", 1450),
    Case("definition with 100 million fields", DEFINITIONS,
         lambda: definitions([b"130", *many(b",1"), b"\r\n"]), OVERFLOW + "200.0 MB", 500),
    Case("32,765 definitions of one name", DEFINITIONS,
         lambda: definitions(*(definition(number, b"bus") for number in range(32765))),
         "E116, 32765 names, 0 problems, 2.2 MB", 50),
    Case("language file of 500 MB", TEXTS, lambda: many(b"text\r\n", 500), "failure 9, 500.0 MB", 615, START),
    Case("language file, one line of 500 MB", TEXTS, lambda: many(b"text", 500),
         "frmMain, visible: True, 500.0 MB", 1810, START),
    *(Case(f"picture of 60,000 x 60,000, {name}", HANDLING, lambda: [vehicle("BUS"), vehicle("VAN")],
           "0 points, 10 points, 0.0 MB", 50, BOTH_PICTURES,
           lambda: {"gfx/BUS.bmp": bitmap(60_000), "gfx/VAN.bmp": bitmap(10)}, screen)
      for name, screen in (("plain", PLAIN), ("windows", WINDOWS))),
]


def prepare(folder, case):
    shutil.copy(APP / TEXTS, folder)
    for name, parts in {case.file: case.parts(), **case.others()}.items():
        (folder / name).parent.mkdir(exist_ok=True)
        with open(folder / name, "wb") as file:
            file.writelines(parts)


def told(line):
    """A line of the result in short; nothing for what says too little."""
    for key, form in SHORT.items():
        if key in line:
            return form.format(**line, count=len(line.get("rows", [])), of=COUNTED.get(line.get("get")))
    return None


def play(number):
    """Whether it went well, and what is to be said."""
    case = CASES[number]
    with tempfile.TemporaryDirectory(prefix="hostile-") as name:
        folder = pathlib.Path(name)
        prepare(folder, case)
        start = time.monotonic()
        session = Session(REPLAY, folder, case.screen, ["timeout", str(LONGEST)], cwd=folder)
        if case.file in FILTERS:
            session.send(*opening(case.file, FILTERS[case.file]))
        session.send(*case.played)
        session.end_script()
        outcome = [text for text in map(told, session.results()) if text]
        code = session.end()
        seconds = time.monotonic() - start
        outcome += [f"exit code {code}"] * (code != 0)
        outcome.append(f"{(folder / case.file).stat().st_size / 1e6:.1f} MB")
    ending = ", ".join(outcome)
    said = [f"{case.name:38} {seconds:6.2f} s {session.peak:5} MB of {case.bound:5}  {ending}"]
    said += [f"    must end with: {case.ending}"] * (ending != case.ending)
    said += ["    goes over its bound"] * (session.peak > case.bound)
    return len(said) == 1, "\n".join(said)


def main():
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    word = sys.argv[2] if len(sys.argv) > 2 else ""
    wanted = [number for number, case in enumerate(CASES) if word in case.name]
    alone = [number for number in wanted if CASES[number].bound > SIDE_BY_SIDE]
    if not wanted:
        sys.exit(f"no case's name holds {word}")
    failed = False
    for at_once, numbers in ((2, [each for each in wanted if each not in alone]), (1, alone)):
        # Each in a process of its own: what it held before the session counts as the session's.
        with multiprocessing.Pool(at_once, maxtasksperchild=1) as pool:
            for good, said in pool.imap(play, numbers):
                print(said, flush=True)
                failed = failed or not good
    sys.exit(failed)


REPLAY = str(pathlib.Path(sys.argv[1]).resolve())

if __name__ == "__main__":
    main()
