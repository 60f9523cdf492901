# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks of the model itself, each worked by hand."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from brenica_reference import checkLevels, run
from compare import differences, modelFiles
from conversion import CDbl, CLng, CStr, IsNumeric, Round, RunTimeError, decode, splitLines
from form import frmBrenica
from grids import Grid
from random_projects import STATES, makeCase, makeState
from scoring import GetRanks
from selection import Check4ErrorMargin


def project(**changes):
    """A complete project of three species; a value of None takes the line away."""
    lines = {
        "Project Version": "VERSION2",
        "Common Name": "Wolf,Lynx,Otter",
        "Scientific Name": "a,b,c",
        "Habitat Type": "Wood,Meadow",
        "Habitat Area": "10,20",
        "Habitat UseLevel": "2,2",
        "Jurisdictional Unit": "North",
        "JU Area": "5",
        "MZone UseLevel": "1",
        "Land Use": "Logging",
        "Urgency": "3",
        "Probability of occurence": "1",
        "Home-range definition": "continuous",
        "Functions": "Predation",
        "HeteroHabitat Population": "3,0,0,3,1,1",
        "HeteroJU Individual": "1,2,0",
        "Area Dispersal": "Y,N,Y",
        "Area Connectivity": "Y,Y,N",
        "Home ranges": "100,50,20",
        "Landscape Occupied": "0.5,0.4,0.1",
        "Conservation Status": "1,0.5,0.2",
        "VulnerabilitybySpecies Severity": "2,3,1",
        "VulnerabilitybySpecies Recovery": "1,1,1",
        "VulnerabilitybySpecies Proportion": "1,2,3",
        "Function1": "3,2,1",
        "Socio-Econ1": "1,0,0",
        "Socio-Econ2": "1,0,0",
        "Socio-Econ3": "1,0,0",
        "Socio-Econ4": "1,0,0",
        "Socio-Econ5": "1,0,0",
        "Data Quality1": "1,2,3",
    }
    for key, value in changes.items():
        lines[key.replace("_", " ").replace("  ", "-")] = value
    return "".join(f"{key} = {value}\r\n" for key, value in lines.items() if value is not None).encode()


def cells(outcome, table):
    """A table of an outcome as lists of texts."""
    text = outcome.tables[table + ".txt"].decode()
    return [line.split("\t") for line in text.split("\r\n")[:-1]]


def titles(outcome):
    return [box["title"] for box in outcome.messages]


class Numbers(unittest.TestCase):
    def testRoundsHalvesToEven(self):
        self.assertEqual([Round(v, 0) for v in (0.5, 1.5, 2.5, -0.5)], [0, 2, 2, 0])
        self.assertEqual(Round(0.0625, 3), 0.062)
        self.assertEqual(Round(0.1875, 3), 0.188)

    def testWritesShortPlainDecimals(self):
        for value, text in ((5.0, "5"), (0.5, "0.5"), (-0.0, "0"), (0.1 + 0.2, "0.3"), (1 / 3, "0.333333333333333"),
                            (1e20, "100000000000000000000"), (1e-7, "0.0000001"), (-2.50, "-2.5"), (12, "12")):
            self.assertEqual(CStr(value), text)

    def testReadsNumbers(self):
        for text, value in ((" 1.5 ", 1.5), (".5", 0.5), ("5.", 5), ("-1e2", -100), ("+3", 3), ("1,000", 1000)):
            self.assertEqual(CDbl(text), value)
        for text in ("", " ", ".", "abc", "1x", "1 2", "1e", ",1", "1,", "1,,2", "inf", "nan", "0x1"):
            self.assertFalse(IsNumeric(text), text)
        self.assertEqual([CLng(t) for t in ("0.5", "1.5", "2.5", "-1.5")], [0, 2, 2, -2])
        with self.assertRaises(RunTimeError) as caught:
            CLng("2147483648")
        self.assertEqual(caught.exception.Number, 6)

    def testReadsBytesOfOlderSystems(self):
        self.assertEqual(decode("é€".encode() + b"\xe9\x80"), "é€é€")
        self.assertEqual(splitLines("a\rb\r\nc\nd\r\n"), ["a", "b", "c\nd"])


