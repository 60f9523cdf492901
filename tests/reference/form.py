# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The main form: its grids, boxes and fields after its load, its pages and its text files."""

from conversion import CStr, reported
from criteria import Criteria
from grids import Boxes, ComboBox, Grid, OptionGroup, TabStrip, TextBox
from helpers import CheckTotal
from lists import Lists
from project import Project
from scoring import Scoring
from selection import ALL_COVERED, MARGIN_GREEN, NOT_COVERED, OMITTED_RED, PICKED_YELLOW, Selection, excludedHeading

FUNCTION_NAMES = (
    "Predation",
    "Seed dispersal",
    "Seed predation",
    "Pollination",
    "Mechanical disturbance",
    "Competitive interactions",
)
SOCIO_ECON_NAMES = (
    "Potential flagship species",
    "Positive local cultural value",
    "Negative local cultural value",
    "Negative economic value",
    "Positive economic value",
)
CRITERION_NAMES = ("Heterogeneity", "Area", "Vulnerability", "Functionality", "Socio-economic")
DEFAULT_BIN_LABELS = ("0 - 1 km2", "1 - 10 km2", "10 - 25 km2", "25 - 50 km2", "50 - 100 km2", "100+ km2")
DATA_QUALITY_LEVELS = (
    "1 - Excellent data from site",
    "2 - Excellent data from similar site",
    "3 - Good data from site/similar site",
    "4 - Bad or incomplete data from site/similar site",
    "5 - Data from similar species/dissimilar site",
    "6 - No data just informed guesses",
)

SUMMARY_HEADINGS = (
    ("Common Name",),
    ("Common Name",),
    ("Common Name", "Habitat Name", "Level of Use"),
    ("Common Name", "MZ Name", "Level of Use"),
    ("Common Name", "Dispersal > 10 km", "Connectivity", "Home Range", "Landscape Occupied"),
    ("Common Name", "CCS", ""),
    ("Common Name", "Human Activity", "Urgency", "Probability of occurence",
     "Severity", "Recovery", "Proportion affected"),
    ("Human Activity", "Common Name", "Severity", "Recovery", "Proportion affected"),
    ("Common Name", *FUNCTION_NAMES),
    ("Common Name", *SOCIO_ECON_NAMES),
    ("Common Name", *CRITERION_NAMES),
)
SCORE_HEADINGS = (
    ("Common Name", "Rank", "Aggregate", "H", "A", "V", "F", "S-E"),
    ("Common Name", "H", "A", "V", "F", "S-E"),
)
RESULT_HEADINGS = (
    ("Common Name", "Rank", "Aggregate", "ReH", "A", "ReV", "F", "S-E",
     "Add. Habitats", "Add. MZones", "Add. Threats", ""),
    ("Habitat Name", "First covered by species"),
    ("MZ Name", "First covered by species"),
    ("Potential threat", "First covered by species"),
)


