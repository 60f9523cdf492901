#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Drives the real window with mouse and keys, from an empty project to the exported results; see README.md."""

import contextlib
import os
import subprocess
import sys
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parent / "reference")]

import landscape
from brenica_reference import run as runModel
from road import PAGES, Road
from session import Session, missingTools, waitFor
from tour import openByKeys, start, walkPages
from window import Window

TOP = HERE.parents[1]
PROGRAM = Path(os.environ.get("BRENICA_PROGRAM", TOP / "build/release/src/desktop/brenica"))
BATCH = Path(os.environ.get("BRENICA_BATCH", TOP / "build/release/src/batch/brenica-batch"))
OUTPUT = Path(os.environ.get("BRENICA_JOURNEY_OUTPUT", TOP / "build/journey"))
LEVELS = {"error-margin": landscape.ERROR_MARGIN, "threat-representation": landscape.THREAT_REPRESENTATION,
          "conservation-status": landscape.CONSERVATION_STATUS}


@contextlib.contextmanager
def diagnosed(session, name):
    """On a failure, leaves the screen and the accessibility tree as they are."""
    try:
        yield
    except BaseException:
        with contextlib.suppress(Exception):
            session.picture(f"FAILED_{name}")
            session.dump(OUTPUT / f"FAILED_{name}.txt")
            print(session.programOutput(), file=sys.stderr)
        raise


def batchResults(project, target):
    """What brenica-batch makes of a project with the levels and answers of the journey."""
    command = [str(BATCH), str(project), "--results", str(target)]
    for level, value in LEVELS.items():
        command += ["--" + level, value]
    for answer in landscape.ANSWERS:
        command += ["--answer", answer]
    subprocess.run(command, check=True, capture_output=True, timeout=60)
    return target.read_bytes()


class Journey(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        if missingTools():
            raise unittest.SkipTest(f"tools/setup test installs {missingTools()}")

    def test_roadFromAnEmptyProjectToTheExportedResults(self):
        model = runModel(landscape.projectFile(), LEVELS, list(landscape.ANSWERS))
        with Session(pictures=OUTPUT / "road") as session, diagnosed(session, "road"):
            window = start(session, PROGRAM, byKey=False)
            road = Road(window)
            project, first, second, chart = (session.home / name for name in
                                             ("moor.brn", "first.txt", "second.txt", "chart.bmp"))
            road.addSpecies()
            road.fillLists()
            road.gradeSpecies()
            road.viewSummaries()
            road.mendSlip()
            road.viewGraphs()
            road.keepGraph(chart)
            road.viewScores(model.tables)
            road.select()
            road.export(first)
            road.save(project)
            self.assertEqual(project.read_bytes(), landscape.projectFile())

            road.startAnew()
            road.open(project)
            road.select(pictures=False)
            road.export(second)
            road.exit()
            self.assertEqual(session.waitForEnd(), 0)
            self.assertEqual(session.programOutput(), "")

            exported = first.read_bytes()
            self.assertEqual(exported.decode(), model.results.decode())
            self.assertEqual(exported, batchResults(project, session.home / "batch.txt"))
            self.assertEqual(second.read_bytes(), exported)

    def test_walkByTheKeyboardAlone(self):
        with Session(pictures=OUTPUT / "keyboard") as session, diagnosed(session, "keyboard"):
            window = start(session, PROGRAM, byKey=True)
            openByKeys(window, TOP / "examples/full_landscape.brn")
            for page in PAGES[1:]:
                session.keys("ctrl+Next")
                waitFor(lambda: window.isSelected(page), f"the page {page!r}")
            session.keys("alt+F4")
            self.assertEqual(session.waitForEnd(), 0)
            self.assertEqual(session.programOutput(), "")


if __name__ == "__main__":
    unittest.main(verbosity=2)
