# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The check of the method passes a sound tree and names what it includes, and what its page only claims to know."""
import unittest

from check_tree import CheckTree

SOURCE = """#include <cmath>
#include "method/numbers.h"
/// Not `hidden`, which only a comment names.
double heterogeneity(double level);
"""
PAGE = """# The method

[sums](#sums), [examples](../examples/README.md)

## Sums

`heterogeneity` stands in `scores.h` of `src/method`.
"""


class MethodCheck(CheckTree):
    def setUp(self):
        super().setUp()
        self.write("src/method/scores.h", SOURCE)
        self.write("src/ui/grid.h", "")
        self.write("examples/README.md", "")
        self.write("docs/method.md", PAGE)

    def check(self):
        return self.said_by("method")

    def test_a_sound_tree_passes(self):
        self.assertEqual(self.check(), "")

    def test_a_file_of_another_folder_may_not_be_included(self):
        for include in ('"ui/grid.h"', "<ui/grid.h>", '"method/../ui/grid.h"', '"grid.h"'):
            with self.subTest(include):
                self.write("src/method/scores.cpp", f"// first\n#  include {include}\n")
                self.assertEqual(self.check(), f"method: src/method/scores.cpp:2 includes {include[1:-1]}, "
                                               "which is no file of the method\n")

    def test_a_name_that_the_code_does_not_have_is_named(self):
        for name in ("hidden", "scores.cpp", "heterogen"):
            with self.subTest(name):
                self.write("docs/method.md", f"{PAGE}`{name}`\n")
                self.assertEqual(self.check(), f"method: docs/method.md: src/method has no `{name}`\n")

    def test_the_functions_beside_a_formula_are_names_too(self):
        self.write("docs/method.md", f"{PAGE}    H' = 2 × 3    (heterogeneityLeft)\n")
        self.assertEqual(self.check(), "method: docs/method.md: src/method has no `heterogeneityLeft`\n")

    def test_a_link_that_leads_nowhere_is_named(self):
        self.write("docs/method.md", PAGE.replace("## Sums", "## Products"))
        self.assertEqual(self.check(), "method: docs/method.md leads to the heading #sums, which is not there\n")
        self.write("docs/method.md", PAGE.replace("examples/README", "examples/none"))
        self.assertEqual(self.check(), "method: docs/method.md leads to ../examples/none.md, which is not there\n")


if __name__ == "__main__":
    unittest.main()
