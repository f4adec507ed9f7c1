"""A copy of the source tree in which the program can be changed, built and tested."""

import contextlib
import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import time
from dataclasses import dataclass

SKIPPED = re.compile(r"^(\.git|build.*|dist|__pycache__)$")
SUITE = re.compile(r"^(?:TEST|TEST_F|TEST_P|RC_GTEST_PROP|RC_GTEST_FIXTURE_PROP)\((\w+)", re.MULTILINE)
# A change that never ends mustn't take the whole machine's memory.
MOST_MEMORY = 4 << 30
# A change that makes a step slower than this many times the usual is one that hangs.
PATIENCE = 10
SHORTEST_PATIENCE = 60


@dataclass(frozen=True)
class Outcome:
    passed: bool
    ended: bool
    output: str


def run(command, environment, limit=None):
    """Runs a command in a group of its own; after `limit` seconds the whole group is ended."""
    process = subprocess.Popen(["prlimit", f"--as={MOST_MEMORY}", *command], env=environment,
                               start_new_session=True, stdin=subprocess.DEVNULL,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    try:
        output, _ = process.communicate(timeout=limit)
        ended = True
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        output, _ = process.communicate()
        ended = False
    return Outcome(ended and process.returncode == 0, ended, output.decode("utf-8", "replace"))


def files_in(tree):
    """All files, and all links as such, without what was built."""
    for folder, folders, names in os.walk(tree):
        links = [name for name in folders if os.path.islink(os.path.join(folder, name))]
        folders[:] = [name for name in folders if not SKIPPED.match(name)]
        for name in names + links:
            yield pathlib.Path(folder, name)


def bring(source, copy):
    """Copies a file or a link, unless the copy is equal already."""
    if source.is_symlink():
        if copy.is_symlink() and copy.readlink() == source.readlink():
            return
        copy.unlink(missing_ok=True)
    elif copy.is_file() and copy.read_bytes() == source.read_bytes():
        return
    copy.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(source, copy, follow_symlinks=False)


class Bench:
    def __init__(self, root, folder):
        self.root = root
        self.tree = folder / "tree"
        self.build = self.tree / "build" / "mutants"
        self.built = folder / "built"
        self.temporary = folder / "tmp"
        self.limits = {}
        self.refresh()

    def refresh(self):
        """Makes the copy equal to the tree; what hasn't changed keeps its time."""
        wanted = {file.relative_to(self.root) for file in files_in(self.root)}
        for part in ("src", "tests", "tools"):
            for copy in files_in(self.tree / part):
                if copy.relative_to(self.tree) not in wanted:
                    copy.unlink()
        for name in sorted(wanted):
            bring(self.root / name, self.tree / name)

    def compile(self, *targets):
        done = subprocess.run(
            ["cmake", "--build", self.build, "--target", *targets, "--", "-j2", "--quiet"],
            capture_output=True, text=True, check=False)
        return Outcome(done.returncode == 0, True, done.stdout + done.stderr)

    def prepare(self, judges):
        """Builds the unchanged copy and tries the tests of the judges, which says how long these may take."""
        subprocess.run(["cmake", "--preset", "mutants", "--log-level=WARNING"], cwd=self.tree,
                       stdout=subprocess.DEVNULL, check=True)
        built = self.compile(*sorted({program for judge in judges for program in judge.programs}))
        if not built.passed:
            sys.exit(built.output)
        for entry in sorted({judge.entry for judge in judges}):
            began = time.monotonic()
            outcome = self.tests(entry)
            if not outcome.passed:
                sys.exit(outcome.output + "\nThe tests fail without any change.")
            took = time.monotonic() - began
            self.limits[entry] = max(PATIENCE * took, SHORTEST_PATIENCE)

    @contextlib.contextmanager
    def changed(self, file, text):
        """Has another text in a file of the copy for a while. After a header all is put back that was
        built, for half the tree would have to be built anew."""
        path = self.tree / file
        source, times = path.read_bytes(), path.stat()
        is_header = path.suffix == ".h"
        if is_header:
            shutil.rmtree(self.built, ignore_errors=True)
            shutil.copytree(self.build, self.built, symlinks=True)
        path.write_bytes(text.encode("utf-8"))
        try:
            yield
        finally:
            path.write_bytes(source)
            if is_header:
                os.utime(path, ns=(times.st_atime_ns, times.st_mtime_ns))
                shutil.rmtree(self.build)
                self.built.rename(self.build)

    def compiled_files(self):
        entries = json.loads((self.build / "compile_commands.json").read_text(encoding="utf-8"))
        files = (pathlib.Path(entry["directory"], entry["file"]) for entry in entries)
        return [file.relative_to(self.tree) for file in files if file.is_relative_to(self.tree)]

    def environment(self):
        shutil.rmtree(self.temporary, ignore_errors=True)
        self.temporary.mkdir(parents=True)
        # Random inputs are the same for every change.
        return {**os.environ, "TMPDIR": str(self.temporary), "TEST_TMPDIR": str(self.temporary),
                "RC_PARAMS": "seed=1", "GTEST_FAIL_FAST": "1"}

    def suites_beside(self, file):
        """What chooses the unit tests of the folder of tests that goes with a source."""
        folder = self.tree / "tests" / pathlib.PurePath(file).parts[1]
        suites = {name for test in folder.glob("*Test.cpp") for name in SUITE.findall(test.read_text())}
        return ":".join(shape for suite in suites for shape in (f"{suite}.*", f"*/{suite}.*"))

    def tests(self, entry, chosen="*"):
        """The entries of ctest whose names begin so, and of those that choose their tests only these."""
        return run(["ctest", "--test-dir", str(self.build), "-LE", "scaled|display", "-R", f"^{entry}",
                    "--output-on-failure", "--stop-on-failure", f"-j{os.cpu_count()}"],
                   {**self.environment(), "GTEST_FILTER": chosen}, self.limits.get(entry))
