// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "entry/cell_editing.h"
#include "entry/heading_tips.h"
#include "entry/number_boxes.h"
#include "entry/parameter_lists.h"
#include "method/levels.h"
#include "project/frmBrenicaControls.h"
#include "project/modGlobal.h"
#include "project/project_copy.h"
#include "project/project_file_writer.h"
#include "project/selection_obstacle.h"
#include "scoring/export_tables.h"
#include "selection/selection_run.h"
#include "ui/event.h"
#include "ui/files.h"

/// The main form: all controls of frmBrenicaControls, the form's own fields and every procedure. Its grids are the
/// project. Each group of procedures is implemented in the folder of its subsystem, in the file named beside it.
///
/// A failure that a procedure does not expect leaves the outermost event as a ui::RunTimeError; whoever fired the
/// event shows its description and ends the program.
class frmBrenica : public frmBrenicaControls {
public:
    /// Builds the form of a new project, as Form_Load leaves it.
    frmBrenica(ui::Platform& platform, ui::Files& files, modGlobal& global);

    /// Rows of a list that go together, the last first. The last row that a list has goes by itself.
    using RowNumbers = std::span<const int>;

    // Form fields.
    int CurrentMainTab = 0;  ///< page shown, from 1; lags the tab strip inside its click
    int CurrentCriteriaTab = 0;
    int CurrentSummaryTab = 0;
    int CurrentGraphTab = 0;
    int CurrentLandChar = 0;      ///< list frame shown, from 0
    int HomeRangeType = 0;        ///< 0 continuous, 1 default bins, 2 user-defined bins
    int ScoreDisplayMode = 0;     ///< 0 normalized, 1 original
    int CurrentSpeciesIndex = 0;  ///< species on the criteria page, 0 for none
    std::vector<std::string> UserBinBreakpoints;
    bool ProjectChanged = false;
    bool HabitatUseChanged = false;
    bool AreaDataChanged = false;
    bool VulnerabilityChanged = false;
    bool FunctionalityChanged = false;
    bool SocioEconChanged = false;
    bool ProjectLoading = false;
    bool RefreshingCriteria = false;

    // project/lifecycle.cpp
    void MenuSelectionProject(std::string_view command);
    void InitializeProject();

    // project/project_file_writer.cpp, project/project_file_reader.cpp
    void SaveProject(const std::string& path);
    void OpenProject(const std::string& path);
    /// The lines of a project file, in their order.
    void writeLines(const TakeFileLine& take) const;

    // project/recalculation.cpp
    /// Labels and box of the user-defined bins follow the breakpoints, if there are any.
    void rebuildUserBins();

    // project/project_copy.cpp: what stands beside the described commands, for whoever keeps copies of the project
    ui::SharedEvent<ProjectStep, const std::string&> ProjectStepTaken;
    /// Raises what a save would raise where lists and tables are out of step.
    ProjectCopy TakeCopy() const;
    /// Project > Open with this file chosen, the save question included. Does nothing once a file has failed to open
    /// half-way, since no other can be read then.
    void UserOpenFile(const std::string& path);
    /// To be called when the text of `copy` has been opened: puts back what it could not carry, and makes the project
    /// again that of `path`, empty for none, with changes to be saved. A cell that there is not is passed over.
    void RestoreCopy(const ProjectCopy& copy, const std::string& path);
    std::vector<CellInWords> LostInWords(const ProjectCopy& copy) const;
    CellInWords InWords(const ui::Grid& grid, int row, int col) const;

    // project/page_navigation.cpp
    void tabBrenica_Click();
    void tabCriteria_Click();
    void optLandChar_Click(int index);

    // entry/form_layout.cpp
    void Form_Resize() { ResizeForm(); }
    void ResizeForm();

    // entry/candidate_species.cpp
    void cmdUpdateSpecies_Click();
    void UpdateOtherSpeciesFlexGrids(int added, int oldTotal);
    void cmdRemoveSpecies_Click();
    void RemoveSpecies(int row);
    void RemoveSpecies(RowNumbers rows);
    void cmdSpeciesMove_Click(int index);
    void flxCandidateSpecies_CellChanged(int row, int col);
    void UpdateSpeciesList();

