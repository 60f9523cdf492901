// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modFlexGridUtilities.h"
#include "entry/modGeneralUtilities.h"
#include "project/frmBrenica.h"
#include "project/pages.h"
#include "scoring/totals_block.h"

/// What a move between pages brings up to date. There is no other occasion: edits only write cells.

namespace {

void sortBack(ui::Grid& grid, int keyColumn) {
    grid.Select(0, keyColumn);
    grid.Sort(ui::SortOrder::GenericAscending);
}

}  // namespace

void frmBrenica::leavePage(int left) {
    switch (left) {
        case page::Species: UpdateSpeciesList(); break;
        case page::Parameters:
            // Bins and area sums follow the lists only where the bins are the user's own.
            if (HomeRangeType != 2) break;
            rebuildUserBins();
            updateAreaTotals();
            break;
        case page::Criteria: storeShownConservationStatus(); break;
        case page::Scores:
            sortBack(flxScoresSort(0), score::SortKey);
            sortBack(flxScoresSort(1), score::OriginalSortKey);
            break;
        case page::Results:
            // New scores may have been brought here, in order of rank. A species added since stands last, without key.
            if (!flxScoresSort(0).TextMatrix(flxScoresSort(0).Rows() - 1, score::SortKey).empty())
                sortBack(flxScoresSort(0), score::SortKey);
            break;
        default: break;
    }
}

void frmBrenica::enterPage(int entered, int left) {
    switch (entered) {
        case page::Criteria: RefreshSpeciesCriteriaVals(); break;
        case page::Summary: calculateTables(); break;
        case page::Graphs:
            if (left != page::Summary) calculateTables();
            UpdateSummaryGraphs();
            break;
        case page::Scores:
            if (left != page::Summary) calculateTables();
            CalculateScores();
            break;
        case page::Results:
            if (left <= page::Criteria) {
                calculateTables();
                CalculateScores();
            }
            cmdExportResults.Enabled(false);
            cmdComplement.Enabled(global_.ScoresCalculated);
            break;
        default: break;
    }
}

frmBrenica::TablesState frmBrenica::tablesState() const {
    TablesState state;
    for (int member = 0; member < summary::Count; ++member)
        state.Revisions[static_cast<std::size_t>(member)] = flxSummary(member).Revision();
    state.Revisions.back() = flxLandUses.Revision();
    state.Totals = {global_.TotalSpecies, global_.TotalHabitatTypes, global_.TotalJurisUnits,
                    global_.TotalLandUses};
    state.UpToDate =
        !levelsShifted_[0] && !levelsShifted_[1] && !threatFactorsLost_ && !threatScoresIncomplete_;
    return state;
}

void frmBrenica::calculateTables() {
    if (calculated_.UpToDate && calculated_ == tablesState()) return showCalculatedTables();
    CalculateHabitatUse();
    CalculateJurisUnitUse();
    CalculateVunerabilityScores();
    calculated_ = tablesState();
}

/// What is left of a calculation that would write every cell as it is: it counts as a change of the project, and ends
/// with the totals selected and the threat scores fitted.
void frmBrenica::showCalculatedTables() {
    const std::pair<int, int> unitsOf[] = {{summary::HabitatUse, global_.TotalHabitatTypes},
                                           {summary::JurisUnitUse, global_.TotalJurisUnits},
                                           {summary::Vulnerability, global_.TotalLandUses}};
    for (const auto& [member, units] : unitsOf) {
        if (global_.TotalSpecies < 1 || units < 1) continue;
        ProjectChanged = true;
        selectTotalsRows(flxSummary(member));
        if (member == summary::Vulnerability) fitThreatScores();
    }
}

void frmBrenica::rebuildUserBins() {
    if (modFlexGridUtilities::GetColContents(flxBins, 1, UserBinBreakpoints) < 1) return;
    modGeneralUtilities::ConstructIntervals(UserBinBreakpoints, global_.UserBinLabels);
    cbxUserDefBinsHR.Clear();
    modGeneralUtilities::UpdateComboBox(cbxUserDefBinsHR, global_.UserBinLabels);
}

void frmBrenica::updateAreaTotals() {
    updateAreaTotal(flxHabitatTypes, global_.TotalHabitatTypes, global_.HabitatAreas,
                    global_.HabitatAreaTotal, global_.HabitatAreasEntered);
    updateAreaTotal(flxJurisUnits, global_.TotalJurisUnits, global_.JurisUnitAreas,
                    global_.JurisUnitAreaTotal, global_.JurisUnitAreasEntered);
}

/// A sum that equals the number of units counts as no areas: each unit then stands for one.
void frmBrenica::updateAreaTotal(const ui::Grid& units, int count, std::vector<double>& areas, double& total,
                                 bool& entered) {
    if (count < 1) {
        entered = false;
        return;
    }
    areas.assign(static_cast<std::size_t>(count), 0.0);
    total = modFlexGridUtilities::GetAreaTotal(units, count, areas);
    entered = total != static_cast<double>(count);
}
