# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/cluster/sweep_parallel: a sweep in shards, on the cores of this machine."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
SCRIPT = SOURCE / "tools" / "cluster" / "sweep_parallel"
EXAMPLE = SOURCE / "examples" / "full_landscape.brn"
PROGRAM = os.environ["BRENICA_BATCH"]
TIME_LIMIT = 120  # seconds
SHARDS = 5
SWEEP = ["--error-margin", "6", "--vary", "levels,answers,grades", "--runs", "203", "--seed", "4"]

# Notes each shard that it does. Fails on the one that the file `fail` names, which it removes unless `always` is there;
# the one that `interrupt` names ends well but without counts, once.
UNSTEADY = """#!/usr/bin/env bash
cd "$(dirname "$0")"
while read -r line; do [ "$line" != --shard ] || read -r shard; done < <(printf '%s\\n' "$@")
if [ -n "${{shard:-}}" ]; then
    echo "${{shard%/*}}" >>done
    if [ -e fail ] && [ "$(cat fail)" = "${{shard%/*}}" ]; then
        [ -e always ] || rm fail
        exit 9
    fi
    if [ -e interrupt ] && [ "$(cat interrupt)" = "${{shard%/*}}" ]; then
        rm interrupt
        exit 0
    fi
fi
cd "$OLDPWD"
exec {program} "$@"
"""


class SweepParallel(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.whole = subprocess.run([PROGRAM, "sweep", *SWEEP, EXAMPLE], capture_output=True, check=True).stdout

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="brenica sweep ")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.program = self.folder / "unsteady"
        self.program.write_text(UNSTEADY.format(program=PROGRAM))
        self.program.chmod(0o755)
        self.project = self.folder / "a landscape.brn"
        self.project.write_bytes(EXAMPLE.read_bytes())

    def sweep(self, *options):
        """Exit code, table, what was said, and the shards that were done, sorted."""
        (self.folder / "done").write_text("")
        child = subprocess.run([SCRIPT, str(SHARDS), self.folder / "counts", *SWEEP, *options, self.project],
                               env={**os.environ, "BRENICA_BATCH": str(self.program)}, stdin=subprocess.DEVNULL,
                               capture_output=True, timeout=TIME_LIMIT, check=False)
        done = sorted(map(int, (self.folder / "done").read_text().split()))
        return child.returncode, child.stdout, child.stderr.decode(), done

    def fail(self, shard, always=False):
        (self.folder / "fail").write_text(str(shard))
        if always:
            (self.folder / "always").touch()

    def testGivesTheTableOfOneSweep(self):
        code, table, said, done = self.sweep()
        self.assertEqual((code, done), (0, [1, 2, 3, 4, 5]), said)
        self.assertEqual(table, self.whole)

    def testTriesAShardAgain(self):
        self.fail(2)
        code, table, said, done = self.sweep()
        self.assertEqual((code, done), (0, [1, 2, 2, 3, 4, 5]), said)
        self.assertEqual(table, self.whole)

    def testTakesAShardWithoutCountsForNotDone(self):
        (self.folder / "interrupt").write_text("4")
        code, table, said, done = self.sweep()
        self.assertEqual((code, done), (0, [1, 2, 3, 4, 4, 5]), said)
        self.assertEqual(table, self.whole)

    def testNamesAShardThatFailsAndDoesItAloneTheNextTime(self):
        self.fail(3, always=True)
        code, table, said, done = self.sweep()
        self.assertEqual((code, done), (1, [1, 2, 3, 3, 3, 4, 5]), said)
        self.assertEqual(table, b"")
        self.assertIn("shard 3/5 is missing", said)
        (self.folder / "fail").unlink()
        code, table, said, done = self.sweep()
        self.assertEqual((code, done), (0, [3]), said)
        self.assertEqual(table, self.whole)

    def testDoesNothingTwice(self):
        self.sweep()
        code, table, said, done = self.sweep()
        self.assertEqual((code, done), (0, []), said)
        self.assertEqual(table, self.whole)

    def testRefusesAFolderWithAnotherSweep(self):
        self.sweep()
        for change in (["--seed", "5"], []):
            if not change:
                self.project.write_bytes(EXAMPLE.read_bytes() + b"\r")
            code, table, said, done = self.sweep(*change)
            self.assertEqual((code, table, done), (1, b"", []))
            self.assertIn("holds another sweep", said)

    def testSaysHowItIsUsed(self):
        for arguments in ([], ["3"], ["3", "folder"], ["0", "folder", EXAMPLE], ["3", "folder", "/no/such.brn"]):
            child = subprocess.run([SCRIPT, *arguments], capture_output=True, cwd=self.folder, check=False)
            self.assertEqual(child.returncode, 1)
            self.assertIn(b"usage: ", child.stderr)


if __name__ == "__main__":
    unittest.main()