    // entry/parameter_lists.cpp: rows of the four lists
    std::span<const ParameterList> ParameterLists() const { return parameterLists_; }
    void UpdateOtherHabitatFlexGrids(int added);
    void UpdateOtherJurisUnitFlexGrids(int added);
    void UpdateOtherLandUseFlexGrids(int added);
    void UpdateOtherFunctionFlexGrids(int added);
    void RemoveHabitatType(RowNumbers rows);
    void RemoveJurisUnit(RowNumbers rows);
    void RemoveLandUse(RowNumbers rows);
    void RemoveFunction(RowNumbers rows);

    // entry/parameter_list_cells.cpp: cells of the four lists
    void flxHabitatTypes_CellChanged(int row, int col);
    void flxJurisUnits_CellChanged(int row, int col);
    void flxLandUses_CellChanged(int row, int col);
    void flxFunctions_CellChanged(int row, int col);
    void flxLandUses_BeforeRowColChange(int oldRow, int oldCol);

    // entry/home_range.cpp
    void optHomeRangeType_Click(int index);
    void HRDataExists(bool& exists);
    void UpdateHRInfo(int index);
    void cmdUpdateBins_Click();
    void cmdRemoveBin_Click();
    void RemoveBin(int row);
    void RemoveBin(RowNumbers rows);
    void storeBinHomeRange(const ui::ComboBox& box, const char* source);
    void storeContinuousHomeRange();
    void flxBins_CellChanged();

    // entry/criteria_entry.cpp
    void cbxSpeciesName_Click();
    void RefreshSpeciesCriteriaVals();
    void levelOfUse_AfterEdit(ListKind kind, int row, int col);
    void flxLandUsesVulnerability_CellChanged(int row, int col);
    void flxLandUsesVulnerability_BeforeRowColChange(int oldRow, int oldCol);
    void flxFunctionality_CellChanged(int row, int col);
    void flxSocioEcon_CellChanged(int row, int col);
    void storeYesNo(const ui::ComboBox& box, int column, const char* source);
    void storePropOccupied();
    void storeConservationStatus();
    void cbxDataQuality_Change();

    // entry/cell_editing.cpp
    std::span<const CellEditing> CellEditings() const { return cellEditings_; }

    // entry/number_boxes.cpp
    std::span<const NumberBox> NumberBoxes() const { return numberBoxes_; }
    void numberBox_Change(const NumberBox& box);
    void numberBox_KeyPress(const NumberBox& box, int& key);
    void numberBox_GotFocus(const NumberBox& box);

    // scoring/validation_gates.cpp
    bool ValidateMainTab(int tab);
    bool ValidateLandChar(int index);
    bool ValidateScoreValues();
    /// The cell that kept the scores from being calculated, or a selection from running, when that was last tried; nothing
    /// where something else did, or nothing. The form tells what is missing, not where; whoever watches may.
    const std::optional<MissingCell>& FirstMissing() const { return firstMissing_; }
    void GetFlexGridsUpdated(int index);

    // scoring/unit_use.cpp
    void CalculateHabitatUse();
    void CalculateJurisUnitUse();
    std::string CalculatePropOccup(int species);

    // scoring/vulnerability.cpp
    void CalculateVunerabilityScores();

    // scoring/scores.cpp
    void CalculateScores();

    // scoring/score_display.cpp
    void flxScoresSort_MouseDown(int index);
    void flxScoresSort_MouseMove(int index);
    void optScoreDisplay_Click(int index);
    void chkShowAggregateScore_Click();

    // scoring/summary_tables.cpp
    void flxSummary_CellChanged(int index, int row, int col);
    void flxSummary_CellsChanged(int index, const ui::WrittenCells& cells);

    // scoring/summary_editing.cpp
    void tabCriteriaSummary_Click();
    void chkAllowSummaryEdit_Click();
    void flxSummary_BeforeEdit(int index, int row, int col, bool& cancel);
    void flxSummary_ValidateEdit(int index, int row, int col, bool& cancel);
    void flxSummary_MouseMove(int index);

