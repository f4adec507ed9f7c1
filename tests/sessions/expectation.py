"""What must come out of a session, and what came out instead."""

import difflib
import json
import shutil

from disk import CODE_PAGE, files_below

ABSENT = ".absent"


def plain(value):
    """A value with its whole numbers as such: 3.0 is 3."""
    if isinstance(value, float) and value.is_integer():
        return int(value)
    if isinstance(value, list):
        return [plain(each) for each in value]
    if isinstance(value, dict):
        return {key: plain(each) for key, each in value.items()}
    return value


def text_of(line):
    """A line such that equal lines give equal texts; true isn't 1."""
    return json.dumps(plain(line), sort_keys=True, ensure_ascii=False)


def compared(expected, actual, name):
    """What differs between two lists of texts."""
    return difflib.unified_diff(expected, actual, f"{name} expected", f"{name} as it came",
                                lineterm="", n=2)


def printable_lines(data):
    return [repr(line)[1:-1] for line in data.decode(CODE_PAGE, "backslashreplace")
            .splitlines(keepends=True)]


class Expectation:
    def __init__(self, session, folder):
        self.session = session
        self.result = session / "result.jsonl"
        self.folder = folder

    def differences(self, outcome, before):
        if not self.result.exists():
            yield ("result.jsonl is missing: once this session shows what it should, "
                   "--accept writes down what comes out")
            return
        yield from compared(self.expected_lines(), [self.text_of(line) for line in outcome.lines],
                            "result")
        if outcome.exit_code != self.exit_code():
            yield f"exit code {outcome.exit_code}, not {self.exit_code()}"
            yield from outcome.complaints.splitlines()
        yield from self.file_differences(before)

    def expected_lines(self):
        text = self.folder.named(self.result.read_text(encoding="utf-8"))
        return [self.text_of(json.loads(line)) for line in text.split("\n") if line.strip()]

    def text_of(self, line):
        return text_of(self.folder.runner.evened(line))

    def exit_code(self):
        file = self.session / "exit"
        return int(file.read_text()) if file.exists() else 0

    def expected_files(self, before):
        """The files as they were, but for those that after/ names."""
        expected = dict(before)
        for name, data in files_below(self.session / "after").items():
            if name.endswith(ABSENT):
                expected.pop(name[:-len(ABSENT)], None)
            else:
                expected[name] = data
        return expected

    def file_differences(self, before):
        expected = self.expected_files(before)
        actual = self.folder.files()
        for name in sorted(expected.keys() | actual.keys()):
            if name not in actual:
                yield f"{name} is gone"
            elif name not in expected:
                yield f"{name} came to be"
            elif expected[name] != actual[name]:
                yield from compared(printable_lines(expected[name]),
                                    printable_lines(actual[name]), name)

    def accept(self, outcome, before):
        lines = [json.dumps(plain(line), ensure_ascii=False) + "\n" for line in outcome.lines]
        result = self.folder.unnamed("".join(lines))
        self.result.write_text(result, encoding="utf-8", newline="\n")
        (self.session / "exit").unlink(missing_ok=True)
        if outcome.exit_code != 0:
            (self.session / "exit").write_text(f"{outcome.exit_code}\n")
        self.accept_files(before)

    def accept_files(self, before):
        """Files that after/ names already stay named, changed or not."""
        after = self.session / "after"
        named = files_below(after)
        actual = self.folder.files()
        shutil.rmtree(after, ignore_errors=True)
        for name, data in actual.items():
            if name in named or before.get(name) != data:
                self.write_after(name, data)
        for name in before.keys() - actual.keys():
            self.write_after(name + ABSENT, b"")

    def write_after(self, name, data):
        file = self.session / "after" / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(data)
