# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Which changes are made of a source, and how they are told apart while it runs."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

import equivalents
import killing
import mutants
from weave import compiles, weave

HERE = Path(__file__).resolve().parent
MAIN = "\n#include <cstdio>\nint main() { std::printf(\"%d\\n\", f(2)); }\n"


class Sources(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name)

    def write(self, text):
        self.path = self.tree / "source.cpp"
        self.path.write_text(text, encoding="utf-8")
        self.source = self.path.read_bytes()

    def found(self, text):
        self.write(text)
        return mutants.find("source.cpp", self.tree)

    def changes(self, text):
        """What the mutants put in the place of what."""
        return {(self.source[mutant.start:mutant.end].decode(), mutant.replacement.decode())
                for mutant in self.found(text)}

    def mutated(self, text):
        return {mutant.after for mutant in self.found(text)}

    def woven(self, text):
        numbered = list(enumerate(self.found(text), 1))
        woven, refused = weave(self.path, self.source, numbered, self.tree)
        return woven, refused, dict(numbered)


class Changes(Sources):
    def test_a_comparison_moves_its_bound_and_turns_round(self):
        self.assertEqual(self.changes("bool f(int a, int b) { const bool c = a < b; return c; }"),
                         {("a < b", "a <= b"), ("a < b", "a >= b"), ("c", "!(c)")})

    def test_arithmetic_is_changed_on_numbers_only(self):
        self.assertEqual(self.changes("void f(double a, double b, double& c) { c = a * b; }"),
                         {("a * b", "a / b"), ("c = a * b;", ";")})
        self.assertEqual(self.changes('#include <string>\nvoid f(std::string& a) { a = a + a; }'),
                         {("a = a + a;", ";")})

    def test_conditions_are_negated_unless_a_comparison_says_it(self):
        self.assertEqual(self.changes("void g(); void f(bool a) { if (a) g(); }"), {("a", "!(a)"), ("g();", ";")})
        self.assertEqual(self.changes("void g(); void f(bool a) { if (!a) g(); }"), {("!a", "a"), ("g();", ";")})
        self.assertIn(("a && b", "a || b"), self.changes("bool f(bool a, bool b) { return a && b; }"))

    def test_constants_move_by_one_and_texts_grow(self):
        self.assertEqual(self.changes("void g(int, const char*); void f() { g(3, \"x\"); }"),
                         {("3", "(3 + 1)"), ("3", "(3 - 1)"), ('"x"', '"x~"'), ('g(3, "x");', ";")})

    def test_jumps_are_taken_away_and_steps_turned(self):
        found = self.changes("void f(int n) { for (int i = n; i < n; ++i) { if (i == n) continue; break; } }")
        self.assertIn(("continue;", ";"), found)
        self.assertIn(("break;", ";"), found)
        self.assertIn(("++i", "--i"), found)

    def test_a_trap_keeps_what_makes_it_one(self):
        trap = ('[[noreturn]] void ReportError(int, const char*, const char*);\n'
                '%s f() try { %s } catch (...) { ReportError(9999, "f", ""); }\n')
        calls = {text for text in self.mutated(trap % ("int", "return 1;")) if 'return 1;' in text}
        self.assertEqual(calls, {'int f() try { return 1; } catch (...) { ReportError(9999, "f~", ""); }'})
        self.assertNotIn(";", {new for _, new in self.changes(trap % ("int", "return 1;"))})
        self.assertIn(";", {new for _, new in self.changes(trap % ("void", ""))})

    def test_what_the_compiler_computes_is_marked(self):
        constant = {mutant.constant for mutant in self.found("constexpr int A = 1; enum { B = 2 };")}
        self.assertEqual(constant, {True})
        self.assertEqual({mutant.constant for mutant in self.found("int f() { return 1; }")}, {False})

    def test_each_change_is_told_by_its_lines(self):
        changes = {mutant.key for mutant in self.found("int f(int a) {\n    return a   + 1;\n}\n")}
        self.assertIn(("source.cpp", "f", "return a + 1;", "return a - 1;"), changes)


