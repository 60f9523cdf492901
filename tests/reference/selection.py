# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The selection of the suite by complementarity, with its margin of error."""

from conversion import CDbl, CLng, CStr, Round, Trim, reported, sameText
from grids import RGB

MARGIN_GREEN = RGB(192, 255, 192)
PICKED_YELLOW = RGB(255, 255, 192)
OMITTED_RED = RGB(255, 128, 128)

CELL_COLOURS = (
    (200, 50, 0),
    (255, 150, 0),
    (200, 100, 0),
    (255, 255, 100),
    (200, 255, 50),
    (50, 150, 50),
    (100, 200, 175),
    (150, 150, 255),
    (150, 0, 200),
)

ADDS_NOTHING = "removed as it covers no additional habitats, management zones or threats."
ALL_COVERED = (
    "All habitat types, management zones and threats are covered by the current suite of brenic species."
)
NOT_COVERED = "The following are not covered by the current suite of brenic species:"
FIRST_TAKEN = " The first species will be added to the suite."


def excludedHeading(count):
    """The line above the list of the excluded species."""
    if count == 1:
        return "The following species was excluded due to its high Current Conservation Status value:"
    return f"The following {count} species was excluded due to their high Current Conservation Status value:"


def GetCellColor(key):
    """The colour of a pick."""
    return RGB(*CELL_COLOURS[key - 1]) if 1 <= key <= 9 else RGB(255, 255, 200)


