// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <iterator>

#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "entry/modGeneralUtilities.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"

namespace {

constexpr int StartWidth = 11000;
constexpr int StartHeight = 7000;
constexpr ui::Size LeastRoom{10000, 6200};  // which the layout was tried with
constexpr int HideReadOnlyAndAskBeforeOverwriting = 6;

/// Sets a grid up with one column a heading and one fixed column.
template <std::size_t Count>
void setUp(ui::Grid& grid, const char* const (&headings)[Count], bool checked = false) {
    modFlexGridUtilities::InitFlexGrid(grid, static_cast<int>(Count), headings, checked, 1);
}

template <std::size_t Count>
void setUpReadOnly(ui::Grid& grid, const char* const (&headings)[Count], bool checked = false) {
    setUp(grid, headings, checked);
    grid.Editable = ui::EditMode::ReadOnly;
}

/// Shows the first element and hides the others.
template <class T>
void showFirstOnly(ui::ControlArray<T>& controls) {
    for (T& control : controls) control.Visible(false);
    controls(0).Visible(true);
}

/// "Common Name", then the given names.
template <std::size_t Count>
void setUpBySpecies(ui::Grid& grid, const std::array<const char*, Count>& names) {
    std::array<const char*, Count + 1> headings{"Common Name"};
    std::copy(names.begin(), names.end(), headings.begin() + 1);
    modFlexGridUtilities::InitFlexGrid(grid, static_cast<int>(headings.size()), headings, false, 1);
    grid.Editable = ui::EditMode::ReadOnly;
}

struct ChartHeadings {
    const char* Title;
    const char* XAxis;
    const char* YAxis;
};

constexpr std::array<ChartHeadings, 8> SummaryCharts = {{
    {"Number of species using the habitat", "Habitat Type", "Number of species"},
    {"Number of habitats used by each species", "Species common name", "Number of habitats"},
    {"Number of species using the management zone", "Jurisdictional Unit", "Number of species"},
    {"Number of management zones used by each species", "Species common name", "Number of management zones"},
    {"Number of human activities potentially threatening a species", "Species common name",
     "Number of human activities"},
    {"Vulnerability score for each species", "Species common name", "Summed vulnerability score"},
    {"Number of species potentially threatended by a human activity", "Human Activity", "Number of species"},
    {"Vulnerability score for each human activity", "Human Activity", "Summed vulnerability score"},
}};

}  // namespace

void frmBrenica::Form_Load() try {
    setUpFileDialog();
    global_.ProjectFileName.clear();
    Width(StartWidth);
    Height(StartHeight);
    LeastSize = LeastRoom;
    showFirstOnly(fraTabContents);
    CurrentMainTab = 1;
    setUpListPages();
    setUpCriteriaPage();
    setUpSummaryPage();
    setUpGraphPage();
    setUpScorePage();
    setUpResultsPage();
    ProjectChanged = false;
    ResizeForm();
    WindowState(ui::WindowState::Maximized);
} catch (...) {
    ReportError(9999, "Brenica.Form_Load", "");
}

void frmBrenica::setUpFileDialog() {
    cdgFileDialog.Flags = HideReadOnlyAndAskBeforeOverwriting;
    cdgFileDialog.CancelError = true;
    cdgFileDialog.Filter = "Text Files (*.txt)|*.txt";
    cdgFileDialog.FilterIndex = 1;
    cdgFileDialog.InitDir = platform().programFolder();
}

