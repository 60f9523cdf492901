# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""A tree of a test's own, for one of the checks."""
import subprocess
import tempfile
import unittest
from pathlib import Path

CHECKS = Path(__file__).resolve().parents[1] / "checks"


class CheckTree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name)

    def write(self, name, text):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def said_by(self, check):
        """What a check says of the tree, nothing where it passes."""
        done = subprocess.run([CHECKS / check, self.tree], capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 1 if done.stdout else 0, done.stderr)
        return done.stdout
