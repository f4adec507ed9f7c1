"""Runs the replay program with a script, line by line where the disk changes in between."""

import contextlib
import io
import json
import os
import subprocess
import tempfile
import threading
from dataclasses import dataclass

LONGEST = 120  # seconds that a session may take
PROBE = b'{"clock": true}\n'


@dataclass
class Outcome:
    lines: list
    exit_code: int
    complaints: str


class Results:
    """Collects the lines that come out while the script goes in."""

    def __init__(self, stream):
        self.lines = []
        self.clocks = 0
        self.ended = False
        self.change = threading.Condition()
        self.probes = set()
        self.reader = threading.Thread(target=self.read, args=(stream,), daemon=True)
        self.reader.start()

    def read(self, stream):
        for text in stream:
            self.add(json.loads(text.decode("utf-8")))
        with self.change:
            self.ended = True
            self.change.notify()

    def add(self, line):
        with self.change:
            if "clock" in line:
                self.clocks += 1
                line = {"clock": 0}  # times differ
                self.change.notify()
                if self.clocks in self.probes:
                    return
            self.lines.append(line)

    def expect_probe(self, number):
        with self.change:
            self.probes.add(number)

    def wait_for_clock(self, number):
        """Whether it came; it never does once the program has ended."""
        with self.change:
            if not self.change.wait_for(lambda: self.ended or self.clocks >= number, LONGEST):
                raise TimeoutError("the replay doesn't answer")
            return self.clocks >= number


class Script:
    """Feeds a script; what the program no longer reads after its end is left out."""

    def __init__(self, process, results, folder):
        self.process = process
        self.results = results
        self.folder = folder
        self.clocks = 0

    def feed(self, text):
        with contextlib.suppress(BrokenPipeError):
            for line in io.StringIO(text):
                self.feed_line(line)
        with contextlib.suppress(BrokenPipeError):
            self.process.stdin.close()

    def feed_line(self, line):
        played = object_of(line)
        if "disk" in played:
            if self.wait_for_all():
                self.folder.take(played["disk"])
            return
        if "clock" in played:
            self.clocks += 1
        self.process.stdin.write(line.encode("utf-8"))
        self.process.stdin.flush()

    def wait_for_all(self):
        """Until the results of all lines so far are there; whether the program still runs."""
        self.clocks += 1
        self.results.expect_probe(self.clocks)
        self.process.stdin.write(PROBE)
        self.process.stdin.flush()
        return self.results.wait_for_clock(self.clocks)


def object_of(line):
    """The object of a line; an empty one for a line that is none, which the replay must see to."""
    try:
        value = json.loads(line)
    except ValueError:
        return {}
    return value if isinstance(value, dict) else {}


def play(command, text, folder):
    environment = dict(os.environ, **folder.runner.environment)
    with tempfile.TemporaryFile() as complaints:
        with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                              stderr=complaints, env=environment) as process:
            limit = threading.Timer(LONGEST, process.kill)
            limit.start()
            try:
                results = Results(process.stdout)
                Script(process, results, folder).feed(text)
                exit_code = process.wait()
                results.reader.join()
            finally:
                limit.cancel()
                process.kill()
        complaints.seek(0)
        return Outcome(results.lines, exit_code,
                       complaints.read().decode("utf-8", errors="replace"))
