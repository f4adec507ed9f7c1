#!/usr/bin/env python3
"""The small mistakes of tools/mutants are made where code can be mistaken, and nowhere else."""

import itertools
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "mutants"))
from sites import sites_of


def mistakes(line):
    """What the mistakes make of a line inside a function."""
    start, end = "void F() {\n  ", "\n}\n"
    source = start + line + end
    changed = []
    for site in sites_of("F.cpp", source):
        for choice in site.choices:
            text = source[:site.start] + choice + source[site.end:]
            changed.append(text[len(start):-len(end)])
    return sorted(changed)


class Sites(unittest.TestCase):
    def test_a_comparison_becomes_each_other(self):
        self.assertEqual(["return a != b;", "return a < b;", "return a <= b;", "return a == b;",
                          "return a > b;"], mistakes("return a >= b;"))

    def test_a_number_grows_and_shrinks(self):
        self.assertEqual(["return 16U;", "return 18U;"], mistakes("return 17U;"))
        self.assertEqual(["return 256;", "return 254;"][::-1], mistakes("return 0xFF;"))
        self.assertEqual(["return 1;"], mistakes("return 0;"))
        self.assertEqual([], mistakes("return 2.5;"))

    def test_a_size_grows_and_shrinks(self):
        self.assertEqual(["return a.size() + 1;", "return a.size() - 1;"],
                         mistakes("return a.size();"))

    def test_a_sign_turns_round(self):
        self.assertEqual(["return a - b;"], mistakes("return a + b;"))
        self.assertEqual(["return b;"], mistakes("return -b;"))
        self.assertEqual(["a -= b;"], mistakes("a += b;"))
        self.assertEqual(["--a;"], mistakes("++a;"))

    def test_a_logical_word_turns_round(self):
        self.assertEqual(["return !a || b;", "return a && b;"], mistakes("return !a && b;"))
        self.assertEqual(["return true;"], mistakes("return false;"))

    def test_two_steps_change_places(self):
        self.assertEqual(["b = f;\n  a = e;"], mistakes("a = e;\n  b = f;"))
        self.assertEqual([], mistakes("a = e;\n\n  b = f;"))
        self.assertEqual([], mistakes("if (a)\n    b = f;\n  c = g;"))

    def test_two_declarations_have_no_order_unless_both_may_take_from_a_third(self):
        declarations = ["using B = A;", "int a;", "const C<D, E>& b = c.D();", "auto* const e = F(c);"]
        for first, second in itertools.permutations(declarations, 2):
            self.assertEqual([], mistakes(f"{first}\n  {second}"))
        self.assertEqual(["int b = T(c);\n  int a = T(c);"], mistakes("int a = T(c);\n  int b = T(c);"))
        self.assertEqual(["a = e;\n  int b = f;"], mistakes("int b = f;\n  a = e;"))
        self.assertEqual(["return a;\n  int b = f;"], mistakes("int b = f;\n  return a;"))

    def test_a_call_is_left_out(self):
        self.assertEqual([";"], mistakes("main.lists[row].Clear();"))
        self.assertEqual([], mistakes("return Clear();"))
        self.assertEqual([], mistakes("Clear cleared(a);"))

    def test_what_is_no_code_stays(self):
        self.assertEqual([], mistakes("// a < 1"))
        self.assertEqual([], mistakes("/* a < 1\n */"))
        self.assertEqual([], mistakes('return "a < 1";'))
        self.assertEqual([], mistakes("return '1';"))
        self.assertEqual([], mistakes('return R"(a < "1")";'))
        self.assertEqual([], mistakes("static_assert(a < 1);"))
        self.assertEqual([], mistakes("\n#if A > 1\n#endif\n"))
        self.assertEqual([], mistakes("\n#ifdef _WIN32\nreturn 1;\n#endif\n"))
        self.assertEqual([], mistakes("\n#ifdef __linux__\nF;\n#else\nreturn 1;\n#endif\n"))
        self.assertEqual(["\n#ifdef _WIN32\nF;\n#else\nreturn true;\n#endif\n"],
                         mistakes("\n#ifdef _WIN32\nF;\n#else\nreturn false;\n#endif\n"))

    def test_brackets_and_arrows_are_no_comparisons(self):
        self.assertEqual([], mistakes("std::vector<A> a = b->c << d;"))
        self.assertEqual([], mistakes("const auto&& a = b;"))

    def test_declarations_have_no_order(self):
        source = "struct A {\n  int a;\n  int b;\n  void F();\n  void G();\n};\n"
        self.assertEqual([], list(sites_of("A.h", source)))


unittest.main()