    // scoring/grid_exchange.cpp
    /// All tables that can be exported, on the page where each is shown.
    std::span<const ExportTable> ExportTables() const { return exportTables_; }
    void MenuSelectionDataGrid(std::string_view command);
    /// The table on view that the command is for; nothing where there is none.
    const ExportTable* GetCurrentGrid(std::string_view command);
    /// Whether there is data behind the table at all.
    bool isExportable(const ExportTable& table) const;
    /// Writes the table as a grid text file, with the long names as headings where the table has them.
    void SaveTable(const ExportTable& table, const std::string& path);
    /// A column's heading, with the name of the unit where the grid shows its number.
    std::string HeadingInWords(const ui::Grid& grid, int col) const;

    // scoring/grid_import.cpp
    void ImportData(int importCase, const std::string& path, bool firstLineIsHeading);
    int GetCheckData(std::vector<std::string>& fields);

    // selection/complementarity.cpp
    void cmdComplement_Click();
    /// Fires in the place of a selection that something keeps from running. The form says nothing; whoever watches may.
    ui::Event<SelectionObstacle> SelectionRefused;
    /// What would keep a selection with the levels that were asked for last from running to its end.
    std::optional<SelectionObstacle> FindSelectionObstacle() const;
    /// The number of the first species without a conservation status, 0 where each has one.
    int FirstWithoutStatus() const;
    void InitComplementarity();

    // selection/selection_run.cpp
    /// The selection on view; nothing where there is none.
    std::optional<SelectionRun> TakeSelectionRun() const;
    /// What the selection on view came to.
    const std::optional<SelectionOutcome>& Outcome() const { return outcome_; }

    // selection/results_display.cpp
    void optCompResults_Click(int index);
    void flxCompResults_MouseMove(int index);
    void flxBrenicSuite_MouseMove();

    // selection/results_export.cpp
    void cmdExportResults_Click();

    // graphs/summary_graphs.cpp, graphs/score_graphs.cpp
    void UpdateSummaryGraphs();
    void tabGraphSummary_Click();
    void UpdateScoreGraphs();
    void chkShowGraphs_Click();

    // graphs/graph_commands.cpp
    /// The chart that the user sees; nothing where there is none.
    ui::Chart* GetCurrentChart();
    void MenuSelectionGraph(std::string_view action);

    modGlobal& Global() const { return global_; }

private:
    // project/event_wiring.cpp
    void wireEvents();
    void wireMenu();
    void wireLists();
    void wireCriteria();
    void wireNumberBoxes();
    void wireSummaryTables();
    void wireScores();
    void wireResults();

    // project/form_load.cpp
    void Form_Load();
    void setUpFileDialog();
    void setUpListPages();
    void setUpCriteriaPage();
    void setUpSummaryPage();
    void setUpGraphPage();
    void setUpChart(ui::Chart& chart, const char* title, const char* xAxis, const char* yAxis);
    void setUpScorePage();
    void setUpResultsPage();

    // project/lifecycle.cpp
    /// Whether the changed project is to be saved first; then the dialogue has the name for it.
    bool wantsToSave(const std::string& question);
    void newProjectCommand();
    void openProjectCommand();
    void saveProjectCommand();
    void exitCommand();
    void showProjectPath(const std::string& path);
    void clearLists();
    void clearCriteria();
    void clearCounts();
    void clearFunctions();
    void clearChangeFlags();
    void clearSummaries();
    void clearGraphs();
    void clearScores();
    void clearResults();
    void resetTextBoxes();

    // project/project_file_writer.cpp
    FileLine homeRangeLine() const;

    // project/project_copy.cpp
    ui::Grid* gridNamed(std::string_view name) const;
    ui::TextBox* levelNamed(std::string_view name);
    void restoreCell(const UncarriedCell& cell);
    void makeRoomForBin(int row);
    CellInWords inWords(const UncarriedCell& cell) const;
    std::string rowInWords(const ui::Grid& grid, int row) const;

    // project/version1_project.cpp
    void convertVersion1Project();

