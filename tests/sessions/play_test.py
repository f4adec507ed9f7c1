#!/usr/bin/env python3
"""The player of sessions finds what it is there to find, tried with a program that does as told."""

import contextlib
import io
import json
import pathlib
import sys
import tempfile
import unittest

import disk
import play
import refused
import runner
import session

PROGRAM = """
import json, pathlib, sys
for text in sys.stdin:
    try:
        line = json.loads(text)
    except ValueError:
        sys.exit(2)
    if "say" in line:
        print(json.dumps(line["say"]), flush=True)
    if "clock" in line:
        print('{"clock": 1.5}', flush=True)
    if "read" in line:
        print(json.dumps({"read": pathlib.Path(line["read"]).read_text()}), flush=True)
    if "write" in line:
        pathlib.Path(line["write"]).write_text("written")
    if "remove" in line:
        pathlib.Path(line["remove"]).unlink()
    if "end" in line:
        sys.exit(line["end"])
"""


COMMAND = [sys.executable, "-c", PROGRAM]


class Sessions(unittest.TestCase):
    runner = runner.RUNNERS["native"]

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.session = pathlib.Path(folder.name, "subject", "session")
        self.write("before/game.txt", "as it was")
        self.write("result.jsonl", "")

    def write(self, name, text):
        file = self.session / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(text.encode("utf-8"))

    def script(self, *lines):
        self.write("script.jsonl", "".join(json.dumps(line) + "\n" for line in lines))

    def expect(self, *lines):
        self.write("result.jsonl", "".join(json.dumps(line) + "\n" for line in lines))

    def folder(self):
        return disk.Folder([self.session], self.runner)

    def play(self, accept=False):
        return [fault for each in session.sessions_below(self.session.parents[1])
                for fault in each.differences(COMMAND, self.runner, accept)]

    def assert_fine(self):
        self.assertEqual([], self.play())

    def assert_found(self, *words):
        report = "\n".join(self.play())
        for word in words:
            self.assertIn(word, report)


class Results(Sessions):
    def test_equal_lines_are_fine(self):
        self.script({"say": {"a": 1, "b": [True, 2.5]}}, {"say": {"c": "\u00e9"}})
        self.expect({"b": [True, 2.5], "a": 1.0}, {"c": "\u00e9"})
        self.assert_fine()

    def test_another_missing_or_further_line_is_found(self):
        self.script({"say": {"a": 1}})
        self.expect({"a": 2})
        self.assert_found('-{"a": 2}', '+{"a": 1}')
        self.expect({"a": 1}, {"b": 1})
        self.assert_found('-{"b": 1}')
        self.expect()
        self.assert_found('+{"a": 1}')

    def test_true_is_not_1(self):
        self.script({"say": {"a": True}})
        self.expect({"a": 1})
        self.assert_found('+{"a": true}')

    def test_the_folder_is_named_in_script_and_result(self):
        self.script({"say": {"a": "@DIR@/game.txt"}}, {"read": "@DIR@/game.txt"})
        self.expect({"a": "@DIR@/game.txt"}, {"read": "as it was"})
        self.assert_fine()

    def test_the_exit_code_is_compared(self):
        self.script({"end": 3})
        self.assert_found("exit code 3, not 0")
        self.write("exit", "3\n")
        self.assert_fine()
        self.script({"say": {}})
        self.expect({})
        self.assert_found("exit code 0, not 3")

    def test_lines_behind_the_end_are_left_out(self):
        self.script({"end": 0}, *[{"say": {"a": "b" * 1000}}] * 1000)
        self.assert_fine()

    def test_a_line_that_is_no_json_goes_to_the_program(self):
        self.write("script.jsonl", "dance\n")
        self.write("exit", "2\n")
        self.assert_fine()

    def test_only_line_ends_end_a_line(self):
        odd = "a\u2028b\u0085c"
        self.write("script.jsonl", json.dumps({"say": odd}, ensure_ascii=False) + "\n")
        self.write("result.jsonl", json.dumps(odd, ensure_ascii=False) + "\n")
        self.assert_fine()

    def test_clocks_tell_no_time(self):
        self.script({"clock": True}, {"say": {"a": 1}}, {"clock": True})
        self.expect({"clock": 0}, {"a": 1}, {"clock": 0})
        self.assert_fine()


    def test_a_session_without_a_result_says_how_to_make_it(self):
        self.script({"say": {"a": 1}})
        (self.session / "result.jsonl").unlink()
        self.assert_found("result.jsonl is missing", "--accept")
        self.play(accept=True)
        self.assert_fine()


