# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The candidate species, the parameter lists and the home range definition."""

from conversion import CStr, Trim, reported, sameText
from helpers import (
    ConstructIntervals,
    GetColContents,
    RemoveGridEntry,
    RemoveHRData,
    UpdateComboBox,
    UpdateFlexGrid,
)


class Lists:
    """Keeps the dependent grids in step with the lists."""

    # Candidate species

    @reported("Brenica.UpdateOtherSpeciesFlexGrids")
    def UpdateOtherSpeciesFlexGrids(self, n, old):
        """Grow all dependent grids by n species; old is the count before."""
        if self.TotalSpecies < 1:
            return
        summary = self.flxSummary
        start = 2 if old == 0 else 1
        blocks = {2: self.TotalHabitatTypes, 3: self.TotalJurisUnits, 6: self.TotalLandUses}
        for index in range(11):
            grid = summary[index]
            if index in (0, 1, 5):
                grid.Rows = self.TotalSpecies + 1
                if grid.Cols >= 2:
                    for row in range(old + 1, grid.Rows):
                        for col in range(1, grid.Cols):
                            grid.TextMatrix(row, col, "")
            elif index in (4, 8, 9, 10):
                grid.Rows = self.TotalSpecies + 1
            elif index in blocks:
                copied = (1, 2, 3) if index == 6 else (1,)
                if blocks[index] == 0:
                    UpdateFlexGrid(grid, n, 0, False)
                    continue
                for _ in range(start, n + 1):
                    for unit in range(1, blocks[index] + 1):
                        grid.AddItem()
                        for col in copied:
                            grid.TextMatrix(grid.Rows - 1, col, grid.TextMatrix(unit, col))
            elif self.TotalLandUses == 0:
                UpdateFlexGrid(grid, n, 0, False)
            else:
                first = 2 if old == 0 else old + 1
                for a in range(1, self.TotalLandUses + 1):
                    for s in range(first, old + n + 1):
                        grid.AddItem((a - 1) * self.TotalSpecies + s)
        for grid in (self.flxScores[0], self.flxScoresSort[0], self.flxScores[1], self.flxScoresSort[1]):
            UpdateFlexGrid(grid, n, 0, False)

    @reported("Brenica.flxCandidateSpecies_CellChanged")
    def flxCandidateSpecies_CellChanged(self, row, col):
        """A name goes into every dependent grid; four of them carry its first 20 characters."""
        if row <= 0 or col == 0:
            return
        self.ProjectChanged = True
        if col != 1:
            return
        name = self.flxCandidateSpecies.TextMatrix(row, 1)
        for i in (0, 1):
            self.flxScores[i].TextMatrix(row, 0, name)
            self.flxScoresSort[i].TextMatrix(row, 0, name)
        short = name[:20]
        for index, grid in enumerate(self.flxSummary):
            if index in (0, 1):
                grid.TextMatrix(row, 0, short)
            elif index == 2:
                grid.TextMatrix(self.blockRow(row, self.TotalHabitatTypes), 0, short)
            elif index == 3:
                grid.TextMatrix(self.blockRow(row, self.TotalJurisUnits), 0, short)
            elif index == 6:
                grid.TextMatrix(self.blockRow(row, self.TotalLandUses), 0, name)
            elif index == 7:
                if self.TotalLandUses == 0:
                    grid.TextMatrix(row, 1, name)
                for a in range(1, self.TotalLandUses + 1):
                    grid.TextMatrix((a - 1) * self.TotalSpecies + row, 1, name)
            else:
                grid.TextMatrix(row, 0, name)

    @staticmethod
    def blockRow(row, count):
        """The first row of a species' block, or its only row while the count is 0."""
        return row if count == 0 else (row - 1) * count + 1

    @reported("Brenica.RemoveSpecies")
    def RemoveSpecies(self, row):
        """Remove a species from every grid but the data quality."""
        old = self.TotalSpecies
        if row < 1 or row > old:
            return
        if row <= self.cbxSpeciesName.ListCount and self.flxCandidateSpecies.TextMatrix(1, 1) != "":
            self.cbxSpeciesName.RemoveItem(row - 1)
        self.TotalSpecies = RemoveGridEntry(self.flxCandidateSpecies, row, old)
        remain = self.TotalSpecies > 0
        for grid in (*self.flxScores, *self.flxScoresSort):
            grid.RemoveItem(row)
        for i in range(1, self.TotalSpecies + 1):
            self.flxScoresSort[0].TextMatrix(i, 8, CStr(i))
            self.flxScoresSort[1].TextMatrix(i, 6, CStr(i))
        summary = self.flxSummary
        self.removeBlock(summary[2], self.TotalHabitatTypes, row, (0, 2))
        self.removeBlock(summary[3], self.TotalJurisUnits, row, (0, 2))
        for index in (0, 1, 4, 5, 8, 9):
            if remain:
                summary[index].RemoveItem(row)
            else:
                summary[index].Rows = 1
        if not remain:
            summary[0].Cols = self.TotalHabitatTypes + 1
            summary[1].Cols = self.TotalJurisUnits + 1
            summary[5].Cols = self.TotalLandUses + 3
        self.removeBlock(summary[6], self.TotalLandUses, row, (0, 2, 3, 4, 5, 6))
        if self.TotalLandUses == 0:
            summary[7].RemoveItem(row)
            return
        for a in range(1, self.TotalLandUses + 1):
            r = (a - 1) * old + row - (a - 1)
            if row == 1 and remain:
                summary[7].TextMatrix(r + 1, 0, summary[7].TextMatrix(r, 0))
            if remain:
                summary[7].RemoveItem(r)
            else:
                for col in (1, 2, 3, 4):
                    summary[7].TextMatrix(a, col, "")

    def removeBlock(self, grid, count, row, cleared):
        """Remove a species' block from a long grid, or clear the last one's cells."""
        if count == 0:
            grid.RemoveItem(row)
            return
        first = (row - 1) * count + 1
        for unit in range(1, count + 1):
            if self.TotalSpecies > 0:
                grid.RemoveItem(first)
            else:
                for col in cleared:
                    grid.TextMatrix(unit, col, "")

    @reported("Brenica.UpdateSpeciesList")
    def UpdateSpeciesList(self):
        """Rebuild the species selector; the choice sticks to the end of the list."""
        box = self.cbxSpeciesName
        index, atEnd = 0, False
        if box.ListCount > 0:
            index = box.ListIndex
            atEnd = index == box.ListCount - 1
        box.Clear()
        for row in range(1, self.TotalSpecies + 1):
            box.AddItem(self.flxCandidateSpecies.TextMatrix(row, 1))
        if box.ListCount == 0:
            return
        if index >= box.ListCount or index == -1:
            box.ListIndex = 0
        elif atEnd:
            box.ListIndex = box.ListCount - 1
        else:
            box.ListIndex = index

    # Habitat types and management zones

    @reported("Brenica.UpdateOtherHabitatFlexGrids")
    def UpdateOtherHabitatFlexGrids(self, n):
        """Grow the grids that depend on the habitat types."""
        if self.TotalHabitatTypes < 1:
            return
        summary = self.flxSummary
        self.growUnits(n, self.TotalHabitatTypes, self.flxHabitatHetero, summary[0], summary[2], False)

    @reported("Brenica.UpdateOtherJurisUnitFlexGrids")
    def UpdateOtherJurisUnitFlexGrids(self, n):
        """The same for zones, whose names give way to numbers until they are typed again."""
        if self.TotalJurisUnits < 1:
            return
        summary = self.flxSummary
        self.growUnits(n, self.TotalJurisUnits, self.flxJurisUnitHetero, summary[1], summary[3], True)

    def growUnits(self, n, count, entry, wide, long, numbered):
        """What habitats and zones have in common."""
        oldRows = entry.Rows
        UpdateFlexGrid(entry, n, 0, numbered)
        wide.Cols = count + 1
        for col in range(1, wide.Cols):
            wide.TextMatrix(0, col, CStr(col))
        self.blankNewCells(wide, oldRows)
        self.growLong(long, count, oldRows, n, numbered)

    def blankNewCells(self, wide, firstCol):
        """Blank the new columns of a wide table."""
        if self.TotalSpecies > 0:
            for row in range(1, wide.Rows):
                for col in range(firstCol, wide.Cols):
                    wide.TextMatrix(row, col, "")

    def growLong(self, long, count, oldRows, n, numbered):
        """Put the new units' rows into each species' block."""
        if self.TotalSpecies == 0:
            UpdateFlexGrid(long, n, 0, numbered)
            return
        for s in range(1, self.TotalSpecies + 1):
            for unit in self.newUnits(oldRows, n):
                long.AddItem((s - 1) * count + unit)

    @staticmethod
    def newUnits(oldRows, n):
        """The new units; the first one of all has its row already."""
        return range(2 if oldRows == 1 else oldRows, oldRows + n)

    @reported("Brenica.flxHabitatTypes_CellChanged")
    def flxHabitatTypes_CellChanged(self, row, col):
        """A habitat's name goes into its entry row and into each species' block."""
        self.unitChanged(row, col, self.flxHabitatTypes, self.flxHabitatHetero, 2, self.TotalHabitatTypes)

    @reported("Brenica.flxJurisUnits_CellChanged")
    def flxJurisUnits_CellChanged(self, row, col):
        """A zone's name goes into its entry row and into each species' block."""
        self.unitChanged(row, col, self.flxJurisUnits, self.flxJurisUnitHetero, 3, self.TotalJurisUnits)

    def unitChanged(self, row, col, grid, entry, index, count):
        """What the two events have in common."""
        if row < 1 or col == 0:
            return
        self.ProjectChanged = True
        if col != 1:
            return
        name = grid.TextMatrix(row, 1)
        entry.TextMatrix(row, 0, name)
        short = name[:20]
        long = self.flxSummary[index]
        if self.TotalSpecies == 0:
            long.TextMatrix(row, 1, short)
        for s in range(1, self.TotalSpecies + 1):
            long.TextMatrix((s - 1) * count + row, 1, short)

    @reported("Brenica.RemoveHabitatType")
    def RemoveHabitatType(self, row):
        """Remove a habitat; only the headings of the wide table move, its cells stay until use is calculated."""
        if row < 1 or row > self.TotalHabitatTypes:
            return
        self.TotalHabitatTypes = RemoveGridEntry(self.flxHabitatTypes, row, self.TotalHabitatTypes)
        count = self.TotalHabitatTypes
        self.flxHabitatHetero.RemoveItem(row)
        wide, long = self.flxSummary[0], self.flxSummary[2]
        if row <= count and wide not in self.shiftedTables:
            self.shiftedTables.append(wide)
        for col in range(row, count + 1):
            wide.TextMatrix(0, col, wide.TextMatrix(0, col + 1))
        wide.Cols = count + 1
        if count != 0:
            for col in range(1, wide.Cols):
                wide.TextMatrix(0, col, CStr(col))
        else:
            wide.Rows = self.TotalSpecies + 1
        if self.TotalSpecies == 0:
            long.RemoveItem(row)
        elif count == 0:
            for s in range(1, self.TotalSpecies + 1):
                for col in (1, 2):
                    long.TextMatrix(s, col, "")
        else:
            removed = 0
            for s in range(1, self.TotalSpecies + 1):
                r = (count + 1) * (s - 1) + row - removed
                if row == 1 and r + 1 <= long.Rows - 1:
                    long.TextMatrix(r + 1, 0, long.TextMatrix(r, 0))
                long.RemoveItem(r)
                removed += 1

    # Human activities and functions

    @reported("Brenica.UpdateOtherLandUseFlexGrids")
    def UpdateOtherLandUseFlexGrids(self, n):
        """Grow the grids that depend on the human activities."""
        count = self.TotalLandUses
        if count < 1:
            return
        wide, bySpecies, byThreat = self.flxSummary[5:8]
        oldRows = self.flxLandUsesVulnerability.Rows
        UpdateFlexGrid(self.flxLandUsesVulnerability, n, 0, False)
        wide.Cols = count + 3
        for col in range(3, count + 3):
            wide.TextMatrix(0, col, CStr(col - 2))
        self.blankNewCells(wide, oldRows + 2)
        self.growLong(bySpecies, count, oldRows, n, False)
        if self.TotalSpecies == 0:
            UpdateFlexGrid(byThreat, n, 0, False)
            return
        for _ in self.newUnits(oldRows, n):
            for s in range(1, self.TotalSpecies + 1):
                byThreat.AddItem()
                byThreat.TextMatrix(byThreat.Rows - 1, 1, byThreat.TextMatrix(s, 1))

    @reported("Brenica.flxLandUses_CellChanged")
    def flxLandUses_CellChanged(self, row, col):
        """Name, urgency and probability stand in every species' block."""
        if row <= 0 or col == 0:
            return
        self.ProjectChanged = True
        value = self.flxLandUses.TextMatrix(row, col)
        if col == 1:
            self.flxLandUsesVulnerability.TextMatrix(row, 0, value)
            self.flxSummary[7].TextMatrix(self.blockRow(row, self.TotalSpecies), 0, value)
        if self.TotalSpecies == 0:
            self.flxSummary[6].TextMatrix(row, col, value)
        for s in range(1, self.TotalSpecies + 1):
            self.flxSummary[6].TextMatrix((s - 1) * self.TotalLandUses + row, col, value)

    @reported("Brenica.UpdateOtherFunctionFlexGrids")
    def UpdateOtherFunctionFlexGrids(self, n):
        """Grow the grids that depend on the functions."""
        if self.TotalFunctions < 1:
            return
        UpdateFlexGrid(self.flxFunctionality, n, 0, False)
        self.flxSummary[8].Cols = self.TotalFunctions + 1

    @reported("Brenica.flxFunctions_CellChanged")
    def flxFunctions_CellChanged(self, row, col):
        """A function's name heads its column."""
        if row < 1 or col == 0:
            return
        self.ProjectChanged = True
        if col == 1:
            name = self.flxFunctions.TextMatrix(row, 1)
            self.flxFunctionality.TextMatrix(row, 0, name)
            self.flxSummary[8].TextMatrix(0, row, name)

    # Home range definition

    def flxBins_CellChanged(self, row, col):
        """Any cell marks the project changed."""
        self.ProjectChanged = True

    @reported("Brenica.optHomeRangeType_Click")
    def optHomeRangeType_Click(self, index):
        """A change of the kind of home range wipes what was entered, if the user agrees."""
        if index == self.HomeRangeType:
            self.ProjectChanged = False
            return
        self.ProjectChanged = True
        if not self.HRDataExists():
            self.UpdateHRInfo(index)
            return
        if self.boxes.question(
            "Delete home range data",
            "You will lose all previously entered home range data by changing the home range type."
            " Do you wish to proceed?",
        ):
            RemoveHRData(self.flxSummary[4])
            self.UpdateHRInfo(index)
        else:
            self.optHomeRangeType.setOn(self.HomeRangeType)

    @reported("Brenica.HRDataExists")
    def HRDataExists(self):
        """Whether any species has a home range."""
        area = self.flxSummary[4]
        return any(Trim(area.TextMatrix(row, 3)) != "" for row in range(1, area.Rows))

    @reported("Brenica.UpdateHRInfo")
    def UpdateHRInfo(self, index):
        """Set the kind; the controls that it enables and shows hold no data."""
        self.HomeRangeType = index

    def readBreakpoints(self):
        """Breakpoints into labels and into the list of the user-defined bins."""
        breakpoints = GetColContents(self.flxBins, 1)
        if breakpoints is None:
            return
        self.UserBinBreakpoints = breakpoints
        self.UserBinLabels = ConstructIntervals(breakpoints)
        self.cbxUserDefBinsHR.Clear()
        UpdateComboBox(self.cbxUserDefBinsHR, self.UserBinLabels)

    @staticmethod
    def labelPosition(labels, text):
        """The first label that equals the text, from 0; -1 without one."""
        for position, label in enumerate(labels):
            if sameText(label, text):
                return position
        return -1
