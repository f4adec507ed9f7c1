#!/usr/bin/env python3
"""The summary of what the tests reach counts the logic, each line and outcome once."""

import json
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "coverage"))
import reached

TEXT = str(reached.SOURCES / "core" / "Text.cpp")
OTHERS = [str(reached.SOURCES / "main.cpp"), str(reached.SOURCES / "forms" / "qt" / "A.cpp"),
          str(reached.SOURCES.parent / "tools" / "A.cpp")]


def function(file, branches):
    return {"filenames": [file], "branches": branches}


def exported(*functions):
    return json.dumps({"data": [{"functions": functions}]})


class Reached(unittest.TestCase):
    def test_a_line_has_its_count(self):
        export = f"SF:{TEXT}\nDA:7,0\nDA:9,3\nLF:2\nend_of_record\n"
        self.assertEqual({TEXT: {"line 7": 0, "line 9": 3}}, reached.lines_of(export))

    def test_a_condition_has_two_outcomes(self):
        export = exported(function(TEXT, [[7, 3, 7, 9, 4, 0, 0, 0, 4]]))
        self.assertEqual({TEXT: {"line 7, column 3: true": 4, "line 7, column 3: false": 0}},
                         reached.branches_of(export))

    def test_the_instances_of_a_template_count_together(self):
        export = exported(function(TEXT, [[7, 3, 7, 9, 4, 0, 0, 0, 4]]),
                          function(TEXT, [[7, 3, 7, 9, 0, 2, 0, 0, 4]]))
        self.assertEqual({TEXT: {"line 7, column 3: true": 4, "line 7, column 3: false": 2}},
                         reached.branches_of(export))

    def test_only_the_logic_counts(self):
        for file in OTHERS:
            self.assertEqual({}, reached.lines_of(f"SF:{file}\nDA:7,0\nend_of_record\n"))
            self.assertEqual({}, reached.branches_of(
                exported(function(file, [[7, 3, 7, 9, 4, 0, 0, 0, 4]]))))


unittest.main()