class Weaving(Sources):
    def run_woven(self, woven, number):
        place = self.tree / "woven.cpp"
        place.write_bytes(woven + MAIN.encode())
        program = self.tree / "woven"
        if not program.exists():
            subprocess.run(["g++", "-std=c++20", f"-I{HERE}", "-o", program, place], check=True)
        listing = self.tree / "reached"
        done = subprocess.run([program], env={"BRENICA_MUTANT": str(number), "BRENICA_MUTANTS_REACHED": str(listing)},
                              capture_output=True, text=True, check=True)
        return int(done.stdout), {int(line) for line in listing.read_text().split()}

    def test_every_mutant_behaves_as_if_it_stood_alone(self):
        woven, refused, numbered = self.woven("int f(int a) { int b = a + 3; if (a < b && b != 4) b -= a * 2; return b; }")
        self.assertEqual(refused, set())
        self.assertEqual(self.run_woven(woven, 0)[0], 1)
        for number, mutant in numbered.items():
            with self.subTest(mutant.replacement):
                alone = self.tree / "alone.cpp"
                alone.write_bytes(mutant.applied(self.source) + MAIN.encode())
                subprocess.run(["g++", "-o", self.tree / "alone", alone], check=True)
                expected = subprocess.run([self.tree / "alone"], capture_output=True, text=True, check=True).stdout
                self.assertEqual(self.run_woven(woven, number)[0], int(expected))

    def test_what_is_made_from_a_truth_value_keeps_its_own(self):
        woven, refused, numbered = self.woven(
            "#include <optional>\n"
            "int f(int a) { std::optional<int> b; if (!b) b = a; const bool c = !b; if (b) return 7; return c; }")
        self.assertEqual(refused, set())
        self.assertEqual([mutant.replacement for mutant in numbered.values()].count(b"!!b"), 2)
        self.assertEqual(self.run_woven(woven, 0)[0], 7)

    def test_a_run_tells_the_mutants_that_it_comes_by(self):
        woven, _, numbered = self.woven("int f(int a) { if (a > 5) return a + 1; return a; }")
        reached = self.run_woven(woven, 0)[1]
        skipped = {number for number, mutant in numbered.items() if b"a + 1" in self.source[mutant.start:mutant.end]}
        self.assertTrue(skipped)
        self.assertFalse(skipped & reached)
        self.assertTrue(reached)

    def test_what_cannot_stand_behind_a_switch_is_refused(self):
        woven, refused, numbered = self.woven("int f(int a) { switch (a) { case 1: return 2; default: return a; } }")
        self.assertEqual({self.source[numbered[number].start:numbered[number].end] for number in refused}, {b"1"})
        self.assertIn(b"case 1:", woven)
        self.assertIn(b"mutation::on", woven)

    def test_a_mutant_that_does_not_compile_is_seen(self):
        self.write("int f() { return 1; }")
        sound = mutants.Mutant("source.cpp", "f", 1, "", "", 17, 18, b"2")
        broken = mutants.Mutant("source.cpp", "f", 1, "", "", 17, 18, b"x")
        self.assertTrue(compiles(self.path, self.source, sound, self.tree))
        self.assertFalse(compiles(self.path, self.source, broken, self.tree))


class Equivalents(unittest.TestCase):
    def test_each_of_the_list_has_its_argument_and_its_line(self):
        for (file, _, before, after), reason in equivalents.read().items():
            with self.subTest(f"{file}: {before}"):
                self.assertNotEqual(before, after)
                self.assertGreater(len(reason), 20)
                text = " ".join((mutants.ROOT / file).read_text(encoding="utf-8").split())
                self.assertIn(before, text)


class Programs(unittest.TestCase):
    def test_the_folder_of_the_mutant_comes_first(self):
        mutant = mutants.Mutant("src/selection/coverage.cpp", "f", 1, "", "", 0, 1, b"")
        names = [program.name for program in killing.in_order(killing.programs(mutants.ROOT), mutant)]
        self.assertEqual(names[0], "selection")


if __name__ == "__main__":
    unittest.main()
