#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Drives the real window with mouse and keys, from an empty project to the exported results; see README.md."""

import contextlib
import os
import subprocess
import sys
import time
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parent / "reference")]

import landscape
from brenica_reference import run as runModel
from file_drag import FileDrag
from keyboard import KeyboardRoad
from landscape import SPECIES
from road import PAGES, SLIP, Road
from session import Session, missingTools, waitFor
from tour import start

TOP = HERE.parents[1]
PROGRAM = Path(os.environ.get("BRENICA_PROGRAM", TOP / "build/release/src/desktop/brenica"))
BATCH = Path(os.environ.get("BRENICA_BATCH", TOP / "build/release/src/batch/brenica-batch"))
OUTPUT = Path(os.environ.get("BRENICA_JOURNEY_OUTPUT", TOP / "build/journey"))
FULL_EXAMPLE = TOP / "examples/full_landscape.brn"
COPY_IS_KEPT = 3  # seconds after which the last action is in the safety copy
EXIT_AFTER_ERROR = 4
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

    def test_openedFromOutsideWithTheGuideBesideIt(self):
        """A project as the command line and the file manager give it, F1 and a report, with a browser that only notes what to
        show."""
        with Session(pictures=OUTPUT / "outside") as session, diagnosed(session, "outside"):
            shown = session.standInForBrowser()
            other = session.home / "moor of the heron.brn"
            other.write_bytes(landscape.projectFile())

            window = start(session, PROGRAM, True, FULL_EXAMPLE)
            grid = window.grid("Candidate species")
            grid.waitForCell(1, 1, "Jaguar")
            session.picture("by_argument")

            target = int(session.windowNamed(f"Brenica - {FULL_EXAMPLE}"))
            self.assertTrue(FileDrag(session.environment["DISPLAY"], target, other).drop((400, 300)))
            window.box("Delete home range data").press("Yes")  # of the project that is left
            grid = window.grid("Candidate species")
            grid.waitForCell(1, 1, SPECIES[0].name)
            session.picture("dropped")
            target = int(session.windowNamed(f"Brenica - {other}"))
            notes = session.home / "notes.txt"
            notes.write_text("no project")
            self.assertFalse(FileDrag(session.environment["DISPLAY"], target, notes).drop((400, 300)))

            for number, page in enumerate(PAGES[:3], 1):
                window.page(page)
                session.keys("F1")
                waitFor(lambda: shown.exists() and len(shown.read_text().split()) == number, "the guide")
                self.assertTrue(shown.read_text().split()[-1].endswith(f"/page-{number}.html"), shown.read_text())

            report = session.home / "report.html"
            window.menu("Insight", "Report on the suite…")
            window.chooseFile(report)
            window.stripLine("The report on moor of the heron.brn is made: report.html, in ")
            session.picture("report_made")
            waitFor(lambda: shown.read_text().split()[-1].endswith("/report.html"), "the report in the browser")
            self.assertIn("moor of the heron", report.read_text(encoding="utf-8"))
            session.keys("alt+F4")
            self.assertEqual(session.waitForEnd(), 0)
            self.assertEqual(session.programOutput(), "")

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

    def test_secondLifeAfterTheProgramWasKilledWhileSpeciesWereGraded(self):
        """Typed from an empty project, so that the copy alone holds it; opened from the strip with the mouse."""
        model = runModel(landscape.projectFile(), LEVELS, list(landscape.ANSWERS))
        with Session(pictures=OUTPUT / "second_life") as session, diagnosed(session, "second_life"):
            road = Road(start(session, PROGRAM, byKey=False))
            project, results = session.home / "moor.brn", session.home / "results.txt"
            road.addSpecies()
            road.fillLists()
            road.gradeSpecies(range(3))
            road.gradeOne(3, range(2))
            time.sleep(COPY_IS_KEPT)
            session.kill()

            announced = session.bus.announcements("notification")
            window = start(session, PROGRAM, byKey=False)
            road = Road(window)
            line = window.stripLine("A new project, today ")
            self.assertEqual(line.accessible.name.rpartition(", ")[2], "6 species: not saved.")
            waitFor(lambda: line.accessible.name in announced.heard(), "the announcement of the copy")
            self.assertNotIn("focused", line.button("Open it").accessible.states)
            session.picture("strip")
            line.press("Open it")
            waitFor(lambda: not window.strip(), "the end of the offer")
            self.assertEqual(window.title, "Brenica")
            window.page(PAGES[2])
            road.seeUse(3)
            road.gradeOne(3, range(2, 5))
            road.gradeSpecies(range(4, 6))
            window.page(PAGES[3])
            road.mendSlip()
            road.select(pictures=False)
            road.export(results)
            road.save(project)
            self.assertEqual(project.read_bytes(), landscape.projectFile())
            self.assertEqual(results.read_bytes().decode(), model.results.decode())
            road.exit()
            self.assertEqual(session.waitForEnd(), 0)

            self.assertEqual(start(session, PROGRAM, byKey=False).strip(), [])

    def test_secondLifeByTheKeyboardAlone(self):
        """A grade of the full example is set right, and the program killed before it was saved."""
        right = FULL_EXAMPLE.read_bytes()
        wrong = right.replace(b"\r\nFunction1 = 3,", b"\r\nFunction1 = 0,")
        self.assertNotEqual(wrong, right)
        with Session(pictures=OUTPUT / "second_life_keys") as session, diagnosed(session, "second_life_keys"):
            project, results = session.home / "landscape.brn", session.home / "results.txt"
            project.write_bytes(wrong)
            expected = batchResults(FULL_EXAMPLE, session.home / "batch.txt", exampleOptions())
            self.assertNotEqual(batchResults(project, session.home / "wrong.txt", exampleOptions()), expected)
            road = KeyboardRoad(start(session, PROGRAM, byKey=True))
            road.open(project)
            road.gradeFirstFunction("3")
            time.sleep(COPY_IS_KEPT)
            session.kill()
            self.assertEqual(project.read_bytes(), wrong)

            window = start(session, PROGRAM, byKey=True)
            road = KeyboardRoad(window)
            window.stripLine("landscape.brn, today ").pressByKeys("Open it")
            waitFor(lambda: window.title == f"Brenica - {project}", "the project's path in the title")
            road.goToSummaries()
            road.viewScores()
            road.select()
            road.export(results)
            self.assertEqual(results.read_bytes(), expected)

    def test_secondLifeAfterAnErrorBox(self):
        model = runModel(landscape.projectFile(), LEVELS, list(landscape.ANSWERS))
        place, function, grade = SLIP
        slip = landscape.projectFile().decode().split("\r\n")
        row = next(i for i, line in enumerate(slip) if line.startswith(f"Function{function + 1} "))
        grades = slip[row].partition(" = ")[2].split(",")
        grades[place] = grade
        slip[row] = f"Function{function + 1} = {','.join(grades)}"
        with Session(pictures=OUTPUT / "after_an_error") as session, diagnosed(session, "after_an_error"):
            project, results = session.home / "moor.brn", session.home / "results.txt"
            project.write_bytes("\r\n".join(slip).encode())
            window = start(session, PROGRAM, byKey=False)
            road = Road(window)
            road.open(project)
            window.page(PAGES[3])
            road.mendSlip()
            road.removeLastBreakpoint()
            self.assertEqual(session.waitForEnd(), EXIT_AFTER_ERROR)

            window = start(session, PROGRAM, byKey=False)
            road = Road(window)
            window.stripLine("moor.brn, today ").press("Open it")
            waitFor(lambda: window.title == f"Brenica - {project}", "the project's path in the title")
            road.select(pictures=False)
            road.export(results)
            self.assertEqual(results.read_bytes().decode(), model.results.decode())


if __name__ == "__main__":
    unittest.main(verbosity=2)