class Sorting(unittest.TestCase):
    def sorted(self, texts, order):
        grid = Grid(("heading",))
        for text in texts:
            grid.AddItem()
            grid.TextMatrix(grid.Rows - 1, 0, text)
        grid.Select(0, 0)
        grid.Sort(order)
        return [grid.TextMatrix(row, 0) for row in range(1, grid.Rows)]

    def testOrdersBlankNumberText(self):
        texts = ["b", "10", "", "9", "A", "-1"]
        self.assertEqual(self.sorted(texts, 1), ["", "-1", "9", "10", "A", "b"])
        self.assertEqual(self.sorted(texts, 2), ["b", "A", "10", "9", "-1", ""])

    def testKeepsEqualRowsInOrder(self):
        self.assertEqual(self.sorted(["1.0", "2", "1", "01"], 2), ["2", "1.0", "1", "01"])
        self.assertEqual(self.sorted(["a", "B", "A", "b"], 1), ["a", "A", "B", "b"])

    def testSortsTheSelectedRowsWithTheirColours(self):
        grid = Grid(("x",))
        grid.Rows = 4
        for row, text in enumerate(("3", "1", "2"), 1):
            grid.TextMatrix(row, 0, text)
        grid.Select(3, 0)
        grid.CellBackColor = 7
        grid.Select(2, 0, 3, 0)
        grid.Sort(2)
        self.assertEqual([grid.TextMatrix(row, 0) for row in (1, 2, 3)], ["3", "2", "1"])
        grid.Select(2, 0)
        self.assertEqual(grid.CellBackColor, 7)

    def testLaterOfEqualScoresRanksBetter(self):
        self.assertEqual(GetRanks([1.0, 3.0, 1.0, 2.0]), [4, 1, 3, 2])


class Scores(unittest.TestCase):
    def testScoresOfThreeSpecies(self):
        outcome = run(project(), {"error-margin": "0"})
        # H = 2 x 3 + 1, A = 1 + 1 + 3 + 0.5, V = (1 - 1) + (3 + 1) x 2 x 1 x 1
        self.assertEqual(cells(outcome, "OriginalScoresData")[1], ["Wolf", "7", "5.5", "8", "3", "5", "1"])
        # 7 / 8, 5.5 / 5.5, 8 / 24.5, 3 / 3, 5 / 5
        self.assertEqual(
            cells(outcome, "NormalizedScoresData")[1], ["Wolf", "1", "4.202", "0.875", "1", "0.327", "1", "1", "1"])
        self.assertEqual(cells(outcome, "HabitatHeterogeneitySummary")[0],
                         ["Common Name", "Wood", "Meadow", "", "Total by species", "No. habitats"])

    def testBlankProportionOfTheFirstSpeciesBecomesZero(self):
        outcome = run(project(Landscape_Occupied=",,0.1"))
        self.assertEqual([row[4] for row in cells(outcome, "AreaSummary")[1:]], ["0", "", "0.1"])
        self.assertEqual(outcome.exit_code, 3)

    def testBlankLevelOfUseEndsTheProgram(self):
        outcome = run(project(HeteroHabitat_Population="3,0,,3,1,1"))
        self.assertEqual(outcome.exit_code, 4)
        self.assertEqual(outcome.report.split("\r\n"), [
            "Unexpected error in Brenica System.",
            "Source: Brenica.BrenicaUtilities.GetHeteroScore",
            "Internal Error number: 13.",
            'Internal Error description: "Type mismatch".',
            "",
        ])
        self.assertEqual([row[1] for row in cells(outcome, "OriginalScoresData")], ["H", "", "", ""])

    def testVersion1IsFilledIn(self):
        outcome = run(project(**{"Project_Version": None, "HeteroHabitat Population": "1,0,0,1,0.5,",
                                 "HeteroJU Individual": "1,0,0"}))
        self.assertEqual([row[2] for row in cells(outcome, "HabitatHeterogeneityDetailedSummary")[1:]],
                         ["2", "0", "0", "2", "0.5", "0"])
        # 10 of 30, 20 of 30, and a level of 0.5 counts its area
        self.assertEqual([row[4] for row in cells(outcome, "AreaSummary")[1:]], ["0.333", "0.667", "0.333"])
        self.assertEqual(titles(outcome)[0], "Version 1 poject file")


