# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The criteria page: views on the summary grids that write back what they are given."""

from conversion import CDbl, CLng, CStr, RunTimeError, Trim, reported, sameText, toLong
from helpers import CheckTotal, GetComboIndex, GetFuncSEVals, GetHeteroVals, GetVulnVals


class Criteria:
    """Fills the views of one species; every fill fires the handlers of the controls."""

    @reported("Brenica.cbxSpeciesName_Click")
    def cbxSpeciesName_Click(self):
        """Reload the views."""
        self.RefreshSpeciesCriteriaVals()

    @reported("Brenica.RefreshSpeciesCriteriaVals")
    def RefreshSpeciesCriteriaVals(self):
        """Show the chosen species, or blank the page."""
        summary = self.flxSummary
        self.CurrentSpeciesIndex = s = GetComboIndex(self.cbxSpeciesName) + 1
        if s == 0:
            self.blankCriteria()
            return
        GetHeteroVals(s, self.TotalHabitatTypes, summary[2], self.flxHabitatHetero)
        GetHeteroVals(s, self.TotalJurisUnits, summary[3], self.flxJurisUnitHetero)
        self.GetAreaVals(s)
        GetVulnVals(s, self.TotalLandUses, summary[6], self.flxLandUsesVulnerability)
        status = summary[5].TextMatrix(s, 1)
        if status != "":
            self.txtCCS.Text = status
        else:
            self.RefreshingCriteria = True
            self.txtCCS.Text = "1"
            self.RefreshingCriteria = False
        GetFuncSEVals(s, self.TotalFunctions, summary[8], self.flxFunctionality)
        GetFuncSEVals(s, 5, summary[9], self.flxSocioEcon)
        quality = summary[10].TextMatrix(s, self.CurrentCriteriaTab)
        self.cbxDataQuality.ListIndex = -1 if quality == "" else CLng(quality) - 1

    def blankCriteria(self):
        """The page with no species chosen."""
        self.blankEntries(self.flxHabitatHetero, self.TotalHabitatTypes, (1,))
        self.blankEntries(self.flxJurisUnitHetero, self.TotalJurisUnits, (1,))
        self.cbxDispersalYN.ListIndex = 0
        self.cbxConnectivity.ListIndex = 0
        self.cbxDefaultBinsHR.ListIndex = -1
        self.cbxUserDefBinsHR.ListIndex = -1
        self.txtContinuousHR.Text = "0"
        self.txtPropOccupied.Text = "0"
        self.txtCCS.Text = "1"
        self.blankEntries(self.flxLandUsesVulnerability, self.TotalLandUses, (1, 2, 3))
        self.blankEntries(self.flxFunctionality, self.TotalFunctions, (1,))
        self.blankEntries(self.flxSocioEcon, 5, (1,))
        self.cbxDataQuality.ListIndex = -1

    @staticmethod
    def blankEntries(grid, count, cols):
        """Blank the entries of a view."""
        for row in range(1, count + 1):
            for col in cols:
                grid.TextMatrix(row, col, "")

    @reported("FlexGridUtilities.GetAreaVals")
    def GetAreaVals(self, species):
        """Load the controls of the area page."""
        if species < 1:
            return
        area = self.flxSummary[4]
        for col, box in ((1, self.cbxDispersalYN), (2, self.cbxConnectivity)):
            text = area.TextMatrix(species, col)
            if text == "":
                box.ListIndex = 0
            elif sameText(text, "Y"):
                box.ListIndex = 1
            elif sameText(text, "N"):
                box.ListIndex = 2
        self.txtPropOccupied.Text = area.TextMatrix(species, 4)
        text = area.TextMatrix(species, 3)
        if self.HomeRangeType == 0:
            self.txtContinuousHR.Text = "0" if text == "" else text
        elif self.HomeRangeType == 1:
            position = -1 if text == "" else self.labelPosition(self.DefaultBinLabels, text)
            self.cbxDefaultBinsHR.ListIndex = position
        elif self.HomeRangeType == 2 and self.TotalBins >= 1:
            labels = self.UserBinLabels[: self.TotalBins]
            self.cbxUserDefBinsHR.ListIndex = -1 if text == "" else self.labelPosition(labels, text)

    # Handlers of the controls

    @reported("Brenica.cbxDispersalYN_Click")
    def cbxDispersalYN_Click(self):
        """Store the dispersal."""
        self.storeYN(self.cbxDispersalYN, 1)

    @reported("Brenica.cbxConnectivity_Click")
    def cbxConnectivity_Click(self):
        """Store the connectivity."""
        self.storeYN(self.cbxConnectivity, 2)

    def storeYN(self, box, col):
        """"N/A" is stored as an empty text."""
        if self.CurrentSpeciesIndex != 0:
            text = box.Text if box.ListIndex >= 1 else ""
            self.flxSummary[4].TextMatrix(self.CurrentSpeciesIndex, col, text)

    @reported("Brenica.txtPropOccupied_Change")
    def txtPropOccupied_Change(self):
        """Bound and store the proportion occupied."""
        CheckTotal(self.boxes, self.txtPropOccupied, "proportion occupied", "0", "1", "0")
        if self.CurrentSpeciesIndex != 0:
            self.flxSummary[4].TextMatrix(self.CurrentSpeciesIndex, 4, self.txtPropOccupied.Text)

    @reported("Brenica.txtContinuousHR_Change")
    def txtContinuousHR_Change(self):
        """Bound and store a continuous home range; zero means none."""
        box = self.txtContinuousHR
        CheckTotal(self.boxes, box, "continuous home range", "0", "10000000", "0")
        if self.CurrentSpeciesIndex != 0:
            text = "" if CDbl(box.Text) <= 0 else box.Text
            self.flxSummary[4].TextMatrix(self.CurrentSpeciesIndex, 3, text)

    @reported("Brenica.cbxDefaultBinsHR_Click")
    def cbxDefaultBinsHR_Click(self):
        """Store the chosen default bin."""
        if self.CurrentSpeciesIndex != 0:
            self.flxSummary[4].TextMatrix(self.CurrentSpeciesIndex, 3, self.cbxDefaultBinsHR.Text)

    @reported("Brenica.cbxUserDefBinsHR_Click")
    def cbxUserDefBinsHR_Click(self):
        """Store the chosen user-defined bin."""
        if self.CurrentSpeciesIndex != 0:
            self.flxSummary[4].TextMatrix(self.CurrentSpeciesIndex, 3, self.cbxUserDefBinsHR.Text)

    @reported("Brenica.txtCCS_Change")
    def txtCCS_Change(self):
        """Bound and store the conservation status, unless the page shows a default."""
        CheckTotal(self.boxes, self.txtCCS, "current conservation status", "0", "1", "1")
        if self.CurrentSpeciesIndex != 0 and not self.RefreshingCriteria:
            self.flxSummary[5].TextMatrix(self.CurrentSpeciesIndex, 1, self.txtCCS.Text)

    @reported("Brenica.cbxDataQuality_Change")
    def cbxDataQuality_Click(self):
        """Store the level of the criterion in view."""
        if self.TotalSpecies > 0 and self.cbxDataQuality.ListIndex >= 0:
            level = CStr(self.cbxDataQuality.ListIndex + 1)
            self.flxSummary[10].TextMatrix(self.CurrentSpeciesIndex, self.CurrentCriteriaTab, level)

    @reported("Brenica.flxLandUsesVulnerability_CellChanged")
    def flxLandUsesVulnerability_CellChanged(self, row, col):
        """A rating reaches both of its summary grids."""
        s = self.CurrentSpeciesIndex
        if row <= 0 or s == 0 or col not in (1, 2, 3):
            return
        value = self.flxLandUsesVulnerability.TextMatrix(row, col)
        self.flxSummary[6].TextMatrix((s - 1) * self.TotalLandUses + row, col + 3, value)
        self.flxSummary[7].TextMatrix((row - 1) * self.TotalSpecies + s, col + 1, value)

    @reported("Brenica.flxFunctionality_CellChanged")
    def flxFunctionality_CellChanged(self, row, col):
        """Store a function's grade."""
        if row > 0 and col != 0 and self.CurrentSpeciesIndex != 0:
            self.ProjectChanged = True
            value = self.flxFunctionality.TextMatrix(row, col)
            self.flxSummary[8].TextMatrix(self.CurrentSpeciesIndex, row, value)

    @reported("Brenica.flxSocioEcon_CellChanged")
    def flxSocioEcon_CellChanged(self, row, col):
        """Store a socio-economic grade."""
        if row > 0 and self.CurrentSpeciesIndex != 0:
            self.ProjectChanged = True
            value = self.flxSocioEcon.TextMatrix(row, col)
            self.flxSummary[9].TextMatrix(self.CurrentSpeciesIndex, row, value)

    def flxSummary_CellChanged(self, index, row, col):
        """Write-through of edits on the summary page; a failing statement is skipped."""
        self.ProjectChanged = True
        if self.CurrentMainTab != 4:
            return
        if index in (0, 1) and self.CurrentSummaryTab == 1:
            count = (self.TotalHabitatTypes, self.TotalJurisUnits)[index]
            if row == 0 or col > count or row > self.TotalSpecies:
                return
            wide = self.flxSummary[index]
            if wide in self.shiftedTables:
                return
            value = wide.TextMatrix(row, col)
            column = [(r, col) for r in range(1, self.TotalSpecies + 1)]
            self.redoTotals(wide, column, (wide.Rows - 2, col), (wide.Rows - 1, col))
            cells = [(row, c) for c in range(1, count + 1)]
            self.redoTotals(wide, cells, (row, wide.Cols - 2), (row, wide.Cols - 1))
            self.skipping(self.flxSummary[index + 2].TextMatrix, (row - 1) * count + col, 2, value)
        elif index == 7 and self.CurrentSummaryTab == 6 and row >= 1 and self.CurrentSpeciesIndex != 0:
            if self.TotalLandUses == 0:
                return
            t = (row - 1) // self.TotalSpecies + 1
            s = row % self.TotalSpecies or self.TotalSpecies
            if col in (2, 3, 4):
                target = (s - 1) * self.TotalLandUses + t
                value = self.flxSummary[7].TextMatrix(row, col)
                self.skipping(self.flxSummary[6].TextMatrix, target, col + 2, value)

    def redoTotals(self, wide, cells, sumCell, countCell):
        """The sum and the count of the values above 0 of some cells."""
        total = count = value = 0
        for row, col in cells:
            text = wide.TextMatrix(row, col)
            try:
                value = 0 if Trim(text) == "" else toLong(CDbl(text))
            except RunTimeError:
                pass
            total += value
            count += value > 0
        self.skipping(wide.TextMatrix, *sumCell, CStr(total))
        self.skipping(wide.TextMatrix, *countCell, CStr(count))

    @staticmethod
    def skipping(statement, *arguments):
        """Run a statement and skip it when it fails."""
        try:
            statement(*arguments)
        except RunTimeError:
            pass
