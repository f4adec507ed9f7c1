#!/usr/bin/env python3
"""The checks of this folder find what they are there to find, and nothing else."""

import pathlib
import tempfile
import unittest

import includes
import lint


class Tree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = pathlib.Path(folder.name)

    def write(self, name, text):
        file = self.tree / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(text.encode("utf-8"))
        return file


class Includes(Tree):
    def faults(self, name, include):
        self.write(name, f"#pragma once\n\n#include {include}\n")
        return list(includes.faults_in(self.tree))

    def test_the_own_folder_and_higher_ones_are_free(self):
        self.assertEqual([], self.faults("src/editor/A.cpp", '"editor/A.h"'))
        self.assertEqual([], self.faults("src/editor/B.cpp", '"core/Vars.h"'))
        self.assertEqual([], self.faults("src/forms/qt/C.cpp", '"forms/Wiring.h"'))
        self.assertEqual([], self.faults("src/main.cpp", '"forms/qt/C.h"'))

    def test_a_lower_folder_is_out_of_reach(self):
        self.assertEqual(["src/core/A.h:3: screen/Lists.h reaches down from core into screen"],
                         self.faults("src/core/A.h", '"screen/Lists.h"'))

    def test_formats_and_screen_do_not_know_each_other(self):
        self.assertEqual(
            ["src/formats/A.cpp:3: screen/B.h reaches down from formats into screen"],
            self.faults("src/formats/A.cpp", '"screen/B.h"'))
        self.assertIn(
            "src/screen/A.cpp:3: formats/B.h reaches from screen into formats, which don't know each other",
            self.faults("src/screen/A.cpp", '"formats/B.h"'))

    def test_the_plain_half_of_the_forms_does_not_reach_the_other(self):
        self.assertEqual(
            ["src/forms/A.cpp:3: forms/qt/B.h reaches down from forms into forms/qt"],
            self.faults("src/forms/A.cpp", '"forms/qt/B.h"'))

    def test_the_rooms_of_the_windows_have_an_order_too(self):
        self.assertEqual([], self.faults("src/forms/qt/layout/A.h", '"forms/qt/mirrors/B.h"'))
        self.assertEqual([], self.faults("src/forms/qt/A.cpp", '"forms/qt/layout/B.h"'))
        self.assertEqual(["src/forms/qt/widgets/C.h:3: forms/qt/mirrors/B.h reaches down from "
                          "forms/qt/widgets into forms/qt/mirrors"],
                         self.faults("src/forms/qt/widgets/C.h", '"forms/qt/mirrors/B.h"'))

    def test_an_include_shows_its_layer(self):
        self.assertEqual(["src/core/A.cpp:3: A.h names no layer"],
                         self.faults("src/core/A.cpp", '"A.h"'))
        self.assertIn("src/core/B.cpp:3: ../core/B.h names no layer",
                      self.faults("src/core/B.cpp", '"../core/B.h"'))

    def test_a_header_has_a_name_of_its_own(self):
        self.assertEqual([], self.faults("src/core/A.h", "<string>"))
        self.assertEqual(["tools/soak/A.h: has the name of src/core/A.h"],
                         self.faults("tools/soak/A.h", "<string>"))

    def test_a_source_lies_in_a_layer(self):
        self.assertEqual(["src/A.cpp: lies in no layer"], self.faults("src/A.cpp", "<string>"))

    def test_toolkit_headers_stay_at_the_top(self):
        self.assertEqual([], self.faults("src/forms/qt/A.cpp", "<QWidget>"))
        self.assertEqual([], self.faults("src/main.cpp", "<QtGlobal>"))
        self.assertEqual([], self.faults("tools/replay/A.cpp", "<QTest>"))
        self.assertEqual(["src/forms/A.cpp:3: QWidget is of the toolkit"],
                         self.faults("src/forms/A.cpp", "<QWidget>"))
        self.assertIn("src/core/B.cpp:3: QtCore/QString is of the toolkit",
                      self.faults("src/core/B.cpp", "<QtCore/QString>"))
        self.assertIn("tests/core/CTest.cpp:3: qwidget.h is of the toolkit",
                      self.faults("tests/core/CTest.cpp", "<qwidget.h>"))


class Lint(Tree):
    def faults(self, text, name="A.cpp"):
        return [fault for _, fault in lint.faults_of(self.write(name, text))]

    def test_a_clean_file_has_no_fault(self):
        self.assertEqual([], self.faults("int a;\n\nint b;\n"))
        self.assertEqual([], self.faults(""))

    def test_each_fault_is_found(self):
        self.assertEqual(["carriage return"], self.faults("int a;\r\n"))
        self.assertEqual(["tab"], self.faults("\tint a;\n"))
        self.assertEqual(["trailing blank"], self.faults("int a; \n"))
        self.assertEqual(["leftover"], self.faults("// TO" "DO: b\n"))
        self.assertEqual(["no line end at the end of the file"], self.faults("int a;"))
        self.assertEqual(["empty line at the end of the file"], self.faults("int a;\n\n"))

    def test_only_code_has_a_greatest_length(self):
        self.assertEqual([], self.faults("a\n" * 600))
        self.assertEqual(["more than 600 lines"], self.faults("a\n" * 601))
        self.assertEqual([], self.faults("a\n" * 601, "A.md"))

    def test_sources_are_told_by_their_names_and_scripts_by_their_first_line(self):
        self.write("a/A.cpp", "")
        self.write("a/CMakeLists.txt", "")
        self.write("a/run", "#!/bin/sh\n")
        self.write("a/data", "plain")
        self.write("a/handling.cfg", "#!")
        self.write("build/B.cpp", "")
        self.assertEqual(["A.cpp", "CMakeLists.txt", "run"],
                         [file.name for file in lint.sources_of(self.tree)])


if __name__ == "__main__":
    unittest.main()
