# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a report holds: it is well-formed, and its numbers are those of the other verbs."""

import re
import signal
import subprocess
import tempfile
import time
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import pages

SVG = "{http://www.w3.org/2000/svg}"
LONGEST_NAME = 120


def shown(text):
    """As a page shows a field: names one by one, long ones cut."""
    names = [name if len(name) <= LONGEST_NAME else name[:LONGEST_NAME] + "…" for name in text.split("; ")]
    return "; ".join(names)


class Page:
    def __init__(self, path):
        self.root = ElementTree.fromstring(path.read_text(encoding="utf-8"))

    def text(self):
        return "".join(self.root.itertext())

    def table(self, caption):
        """The rows of the table with this caption, by heading."""
        found = [table for table in self.root.iter("table") if table.findtext("caption") == caption]
        assert len(found) == 1, caption
        headings = ["".join(cell.itertext()) for cell in found[0].find("thead/tr")]
        return [dict(zip(headings, ("".join(cell.itertext()) for cell in row))) for row in found[0].find("tbody")]


def ofEachProject(test):
    """A test that takes a page, its project and the options of the run."""

    def testAll(self):
        for name, page in self.pages.items():
            with self.subTest(project=name):
                test(self, page, *self.projects[name])

    return testAll


class Reports(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="brenica-report-")
        cls.projects = pages.makeProjects(cls.folder.name)
        cls.pages = {name: Page(path) for name, path in pages.makePages(cls.folder.name).items()}

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    @ofEachProject
    def testHeadingsAreInOrder(self, page, *_):
        levels = [int(item.tag[1]) for item in page.root.iter() if re.fullmatch("h[1-6]", item.tag)]
        self.assertEqual(levels[0], 1)
        self.assertEqual(levels.count(1), 1)
        for before, after in zip(levels, levels[1:]):
            self.assertLessEqual(after, before + 1)

    @ofEachProject
    def testIdsAreUniqueAndLinksLeadToThem(self, page, *_):
        ids = [item.get("id") for item in page.root.iter() if item.get("id")]
        self.assertEqual(len(ids), len(set(ids)))
        for link in page.root.iter("a"):
            self.assertIn(link.get("href").removeprefix("#"), ids)

    @ofEachProject
    def testTablesHaveCaptionsAndHeadsWithScope(self, page, *_):
        for cell in page.root.iter("th"):
            self.assertIn(cell.get("scope"), ("col", "row"))
        for table in page.root.iter("table"):
            if table.get("class") != "facts":
                self.assertTrue(table.findtext("caption"))
            widths = {len(list(row)) for row in table.iter("tr")}
            self.assertEqual(len(widths), 1)

    @ofEachProject
    def testDrawingsSayWhatTheyAre(self, page, *_):
        drawings = list(page.root.iter(f"{SVG}svg"))
        for drawing in drawings:
            self.assertEqual(drawing.get("role"), "img")
            self.assertTrue(drawing.findtext(f"{SVG}title"))
            self.assertTrue(drawing.findtext(f"{SVG}desc"))
        for figure in page.root.iter("figure"):
            self.assertTrue("".join(figure.find("figcaption").itertext()))

    def compare(self, rows, expected, columns):
        """Rows of a page against those of a verb: `columns` names the headings of both."""
        self.assertEqual(len(rows), len(expected))
        for row, other in zip(rows, expected):
            for heading, column in columns.items():
                self.assertEqual(row[heading], shown(other[column]), (heading, row))

    @ofEachProject
    def testUnitsAreThoseOfTheVerb(self, page, project, options):
        columns = {"Kind": "kind", "No.": "number", "Unit": "unit", "State": "state", "Needed": "needed", "Best": "best",
                   "Species that cover it": "species", "Covered first by no.": "covered_by"}
        units = pages.table("units", project, options)
        self.compare(page.table("Habitats, zones and threats"), units, columns)
        openUnits = [unit for unit in units if unit["state"] != "covered"]
        if openUnits:
            self.compare(page.table("Units that the suite does not cover"), openUnits,
                         {"Unit": "unit", "Kind": "kind", "State": "state", "Needed": "needed", "Best": "best"})

    @ofEachProject
    def testSpeciesAreThoseOfTheVerb(self, page, project, options):
        columns = {"No.": "number", "Species": "species", "Rank": "rank", "Place in the suite": "pick",
                   "Class": "class", "Cost": "cost", "Rarity": "rarity", "Only one for": "only_for"}
        losses = {"Place": "pick", "Without": "species", "Lost": "lost", "Units lost": "lost_units",
                  "Would make up for it alone": "substitutes"}
        species = pages.table("species", project, [*options, *pages.LIMITS])
        if page is not self.pages["large"]:
            self.compare(page.table("All candidates"), species, {**columns, "Share": "share"})
        picked = sorted((row for row in species if row["pick"]), key=lambda row: int(row["pick"]))
        if picked:
            self.compare(page.table("The suite without one species"), picked, losses)

    @ofEachProject
    def testSuitesAreThoseOfTheVerb(self, page, project, options):
        suites = pages.table("suites", project, [*options, *pages.LIMITS, "--limit", "50"])
        if page is self.pages["nobody_admitted"]:
            self.assertEqual(suites[0]["size"], "0")
            return
        rows = page.table("Suites of the smallest size")
        self.compare(rows, suites, {"No.": "suite", "Size": "size", "Total": "total"})
        everywhere = set.intersection(*(set(shown(suite["species"]).split("; ")) for suite in suites))
        for row, suite in zip(rows, suites):
            rest = set(row["Besides those in all"].split("; ")) - {""}
            self.assertLessEqual(rest, set(shown(suite["species"]).split("; ")))
            self.assertLessEqual(set(shown(suite["species"]).split("; ")) - rest, everywhere)

    @ofEachProject
    def testTheMinimumIsThatOfTheVerb(self, page, project, options):
        minimum = {row["measure"]: row["value"]
                   for row in pages.table("minimum", project, [*options, *pages.LIMITS])}
        bounds = sorted({minimum["lower"], minimum["upper"]}, key=int)
        figures = {item.findtext("dt"): item.findtext("dd") for item in page.root.find(".//dl")}
        self.assertEqual(figures["species selected"], minimum["greedy_size"])
        self.assertIn("–".join(bounds), figures.values())
        for part in minimum["witness"].split("; "):
            self.assertIn(shown(re.sub("^[0-9]+ ", "", part) if minimum["proof"] == "weights" else part),
                          page.text())

    def testFrequenciesAreThoseOfTheVerb(self):
        for name in ("small_landscape", "full_landscape", "missed_unit"):
            project, options = self.projects[name]
            selected = self.pages[name].table("Share of the runs that select each species")
            for what in ("levels", "answers", "grades"):
                rows = pages.table("sweep", project, [*options, "--vary", what])
                heading = what.capitalize()
                self.compare(selected, [row for row in rows if row["what"] == "species"],
                             {"No.": "number", "Species": "name", heading: "frequency", f"{heading}, low": "low",
                              f"{heading}, high": "high"})
                uncovered = {(row["kind"], row["name"]): row for row in rows if row["what"] == "uncovered"}
                for row in self.pages[name].table("Share of the runs that leave a unit uncovered"):
                    self.assertEqual(row[heading], uncovered[row["Kind"], row["Unit"]]["frequency"])
                sizes = {row["name"]: row["frequency"] for row in rows if row["what"] == "size"}
                for row in self.pages[name].table("Share of the runs by size of the suite"):
                    self.assertEqual(row[heading], sizes.get(row["Species in the suite"], "0.0000"))

    def testTheRunIsInTheMiddleOfTheLevels(self):
        project, options = self.projects["full_landscape"]
        page = self.pages["full_landscape"]
        sizes = page.table("Species in the suite, by threat representation")
        openUnits = page.table("Units not covered, by threat representation")
        units = pages.table("units", project, options)
        for rows, expected in ((sizes, 9), (openUnits, sum(unit["state"] != "covered" for unit in units))):
            own = next(row for row in rows if row["Conservation status"] == "0.8")
            self.assertEqual(own["0.4"], str(expected))


class InterruptedReport(unittest.TestCase):
    def testTellsWhatIsKnownSoFar(self):
        with tempfile.TemporaryDirectory(prefix="brenica-report-") as folder:
            project = Path(folder) / "large.brn"
            project.write_bytes(pages.largeProject())
            page = Path(folder) / "large.html"
            # Before the project is open a signal ends the program, as it would any other.
            for delay in (1, 4, 16):
                with subprocess.Popen([pages.PROGRAM, "report", "--time", "100", "--out", page, project],
                                      stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True) as child:
                    time.sleep(delay)
                    child.send_signal(signal.SIGINT)
                    notes = child.communicate(timeout=pages.TIME_LIMIT)[1]
                if child.returncode == 0:
                    break
            self.assertEqual(child.returncode, 0)
            self.assertIn("brenica-batch: stopped: what is known so far is on the page\n", notes)
            text = Page(page).text()
            self.assertIn("The work was stopped before its end", text)
            self.assertNotIn("no smaller suite exists", text)


if __name__ == "__main__":
    unittest.main()
