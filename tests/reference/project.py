# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The empty project and the reader of project files."""

from conversion import CDbl, CLng, CStr, Round, Trim, fold, reported, sameText, splitLines
from helpers import GetAreaTotal

NUMBERED_KEYS = (("Function", "Functions"), ("Socio-Econ", "Socio-economic"), ("Data Quality", None))

VERSION_1_MESSAGE = (
    "As this is an early project files default values will be put in the"
    " 'Proportion of Landscape Occupied', 'Current Conservation Status', 'Habitat Level of Use',"
    " and 'Management Level of Use' fields. Remember to update these values."
)

HOME_RANGE_KINDS = ("continuous", "default bins", "user-defined bins")


class Project:
    """Brings the form to an empty project and reads a file into it."""

    @reported("Brenica.InitializeProject")
    def InitializeProject(self):
        """The state of a new project, in a running form."""
        self.tabBrenica.SelectedItem = 1
        self.CurrentMainTab = 1
        for grid in (
            self.flxCandidateSpecies,
            self.flxHabitatTypes,
            self.flxJurisUnits,
            self.flxLandUses,
            self.flxBins,
            self.flxFunctions,
        ):
            grid.Rows = 1
        self.CurrentCriteriaTab = 1
        self.cbxSpeciesName.Clear()
        self.cbxDataQuality.ListIndex = -1
        self.flxHabitatHetero.Rows = 1
        self.flxJurisUnitHetero.Rows = 1
        self.optHomeRangeType.setOn(0)
        self.HomeRangeType = 0
        self.cbxDispersalYN.ListIndex = 0
        self.cbxConnectivity.ListIndex = 0
        self.cbxDefaultBinsHR.ListIndex = -1
        self.flxLandUsesVulnerability.Rows = 1
        self.flxFunctionality.Rows = 1
        self.TotalSpecies = self.TotalHabitatTypes = self.TotalJurisUnits = 0
        self.TotalLandUses = self.TotalBins = 0
        self.HabitatAreaTotal = self.JurisUnitAreaTotal = 0.0
        self.TotalFunctions = 6
        self.ScoresCalculated = False
        self.shiftedTables = []
        self.RefreshingCriteria = False
        self.flxFunctions.Rows = 7
        self.UpdateOtherFunctionFlexGrids(6)
        for i, name in enumerate(self.FunctionNames, 1):
            self.flxFunctions.TextMatrix(i, 0, CStr(i))
            self.flxFunctions.TextMatrix(i, 1, name)
        for row in range(1, 6):
            self.flxSocioEcon.TextMatrix(row, 1, "0")
        self.CurrentSpeciesIndex = 0
        self.txtPropOccupied.Text = "0"
        for grid in self.flxSummary:
            grid.Rows = 1
        self.flxSummary[0].Cols = 1
        self.flxSummary[1].Cols = 1
        self.flxSummary[5].Cols = 3
        self.CurrentSummaryTab = 1
        for grid in (*self.flxScores, *self.flxScoresSort, self.flxBrenicSuite, *self.flxCompResults):
            grid.Rows = 1
        self.txtErrorMargin.Text = "5"
        self.txtThreatRep.Text = "0.5"
        self.txtCCSRep.Text = "1"
        self.txtContinuousHR.Text = "0"
        self.ProjectChanged = False

    @reported("Brenica.OpenProject")
    def OpenProject(self, text):
        """Read the lines of a project file; LineNumber tells how far it came."""
        self.ProjectLoading = True
        for self.LineNumber, line in enumerate(splitLines(text), 1):
            self.readLine(line)
        self.UpdateSpeciesList()
        if self.ProjectVersion == "":
            self.fillVersion1()
        self.ProjectLoading = False

    def readLine(self, line):
        """Act on one line: key, "=", values."""
        if "=" not in line:
            return
        key, value = (Trim(part) for part in line.split("=", 1))
        number = 0
        for stem, exception in NUMBERED_KEYS:
            if fold(stem) in fold(key) and not (exception and sameText(key, exception)):
                number = CLng(Trim(key[len(stem) :]))
                key = stem
        if value == "":
            return
        action = self.actions.get(fold(key))
        if action:
            action(value.split(","), number)

    @property
    def actions(self):
        """What each key does with its values and its number."""
        summary = self.flxSummary
        return {
            fold(key): action
            for key, action in (
                ("Project Version", self.readVersion),
                ("Common Name", self.readSpecies),
                ("Scientific Name", self.column(self.flxCandidateSpecies, 2)),
                ("Habitat Type", self.readHabitats),
                ("Habitat Area", self.areas(self.flxHabitatTypes)),
                ("Habitat UseLevel", self.column(self.flxHabitatTypes, 3)),
                ("Jurisdictional Unit", self.readJurisUnits),
                ("JU Area", self.areas(self.flxJurisUnits)),
                ("MZone UseLevel", self.column(self.flxJurisUnits, 3)),
                ("Land Use", self.readLandUses),
                ("Urgency", self.column(self.flxLandUses, 2)),
                ("Probability of occurence", self.column(self.flxLandUses, 3)),
                ("Home-range definition", self.readHomeRangeDefinition),
                ("Functions", self.readFunctions),
                ("HeteroHabitat Population", self.readHabitatLevels),
                ("HeteroJU Individual", self.readJurisUnitLevels),
                ("Area Dispersal", self.column(summary[4], 1)),
                ("Area Connectivity", self.column(summary[4], 2)),
                ("Home ranges", self.column(summary[4], 3)),
                ("Landscape Occupied", self.column(summary[4], 4)),
                ("Conservation Status", self.column(summary[5], 1)),
                ("VulnerabilitybySpecies Severity", self.ratings(4, 2)),
                ("VulnerabilitybySpecies Recovery", self.ratings(5, 3)),
                ("VulnerabilitybySpecies Proportion", self.ratings(6, 4)),
                ("Function", self.grades(summary[8])),
                ("Socio-Econ", self.grades(summary[9])),
                ("Data Quality", self.grades(summary[10])),
            )
        }

    @staticmethod
    def clipped(values, grid):
        """No more values than the grid has body rows."""
        return values[: max(grid.Rows - 1, 0)]

    def column(self, grid, col):
        """Values into a column."""

        def action(values, _):
            for i, value in enumerate(self.clipped(values, grid), 1):
                grid.TextMatrix(i, col, value)

        return action

    def areas(self, grid):
        """Areas into column 2; files of version 1 have no levels and get "2"."""

        def action(values, _):
            for i, value in enumerate(self.clipped(values, grid), 1):
                grid.TextMatrix(i, 2, value)
                if self.ProjectVersion == "":
                    grid.TextMatrix(i, 3, "2")

        return action

    def grades(self, grid):
        """A numbered line into its column; the grid takes the line's length, but has a row for each species."""

        def action(values, col):
            rows = max(len(values), self.TotalSpecies) + 1
            if grid.Rows != rows:
                grid.Rows = rows
            for i, value in enumerate(values, 1):
                grid.TextMatrix(i, col, value)
            if self.TotalSpecies == 0:
                grid.Rows = 1

        return action

    def ratings(self, colBySpecies, colByThreat):
        """Ratings by species and then by activity, into both orders; passed over where one of the two is missing."""

        def action(values, _):
            if self.TotalLandUses == 0 or self.TotalSpecies == 0:
                return
            bySpecies, byThreat = self.flxSummary[6], self.flxSummary[7]
            values = self.clipped(values, bySpecies)
            for i, value in enumerate(values, 1):
                bySpecies.TextMatrix(i, colBySpecies, value)
            for i, value in enumerate(self.clipped(values, byThreat), 1):
                a = i % self.TotalLandUses or self.TotalLandUses
                s = (i - 1) // self.TotalLandUses
                byThreat.TextMatrix((a - 1) * self.TotalSpecies + s + 1, colByThreat, value)

        return action

    def readVersion(self, values, _):
        """Any text is a version; only an empty one is the first."""
        self.ProjectVersion = values[0]

    def readSpecies(self, values, _):
        """The species list. The old count is given as True, which is -1 as a number."""
        self.flxCandidateSpecies.Rows = len(values) + 1
        self.TotalSpecies = len(values)
        self.UpdateOtherSpeciesFlexGrids(len(values), -1)
        self.fillList(self.flxCandidateSpecies, values)

    def readHabitats(self, values, _):
        """The habitat list."""
        self.flxHabitatTypes.Rows = len(values) + 1
        self.TotalHabitatTypes = len(values)
        self.UpdateOtherHabitatFlexGrids(len(values))
        self.fillList(self.flxHabitatTypes, values)

    def readJurisUnits(self, values, _):
        """The zone list."""
        self.flxJurisUnits.Rows = len(values) + 1
        self.TotalJurisUnits = len(values)
        self.UpdateOtherJurisUnitFlexGrids(len(values))
        self.fillList(self.flxJurisUnits, values)

    def readLandUses(self, values, _):
        """The list of human activities."""
        self.flxLandUses.Rows = len(values) + 1
        self.TotalLandUses = len(values)
        self.UpdateOtherLandUseFlexGrids(len(values))
        self.fillList(self.flxLandUses, values)

    def readFunctions(self, values, _):
        """The function list."""
        self.flxFunctions.Rows = len(values) + 1
        self.TotalFunctions = len(values)
        self.flxFunctionality.Rows = 1
        self.UpdateOtherFunctionFlexGrids(len(values))
        self.fillList(self.flxFunctions, values)

    @staticmethod
    def fillList(grid, names):
        """Numbers and names of a list."""
        for i, name in enumerate(names, 1):
            grid.TextMatrix(i, 0, CStr(i))
            grid.TextMatrix(i, 1, name)

    def readHomeRangeDefinition(self, values, _):
        """The kind of home range, and the breakpoints of user-defined bins."""
        kind = 0
        for index, name in enumerate(HOME_RANGE_KINDS):
            if sameText(values[0], name):
                kind = index
                self.optHomeRangeType.setOn(index)
                break
        if kind == 2:
            self.flxBins.Rows = len(values)
            self.TotalBins = len(values) - 1
            self.fillList(self.flxBins, values[1:])
            self.readBreakpoints()
        self.UpdateHRInfo(kind)

    def readHabitatLevels(self, values, _):
        """Levels of use of the habitats."""
        self.readLevels(values, self.flxSummary[2], self.flxSummary[0], self.TotalHabitatTypes)

    def readJurisUnitLevels(self, values, _):
        """Levels of use of the zones."""
        self.readLevels(values, self.flxSummary[3], self.flxSummary[1], self.TotalJurisUnits)

    def readLevels(self, values, long, wide, count):
        """Levels into the long and the wide table; version 1 knew only 0 and 1. Passed over without species or units."""
        if self.TotalSpecies == 0 or count == 0:
            return
        s = unit = 1
        for i, value in enumerate(self.clipped(values, long), 1):
            if self.ProjectVersion == "":
                if value == "" or CDbl(value) == 0:
                    value = "0"
                elif CDbl(value) == 1:
                    value = "2"
            long.TextMatrix(i, 2, value)
            if unit > count:
                unit = 1
                s += 1
            wide.TextMatrix(s, unit, value)
            unit += 1

    def fillVersion1(self):
        """The values that files of version 1 did not have."""
        for units in (self.flxHabitatTypes, self.flxJurisUnits):
            for row in range(1, units.Rows):
                if Trim(units.TextMatrix(row, 3)) == "":
                    units.TextMatrix(row, 3, "2")
        self.CalculateHabitatUse()
        self.CalculateJurisUnitUse()
        self.readAreas()
        for s in range(1, self.TotalSpecies + 1):
            proportion = self.proportionUsed(
                s, self.flxSummary[0], self.TotalHabitatTypes, self.HabitatAreas,
                self.HabitatAreaTotal, self.HabitatAreasEntered,
            )
            if proportion == 0:
                ofZones = self.proportionUsed(
                    s, self.flxSummary[1], self.TotalJurisUnits, self.JurisUnitAreas,
                    self.JurisUnitAreaTotal, self.JurisUnitAreasEntered,
                )
            if proportion > 0:
                text = CStr(Round(proportion, 3))
            elif proportion == 0 and ofZones > 0:
                text = CStr(Round(ofZones, 3))
            else:
                text = "0"
            self.flxSummary[4].TextMatrix(s, 4, text)
        for s in range(1, self.TotalSpecies + 1):
            self.flxSummary[5].TextMatrix(s, 1, "1")
        self.flxSummary[5].TextMatrix(0, 1, "CCS")
        self.boxes.message("Version 1 poject file", VERSION_1_MESSAGE)

    @staticmethod
    def proportionUsed(s, wide, count, areas, areaTotal, areasEntered):
        """The share of the landscape that a species uses, by areas or by counts."""
        if count <= 0:
            return 0.0
        used = CLng(wide.TextMatrix(s, wide.Cols - 1))
        if areaTotal > 0 and areasEntered:
            area = 0.0
            for unit in range(1, count + 1):
                text = wide.TextMatrix(s, unit)
                if text != "" and CDbl(text) != 0:
                    area += areas[unit - 1]
            return Round(area / areaTotal, 3)
        if not areasEntered:
            return Round(used / count, 3)
        return 0.0

    def readAreas(self):
        """The area sums of habitats and zones; a sum equal to the count is none."""
        self.HabitatAreasEntered = False
        if self.TotalHabitatTypes > 0:
            self.HabitatAreas = [0.0] * self.TotalHabitatTypes
            self.HabitatAreaTotal = GetAreaTotal(
                self.flxHabitatTypes, self.TotalHabitatTypes, self.HabitatAreas
            )
            self.HabitatAreasEntered = self.HabitatAreaTotal != self.TotalHabitatTypes
        self.JurisUnitAreasEntered = False
        if self.TotalJurisUnits > 0:
            self.JurisUnitAreas = [0.0] * self.TotalJurisUnits
            self.JurisUnitAreaTotal = GetAreaTotal(
                self.flxJurisUnits, self.TotalJurisUnits, self.JurisUnitAreas
            )
            self.JurisUnitAreasEntered = self.JurisUnitAreaTotal != self.TotalJurisUnits
