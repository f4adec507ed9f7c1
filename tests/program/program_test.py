#!/usr/bin/env python3
"""The program as it was built, started as a user starts it, with keys and mouse.

usage: program_test.py PROGRAM PLUGINS [--display] [NAME ...]

PLUGINS is the folder of the plugin that sees the windows (Person.cpp). With --display the windows come
up on the display of the environment, and xdotool is the hand; otherwise there is no display.
"""

import pathlib
import shutil
import signal
import sys
import tempfile
import unittest

from person import Display, NoDisplay, Program

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
SAVE = ROOT / "tests" / "sessions" / "save"
ENTRIES = 221


def entry(language, number):
    return (ROOT / "language" / f"{language}.lng").read_text("cp1252").splitlines()[number]


class ProgramTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name).resolve()
        self.app = self.home / "app"
        self.app.mkdir()
        self.binary = shutil.copy(BINARY, self.app / "wheelwright")
        for language in ("Deutsch", "English"):
            shutil.copy(ROOT / "language" / f"{language}.lng", self.app)
        self.settings = self.home / ".config" / "Wheelwright" / "Wheelwright.conf"
        self.remember("English")
        self.file = self.home / "handling.cfg"
        shutil.copy(SAVE / "before" / "game" / "handling.cfg", self.file)

    def remember(self, language):
        self.settings.parent.mkdir(parents=True, exist_ok=True)
        self.settings.write_text(f"[Settings]\nLanguage={language}\n")

    def program(self):
        environment = {"QT_PLUGIN_PATH": PLUGINS, "QT_QPA_GENERIC_PLUGINS": "person"}
        return self.run_with({**HANDS.environment, **environment})

    def run_with(self, environment):
        program = Program(self.binary, self.home, environment, HANDS)
        self.addCleanup(program.kill)
        return program

    def started(self):
        program = self.program()
        program.until("frmMain", owner="")
        return program

    def opened(self):
        program = self.started()
        program.key("ctrl+o")
        program.until("front", title="Open a file", owner="frmMain")
        program.hands.type(str(self.file))
        program.key("Return")
        program.until("frmMain", title=f"GTAViceCity PC-Version - Wheelwright [{self.file}]")
        program.until("focus", name="cmbAutos")
        return program

    def with_an_edit(self):
        program = self.opened()
        program.write("txtGewicht", "1")
        return program

    def answer(self, program, text, key, owner="frmMain"):
        program.until("front", title="Wheelwright", text=text, owner=owner)
        program.key(key)

    def choose_language(self, program, key):
        program.click("cmbSprache")
        program.key(key)
        program.key("Return")

    def test_an_edited_value_is_saved(self):
        program = self.with_an_edit()
        program.key("ctrl+s")
        self.answer(program, entry("English", 116), "Return")
        program.until("front", owner="")
        self.assertEqual(self.file.read_bytes(),
                         (SAVE / "save" / "after" / "game" / "handling.cfg").read_bytes())
        program.key("ctrl+q")
        self.assertEqual(program.ending(), (0, ""))

    def test_one_value_of_five_vehicles_is_edited_and_saved_by_keyboard_alone(self):
        shutil.copy(ROOT / "samples" / "handling.cfg", self.file)
        program = self.opened()
        masses = dict(zip(program.see("cmbAutos")["rows"], "12345"))
        while program.see("focus")["name"] != "txtGewicht":
            program.key("Tab")
        for name, mass in masses.items():
            program.until("txtAutoname", text=name)
            program.hands.type(mass)
            program.until("txtGewicht", text=mass)
            program.key("alt+PgDown")
        program.key("ctrl+s")
        self.answer(program, entry("English", 116), "Return")
        program.until("front", owner="")
        program.key("ctrl+q")
        self.assertEqual(program.ending(), (0, ""))
        lines = [line.split() for line in self.file.read_text("cp1252").splitlines()]
        saved = {words[0]: words[1] for words in lines if len(words) == 33}
        self.assertEqual(masses, {name: saved[name] for name in masses})

    def test_unsaved_edits_keep_the_program_until_they_are_given_up(self):
        before = self.file.read_bytes()
        program = self.with_an_edit()
        program.key("ctrl+q")
        self.answer(program, entry("English", 117), "alt+n")
        program.until("front", owner="")
        program.key("ctrl+o")
        self.answer(program, entry("English", 118), "alt+y")
        program.until("front", title="Open a file", owner="frmMain")
        program.key("Escape")
        program.until("front", owner="")
        program.until("txtGewicht", text="1")
        program.order("close", "frmMain")
        self.answer(program, entry("English", 117), "alt+y")
        self.assertEqual(program.ending(), (0, ""))
        self.assertEqual(self.file.read_bytes(), before)

    def test_a_chosen_language_is_there_after_the_program_was_killed(self):
        shutil.copy(self.app / "English.lng", self.app / "Loud.LNG")
        program = self.started()
        program.until("cmbSprache", rows=["Deutsch", "English"], text="English")
        program.until("cmdOpen", text=entry("English", 8))
        self.choose_language(program, "Up")
        program.until("cmdOpen", text=entry("Deutsch", 8))
        program.process.send_signal(signal.SIGKILL)
        program.ending()
        program = self.started()
        program.until("cmdOpen", text=entry("Deutsch", 8))
        program.order("close", "frmMain")
        self.assertEqual(program.ending(), (0, ""))

    def test_without_a_language_file_it_says_so_and_ends(self):
        for language in self.app.glob("*.lng"):
            language.unlink()
        program = self.program()
        self.answer(program, "No language-file found! Please reinstall the application.",
                    "Return", owner="")
        self.assertEqual(program.ending(), (0, ""))

    def test_without_a_display_it_says_so_and_ends(self):
        program = self.run_with({})
        self.assertEqual(program.ending(), (
            1, "Wheelwright needs a display: neither DISPLAY nor WAYLAND_DISPLAY is set.\n"))

    def test_a_failure_at_the_start_ends_it(self):
        self.remember("Unknown")
        program = self.program()
        self.answer(program, "Run-time error 380\nInvalid property value", "Return", owner="")
        self.assertEqual(program.ending(), (1, ""))

    def test_a_failure_that_nothing_caught_ends_it_without_a_question(self):
        (self.app / "Broken.lng").write_bytes(b"x\r\n" * (ENTRIES + 1))
        program = self.with_an_edit()
        self.choose_language(program, "Home")
        program.until("front", text="Run-time error 9\nSubscript out of range", owner="frmMain")
        program.order("quit", "")
        self.assertEqual(program.ending(), (1, ""))

    def test_the_desktop_knows_it_by_its_names(self):
        program = self.started()
        program.until("application", name="Wheelwright", icons=[16, 24, 32, 48, 64, 128, 256],
                      desktop="example.wheelwright.Wheelwright")

    def test_numbers_have_a_decimal_point_in_every_locale(self):
        program = self.started()
        program.until("application", numbers="C")

    def test_a_link_to_the_program_finds_what_lies_beside_it(self):
        self.binary = self.home / "link"
        self.binary.symlink_to(self.app / "wheelwright")
        program = self.started()
        program.until("cmbSprache", rows=["Deutsch", "English"])
        self.assertIn(f"[Exe]\nPath={self.app}/\nVersion=", self.settings.read_text())


if __name__ == "__main__":
    HANDS = Display if "--display" in sys.argv else NoDisplay
    BINARY, PLUGINS, *names = (each for each in sys.argv[1:] if each != "--display")
    # A program that does nothing as it should fails each test after a long wait.
    unittest.main(failfast=True, argv=[sys.argv[0], *(f"ProgramTest.{name}" for name in names)])
