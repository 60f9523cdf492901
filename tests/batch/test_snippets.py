# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The lines that docs/insight.md gives for reading a table do read it."""

import json
import re
import shutil
import subprocess
import sys
import unittest

from program import SOURCE, ProgramTest

ODD_NAME = "Ödland \"x\" #1 'y'"  # what a reader may take for a quotation or a comment


def snippet(introduction):
    """The indented lines after a line that ends with these words."""
    text = (SOURCE / "docs" / "insight.md").read_text(encoding="utf-8")
    found = re.search(rf"{introduction}:\n\n((?:    .*\n)+)", text)
    return re.sub("^    ", "", found.group(1), flags=re.MULTILINE)


class Snippets(ProgramTest):
    def setUp(self):
        super().setUp()
        project = (SOURCE / "examples" / "full_landscape.brn").read_bytes()
        options = (SOURCE / "examples" / "full_landscape.options").read_text(encoding="utf-8").splitlines()
        self.write("p.brn", project.replace(b"Farm mosaic", ODD_NAME.encode()))
        self.write("units.txt", self.runProgram("units", *options, "p.brn")[1])
        self.rows = json.loads(self.runProgram("units", "--json", *options, "p.brn")[1])["rows"]
        self.uncoverable = [row["unit"] for row in self.rows if row["state"] == "uncoverable"]
        self.assertIn(ODD_NAME, self.uncoverable)

    def output(self, *command):
        """The lines that a command prints."""
        done = subprocess.run(command, cwd=self.folder, capture_output=True, encoding="utf-8", check=False,
                              env={"LC_ALL": "C.UTF-8", "PATH": "/usr/bin:/bin"})
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return done.stdout.splitlines()

    def testPython(self):
        asked, *names = self.output(sys.executable, "-c", snippet("by Python") +
                                    'for unit in units: print(unit["unit"], unit["needed"], sep="|")\n')
        self.assertEqual(asked, str(self.uncoverable))
        self.assertEqual([line.split("|")[0] for line in names], [row["unit"] for row in self.rows])
        self.assertEqual([float(line.split("|")[1]) for line in names], [row["needed"] for row in self.rows])

    @unittest.skipUnless(shutil.which("Rscript"), "there is no R")
    def testR(self):
        lines = self.output("Rscript", "--vanilla", "-e", snippet("by R") +
                            'writeLines("names"); writeLines(paste(units$unit, units$needed, sep = "|"))')
        asked, names = lines[:lines.index("names")], lines[lines.index("names") + 1:]
        self.assertEqual(len(self.uncoverable), 2)
        for name in self.uncoverable:
            self.assertIn(name.replace('"', '\\"'), " ".join(asked))
        self.assertEqual([line.split("|")[0] for line in names], [row["unit"] for row in self.rows])
        self.assertEqual([float(line.split("|")[1]) for line in names], [row["needed"] for row in self.rows])


if __name__ == "__main__":
    unittest.main()
