# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every check of tools/checks passes a sound tree and refuses a faulty one, naming the place."""
import subprocess
import tempfile
import unittest
from pathlib import Path

CHECKS = Path(__file__).resolve().parents[1] / "checks"
HEAD = "// SPDX-FileCopyrightText: 2026 The Brenica developers\n// SPDX-License-Identifier: GPL-3.0-or-later\n"
STYLE = (Path(__file__).resolve().parents[2] / ".clang-format").read_text(encoding="utf-8")


class Checks(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name)
        self.write(".clang-format", STYLE, head="")
        self.write("src/entry/caption.cpp", 'const char* caption() { return "&Species list"; }\n')

    def write(self, name, text, head=HEAD):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(head + text, encoding="utf-8")

    def run_check(self, name):
        done = subprocess.run([CHECKS / name, self.tree], capture_output=True, text=True, check=False)
        return done.returncode, done.stdout + done.stderr

    def assertPasses(self, name):
        self.assertEqual(self.run_check(name), (0, ""))

    def assertRefuses(self, name, *parts):
        code, output = self.run_check(name)
        self.assertNotEqual(code, 0)
        for part in parts:
            self.assertIn(part, output)

    def test_a_sound_tree_passes_every_check(self):
        self.write("src/desktop/view.cpp", '#include <QWidget>\nint size() { return 1\'000; }\nauto key = "rowHeight";\n')
        self.write("src/CMakeLists.txt", "", head=HEAD.replace("//", "#"))
        for check in CHECKS.iterdir():
            with self.subTest(check.name):
                self.assertPasses(check.name)

    def test_format_refuses_a_badly_formatted_file(self):
        self.write("src/entry/bad.cpp", "int  f( ){return 1;}\n")
        self.assertRefuses("format", "src/entry/bad.cpp:3", "run clang-format -i")

    def test_licence_refuses_a_file_without_the_two_lines(self):
        self.write("src/entry/bare.h", "int f();\n", head="")
        self.write("tools/bare", "#!/bin/sh\n", head="")
        self.assertRefuses("licence", "src/entry/bare.h lacks", "tools/bare lacks")

    def test_file_length_counts_600_lines_as_enough(self):
        self.write("src/entry/long.cpp", "\n" * 598)
        self.assertPasses("file_length")
        self.write("src/entry/long.cpp", "\n" * 599)
        self.assertRefuses("file_length", "src/entry/long.cpp has 601 lines")

    def test_qt_stands_in_desktop_only(self):
        self.write("src/desktop/view.cpp", "#include <QWidget>\n")
        self.assertPasses("qt_only_in_desktop")
        self.write("src/ui/grid.h", "#  include <QString>\n")
        self.write("src/ui/CMakeLists.txt", "target_link_libraries(brenica_core Qt6::Widgets)\n", head="")
        self.assertRefuses("qt_only_in_desktop", "src/ui/grid.h:3", "src/ui/CMakeLists.txt:1")

    def test_no_outside_pointers_refuses_section_numbers_and_file_names(self):
        for text in ("Part" + " 3.4", "see " + "spec" + ".md", "as the" + " spec says"):
            with self.subTest(text):
                self.write("src/entry/pointer.h", f"// {text}\n")
                self.assertRefuses("no_outside_pointers", "src/entry/pointer.h:3")
        self.write("src/entry/pointer.h", "// Part of the specific list.\n")
        self.assertPasses("no_outside_pointers")

    def test_the_window_names_no_control(self):
        self.write("src/desktop/view.cpp", "void f(frmBrenica& form) {\n    form.cmdComplement.UserClick();\n}\n")
        self.assertRefuses("window_is_projection", "src/desktop/view.cpp:4: names the control cmdComplement")

    def test_the_window_holds_no_text_of_the_engine(self):
        self.write("src/desktop/view.cpp", "// a comment's quote\nauto text = \"Species list\";\n")
        self.assertRefuses("window_is_projection", 'src/desktop/view.cpp:4: "Species list" is a text of the engine')

    def test_the_window_holds_no_text_of_its_own(self):
        self.write("src/desktop/view.cpp", 'auto text = "Please choose a file";\n')
        self.assertRefuses("window_is_projection", "src/desktop/view.cpp:3", "which belongs to the form")

    def test_what_the_window_says_beside_the_form_stands_in_one_table(self):
        self.write("src/desktop/own/own_texts.h", 'auto text = "Please choose a copy";\n')
        self.assertPasses("window_is_projection")
        self.write("src/desktop/own/own_texts.h", 'auto text = "Species list";\nauto name = "cmdComplement";\n')
        self.assertRefuses("window_is_projection", "own_texts.h:3: \"Species list\" is a text of the engine",
                           "own_texts.h:4: names the control cmdComplement")
        self.write("src/desktop/own/own_texts.h", "\n")
        self.write("src/desktop/own/strip.cpp", 'auto text = "Please choose a copy";\n')
        self.assertRefuses("window_is_projection", "src/desktop/own/strip.cpp:3")


if __name__ == "__main__":
    unittest.main()