class Files(Sessions):
    def test_a_file_that_changes_comes_to_be_or_goes_is_found(self):
        self.script({"write": "@DIR@/game.txt"})
        self.assert_found("-as it was", "+written")
        self.script({"write": "@DIR@/new.txt"})
        self.assert_found("new.txt came to be")
        self.script({"remove": "@DIR@/game.txt"})
        self.assert_found("game.txt is gone")

    def test_what_is_expected_afterwards_is_fine(self):
        self.script({"write": "@DIR@/new.txt"}, {"remove": "@DIR@/game.txt"})
        self.write("after/new.txt", "written")
        self.write("after/game.txt.absent", "")
        self.assert_fine()

    def test_what_is_expected_and_does_not_happen_is_found(self):
        self.script()
        self.write("after/game.txt", "changed")
        self.assert_found("-changed", "+as it was")
        self.write("after/new.txt", "written")
        self.assert_found("new.txt is gone")

    def test_a_file_that_must_be_gone_and_is_not_is_found(self):
        self.script()
        self.write("after/game.txt.absent", "")
        self.assert_found("game.txt came to be")

    def test_the_program_directory_is_there_or_the_own_one_of_the_session(self):
        self.script({"read": "@DIR@/app/Eins.lng"})
        self.assertIn("E000", "".join(self.play()))
        self.write("before/app/Eins.lng", "own")
        self.expect({"read": "own"})
        self.assert_fine()


    def test_a_file_or_folder_is_copied_from_beside_the_sessions(self):
        self.script({"read": "@DIR@/a/Zwei.lng"}, {"read": "@DIR@/b/c/Eins.lng"})
        self.write("prepare.json", json.dumps([["copy", "app/Zwei.lng", "a/Zwei.lng"],
                                               ["copy", "app", "b/c"]]))
        self.assertIn("Z000", "".join(self.play()))
        self.assertIn("E000", "".join(self.play()))


class Layers(Sessions):
    def test_what_a_subject_shares_lies_below_what_a_session_has(self):
        self.write("../before/game.txt", "shared")
        self.write("../before/other.txt", "shared")
        self.write("../prepare.json", json.dumps([["mkdir", "a"]]))
        self.write("prepare.json", json.dumps([["write", "a/b.txt", "own"]]))
        self.script(*[{"read": f"@DIR@/{name}"} for name in ("game.txt", "other.txt", "a/b.txt")])
        self.expect({"read": "as it was"}, {"read": "shared"}, {"read": "own"})
        self.assert_fine()

    def test_a_session_is_played_once_for_each_case(self):
        self.script({"say": "@CASE@"}, {"read": "@DIR@/game.txt"})
        for case, text in (("one", "its own"), ("two", "as it was")):
            self.write(f"{case}/result.jsonl", f'"{case}"\n{{"read": "{text}"}}\n')
        self.write("one/before/game.txt", "its own")
        self.assert_fine()
        self.write("two/result.jsonl", "")
        self.assert_found('+"two"')

    def test_a_case_is_accepted_on_its_own(self):
        self.script({"write": "@DIR@/@CASE@"}, {"end": 3})
        self.write("one/before/a.txt", "")
        self.write("two/before/a.txt", "")
        self.play(accept=True)
        self.assertEqual({"one": b"written"}, disk.files_below(self.session / "one/after"))
        self.assertEqual({"two": b"written"}, disk.files_below(self.session / "two/after"))
        self.assertEqual("3\n", (self.session / "two/exit").read_text())
        self.assert_fine()


class RefusedScripts(unittest.TestCase):
    LINE = "dance"

    def play(self, reason, program):
        row = refused.Refused("refused/1", (self.LINE,), reason)
        return "\n".join(row.differences([sys.executable, "-c", program],
                                         runner.RUNNERS["native"], False))

    def program(self, code=2, message="line 1, dance: no", before="pass"):
        return f"import sys; {before}; print({message!r}, file=sys.stderr); sys.exit({code})"

    def test_the_message_is_compared_whole_and_what_the_toolkit_says_is_left_out(self):
        noise = "print('toolkit', file=sys.stderr)"
        self.assertEqual("", self.play("no", self.program(before=noise)))
        self.assertIn("-line 1, dance: n\n+line 1, dance: no", self.play("n", self.program()))
        self.assertIn("-line 1, dance: no", self.play("no", "import sys; sys.exit(2)"))

    def test_another_exit_code_a_result_or_a_file_is_found(self):
        self.assertIn("exit code 0, not 2", self.play("no", self.program(code=0)))
        self.assertIn("+{'a': 1}", self.play("no", self.program(before="print('{\"a\": 1}')")))
        made = self.program(before="open(sys.argv[2] + '/new', 'w')")
        self.assertIn("files differ", self.play("no", made))