class frmBrenica(Lists, Criteria, Project, Scoring, Selection):
    """Holds the state and moves between the pages."""

    FunctionNames = FUNCTION_NAMES
    DefaultBinLabels = DEFAULT_BIN_LABELS

    def __init__(self, answers=()):
        self.boxes = Boxes(answers)
        self.loadFields()
        self.loadGrids()
        self.loadControls()

    def loadFields(self):
        """The fields of a new project."""
        self.ProjectVersion = ""
        self.TotalSpecies = self.TotalHabitatTypes = self.TotalJurisUnits = 0
        self.TotalLandUses = self.TotalBins = 0
        self.TotalFunctions = 6
        self.HabitatAreaTotal = self.JurisUnitAreaTotal = 0.0
        self.HabitatAreas, self.JurisUnitAreas = [], []
        self.HabitatAreasEntered = self.JurisUnitAreasEntered = False
        self.ScoresCalculated = False
        self.TopRankedSpecies = ""
        self.SpeciesRanks = []
        self.UserBinLabels, self.UserBinBreakpoints = [], []
        self.ExcludedSpeciesList = ""
        self.ExcludedSpeciesCount = 0
        self.SelectionStarting = False
        self.CurrentMainTab = self.CurrentCriteriaTab = self.CurrentSummaryTab = 1
        self.HomeRangeType = self.CurrentSpeciesIndex = 0
        self.ProjectChanged = self.ProjectLoading = self.RefreshingCriteria = False
        self.LineNumber = 0
        self.shiftedTables = []
        self.complementEnabled = self.exportEnabled = False

    def loadGrids(self):
        """Every grid with its headings."""
        self.flxCandidateSpecies = Grid(("No.", "Common Name", "Scientific Name"))
        self.flxHabitatTypes = Grid(("No.", "Habitat Name", "Area", "Level of Use"))
        self.flxJurisUnits = Grid(("No.", "MZ Name", "Area", "Level of Use"))
        self.flxLandUses = Grid(("No.", "Human Activity", "Urgency", "Probability of occurence"))
        self.flxBins = Grid(("No.", "Breakpoint"))
        self.flxFunctions = Grid(("No.", "Functions"))
        self.flxHabitatHetero = Grid(("Habitat Name", "Level of Use"))
        self.flxJurisUnitHetero = Grid(("MZ Name", "Level of Use"))
        self.flxLandUsesVulnerability = Grid(("Human Activity", "Severity", "Recovery", "Proportion affected"))
        self.flxFunctionality = Grid(("Functions", "Has an effect on"))
        self.flxSocioEcon = Grid(("Socio-economic", "Significance?"))
        self.flxSummary = [Grid(headings) for headings in SUMMARY_HEADINGS]
        self.flxScores = [Grid(headings) for headings in SCORE_HEADINGS]
        self.flxScoresSort = [Grid((*headings, "")) for headings in SCORE_HEADINGS]
        self.flxCompResults = [Grid(headings) for headings in RESULT_HEADINGS]
        self.flxBrenicSuite = Grid(("No.", "Common Name", "Habitat Types", "Manag. Zones", "Threats"))
        self.flxFunctions.Rows = self.flxFunctionality.Rows = 7
        for i, name in enumerate(FUNCTION_NAMES, 1):
            self.flxFunctions.TextMatrix(i, 0, CStr(i))
            self.flxFunctions.TextMatrix(i, 1, name)
            self.flxFunctionality.TextMatrix(i, 0, name)
        self.flxSocioEcon.Rows = 6
        for i, name in enumerate(SOCIO_ECON_NAMES, 1):
            self.flxSocioEcon.TextMatrix(i, 0, name)
        for name in ("flxCandidateSpecies", "flxHabitatTypes", "flxJurisUnits", "flxLandUses", "flxBins",
                     "flxFunctions", "flxLandUsesVulnerability", "flxFunctionality", "flxSocioEcon"):
            getattr(self, name).CellChanged = getattr(self, name + "_CellChanged")
        for index, grid in enumerate(self.flxSummary):
            grid.CellChanged = lambda row, col, i=index: self.flxSummary_CellChanged(i, row, col)

    def loadControls(self):
        """The boxes that hold or change data."""
        self.tabBrenica = TabStrip(self.tabBrenica_Click)
        self.optHomeRangeType = OptionGroup(0, self.optHomeRangeType_Click)
        self.cbxSpeciesName = ComboBox((), self.cbxSpeciesName_Click)
        self.cbxDispersalYN = ComboBox(("N/A", "Y", "N"), self.cbxDispersalYN_Click)
        self.cbxConnectivity = ComboBox(("N/A", "Y", "N"), self.cbxConnectivity_Click)
        self.cbxDispersalYN.ListIndex = self.cbxConnectivity.ListIndex = 0
        self.cbxDefaultBinsHR = ComboBox(DEFAULT_BIN_LABELS, self.cbxDefaultBinsHR_Click)
        self.cbxUserDefBinsHR = ComboBox((), self.cbxUserDefBinsHR_Click)
        self.cbxDataQuality = ComboBox(DATA_QUALITY_LEVELS, self.cbxDataQuality_Click)
        self.txtContinuousHR = TextBox("0", self.txtContinuousHR_Change)
        self.txtPropOccupied = TextBox("0", self.txtPropOccupied_Change)
        self.txtCCS = TextBox("1", self.txtCCS_Change)
        self.txtErrorMargin = TextBox("5", self.txtErrorMargin_Change)
        self.txtThreatRep = TextBox("0.5", self.txtThreatRep_Change)
        self.txtCCSRep = TextBox("1", self.txtCCSRep_Change)

    def txtErrorMargin_Change(self):
        """Bound the margin of error."""
        CheckTotal(self.boxes, self.txtErrorMargin, "margin of error", "0", "100", "0")

    def txtThreatRep_Change(self):
        """Bound the threat representation."""
        CheckTotal(self.boxes, self.txtThreatRep, "score level for threat representation", "0", "1", "0")

    def txtCCSRep_Change(self):
        """Bound the conservation status representation."""
        CheckTotal(self.boxes, self.txtCCSRep, "conservation status", "0", "1", "1")

    # Pages

    @reported("Brenica.tabBrenica_Click")
    def tabBrenica_Click(self):
        """Gate, work of leaving, work of entering."""
        new = self.tabBrenica.SelectedItem
        if new == self.CurrentMainTab:
            return
        if not self.ValidateMainTab(self.CurrentMainTab):
            self.tabBrenica.SelectedItem = self.CurrentMainTab
            return
        self.leavePage(self.CurrentMainTab)
        old, self.CurrentMainTab = self.CurrentMainTab, new
        self.enterPage(new, old)
        self.flxSummary[5].TextMatrix(0, 1, "CCS")

    def leavePage(self, page):
        """The work of leaving a page."""
        if page == 1:
            self.UpdateSpeciesList()
        elif page == 2 and self.HomeRangeType == 2:
            self.readBreakpoints()
            self.readAreas()
        elif page == 3 and self.TotalSpecies >= 1 and self.CurrentCriteriaTab == 3:
            self.flxSummary[5].TextMatrix(self.CurrentSpeciesIndex, 1, self.txtCCS.Text)
        elif page == 6:
            self.flxScoresSort[0].Select(0, 8)
            self.flxScoresSort[0].Sort(1)
            self.flxScoresSort[1].Select(0, 6)
            self.flxScoresSort[1].Sort(1)

    def enterPage(self, page, old):
        """The work of entering a page. The charts of page 5 only read, and no output shows them."""
        if page == 3:
            self.RefreshSpeciesCriteriaVals()
        calculates = page == 4 or (page in (5, 6) and old != 4) or (page == 7 and old <= 3)
        if calculates:
            self.CalculateHabitatUse()
            self.CalculateJurisUnitUse()
            self.CalculateVunerabilityScores()
        if page == 6 or (page == 7 and old <= 3):
            self.CalculateScores()
        if page == 7:
            self.exportEnabled = False
            self.complementEnabled = self.ScoresCalculated

    # Text files

    def tables(self):
        """Every table as a grid text file, by the name that the export proposes."""
        summary = self.flxSummary
        named = {
            "CandidateSpeciesData": self.flxCandidateSpecies,
            "HabitatData": self.flxHabitatTypes,
            "ManagZonesData": self.flxJurisUnits,
            "HumanActivityData": self.flxLandUses,
            "FunctionData": self.flxFunctions,
            "HabitatHeterogeneityDetailedSummary": summary[2],
            "ManagZonesHeterogeneityDetailedSummary": summary[3],
            "AreaSummary": summary[4],
            "VulnerabilityBySpeciesSummary": summary[6],
            "VulnerabilityByThreatSummary": summary[7],
            "FunctionalitySummary": summary[8],
            "SocioEconSummary": summary[9],
            "DataQualitySummaryData": summary[10],
            "NormalizedScoresData": self.flxScoresSort[0],
            "OriginalScoresData": self.flxScoresSort[1],
            "BrenicSuiteData": self.flxBrenicSuite,
            "OverallComplementarityData": self.flxCompResults[0],
            "HabitatsCoveredData": self.flxCompResults[1],
            "JurisUnitsCoveredData": self.flxCompResults[2],
            "ThreatsCoveredData": self.flxCompResults[3],
        }
        if self.HomeRangeType == 2:
            named["BinData"] = self.flxBins
        texts = {name: grid.text() for name, grid in named.items()}
        for name, grid, names, count, shift in (
            ("HabitatHeterogeneitySummary", summary[0], self.flxHabitatTypes, self.TotalHabitatTypes, 0),
            ("ManagZonesHeterogeneitySummary", summary[1], self.flxJurisUnits, self.TotalJurisUnits, 0),
            ("VulnerabilitySummary", summary[5], self.flxLandUses, self.TotalLandUses, 2),
        ):
            texts[name] = self.withLongNames(grid, names, count, shift)
        return {name + ".txt": text.encode("utf-8") for name, text in texts.items()}

    @staticmethod
    def withLongNames(grid, names, count, shift):
        """A grid's text with names as headings; the numbers come back afterwards."""
        for unit in range(1, count + 1):
            grid.TextMatrix(0, unit + shift, names.TextMatrix(unit, 1))
        text = grid.text()
        for unit in range(1, count + 1):
            grid.TextMatrix(0, unit + shift, CStr(unit))
        return text

    def cmdExportResults_Click(self):
        """The text of the results file, read back from grids and cell colours."""
        lines = []
        if self.ExcludedSpeciesCount > 0:
            lines += [excludedHeading(self.ExcludedSpeciesCount), self.ExcludedSpeciesList, ""]
        lines.append("Brenic Species by Rank with Aggregate Score:")
        for i in range(1, self.TotalSpecies + 1):
            r = self.SpeciesRanks[i - 1]
            name, score = self.flxCandidateSpecies.TextMatrix(r, 1), self.flxScores[0].TextMatrix(r, 2)
            lines.append(f"{i}. {name}  ({score})")
        lines += ["", ""]
        lines.append(CStr(self.ErrorMargin) + " % Error margin")
        lines.append(CStr(self.ThreatRepresentation) + " Threat representation")
        lines.append(CStr(self.ConservationStatusRepresentation) + " Conservation status representation")
        lines += ["", "The Suite of Brenic Species:"]
        for i in range(1, self.flxBrenicSuite.Rows):
            lines.append(f"{i}. {self.flxBrenicSuite.TextMatrix(i, 1)}")
        lines += ["", "", "The complementarity data:"]
        lines += ["S = selected species", "X = excluded species", "M = margin of error species"]
        lines.append("\t" * 10 + "Additional")
        lines.append("\t".join(("Species".ljust(20), "Rank", "Score", "Hetero", "Area", "Vuln", "Func",
                                "SE", "Habs", "MZones", "Threats")))
        for row in range(1, self.flxCompResults[0].Rows):
            lines.append(self.dataLine(row))
        lines += ["", "", *self.coverageLines()]
        return "".join(line + "\r\n" for line in lines)

    def dataLine(self, row):
        """Mark, name and values of one row of the passes."""
        grid = self.flxCompResults[0]
        grid.Select(row, 1)
        if grid.CellBackColor == PICKED_YELLOW:
            mark = "S "
        elif grid.CellBackColor == OMITTED_RED:
            mark = "X "
        else:
            grid.Select(row, 0)
            mark = "M " if grid.CellBackColor == MARGIN_GREEN else "  "
        line = (mark + grid.TextMatrix(row, 0))[:27].ljust(27)
        for col in range(1, grid.Cols - 1):
            line += grid.TextMatrix(row, col) + "\t"
        return line

    def coverageLines(self):
        """What stays uncovered."""
        lists = []
        for view, names, count, prefix in (
            (self.flxCompResults[1], self.flxHabitatTypes, self.TotalHabitatTypes, "Habitat types: "),
            (self.flxCompResults[2], self.flxJurisUnits, self.TotalJurisUnits, "Management Zones: "),
            (self.flxCompResults[3], self.flxLandUses, self.TotalLandUses, "Threats: "),
        ):
            left = [names.TextMatrix(u, 1) for u in range(1, count + 1) if view.TextMatrix(u, 1) == ""]
            if left:  # a unit without a name is uncovered as well
                lists.append(prefix + ", ".join(left))
        return [NOT_COVERED + "\r", *lists] if lists else [ALL_COVERED]
