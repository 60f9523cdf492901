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
from keyboard import KeyboardRoad
from road import Road
from session import Session, missingTools
from tour import start

TOP = HERE.parents[1]
PROGRAM = Path(os.environ.get("BRENICA_PROGRAM", TOP / "build/release/src/desktop/brenica"))
BATCH = Path(os.environ.get("BRENICA_BATCH", TOP / "build/release/src/batch/brenica-batch"))
OUTPUT = Path(os.environ.get("BRENICA_JOURNEY_OUTPUT", TOP / "build/journey"))
FULL_EXAMPLE = TOP / "examples/full_landscape.brn"
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


def batchResults(project, target, options):
    """What brenica-batch makes of a project."""
    subprocess.run([str(BATCH), *options, "--results", str(target), str(project)], check=True, capture_output=True,
                   timeout=60)
    return target.read_bytes()


def roadOptions():
    options = [part for level, value in LEVELS.items() for part in ("--" + level, value)]
    return options + [part for answer in landscape.ANSWERS for part in ("--answer", answer)]


def exampleOptions():
    """One option or value a line."""
    return FULL_EXAMPLE.with_suffix(".options").read_text().split("\n")[:-1]


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
            self.assertEqual(exported, batchResults(project, session.home / "batch.txt", roadOptions()))
            self.assertEqual(second.read_bytes(), exported)

    def test_fullExampleByTheKeyboardAlone(self):
        with Session(pictures=OUTPUT / "keyboard") as session, diagnosed(session, "keyboard"):
            road = KeyboardRoad(start(session, PROGRAM, byKey=True))
            results = session.home / "results.txt"
            road.open(FULL_EXAMPLE)
            road.walkLists()
            road.walkCriteria()
            road.editTable()
            road.viewScores()
            road.select()
            road.export(results)
            session.keys("alt+F4")  # the window's close box, which asks nothing
            self.assertEqual(session.waitForEnd(), 0)
            self.assertEqual(session.programOutput(), "")
            self.assertEqual(results.read_bytes(), batchResults(FULL_EXAMPLE, session.home / "batch.txt",
                                                                exampleOptions()))


if __name__ == "__main__":
    unittest.main(verbosity=2)