class Events(unittest.TestCase):
    def testTheHeadingOfTheStatusIsBlankedByALoad(self):
        outcome = run(project(Common_Name="Wolf,,Otter"), answers=["no"])
        self.assertEqual(outcome.exit_code, 3)
        self.assertEqual(cells(outcome, "VulnerabilitySummary")[0][1], "")
        self.assertEqual(titles(outcome), ["Invalid value"])

    def testBlankNamesAreRemovedButNotTheirDataQuality(self):
        outcome = run(project(Common_Name="Wolf,,Otter"), answers=["yes"])
        self.assertEqual([row[1] for row in cells(outcome, "CandidateSpeciesData")], ["Common Name", "Wolf", "Otter"])
        self.assertEqual([row[1] for row in cells(outcome, "DataQualitySummaryData")[1:]], ["1", "2", "3"])
        self.assertEqual([row[2] for row in cells(outcome, "VulnerabilityByThreatSummary")[1:]], ["2", "1"])

    def testNamesAreCutTo20InTheWideTables(self):
        name = "é" * 25
        outcome = run(project(Common_Name=f"{name},Lynx,Otter"))
        self.assertEqual(cells(outcome, "AreaSummary")[1][0], name)
        self.assertEqual(cells(outcome, "HabitatHeterogeneityDetailedSummary")[1][0], name[:20])

    def testTheFirstSpeciesIsWrittenBackInTheFormOfItsControls(self):
        outcome = run(project(Area_Dispersal="y,y,N", Conservation_Status="1.5,0.5,0.2"))
        self.assertEqual([row[1] for row in cells(outcome, "AreaSummary")[1:]], ["Y", "y", "N"])
        self.assertEqual([row[1] for row in cells(outcome, "VulnerabilitySummary")[1:4]], ["1", "0.5", "0.2"])

    def testAColumnWithoutNumberStopsTheLoad(self):
        outcome = run(project(FunctionX="1,1,1"))
        self.assertEqual((outcome.exit_code, outcome.tables), (2, {}))

    def testAFileWithoutALineThatEndsInCarriageReturnIsNotReadable(self):
        outcome = run(project().replace(b"\r\n", b"\n"))
        self.assertEqual((outcome.exit_code, outcome.tables), (2, {}))


class States(unittest.TestCase):
    def testARemovedHabitatTakesItsOwnLevelsAlong(self):
        outcome = run(project(Habitat_Type=",Meadow"), answers=["yes"])
        use = cells(outcome, "HabitatHeterogeneitySummary")
        self.assertEqual(use[0], ["Common Name", "Meadow", "", "Total by species", "No. habitats"])
        self.assertEqual([row[1] for row in use[1:4]], ["0", "3", "1"])
        self.assertEqual([row[1] for row in use[-2:]], ["4", "2"])
        self.assertEqual([row[2] for row in cells(outcome, "HabitatHeterogeneityDetailedSummary")[1:]], ["0", "3", "1"])

    def testTheLastHabitatTakesNothingElseAlong(self):
        outcome = run(project(Habitat_Type="Wood,"), answers=["yes"])
        self.assertEqual([row[1] for row in cells(outcome, "HabitatHeterogeneitySummary")[1:4]], ["3", "0", "1"])

    def testVersion1FillsEveryBlankLevelOfUse(self):
        changes = {"Project_Version": None, "Habitat_UseLevel": None, "MZone_UseLevel": None}
        outcome = run(project(Habitat_Area="10", JU_Area="", **changes))
        self.assertEqual([row[3] for row in cells(outcome, "HabitatData")[1:]], ["2", "2"])
        self.assertEqual([row[3] for row in cells(outcome, "ManagZonesData")[1:]], ["2"])

    def testRatingsWithoutActivitiesArePassedOver(self):
        outcome = run(project(Land_Use=None, Urgency=None, **{"Probability of occurence": None}))
        self.assertEqual(outcome.exit_code, 3)
        self.assertEqual([row[4:] for row in cells(outcome, "VulnerabilityBySpeciesSummary")[1:]], [["", "", ""]] * 3)

    def testStatesHaveAStreamOfTheirOwn(self):
        self.assertEqual(makeState(1, 7), makeState(1, 7))
        self.assertEqual({makeState(1, number).kind for number in range(30)}, set(STATES))