void frmBrenica::setUpListPages() {
    setUp(flxCandidateSpecies, {"No.", "Common Name", "Scientific Name"});
    showFirstOnly(fraLandCharInfo);
    optLandChar(0).Value(true);
    CurrentLandChar = 0;
    setUp(flxHabitatTypes, {"No.", "Habitat Name", "Area", "Level of Use"});
    setUp(flxJurisUnits, {"No.", "MZ Name", "Area", "Level of Use"});
    setUp(flxLandUses, {"No.", "Human Activity", "Urgency", "Probability of occurence"});
    optHomeRangeType(0).ToolTipText("Home ranges defined as continuous values for each candidate species");
    optHomeRangeType(1).ToolTipText(
        "Home ranges selected from a set of predefined intervals for each candidate species");
    optHomeRangeType(2).ToolTipText(
        "Home ranges selected from a set of user-defined intervals for each candidate species");
    modFlexGridUtilities::InitFlexGrid(flxBins, static_cast<int>(BinHeadings.size()), BinHeadings, false, 1);
    setUp(flxFunctions, {"No.", "Functions"});
}

void frmBrenica::setUpCriteriaPage() {
    showFirstOnly(fraCriteria);
    CurrentCriteriaTab = 1;
    lblCCS.Visible(false);
    txtCCS.Visible(false);
    lblDataQuality.Visible(true);
    cbxDataQuality.Visible(true);
    RefreshingCriteria = false;
    setUp(flxHabitatHetero, {"Habitat Name", "Level of Use"}, true);
    setUp(flxJurisUnitHetero, {"MZ Name", "Level of Use"}, true);

    optHomeRangeType(0).Value(true);
    HomeRangeType = 0;
    enableBinControls(false);
    showHomeRangeControls(0);
    cbxDefaultBinsHR.Clear();
    modGeneralUtilities::UpdateComboBox(cbxDefaultBinsHR, {DefaultBinLabels.begin(), DefaultBinLabels.end()});
    cbxDispersalYN.ListIndex(0);
    cbxConnectivity.ListIndex(0);
    cbxDefaultBinsHR.ListIndex(-1);

    setUp(flxLandUsesVulnerability, {"Human Activity", "Severity", "Recovery", "Proportion affected"});
    setUp(flxFunctionality, {"Functions", "Has an effect on"});
    global_.TotalFunctions = static_cast<int>(FunctionNames.size());
    flxFunctions.Rows(global_.TotalFunctions + 1);
    flxFunctionality.Rows(global_.TotalFunctions + 1);
    modFlexGridUtilities::numberRows(flxFunctions, global_.TotalFunctions);
    modFlexGridUtilities::UpdateFlexGridCol(flxFunctions, list::Name, FunctionNames);

    setUp(flxSocioEcon, {"Socio-economic", "Significance?"});
    flxSocioEcon.Rows(TotalSocioEcon + 1);
    modFlexGridUtilities::UpdateFlexGridCol(flxSocioEcon, 0, SocioEconNames);
    clearChangeFlags();
    CurrentSpeciesIndex = 0;
}

void frmBrenica::setUpSummaryPage() {
    chkAllowSummaryEdit.Value(false);
    chkAllowSummaryEdit.Enabled(true);
    for (ui::Grid& grid : flxSummary) grid.Visible(false);
    flxSummary(summary::HabitatUse).Visible(true);
    flxSummary(summary::JurisUnitUse).Visible(true);
    CurrentSummaryTab = 1;
    setUpReadOnly(flxSummary(summary::HabitatUse), {"Common Name"});
    setUpReadOnly(flxSummary(summary::JurisUnitUse), {"Common Name"});
    setUpReadOnly(flxSummary(summary::HabitatsBySpecies), {"Common Name", "Habitat Name", "Level of Use"},
                  true);
    setUpReadOnly(flxSummary(summary::JurisUnitsBySpecies), {"Common Name", "MZ Name", "Level of Use"}, true);
    setUpReadOnly(flxSummary(summary::Area),
                  {"Common Name", "Dispersal > 10 km", "Connectivity", "Home Range", "Landscape Occupied"});
    setUpReadOnly(flxSummary(summary::Vulnerability), {"Common Name", "CCS", ""});
    setUpReadOnly(flxSummary(summary::ThreatsBySpecies),
                  {"Common Name", "Human Activity", "Urgency", "Probability of occurence", "Severity",
                   "Recovery", "Proportion affected"});
    setUpReadOnly(flxSummary(summary::SpeciesByThreat),
                  {"Human Activity", "Common Name", "Severity", "Recovery", "Proportion affected"});
    setUpBySpecies(flxSummary(summary::Functionality), FunctionNames);
    setUpBySpecies(flxSummary(summary::SocioEcon), SocioEconNames);
    setUpBySpecies(flxSummary(summary::DataQuality), CriterionNames);
}