    // project/page_navigation.cpp
    bool noSpeciesOnView() const { return global_.TotalSpecies < 1 || CurrentSpeciesIndex == 0; }
    void showHomeRangeControls(int type);
    void showDataQuality();
    void storeShownConservationStatus();

    // entry/form_layout.cpp, entry/form_layout_pages.cpp
    void arrangeListPages();
    void arrangeCriteriaPage();
    void arrangeAreaFrame();
    void placeCriteriaGrids();
    void arrangeSummaryPage();
    void placeSummaryGrids();
    void arrangeGraphPage();
    void arrangeScorePage();
    void placeScoreViews();
    void arrangeResultsPage();
    void placeResultGrids();
    void fitGridsWhenShown();
    void fitShownGrids();
    bool arranging_ = false;  ///< a layout is running

    // project/recalculation.cpp
    void leavePage(int left);
    void enterPage(int entered, int left);
    /// What the calculated tables are made of: texts, formats and shape of every grid that is read or written.
    struct TablesState {
        std::array<std::uint64_t, summary::Count + 1> Revisions{};
        std::array<int, 4> Totals{};
        bool UpToDate = false;  ///< nothing waits to be put right first

        bool operator==(const TablesState&) const = default;
    };
    TablesState tablesState() const;
    void calculateTables();
    void showCalculatedTables();
    void updateAreaTotals();
    void updateAreaTotal(const ui::Grid& units, int count, std::vector<double>& areas, double& total,
                         bool& entered);

    // entry/parameter_lists.cpp
    std::vector<ParameterList> makeParameterLists();
    const ParameterList& parameterList(ListKind kind) const;
    void updateList(const ParameterList& list);
    void updateOtherGrids(const ParameterList& list, int added);
    void growWideTable(const ParameterList& list, int oldRows);
    void growLongTable(const ParameterList& list, int added, int oldRows);
    void growThreatTable(int added, int oldRows);
    void removeListRow(const ParameterList& list);
    void removeFromList(const ParameterList& list, RowNumbers rows);
    void shrinkWideTable(const ParameterList& list, RowNumbers rows);
    void removeFromLongTables(const ParameterList& list, RowNumbers rows);
    void clearLongTables(const ParameterList& list);
    void removeFromBlocks(const ParameterList& list, RowNumbers rows);
    void removeThreatBlocks(RowNumbers rows);
    void moveListRow(ui::Grid& grid, int index, int lastCol, const char* source);

    // entry/parameter_list_cells.cpp
    void unitName_CellChanged(const ParameterList& list, int row, int col);
    void listCells_Changed(const ParameterList& list, const ui::WrittenCells& cells);
    bool reachWholeBlocks(const ParameterList& list, const ui::WrittenCells& cells);
    void writeUnitName(const ParameterList& list, int row);
    void writeThreat(int row, int col);
    void fillBlocks(const ParameterList& list, int col, int row, int count);

    // entry/candidate_species.cpp
    void growSpeciesRows(int member, int oldTotal);
    void growSpeciesBlocks(int member, int units, int added, int oldTotal, int lastCopiedCol);
    void clearZoneNumbers();
    void growThreatBlocks(int added, int oldTotal);
    void writeSpeciesName(int member, int row, const std::string& name, const std::string& shortName);
    void removeFromSelector(RowNumbers rows);
    void removeFromRanks(RowNumbers rows);
    void removeSpeciesBlocks(int member, int units, RowNumbers rows, std::span<const int> clearedColumns);
    void removeSpeciesRows(RowNumbers rows);
    void removeSpeciesFromThreats(RowNumbers rows, int oldTotal);

    // entry/home_range.cpp
    void enableBinControls(bool enabled);

    // entry/criteria_entry.cpp
    void blankCriteriaPage();
    void showConservationStatus();

    // entry/number_boxes.cpp
    std::vector<NumberBox> makeNumberBoxes();

    // entry/cell_editing.cpp
    std::vector<CellEditing> makeCellEditings();
    void wireCellEditing();
    static void offerItems(const CellEditing& editing, int col);
    void filterCellKey(const CellEditing& editing, int col, int& key);
    void validateCell(const CellEditing& editing, int col, bool& cancel);

