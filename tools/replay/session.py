"""A session that another program plays with the replay, line by line."""

import contextlib
import json
import os
import pathlib
import subprocess

APP = pathlib.Path(__file__).resolve().parents[2] / "tests" / "sessions" / "app"


def vehicle(name):
    """A line of a handling file."""
    return (f"{name:14} 5500.0 2.8 9.0 3.2 0.0 0.0 0.0 75 0.75 0.75 0.50 4 160.0 14.0 R D 5.00 0.50 0 30.0 "
            "1.4 0.1 0.4 -0.2 0.5 0.0 0.5 0.0 9000 2 0 1\r\n").encode()


def opening(file, index=1):
    """The lines that open a file with that filter."""
    return [{"answer": {"file": str(file), "filter": index}}, {"click": "cmdOpen"}]


class Session:
    """Started when it is made; what stands in `before` starts the replay."""

    def __init__(self, replay, app=APP, screen=("--plain",), before=(), **options):
        command = [*before, replay, *screen, "--app", str(app)]
        pipe = subprocess.PIPE
        self.process = subprocess.Popen(command, stdin=pipe, stdout=pipe, stderr=subprocess.DEVNULL,
                                        text=True, **options)
        self.peak = None  # the most MB of memory that it held, once it has ended
        self.send({"start": True})

    def send(self, *lines):
        with contextlib.suppress(BrokenPipeError):
            for line in lines:
                self.process.stdin.write(json.dumps(line) + "\n")
            self.process.stdin.flush()

    def end_script(self):
        with contextlib.suppress(BrokenPipeError):
            self.process.stdin.close()

    def results(self):
        """The lines of the result as they come; one that breaks off is none."""
        return (json.loads(text) for text in self.process.stdout if text.endswith("\n"))

    def end(self):
        """The exit code."""
        self.end_script()
        self.process.stdout.close()
        if self.process.returncode is None:
            _, status, usage = os.wait4(self.process.pid, 0)
            self.process.returncode = os.waitstatus_to_exitcode(status)
            self.peak = usage.ru_maxrss // 1024
        return self.process.returncode
