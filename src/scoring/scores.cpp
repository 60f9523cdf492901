// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"
#include "scoring/modBrenicaUtilities.h"

void frmBrenica::CalculateScores() try {
    global_.ScoresCalculated = false;
    if (!ValidateScoreValues()) return emptyScoreTables();
    std::vector<double> homeRanges;
    modBrenicaUtilities::ScaleHomeRanges(homeRanges, flxSummary(summary::Area), HomeRangeType, global_);
    modBrenicaUtilities::UpdateScores(
        homeRanges,
        {flxSummary(summary::HabitatsBySpecies), flxSummary(summary::JurisUnitsBySpecies),
         flxSummary(summary::Area), flxSummary(summary::Vulnerability), flxSummary(summary::Functionality),
         flxSummary(summary::SocioEcon), flxScores(0), flxScores(1)},
        global_);
    fillSortedScores();
    UpdateScoreGraphs();
} catch (...) {
    ReportError(9999, "Brenica.CalculateScores", "");
}

/// No stale scores stay on view; the names go back to species order.
void frmBrenica::emptyScoreTables() {
    const auto empty = [](ui::Grid& grid) {
        for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
            for (int col = grid.FixedCols(); col < grid.Cols(); ++col) grid.TextMatrix(row, col, "");
        }
    };
    for (ui::Grid& grid : flxScores) empty(grid);
    for (int i = 0; i < flxScoresSort.Count(); ++i) {
        ui::Grid& sorted = flxScoresSort(i);
        empty(sorted);
        for (int row = sorted.FixedRows(); row < sorted.Rows(); ++row) {
            sorted.TextMatrix(row, 0, flxScores(i).TextMatrix(row, 0));
        }
    }
}

/// The table of normalised scores starts out in order of rank, that of the original ones in species order.
void frmBrenica::fillSortedScores() {
    const int keyColumns[] = {score::SortKey, score::OriginalSortKey};
    for (int i = 0; i < flxScoresSort.Count(); ++i) {
        const ui::Grid& scores = flxScores(i);
        ui::Grid& sorted = flxScoresSort(i);
        sorted.Rows(scores.Rows());
        for (int row = scores.FixedRows(); row < scores.Rows(); ++row) {
            for (int col = 0; col < scores.Cols(); ++col)
                sorted.TextMatrix(row, col, scores.TextMatrix(row, col));
            sorted.TextMatrix(row, keyColumns[i], ui::toText(row));
        }
        flxScoresSort(0).Select(0, score::Rank);
        flxScoresSort(0).Sort(ui::SortOrder::GenericAscending);
    }
}