class UnderWine(Sessions):
    runner = runner.Wine()

    def test_the_folder_is_named_as_a_drive_of_windows(self):
        with self.folder() as folder:
            self.assertEqual("Z:" + str(folder.path / "app").replace("/", "\\"), folder.name("app"))

    def test_separators_in_paths_are_left_out_of_the_comparison(self):
        self.script({"say": {"a": ["@DIR@\\gfx\\BUS.bmp"], "b": "[@DIR@/c.txt]"}})
        self.expect({"a": ["@DIR@/gfx/BUS.bmp"], "b": "[@DIR@/c.txt]"})
        self.assert_fine()

    def test_other_backslashes_count(self):
        self.script({"say": {"a": "1\\2"}})
        self.expect({"a": "1/2"})
        self.assert_found("result expected")


class Steps(Sessions):
    def test_steps_come_before_the_start(self):
        self.script({"read": "@DIR@/a/b.txt"}, {"read": "@DIR@/a/c.txt"})
        self.write("prepare.json", json.dumps([["mkdir", "a"], ["write", "a/b.txt", "\u00e9"],
                                               ["link", "@DIR@/game.txt", "a/c.txt"],
                                               ["readonly", "a/b.txt"]]))
        self.write("before/game.txt", "linked")
        with self.folder() as folder:
            self.assertEqual(b"\xe9", (folder.path / "a/b.txt").read_bytes())
            self.assertEqual("linked", (folder.path / "a/c.txt").read_text())
            self.assertEqual(0o444, (folder.path / "a/b.txt").stat().st_mode & 0o777)
        self.assertFalse(folder.path.exists())

    def test_a_step_in_the_middle_comes_between_its_neighbours(self):
        reading = {"read": "@DIR@/game.txt"}
        self.script(reading, {"disk": ["write", "game.txt", "anew"]}, {"clock": True}, reading,
                    {"disk": ["write", "game.txt", "as it was"]}, reading)
        self.expect({"read": "as it was"}, {"clock": 0}, {"read": "anew"}, {"read": "as it was"})
        self.assert_fine()

    def test_a_step_behind_the_end_is_left_out(self):
        self.script({"end": 0}, {"disk": ["remove", "game.txt"]})
        self.assert_fine()

    def test_a_removed_folder_is_gone_with_all_that_is_in_it(self):
        self.write("before/a/b.txt", "")
        self.write("after/a/b.txt.absent", "")
        self.script({"disk": ["remove", "a"]})
        self.assert_fine()


class Accepting(Sessions):
    def test_what_was_accepted_is_fine_from_then_on(self):
        self.script({"say": {"a": "@DIR@"}}, {"write": "@DIR@/new.txt"},
                    {"remove": "@DIR@/game.txt"}, {"end": 4})
        self.assertEqual([], self.play(accept=True))
        self.assert_fine()
        self.assertEqual('{"a": "@DIR@"}\n', (self.session / "result.jsonl").read_text())
        self.assertEqual("4\n", (self.session / "exit").read_text())
        self.assertEqual({"new.txt": b"written", "game.txt.absent": b""},
                         disk.files_below(self.session / "after"))

    def test_a_file_that_was_named_stays_named(self):
        self.script()
        self.write("after/game.txt", "changed")
        self.write("after/other.txt", "stale")
        self.play(accept=True)
        self.assertEqual({"game.txt": b"as it was"}, disk.files_below(self.session / "after"))


class Names(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for name in ("a/one", "a/one-more", "b/one/before", "b/one/x", "b/one/y"):
            (self.root / name).mkdir(parents=True)
        for name in ("a/one", "a/one-more", "b/one"):
            (self.root / name / "script.jsonl").write_text("")

    def chosen(self, *names):
        return [each.title for each in play.chosen(names, session.sessions_below(self.root))]

    def test_names_choose_subjects_sessions_and_cases(self):
        self.assertEqual(["a/one", "a/one-more", "b/one/x", "b/one/y"], self.chosen())
        self.assertEqual(["a/one", "a/one-more"], self.chosen("a"))
        self.assertEqual(["b/one/x", "b/one/y", "a/one"], self.chosen("b/one", "a/one"))
        self.assertEqual(["b/one/y"], self.chosen("b/one/y"))

    def test_an_unknown_name_ends_the_player(self):
        with self.assertRaises(SystemExit):
            self.chosen("c")

    def test_nothing_is_accepted_without_a_name(self):
        arguments = sys.argv
        self.addCleanup(setattr, sys, "argv", arguments)
        sys.argv = ["play.py", "replay", "--accept"]
        with contextlib.redirect_stderr(io.StringIO()), self.assertRaises(SystemExit) as ended:
            play.main()
        self.assertEqual(2, ended.exception.code)


if __name__ == "__main__":
    unittest.main()