    // entry/heading_tips.cpp
    std::vector<HeadingTips> makeHeadingTips();
    void wireHeadingTips();
    static void headingTips_MouseMove(HeadingTips& tips);

    // scoring/validation_gates.cpp
    bool removeBlankRows(ui::Grid& grid, int column, const char* prompt,
                         void (frmBrenica::*remove)(RowNumbers));
    bool validateHumanActivities();
    bool allUnitsInUse(int member, const ui::Grid& units, int count, const char* kind);
    bool allFilled(int member, int firstCol, int lastCol, const char* message);
    bool refuseMissing(const ui::Grid& grid, int row, int col, const char* message);
    void noteMissing(const ui::Grid& grid, int row, int col);
    void showInvalidValue(const std::string& message);

    // scoring/unit_use.cpp
    bool& levelsShifted(const ParameterList& list) {
        return levelsShifted_[static_cast<std::size_t>(list.Kind)];
    }
    void realignLevels(const ParameterList& list);

    // scoring/vulnerability.cpp
    void restoreThreatFactors();
    void fitThreatScores();

    // scoring/scores.cpp
    void emptyScoreTables();
    void fillSortedScores();

    // scoring/grid_exchange.cpp
    std::vector<ExportTable> makeExportTables();
    struct NumberedColumns;
    NumberedColumns numberedColumns(const ExportTable& table) const;
    int currentView() const;
    bool userWantsFirst();
    void showNoGrid(std::string_view command);

    // scoring/summary_tables.cpp
    void levelOfUse_Changed(const ParameterList& list, int row, int col);
    void threatRating_Changed(int row, int col);

    // scoring/summary_editing.cpp
    struct CrossTableTips;
    std::string areaItems(int col) const;
    std::string summaryTip(int index, int row, int col) const;

    // scoring/grid_import.cpp
    void appendRecords(int importCase, bool firstLineIsHeading);
    void appendRecord(int importCase, const std::vector<std::string>& fields);

    // selection/complementarity.cpp
    method::Levels askedLevels_;  ///< by the last press, which may have been refused
    void refuseSelection(SelectionObstacle obstacle);
    std::optional<SelectionObstacle> obstacleIn(const method::Landscape& landscape,
                                                const method::Table& threatScores) const;
    method::Landscape selectionLandscape() const;
    void runSelection(method::Selection& selection);
    std::optional<SelectionOutcome> outcome_;  ///< of the selection on view
    std::optional<MissingCell> firstMissing_;
    int missingFound_ = 0;

    // selection/results_export.cpp
    void printResult(std::string_view line);
    void printRanking();
    void printSuite();
    void printPasses();
    void printCoverage();

    // graphs/graph_commands.cpp
    void saveGraph(ui::Chart& chart);
    void printGraph(ui::Chart& chart);

    ui::Files& files_;
    modGlobal& global_;
    std::vector<ParameterList> parameterLists_;
    std::vector<NumberBox> numberBoxes_;
    std::vector<CellEditing> cellEditings_;
    std::vector<HeadingTips> headingTips_;
    std::vector<ExportTable> exportTables_;

    // What the next calculation has to bring up to date.
    /// By ListKind: a habitat or zone was removed and the levels of those behind it still stand in their old columns.
    std::array<bool, 2> levelsShifted_{};
    /// The last species took urgency and probability along from the rows that those of later species are copied from.
    bool threatFactorsLost_ = false;
    bool threatScoresIncomplete_ = false;  ///< a step of their calculation failed and was passed over
    TablesState calculated_;               ///< as the last calculation left it

    // What the mouse handlers remember from event to event.
    struct SortMemory {
        int Index = 0;
        int Row = 0;
        int Col = 0;
        std::array<bool, 2> Sorted{};  ///< the grid has been sorted by a click
    };
    SortMemory sortMemory_;
    TipMemory scoreTips_;
    TipMemory summaryTips_;
    TipMemory resultTips_;
    TipMemory suiteTips_;
};