class Selection:
    """One press of the command runs the whole selection."""

    @reported("Brenica.cmdComplement_Click")
    def cmdComplement_Click(self):
        """Take the levels, exclude by conservation status, run, and open the results."""
        if not self.ScoresCalculated:
            return
        self.ErrorMargin = CDbl(self.txtErrorMargin.Text)
        self.ThreatRepresentation = CDbl(self.txtThreatRep.Text)
        self.ConservationStatusRepresentation = CDbl(self.txtCCSRep.Text)
        for grid in self.flxCompResults:
            grid.Rows = 1
        removed = [False] * (self.TotalSpecies + 1)
        for i in range(1, self.TotalSpecies + 1):
            status = CDbl(self.flxSummary[5].TextMatrix(i, 1))
            removed[i] = not status <= self.ConservationStatusRepresentation
        habitatThresholds = self.thresholds(self.flxHabitatTypes, self.TotalHabitatTypes)
        zoneThresholds = self.thresholds(self.flxJurisUnits, self.TotalJurisUnits)
        self.flxScoresSort[0].Select(0, 8)
        self.flxScoresSort[0].Sort(1)
        self.InitComplementarity()
        self.SelectionStarting = True
        self.ExcludedSpeciesList = ""
        self.ExcludedSpeciesCount = 0
        self.selectSuite(removed, habitatThresholds, zoneThresholds)
        self.exportEnabled = True

    @staticmethod
    def thresholds(grid, count):
        """Levels of use that cover the units, from 1."""
        return [0] + [CLng(grid.TextMatrix(row, 3)) for row in range(1, count + 1)]

    @reported("Brenica.InitComplementarity")
    def InitComplementarity(self):
        """Bring the results to their first state."""
        if self.ScoresCalculated:
            self.flxBrenicSuite.Rows = 2
            for col, text in enumerate(("1", "", "", "", "")):
                self.flxBrenicSuite.TextMatrix(1, col, text)
        else:
            self.flxBrenicSuite.Rows = 1
        for grid in self.flxCompResults:
            grid.Rows = 1

    @reported("BrenicaUtilities.cmdComplement_Click")
    def selectSuite(self, SpeciesRemoved, HabitatThresholds, JurisUnitThresholds):
        """The module routine: picks until all is covered or no species is left."""
        grid, suite = self.flxCompResults[0], self.flxBrenicSuite
        habitats, zones, ratings, threats = (
            self.flxSummary[2], self.flxSummary[3], self.flxSummary[6], self.flxSummary[5],
        )
        HabitatCovered = [0] * (self.TotalHabitatTypes + 1)
        JurisUnitCovered = [0] * (self.TotalJurisUnits + 1)
        LandUseCovered = [0] * (self.TotalLandUses + 1)
        RecalcMaxScores = [0.0, 0.0]
        ThreatMaxScores = [0.0] * (self.TotalLandUses + 1)
        for t in range(1, self.TotalLandUses + 1):
            for s in range(1, self.TotalSpecies + 1):
                score = CDbl(threats.TextMatrix(s, t + 2))
                if score > ThreatMaxScores[t]:
                    ThreatMaxScores[t] = score
        for view, names, count in (
            (self.flxCompResults[1], self.flxHabitatTypes, self.TotalHabitatTypes),
            (self.flxCompResults[2], self.flxJurisUnits, self.TotalJurisUnits),
            (self.flxCompResults[3], ratings, self.TotalLandUses),
        ):
            view.Rows = count + 1
            for row in range(1, count + 1):
                view.TextMatrix(row, 0, names.TextMatrix(row, 1))

        def writeAdditions(row, i):
            """What species i would add."""
            grid.TextMatrix(row, 8, CStr(GetUnitsUsed(
                habitats, self.TotalHabitatTypes, HabitatThresholds, i, 2, HabitatCovered)))
            grid.TextMatrix(row, 9, CStr(GetUnitsUsed(
                zones, self.TotalJurisUnits, JurisUnitThresholds, i, 2, JurisUnitCovered)))
            grid.TextMatrix(row, 10, CStr(self.GetThreatImpact(threats, ThreatMaxScores, i, LandUseCovered)))

        def additions(row):
            """Habitats, zones and threats that the row's species adds."""
            return [CLng(grid.TextMatrix(row, col)) for col in (8, 9, 10)]

        def findPick(MarginCount):
            """Offset of the top survivor and the count of the margin, kept on the single path."""
            if RemovedCount >= self.TotalSpecies - 1:
                PickOffset = 0
                while SpeciesRemoved[CLng(grid.TextMatrix(BlockStartRow + PickOffset, 11))]:
                    PickOffset += 1
            else:
                MarginCount, PickOffset = Check4ErrorMargin(
                    self.ErrorMargin, grid, BlockStartRow, BlockSize, SpeciesRemoved)
            PickRow = BlockStartRow + PickOffset
            PickSpecies = CLng(grid.TextMatrix(PickRow, 11))
            grid.Select(PickRow, 0, PickRow, 0)
            grid.CellBackColor = MARGIN_GREEN
            if MarginCount > 0:
                PickRow = self.SelectErrorMarginSpecies(
                    grid, BlockStartRow, PickOffset, MarginCount, SpeciesRemoved)
                PickSpecies = CLng(grid.TextMatrix(PickRow, 11))
            return MarginCount, PickRow, PickSpecies

        def cover(PickSpecies, PickNumber):
            """Mark every unit that the pick represents."""
            HighlightCoverUnitsUsed(habitats, self.flxCompResults[1], self.TotalHabitatTypes, PickSpecies,
                                    HabitatThresholds, HabitatCovered, 2, PickNumber)
            HighlightCoverUnitsUsed(zones, self.flxCompResults[2], self.TotalJurisUnits, PickSpecies,
                                    JurisUnitThresholds, JurisUnitCovered, 2, PickNumber)
            self.HighlightThreatsEncountered(threats, self.flxCompResults[3], ThreatMaxScores, PickSpecies,
                                             LandUseCovered, PickNumber)

        def paint(row, colour):
            """Colour a row but for its name."""
            grid.Select(row, 1, row, grid.Cols - 1)
            grid.CellBackColor = colour

        def join(PickRow, PickNumber, added):
            """The pick joins the suite."""
            suite.Rows = PickNumber + 1
            texts = [CStr(PickNumber), grid.TextMatrix(PickRow, 0), *map(CStr, added)]
            for col, text in enumerate(texts):
                suite.TextMatrix(PickNumber, col, text)
            suite.Select(PickNumber, 2, PickNumber, 4)
            suite.CellBackColor = GetCellColor(PickNumber)
            paint(PickRow, PICKED_YELLOW)

        def omitted(row, words):
            """Tell that a row's species adds nothing."""
            self.boxes.message("Species Omitted", grid.TextMatrix(row, 0) + words + ADDS_NOTHING)

        # First pass: the scores as they stand.
        BlockStartRow = grid.Rows
        RemovedCount = self.TotalSpecies - self.SetupSelectionSpecies(
            grid, self.flxScoresSort[0], SpeciesRemoved, True)
        BlockSize = 0
        for i in range(1, self.TotalSpecies + 1):
            if not SpeciesRemoved[i]:
                BlockSize += 1
                writeAdditions(BlockStartRow + BlockSize - 1, i)
        grid.Select(0, 2)
        grid.Sort(2)
        for i in range(1, BlockSize + 1):
            grid.TextMatrix(i, 1, CStr(i))
        MarginCount, PickRow, PickSpecies = findPick(0)
        PickNumber = 1
        SpeciesRemoved[PickSpecies] = True
        RemovedCount += 1
        cover(PickSpecies, PickNumber)
        added = additions(PickRow)
        if max(added) <= 0:
            PickNumber = 0
            omitted(PickRow, " with the highest aggregate score has been ")
            paint(PickRow, OMITTED_RED)
        else:
            join(PickRow, 1, added)
        HabitatsCovered, JurisUnitsCovered, ThreatsCovered = added

        # Later passes: the scores over what is left uncovered.
        while True:
            AllCovered = (
                HabitatsCovered == self.TotalHabitatTypes
                and JurisUnitsCovered == self.TotalJurisUnits
                and ThreatsCovered == self.TotalLandUses
            )
            if AllCovered or RemovedCount >= self.TotalSpecies:
                break
            BlockStartRow = grid.Rows
            self.SetupSelectionSpecies(grid, self.flxScoresSort[0], SpeciesRemoved, False)
            BlockSize = 0
            for i in range(1, self.TotalSpecies + 1):
                if SpeciesRemoved[i]:
                    continue
                BlockSize += 1
                row = BlockStartRow + BlockSize - 1
                writeAdditions(row, i)
                raw = self.RecalcHeteroScore(i, habitats, zones, HabitatCovered, JurisUnitCovered)
                if raw > RecalcMaxScores[0]:
                    RecalcMaxScores[0] = Round(raw, 3)
                grid.TextMatrix(row, 3, CStr(Round(raw, 3)))
                status = CDbl(threats.TextMatrix(i, 1))
                raw = self.RecalcVulnerabilityScore(i, ratings, status, LandUseCovered)
                if raw > RecalcMaxScores[1]:
                    RecalcMaxScores[1] = Round(raw, 3)
                grid.TextMatrix(row, 5, CStr(Round(raw, 3)))
            for row in range(BlockStartRow, BlockStartRow + BlockSize):
                for col, maximum in ((3, RecalcMaxScores[0]), (5, RecalcMaxScores[1])):
                    if maximum <= 0:
                        grid.TextMatrix(row, col, "0")
                    else:
                        grid.TextMatrix(row, col, CStr(Round(CDbl(grid.TextMatrix(row, col)) / maximum, 3)))
                total = 0.0
                for col in (3, 5, 4, 6, 7):
                    total += CDbl(grid.TextMatrix(row, col))
                grid.TextMatrix(row, 2, CStr(Round(total, 3)))
            grid.Select(BlockStartRow, 2, BlockStartRow + BlockSize, 2)
            grid.Sort(2)
            for r in range(1, BlockSize + 1):
                row = BlockStartRow + r - 1
                grid.TextMatrix(row, 1, CStr(r))
                if additions(row) == [0, 0, 0]:
                    omitted(row, " has been ")
                    paint(row, OMITTED_RED)
                    SpeciesRemoved[CLng(grid.TextMatrix(row, 11))] = True
                    RemovedCount += 1
            MarginCount, PickRow, PickSpecies = findPick(MarginCount)
            PickNumber += 1
            SpeciesRemoved[PickSpecies] = True
            RemovedCount += 1
            cover(PickSpecies, PickNumber)
            added = additions(PickRow)
            if max(added) <= 0:
                PickNumber -= 1
                PickSpecies = CLng(grid.TextMatrix(PickRow, 11))
                if not SpeciesRemoved[PickSpecies]:
                    omitted(PickRow, " with the highest aggregate score has bee ")
                    paint(PickRow, OMITTED_RED)
                    SpeciesRemoved[PickSpecies] = True
                    RemovedCount += 1
            else:
                join(PickRow, PickNumber, added)
            HabitatsCovered += added[0]
            JurisUnitsCovered += added[1]
            ThreatsCovered += added[2]

        if AllCovered:
            report = ALL_COVERED
        else:
            report = NOT_COVERED + "\r"
            for prefix, sum_, covered, names in (
                ("Habitat types: ", HabitatsCovered, HabitatCovered, self.flxHabitatTypes),
                ("Management Zones: ", JurisUnitsCovered, JurisUnitCovered, self.flxJurisUnits),
                ("Threats: ", ThreatsCovered, LandUseCovered, ratings),
            ):
                if sum_ < len(covered) - 1:
                    left = [names.TextMatrix(u, 1) for u in range(1, len(covered)) if covered[u] == 0]
                    report += prefix + ", ".join(left) + "\r"
        self.boxes.message("Selection Report", report)

    @reported("BrenicaUtilities.SetupSelectionSpecies")
    def SetupSelectionSpecies(self, grid, scores, SpeciesRemoved, firstPass):
        """Append one block of the species still in the race and its closing blank row."""
        start, count = grid.Rows, 0
        for i in range(1, self.TotalSpecies + 1):
            if not SpeciesRemoved[i]:
                count += 1
                grid.Rows += 1
                row = start + count - 1
                for col in (0, 2, 3, 5, 4, 6, 7) if firstPass else (0, 4, 6, 7):
                    grid.TextMatrix(row, col, scores.TextMatrix(i, col))
                grid.TextMatrix(row, 11, CStr(i))
            elif self.SelectionStarting:
                self.ExcludedSpeciesCount += 1
                self.ExcludedSpeciesList += Trim(scores.TextMatrix(i, 0)) + "; "
        grid.Rows += 1
        if self.ExcludedSpeciesCount > 0 and self.SelectionStarting:
            self.ExcludedSpeciesList = self.ExcludedSpeciesList[:-2]
            heading = excludedHeading(self.ExcludedSpeciesCount)
            self.boxes.message("Excluded species", heading + "\r" + self.ExcludedSpeciesList)
        self.SelectionStarting = False
        return count

    @reported("BrenicaUtilities.GetThreatImpact")
    def GetThreatImpact(self, grid, ThreatMaxScores, species, LandUseCovered):
        """The uncovered threats that a species represents."""
        count = 0
        for t in range(1, self.TotalLandUses + 1):
            score = CDbl(grid.TextMatrix(species, t + 2))
            if self.ThreatRepresentation * ThreatMaxScores[t] <= score and LandUseCovered[t] == 0:
                count += 1
        return count

    @reported("BrenicaUtilities.RecalcHeteroScore")
    def RecalcHeteroScore(self, species, habitats, zones, HabitatCovered, JurisUnitCovered):
        """The heterogeneity score over the uncovered units."""
        H = Z = 0.0
        for h in range(1, self.TotalHabitatTypes + 1):
            if HabitatCovered[h] == 0:
                H += CDbl(habitats.TextMatrix((species - 1) * self.TotalHabitatTypes + h, 2))
        for z in range(1, self.TotalJurisUnits + 1):
            if JurisUnitCovered[z] == 0:
                Z += CDbl(zones.TextMatrix((species - 1) * self.TotalJurisUnits + z, 2))
        return H + H + Z

    @reported("BrenicaUtilities.RecalcVulnerabilityScore")
    def RecalcVulnerabilityScore(self, species, ratings, ccs, LandUseCovered):
        """The vulnerability score over the uncovered threats."""
        total = 0.0
        for t in range(1, self.TotalLandUses + 1):
            if LandUseCovered[t] == 0:
                r = (species - 1) * self.TotalLandUses + t
                urgency, recovery, severity, proportion, probability = (
                    CDbl(ratings.TextMatrix(r, col)) for col in (2, 5, 4, 6, 3))
                total += (urgency + recovery) * severity * proportion * probability
        return (1 - ccs) + total

    @reported("BrenicaUtilities.HighlightThreatsEncountered")
    def HighlightThreatsEncountered(self, grid, view, ThreatMaxScores, species, covered, pickNumber):
        """Mark the threats that the pick represents."""
        for t in range(1, self.TotalLandUses + 1):
            score = CDbl(grid.TextMatrix(species, t + 2))
            if self.ThreatRepresentation * ThreatMaxScores[t] <= score:
                covered[t] = 1
                markFirst(view, t, pickNumber)

    @reported("BrenicaUtilities.SelectErrorMarginSpecies")
    def SelectErrorMarginSpecies(self, grid, BlockStartRow, PickOffset, count, SpeciesRemoved):
        """Let the user decide between the species of the margin; gives the row to pick."""
        columns = (0, 2, 3, 5, 7, 8, 9, 10)

        def shown(row, col):
            text = grid.TextMatrix(row, col)
            return CStr(Round(CDbl(text), 3)) if col in (2, 3, 5, 7) else text

        def survives(row):
            return not SpeciesRemoved[CLng(grid.TextMatrix(row, 11))]

        top = BlockStartRow + PickOffset
        offsets = range(PickOffset + 1, PickOffset + count + 1)
        texts = {col: "{" + shown(top, col) for col in columns}
        counter = 1
        for j in offsets:
            if survives(BlockStartRow + j):
                counter += 1
                for col in columns:
                    texts[col] += "; " + shown(BlockStartRow + j, col)
        if counter < 2:
            return top
        names, aggregate, hetero, threats, socio, addH, addZ, addT = (texts[col] + "}" for col in columns)
        prompt = "".join(line + "\r" for line in (
            "To select between ",
            names,
            "use either (scores for each species shown in brackets):",
            "(a)   the aggregate score " + aggregate,
            "(b)   the heterogeneity score " + hetero,
            "(c)   the threats score " + threats,
            "(d)   the socio-economic value or " + socio,
            "(e)   select the species yourself",
            "",
            "NOTE: Each species covers",
            "      " + addH + " additional habitats",
            "      " + addZ + " additional management zones",
            "      " + addT + " additional threats",
        ))
        title = "Species with aggregate score within the set margin of error"
        answer = Trim(self.boxes.input(title, prompt, "a")).lower()
        result, tie = BlockStartRow, False
        if answer == "a":
            result = top
        elif answer in ("b", "c", "d"):
            col = {"b": 3, "c": 5, "d": 7}[answer]
            reference = CDbl(grid.TextMatrix(BlockStartRow, col))
            for j in offsets:
                row = BlockStartRow + (1 if answer == "d" else j)
                value = CDbl(grid.TextMatrix(row, col))
                if value > reference:
                    result = BlockStartRow + j
                elif value == reference:
                    tie = True
        elif answer == "e":
            tie = True
        else:
            self.boxes.message("Invalid value", "The option entered was invalid." + FIRST_TAKEN)
        if not tie:
            return result
        number = 1
        prompt = "Enter the number of the candidate species\r1: " + grid.TextMatrix(top, 0) + "\r"
        for j in offsets:
            if survives(BlockStartRow + j):
                number += 1
                prompt += f"{number}: {grid.TextMatrix(BlockStartRow + j, 0)}\r"
        answer = Trim(self.boxes.input("Select the species within the margin or error", prompt, "1"))
        for k in range(PickOffset + 1, PickOffset + count + 2):
            if sameText(answer, CStr(k - PickOffset)):
                return BlockStartRow + k - 1
        self.boxes.message("Invalid value", "The species number entered was invalid." + FIRST_TAKEN)
        return BlockStartRow


