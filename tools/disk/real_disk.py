#!/usr/bin/env python3
"""Holds saving to its promise with the real kernel.

usage: real_disk.py REPLAY [KILLS]

Every trial plays a session with the replay and looks at what lies on the disk afterwards:
  killed at each system call of a save, and at random moments of saves of three sizes: never empty
  beyond the process's limit on file sizes, and into a pipe that nobody reads: a failure, not a death
  without room, on tmpfs and on ext4: every command leaves all files as they were
  without power in the moment of "saved" (a copy of the disk's image): all that was saved is there
  on a disk that promises more room than it has: a failure, not "saved"
"""

import contextlib
import itertools
import json
import pathlib
import random
import re
import resource
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "replay"))
import session as replayed

SIZES = {"16 kB": 16_000, "5 MB": 5_000_000, "60 MB": 60_000_000}
PAGE = 4096
SAVED = "saved"


def handling_file(size):
    comments = "".join(f"; line {i} of this file\r\n" for i in range(size // 20))
    return (replayed.vehicle("BUS") + comments.encode())[: size - 2] + b"\r\n"


def color_file(size):
    sections = "col\r\n1,1,1\t\t\t\t# 0 oak\r\nend\r\ncar\r\nbus, 0, 0\r\nend\r\n"
    return ("#" + "x" * (size - len(sections) - 3) + "\r\n" + sections).encode()


class Session(replayed.Session):
    """A session of which it matters how saving ends."""

    def open(self, file, index=1):
        """Opens a file and waits until it is shown."""
        self.send(*replayed.opening(file, index), {"clock": True})
        return self.answer_until("clock")

    def answer_until(self, key):
        """The last box or end of what comes until a line with this key."""
        told = None
        for line in self.results():
            if line.get("box") in ("information", "error") or "end" in line:
                told = line
            if key in line or "end" in line:
                break
        return told

    def outcome(self, *lines):
        """Plays the lines: "saved", or the number of the failure."""
        self.send(*lines, {"clock": True})
        told = self.answer_until("clock")
        if told is None:
            return "nothing"
        if told.get("box") == "information":
            return SAVED
        return told.get("number") or int(re.search(r"\d+", told["text"]).group())


def what_lies(file, old, new):
    text = file.read_bytes()
    if text == old or text == new:
        return "old" if text == old else "new"
    return "torn" if text else "empty"


def saved_text(replay, file, text):
    """What a save makes of a file, and how long it takes."""
    file.write_bytes(text)
    session = Session(replay)
    session.open(file)
    start = time.monotonic()
    assert session.outcome({"click": "cmdSave"}) == SAVED
    duration = time.monotonic() - start
    session.end()
    return file.read_bytes(), duration


class Report:
    def __init__(self):
        self.failed = False

    def say(self, good, text):
        self.failed = self.failed or not good
        print(f"{'ok  ' if good else 'BAD '} {text}", flush=True)


def wait_for_another_beginning(file, beginning):
    """Until the file's first byte is of the new text."""
    with open(file, "rb", buffering=0) as watched:
        while watched.read(1) == beginning:
            watched.seek(0)


def killed_at_random(replay, folder, kills, report):
    """Every other time in the short while in which the text is written."""
    for name, size in SIZES.items():
        file = folder / "handling.cfg"
        old = handling_file(size)
        new, duration = saved_text(replay, file, old)
        found = {"old": 0, "new": 0, "torn": 0, "empty": 0}
        for kill in range(kills):
            file.write_bytes(old)
            session = Session(replay)
            session.open(file)
            session.send({"click": "cmdSave"})
            if kill % 2:
                wait_for_another_beginning(file, old[:1])
                time.sleep(random.expovariate(20 / duration))
            else:
                time.sleep(random.uniform(0, 1.2 * duration))
            session.process.kill()
            session.end()
            found[what_lies(file, old, new)] += 1
        told = ", ".join(f"{count} {state}" for state, count in found.items())
        report.say(found["empty"] == 0, f"killed {kills} times while saving {name}: {told}")


STRACE = ["strace", "-f", "-qq", "-o", "/dev/null"]
CALLS = ["newfstatat", "openat", "read", "fallocate", "pwrite64", "ftruncate", "fsync", "close"]


def killed_at_each_call(replay, folder, report):
    """A new text that is longer than the old one, and one that is shorter."""
    file = folder / "handling.cfg"
    longer = handling_file(16_000)
    for name, old in (("longer", longer), ("shorter", longer + b"\r\n" * 400)):
        new, _ = saved_text(replay, file, old)
        found = []
        for call in CALLS:
            for number in itertools.count(1):
                file.write_bytes(old)
                session = Session(replay, before=[*STRACE, "-P", str(file),
                                                  "-e", f"inject={call}:signal=KILL:when={number}"])
                session.open(file)
                session.outcome({"click": "cmdSave"})
                if session.end() == 0:
                    break
                found.append(what_lies(file, old, new))
        report.say("empty" not in found and "new" in found and "old" in found,
                   f"killed at each of {len(found)} calls of opening and saving a {name} text: "
                   f"{found.count('old')} old, {found.count('torn')} torn, {found.count('new')} new")


def limited(replay, folder, report):
    file = folder / "handling.cfg"
    old = handling_file(16_000)
    file.write_bytes(old)
    session = Session(replay, preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (8_000, 8_000)))
    session.open(file)
    outcome = session.outcome({"click": "cmdSave"})
    report.say(outcome == 61 and session.end() == 0 and file.read_bytes() == old,
               f"beyond the limit on file sizes: failure {outcome}, the file {what_lies(file, old, None)}")


def unread(replay, folder, report):
    file = folder / "handling.cfg"
    file.write_bytes(handling_file(16_000))
    session = Session(replay)
    session.process.stdout.close()
    session.send(*[{"vars": True}] * 10)
    code = session.end()
    report.say(code == 1, f"a result that nobody reads: exit code {code}")


# Each command that writes: what is opened, with which filter, what a person does, and the failure.
TO_NEW = {"answer": {"file": "@/new"}}
TO_EARLIER = {"answer": {"file": "@/earlier"}}
EXPORT = [{"click": "cmdExportCar"}, {"click": "frmExport.cmdAddAll"}]
COMMANDS = {
    "save": ("handling.cfg", 1, [{"click": "cmdSave"}]),
    "save as": ("handling.cfg", 1, [TO_EARLIER, {"click": "cmdSaveAs"}]),
    "save as something new": ("handling.cfg", 1, [TO_NEW, {"click": "cmdSaveAs"}]),
    "save colours": ("carcols.dat", 3, [{"click": "cmdSave"}]),
    "save colours as": ("carcols.dat", 3, [TO_NEW, {"click": "cmdSaveAs"}]),
    "back up": ("handling.cfg", 1, [{"answer": "yes"}, {"click": "cmdBackup"}]),
    "back up for the first time": ("carcols.dat", 3, [{"click": "cmdBackup"}]),
    "export": ("handling.cfg", 1, [{"type": "txtAuthor", "text": "A" * PAGE}, *EXPORT, TO_EARLIER,
                                   {"click": "frmExport.cmdExport"}]),
    "open with bare line feeds": ("bare.cfg", 1, []),
}


def contents(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir() if path.is_file()}


def fill(folder):
    with open(folder / "filler", "wb", buffering=0) as filler, contextlib.suppress(OSError):
        for size in (1 << 20, PAGE, 1):
            with contextlib.suppress(OSError):
                while filler.write(b"x" * size):
                    pass


def without_room(replay, disk, kind, report):
    """Each file that will be rewritten ends where a page ends or so, so that it can't grow; the first
    of the two texts of the colours has room, the second hasn't."""
    files = {"handling.cfg": handling_file(4 * PAGE), "carcols.dat": color_file(2 * PAGE - 84),
             "bare.cfg": handling_file(PAGE + 400).replace(b"\r", b"")[:PAGE],
             "handling.cfg.backup": b"an earlier backup", "earlier": b"an earlier copy"}
    for name, text in files.items():
        (disk / name).write_bytes(text)
    fill(disk)
    for name, (file, index, actions) in COMMANDS.items():
        before = contents(disk)
        session = Session(replay)
        told = session.open(disk / file, index)
        lines = json.loads(json.dumps(actions).replace("@/", f"{disk}/"))
        outcome = session.outcome(*lines) if lines else told and told["text"]
        session.end()
        report.say(outcome in (61, "Error: 61 - Disk full") and contents(disk) == before,
                   f"to {name} on a full {kind}: {outcome}"
                   f"{'' if contents(disk) == before else ', and a file has changed'}")


@contextlib.contextmanager
def mounted(what, folder, *options):
    folder.mkdir(exist_ok=True)
    subprocess.run(["mount", *options, str(what), str(folder)], check=True)
    try:
        yield folder
    finally:
        subprocess.run(["umount", str(folder)], check=True)


def make_image(image, megabytes):
    with open(image, "wb") as file:
        file.truncate(megabytes << 20)
    subprocess.run(["mke2fs", "-q", "-F", "-t", "ext4", str(image)], check=True)
    return image


def without_power(replay, folder, options, before):
    """How many of the things that were said to be saved an image copied in that moment shows."""
    trials = shown = 0
    disk, image, copy = folder / "disk", folder / "image", folder / "copy"
    for size in (100, 16_000, 5_000_000):
        for actions, names in (([{"click": "cmdSave"}], ["handling.cfg"]),
                               ([{"answer": {"file": str(disk / "new")}}, {"click": "cmdSaveAs"}], ["new"]),
                               ([{"click": "cmdBackup"}], ["handling.cfg.backup"])):
            with mounted(make_image(image, 64), disk, "-o", f"loop,{options}"):
                (disk / "handling.cfg").write_bytes(handling_file(size))
                subprocess.run(["sync"], check=True)
                session = Session(replay, before=before)
                session.open(disk / "handling.cfg")
                assert session.outcome(*actions) == SAVED
                subprocess.run(["cp", "--sparse=always", str(image), str(copy)], check=True)
                wanted = {name: (disk / name).read_bytes() for name in names}
                session.end()
            with mounted(copy, folder / "after", "-o", "loop") as after:
                found = contents(after)
                trials += 1
                shown += all(found.get(name) == text for name, text in wanted.items())
    return trials, shown


def promised_too_much(replay, folder, report):
    """A sparse image in a tmpfs that is full: the file system finds room that its disk hasn't."""
    for size in (16_000, 5_000_000):
        with mounted("tmpfs", folder / "host", "-t", "tmpfs", "-o", "size=24m") as host:
            with mounted(make_image(host / "image", 200), folder / "thin", "-o", "loop") as thin:
                (thin / "handling.cfg").write_bytes(handling_file(size))
                subprocess.run(["sync"], check=True)
                session = Session(replay)
                session.open(thin / "handling.cfg")
                fill(host)
                outcome = session.outcome({"answer": {"file": str(thin / "new")}}, {"click": "cmdSaveAs"})
                session.end()
                (host / "filler").unlink()
        report.say(outcome in (57, 61), f"{size} bytes onto a disk that promised too much: failure {outcome}")


def with_mounts(replay, folder, report):
    with mounted("tmpfs", folder / "full", "-t", "tmpfs", "-o", "size=1m") as disk:
        without_room(replay, disk, "tmpfs", report)
    with mounted(make_image(folder / "small", 8), folder / "full", "-o", "loop") as disk:
        without_room(replay, disk, "ext4", report)
    for options in ("defaults", "noauto_da_alloc"):
        trials, shown = without_power(replay, folder, options, [])
        report.say(shown == trials, f'"saved", then no power (ext4, {options}): {shown} of {trials} are there')
    # That the copies would show it if nothing waited for the disk.
    unwaited = [*STRACE, "-e", "trace=fsync", "-e", "inject=fsync:retval=0"]
    trials, shown = without_power(replay, folder, "noauto_da_alloc", unwaited)
    report.say(shown < trials, f"the same without the wait for the disk: {shown} of {trials} are there")
    promised_too_much(replay, folder, report)


def can_mount(folder):
    try:
        with mounted(make_image(folder / "try", 4), folder / "tried", "-o", "loop"):
            return True
    except (OSError, subprocess.CalledProcessError):
        return False


def main():
    replay = str(pathlib.Path(sys.argv[1]).resolve())
    kills = int(sys.argv[2]) if len(sys.argv) > 2 else 200
    report = Report()
    with tempfile.TemporaryDirectory(prefix="real-disk-") as name:
        folder = pathlib.Path(name)
        limited(replay, folder, report)
        unread(replay, folder, report)
        if can_mount(folder):
            with_mounts(replay, folder, report)
        else:
            print("this machine lets nothing be mounted: full, thin and powerless disks are NOT tried")
        killed_at_each_call(replay, folder, report)
        killed_at_random(replay, folder, kills, report)
    sys.exit(report.failed)


if __name__ == "__main__":
    main()
