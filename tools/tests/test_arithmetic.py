# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The check of the arithmetic lets a folder carry numbers, and finds each way to calculate with them."""
import subprocess
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).resolve().parents[1] / "checks" / "arithmetic"
HEAD = """#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>
#include "method/half.h"
#include "ui/numbers.h"
using Score = double;
using Scores = std::vector<Score>;
#define PLUS +
"""
CARRIES = """double carry(double a) { double b = a; b = method::half(b); return b; }
Scores fill(Scores v) { Scores w = std::move(v); w.push_back(1); for (Score& s : w) s = ui::toReal("1"); return w; }
double whole(int i) { return i * 2 - (i < 3 ? 1 : 0); }
double found(std::optional<double> score, bool wanted) { return score && wanted ? *score : score.value_or(0); }
double& through(double* score) { return *&*score; }
template <class Step> auto run(Step step) { return step(); }
"""
CALCULATES = (
    "Score f(Score a, Score b) { return a PLUS b; }", "double f(double a) { int i = 1; return i * (a); }",
    "void f(float& a) { a += 1; }", "double f(double a) { return -a; }", "void f(double a) { ++a; }",
    "auto f = [](auto a, auto b) { return a - b; };", "template <class T> T f(T a, T b) { return a * b; }",
    "bool f(auto& a) { return a[0] < 1; }", "bool f(double a, double b) { return a > b; }")
ROUNDS = (
    "int f(double a) { return a; }", "int f(double a) { return static_cast<int>(a); }",
    "long f(double a) { return (long)a; }", "int f(double a) { return int(a); }",
    "bool f(double a) { if (a) return true; return false; }", "bool f(double a) { return !a; }")
LETS_WORK = (
    "double f(double a) { return std::max(a, 1.0); }", "double f(double a) { using std::fmin; return fmin(a, 1); }",
    "double f(double a) { return __builtin_sqrt(a); }", "double f(double a) { return std::plus<double>{}(a, a); }",
    "double f(double a) { return ui::finite(a); }", "void f(Scores& v) { std::sort(v.begin(), v.end()); }",
    "double f(const Scores& v) { return std::accumulate(v.begin(), v.end(), 0); }",
    "template <class T> T f(T a, T b) { return std::max(a, b); }", "bool f(std::optional<double> a) { return a == 1; }",
    "bool f(std::pair<double, int> a, std::pair<double, int> b) { return a < b; }",
    "bool f(const Scores& a, const Scores& b) { return a == b; }")


def hasLibclang():
    return subprocess.run(["/usr/bin/python3", "-c", "import clang.cindex"], capture_output=True, check=False).returncode == 0


@unittest.skipUnless(hasLibclang(), "wants libclang")
class Arithmetic(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name)
        self.write("src/ui/numbers.h", "namespace ui { double finite(double a); double toReal(const char* text); }\n")
        self.write("src/method/half.h", "namespace method { inline double half(double a) { return a / 2; } }\n")

    def write(self, name, text):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def faults(self):
        done = subprocess.run([CHECK, self.tree], capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 1 if done.stdout else 0, done.stderr)
        self.assertEqual(done.stderr, "")
        return done.stdout.splitlines()

    def test_numbers_may_be_carried(self):
        self.write("src/scoring/carries.cpp", HEAD + CARRIES)
        self.write("src/ui/sum.cpp", "double sum(double a, double b) { return a + b; }\n")
        self.assertEqual(self.faults(), [])

    def test_every_way_to_calculate_is_found(self):
        first = HEAD.count("\n") + 1
        expected = []
        for index, (what, lines) in enumerate((("calculates with or compares", CALCULATES),
                                               ("makes a whole number or a condition of", ROUNDS),
                                               ("lets a function work on", LETS_WORK))):
            text = HEAD + "".join(line.replace(" f", f" f{number}", 1) + "\n" for number, line in enumerate(lines))
            self.write(f"src/selection/way{index}.cpp", text)
            expected += [f"arithmetic: src/selection/way{index}.cpp:{first + number} {what} a floating-point number"
                         for number in range(len(lines))]
        self.assertEqual(sorted(self.faults()), sorted(expected))

    def test_a_header_is_looked_at_whoever_includes_it(self):
        self.write("src/scoring/sum.h", "inline double sum(double a, double b) { return a + b; }\n")
        fault = ["arithmetic: src/scoring/sum.h:1 calculates with or compares a floating-point number"]
        self.assertEqual(self.faults(), fault)
        self.write("src/selection/uses.cpp", '#include "scoring/sum.h"\n')
        self.assertEqual(self.faults(), fault)

    def test_what_does_not_compile_is_not_passed(self):
        self.write("src/scoring/bad.cpp", "double sum( {\n")
        self.assertIn("arithmetic: src/scoring/bad.cpp does not compile", self.faults()[0])


if __name__ == "__main__":
    unittest.main()