@reported("BrenicaUtilities.GetUnitsUsed")
def GetUnitsUsed(grid, unitCount, thresholds, species, column, covered):
    """The uncovered units that a species represents; the level is compared as a real."""
    count = 0
    for i in range(1, unitCount + 1):
        level = CDbl(grid.TextMatrix((species - 1) * unitCount + i, column))
        if level >= thresholds[i] and covered[i] == 0:
            count += 1
    return count


@reported("BrenicaUtilities.HighlightCoverUnitsUsed")
def HighlightCoverUnitsUsed(grid, view, unitCount, species, thresholds, covered, column, pickNumber):
    """Mark the units that the pick represents."""
    for i in range(1, unitCount + 1):
        level = CDbl(grid.TextMatrix((species - 1) * unitCount + i, column))
        if level >= thresholds[i]:
            covered[i] = 1
            markFirst(view, i, pickNumber)


def markFirst(view, row, pickNumber):
    """Number and colour of the pick that covers a unit first."""
    if view.TextMatrix(row, 1) == "":
        view.TextMatrix(row, 1, CStr(pickNumber))
        view.Select(row, 1)
        view.CellBackColor = GetCellColor(pickNumber)


@reported("BrenicaUtilities.Check4ErrorMargin")
def Check4ErrorMargin(ErrorMargin, grid, BlockStartRow, BlockSize, SpeciesRemoved):
    """Rows below the top survivor within the margin, and the survivor's offset."""
    k = 0
    while True:
        top = CDbl(grid.TextMatrix(BlockStartRow + k, 2))
        species = CLng(grid.TextMatrix(BlockStartRow + k, 11))
        k += 1
        if not SpeciesRemoved[species]:
            break
    PickOffset = k - 1
    grid.Select(BlockStartRow + PickOffset, 0)
    grid.CellBackColor = MARGIN_GREEN
    band = ErrorMargin / 100 * top
    count = 0
    for j in range(k, BlockSize):
        row = BlockStartRow + j
        if top - CDbl(grid.TextMatrix(row, 2)) <= band:
            count += 1
            if not SpeciesRemoved[CLng(grid.TextMatrix(row, 11))]:
                grid.Select(row, 0)
                grid.CellBackColor = MARGIN_GREEN
    return count, PickOffset
