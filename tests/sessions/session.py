"""A session of this folder, or one case of a session that has several."""

import sys
from dataclasses import dataclass
from pathlib import Path

from disk import SESSIONS, Folder
from expectation import Expectation
from replay import play

NO_CASES = ("before", "after")


@dataclass(frozen=True)
class Session:
    script: Path
    folder: Path  # the script's, or the case's below it

    @property
    def layers(self):
        """The folders of the subject, the session and the case."""
        session = self.script.parent
        return list(dict.fromkeys([session.parent, session, self.folder]))

    @property
    def title(self):
        return self.folder.relative_to(self.script.parents[2]).as_posix()

    def text(self, folder):
        return folder.named(self.script.read_text("utf-8").replace("@CASE@", self.folder.name))

    def differences(self, command, runner, accept):
        """Plays it; what came out otherwise than expected, as lines of a report."""
        with Folder(self.layers, runner) as folder:
            before = folder.files()
            outcome = play([*command, "--app", folder.name("app")], self.text(folder), folder)
            expectation = Expectation(self.folder, folder)
            if accept:
                expectation.accept(outcome, before)
            return list(expectation.differences(outcome, before))


def sessions_below(root=SESSIONS):
    found = []
    for script in sorted(root.glob("*/*/script.jsonl")):
        cases = sorted(folder for folder in script.parent.iterdir()
                       if folder.is_dir() and folder.name not in NO_CASES)
        found += [Session(script, folder) for folder in cases or [script.parent]]
    if not found:
        sys.exit("there is no session")
    return found