class Margin(unittest.TestCase):
    def block(self, *rows):
        """A sorted block: name, aggregate, heterogeneity, threats, socio-economic, candidate number."""
        form = frmBrenica()
        grid = form.flxCompResults[0]
        for name, aggregate, hetero, threats, socio, number in rows:
            grid.AddItem()
            row = grid.Rows - 1
            for col, text in ((0, name), (2, aggregate), (3, hetero), (5, threats), (7, socio),
                              (8, "1"), (9, "0"), (10, "2"), (11, number)):
                grid.TextMatrix(row, col, text)
        grid.AddItem()
        return form, grid

    ROWS = (("A", "4", "0.5", "0.1", "1", "1"), ("B", "3.9", "0.7", "0.1", "0.5", "2"),
            ("C", "3.8", "0.6", "0.05", "2", "3"))

    def pick(self, answers, removed=(), offset=0, rows=ROWS):
        form, grid = self.block(*rows)
        form.boxes.answers = list(answers)
        flags = [False] + [number in removed for number in (1, 2, 3)]
        return form.SelectErrorMarginSpecies(grid, 1, offset, 2 - offset, flags), form.boxes.shown

    def testBandIsAShareOfTheTopScore(self):
        form, grid = self.block(*self.ROWS)
        flags = [False] * 4
        self.assertEqual(Check4ErrorMargin(2.6, grid, 1, 3, flags), (1, 0))
        self.assertEqual(Check4ErrorMargin(2.5, grid, 1, 3, flags), (0, 0))  # 4 - 3.9 is a little above 0.1
        self.assertEqual(Check4ErrorMargin(0.0, grid, 1, 3, flags), (0, 0))
        self.assertEqual(Check4ErrorMargin(100.0, grid, 1, 3, [False, True, True, False]), (0, 2))

    def testTheLastThatBeatsTheFirstRowWins(self):
        self.assertEqual(self.pick(["b"])[0], 3)

    def testSocioEconomicValueIsReadFromTheSecondRowOnly(self):
        self.assertEqual(self.pick(["d"])[0], 1)
        rows = (self.ROWS[0], ("B", "3.9", "0.7", "0.1", "3", "2"), ("C", "3.8", "0.6", "0.05", "0", "3"))
        self.assertEqual(self.pick(["d"], rows=rows)[0], 3)

    def testATieAsksForTheNumber(self):
        row, shown = self.pick(["c", "3"])
        self.assertEqual(row, 3)
        self.assertEqual(shown[1]["text"], "Enter the number of the candidate species\r1: A\r2: B\r3: C\r")

    def testTheListSkipsRemovedRowsButTheNumberDoesNot(self):
        row, shown = self.pick(["e", "2"], removed=(2,))
        self.assertEqual(shown[1]["text"], "Enter the number of the candidate species\r1: A\r2: C\r")
        self.assertEqual(row, 2)

    def testInvalidAnswersTakeTheFirstRowOfTheBlock(self):
        row, shown = self.pick(["", "x"], removed=(1,), offset=1)
        self.assertEqual(row, 1)
        self.assertEqual(shown[1]["text"],
                         "The option entered was invalid. The first species will be added to the suite.")
        self.assertEqual(self.pick(["e", "4"])[0], 1)
        self.assertEqual(self.pick([" A "], removed=(1,), offset=1)[0], 2)

    def testNoDialogueWhenOnlyRemovedSpeciesAreInTheBand(self):
        self.assertEqual(self.pick([], removed=(2, 3)), (1, []))


class SelectionRuns(unittest.TestCase):
    def testPicksOmitsAndReports(self):
        outcome = run(project(), {"error-margin": "40"}, ["e", "2"])
        self.assertEqual(cells(outcome, "BrenicSuiteData")[1:], [["1", "Lynx", "1", "1", "1"], ["2", "Wolf", "1", "0", "0"]])
        self.assertEqual(titles(outcome)[-2:], ["Species Omitted", "Selection Report"])
        lines = outcome.results.decode().split("\r\n")
        self.assertEqual(lines[6], "40 % Error margin")
        self.assertIn("X Otter                    2\t1.975\t0.333\t0.309\t1\t0.333\t0\t0\t0\t0\t", lines)
        self.assertIn(" " * 27 + "\t" * 10, lines)

    def testAllExcludedEndsTheProgram(self):
        outcome = run(project(), {"conservation-status": "0"})
        self.assertEqual((outcome.exit_code, titles(outcome)), (4, ["Excluded species"]))
        self.assertEqual(outcome.messages[0]["text"].split("\r")[1], "Wolf; Lynx; Otter")

    def testWhatStaysUncoveredIsNamed(self):
        outcome = run(project(Habitat_UseLevel="2,4", Common_Name="Wolf", HeteroHabitat_Population="3,0",
                              Function1="1", **{f"Socio-Econ{c}": "1" for c in range(1, 6)}, Data_Quality1="1"))
        self.assertEqual(outcome.exit_code, 0)
        self.assertTrue(outcome.results.endswith(
            b"covered by the current suite of brenic species:\r\r\nHabitat types: Meadow\r\n"))

    def testLevelsAreChecked(self):
        self.assertEqual(checkLevels({"error-margin": "100"}), "")
        self.assertNotEqual(checkLevels({"error-margin": "101"}), "")
        self.assertEqual(run(project(), {"threat-representation": "x"}).exit_code, 1)
        self.assertEqual(run(project(), {"threat-representation": "0,5"}).exit_code, 1)


class Comparison(unittest.TestCase):
    def testFindsTheFirstDifferentLine(self):
        outcome = run(project())
        files = modelFiles(outcome)
        self.assertEqual(list(differences(outcome, 0, files)), [])
        files["tables/AreaSummary.txt"] = files["tables/AreaSummary.txt"].replace(b"Lynx", b"Linx")
        found = list(differences(outcome, 3, files))
        self.assertEqual(found[0], "exit code: model 0, program 3")
        self.assertTrue(found[1].startswith("tables/AreaSummary.txt, line 3:"))

    def testCasesRepeat(self):
        self.assertEqual(makeCase(1, 7), makeCase(1, 7))
        self.assertNotEqual(makeCase(1, 7), makeCase(2, 7))


if __name__ == "__main__":
    unittest.main()