void frmBrenica::setUpGraphPage() {
    CurrentGraphTab = 1;
    for (int i = 0; i < chtSummary.Count(); ++i) {
        const bool headed = i < static_cast<int>(SummaryCharts.size());
        const ChartHeadings headings =
            headed ? SummaryCharts[static_cast<std::size_t>(i)] : ChartHeadings{"", "", ""};
        setUpChart(chtSummary(i), headings.Title, headings.XAxis, headings.YAxis);
    }
    chtSummary(0).Visible(true);
}

void frmBrenica::setUpScorePage() {
    chkShowGraphs.Value(false);
    chkShowAggregateScore.Value(true);
    chkShowAggregateScore.Enabled(false);
    optScoreDisplay(0).Value(true);
    ScoreDisplayMode = 0;
    flxScores(0).Visible(false);
    flxScores(1).Visible(false);
    showFirstOnly(flxScoresSort);
    setUpReadOnly(flxScoresSort(0), {"Common Name", "Rank", "Aggregate", "H", "A", "V", "F", "S-E", ""});
    setUpReadOnly(flxScores(0), {"Common Name", "Rank", "Aggregate", "H", "A", "V", "F", "S-E"});
    setUpReadOnly(flxScoresSort(1), {"Common Name", "H", "A", "V", "F", "S-E", ""});
    setUpReadOnly(flxScores(1), {"Common Name", "H", "A", "V", "F", "S-E"});
    flxScoresSort(0).ColHidden(score::SortKey, true);
    flxScoresSort(1).ColHidden(score::OriginalSortKey, true);
    for (ui::Chart& chart : chtScores) setUpChart(chart, "Scores", "", "");
}

void frmBrenica::setUpResultsPage() {
    optCompResults(0).Value(true);
    for (ui::OptionButton& button : optCompResults) button.Enabled(false);
    showFirstOnly(flxCompResults);
    setUpReadOnly(flxBrenicSuite, {"No.", "Common Name", "Habitat Types", "Manag. Zones", "Threats"});
    setUpReadOnly(flxCompResults(0), {"Common Name", "Rank", "Aggregate", "ReH", "A", "ReV", "F", "S-E",
                                      "Add. Habitats", "Add. MZones", "Add. Threats", ""});
    flxCompResults(0).ColHidden(result::Candidate, true);
    setUpReadOnly(flxCompResults(1), {"Habitat Name", "First covered by species"});
    setUpReadOnly(flxCompResults(2), {"MZ Name", "First covered by species"});
    setUpReadOnly(flxCompResults(3), {"Potential threat", "First covered by species"});
}

void frmBrenica::setUpChart(ui::Chart& chart, const char* title, const char* xAxis, const char* yAxis) {
    chart.Visible(false);
    chart.Type = ui::ChartType::Bar2D;
    chart.Title = title;
    chart.XAxisTitle = xAxis;
    chart.YAxisTitle = yAxis;
    chart.YAxisTitleOrientation = ui::TitleOrientation::Upward;
    chart.TitleFont = {"Arial", 11};
    chart.AxisTitleFont = {"Arial", 9};
    chart.TitleLocationType = 1;
    chart.MajorGridLines = false;
    chart.WallBorder = false;
    chart.PlotBackground = ui::rgb(255, 255, 255);
    chart.Series(1).EdgePen = ui::rgb(0, 0, 0);
    chart.ChartData({{"", ""}});
}
