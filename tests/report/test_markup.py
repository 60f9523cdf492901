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
                   "Eligible species cover it": "species", "First covered by no.": "covered_by"}
        units = pages.table("units", project, options)
        self.compare(page.table("Habitats, zones and threats"), units, columns)
        openUnits = [unit for unit in units if unit["state"] != "covered"]
        if openUnits:
            self.compare(page.table("Units that the suite does not cover"), openUnits,
                         {"Unit": "unit", "Kind": "kind", "State": "state", "Needed": "needed", "Best": "best"})

    @ofEachProject
    def testUnitsNameWhoCoversThem(self, page, project, options):
        rows = page.table("Habitats, zones and threats")
        names = {row["Species"] for row in page.table("All candidates")}
        for row in rows:
            listed = row["Namely"].split(", ") if row["Namely"] else []
            if page is not self.pages["large"] and page is not self.pages["strange_names"]:
                self.assertEqual(len(listed), int(row["Eligible species cover it"]))
                self.assertLessEqual(set(listed), names)
            self.assertLessEqual(int(row["Of the suite cover it"]), int(row["Eligible species cover it"]))
        hanging = sum(row["Of the suite cover it"] == "1" for row in rows)
        figures = {item.findtext("dt"): item.findtext("dd") for item in page.root.find(".//dl")}
        self.assertEqual(figures["covered by one species alone"], str(hanging))

    @ofEachProject
    def testSpeciesAreThoseOfTheVerb(self, page, project, options):
        columns = {"No.": "number", "Species": "species", "Place in the suite": "pick", "Class": "class", "Rarity": "rarity"}
        losses = {"Place": "pick", "Without": "species", "Lost": "lost", "Units lost": "lost_units"}
        species = pages.table("species", project, [*options, *pages.LIMITS])
        rows = page.table("All candidates")
        if page is not self.pages["large"]:
            self.compare(rows, species, columns)
            for row, other in zip(rows, species):
                self.assertEqual(row["Cost"], "irreplaceable" if other["cost"] == "inf" else other["cost"])
                onlyFor = re.sub(r" \(excluded, but would: [^)]*\)", "", row["Only one for"])
                self.assertEqual(onlyFor, shown(other["only_for"]))
                self.assertEqual(row["Share"] == "", other["share"] == "")
                if row["Share"]:
                    held, of = (int(number.replace(",", "")) for number in row["Share"].split(" of "))
                    self.assertAlmostEqual(held / of, float(other["share"]), delta=0.00006)
        ranks = {row["Species"]: row["Rank"] for row in page.table("Candidates by rank")}
        self.assertEqual(ranks, {shown(row["species"]): row["rank"] for row in species})
        picked = sorted((row for row in species if row["pick"]), key=lambda row: int(row["pick"]))
        if not picked:
            return
        rows = page.table("The suite without one species")
        self.compare(rows, picked, losses)
        for row, other in zip(rows, picked):
            none = "nobody alone" if row["Lost"] != "0" else "nothing is lost"
            self.assertEqual(row["Would make up for it alone"], shown(other["substitutes"]) or none)

    @ofEachProject
    def testSuitesAreThoseOfTheVerb(self, page, project, options):
        suites = pages.table("suites", project, [*options, *pages.LIMITS, "--limit", "50"])
        if page is self.pages["nobody_admitted"]:
            self.assertEqual(suites[0]["size"], "0")
            return
        rows = page.table("Suites of the smallest size, against that of the run")
        self.compare(rows, suites, {"No.": "suite", "Total": "total"})
        own = {row["Species"] for row in page.table("The suite in the order of selection")}
        for row, suite in zip(rows, suites):
            comesIn, goesOut = ({*row[heading].split("; ")} - {""} for heading in ("Comes in", "Goes out"))
            self.assertEqual((own - goesOut) | comesIn, set(shown(suite["species"]).split("; ")))

    @ofEachProject
    def testASuiteWithoutASpeciesIsOneThatDoesWithoutIt(self, page, project, options):
        if page is self.pages["nobody_admitted"]:
            return
        suites = {f"no. {row['No.']}": row for row in page.table("Suites of the smallest size, against that of the run")}
        for row in page.table("The suite without one species"):
            suite = suites.get(row["As small a suite without it"])
            if suite:
                self.assertIn(row["Without"], suite["Goes out"].split("; "))

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

    def assertShare(self, text, row):
        """A share and its interval, in whole percent, against those of the verb."""
        if not text.startswith(("<", ">")):
            numbers = [float(row[column]) for column in ("frequency", "low", "high")]
            for shownNumber, number in zip(re.findall("[0-9]+", text), numbers):
                self.assertLessEqual(abs(int(shownNumber) - 100 * number), 0.51, (text, row))
        self.assertEqual(text == "0 %" or text.startswith("0 % "), row["count"] == "0")
        self.assertEqual(text == "100 %" or text.startswith("100 % "), row["count"] == row["runs"])

    def testSharesAreThoseOfTheVerb(self):
        for name in ("small_landscape", "full_landscape", "missed_unit"):
            project, options = self.projects[name]
            page = self.pages[name]
            for what in ("levels", "answers", "grades"):
                rows = pages.table("sweep", project, [*options, "--vary", what])
                of = {kind: {(row["kind"], row["name"]): row for row in rows if row["what"] == kind}
                      for kind in ("species", "uncovered", "missed", "size")}
                heading = f"Other {what}"
                for row in page.table("Share of the runs that select each species"):
                    counted = of["species"]["", row["Species"]]
                    if row[heading] or what == "levels":
                        self.assertShare(row[heading], counted)
                    else:
                        self.assertEqual(counted["count"], "0")
                for row in page.table("Share of the runs that leave a unit uncovered"):
                    unit = row["Kind"], row["Unit"]
                    self.assertShare(row[heading], of["uncovered"][unit])
                    self.assertShare(row[f"{heading}: missed"], of["missed"][unit])
                for row in page.table("Share of the runs by size of the suite"):
                    size = "", row["Species in the suite"]
                    if size in of["size"]:
                        self.assertShare(row[heading], of["size"][size])
                    else:
                        self.assertTrue(row[heading].startswith("0 %"))

    def testRemediesAreRunsOfTheirOwn(self):
        project, options = self.projects["full_landscape"]
        rows = self.pages["full_landscape"].table("Changes and what they come to")
        changes = [["--conservation-status", "0.95"], None, ["--threat-representation", "0.33"]]
        for row, change in zip(rows, changes, strict=True):
            if change is None:
                continue
            place = options.index(change[0])
            changed = [*options[:place], *change, *options[place + 2:]]
            minimum = {line["measure"]: line["value"] for line in pages.table("minimum", project, changed)}
            units = pages.table("units", project, changed)
            self.assertEqual(row["Species selected"], minimum["greedy_size"])
            self.assertEqual(row["Smallest suite"], minimum["upper"])
            openUnits = [unit["unit"] for unit in units if unit["state"] != "covered"]
            self.assertEqual(row["Open then"], "; ".join(openUnits) or "nothing")

    def testAProjectOfVersion1HasAWarningBelowTheVerdict(self):
        for name, page in self.pages.items():
            warnings = [item for item in page.root.iter("p") if item.get("class") == "warning"]
            self.assertEqual(len(warnings), 1 if name == "version1_landscape" else 0, name)

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
            self.assertNotIn("no fewer cover as much", text)


if __name__ == "__main__":
    unittest.main()
