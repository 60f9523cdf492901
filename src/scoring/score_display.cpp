// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <span>

#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"

namespace {

/// Tips of the headings from column 1 on.
constexpr std::array NormalisedTips = {"Candidate species aggregate score rank",
                                       "Candidate species aggregate score",
                                       "Candidate species normalized heterogeneity score",
                                       "Candidate species normalized area requirements score",
                                       "Candidate species normalized vulnerability score",
                                       "Candidate species normalized functionality score",
                                       "Candidate species normalized socioeconomic score"};
constexpr std::array OriginalTips = {
    "Candidate species heterogeneity score", "Candidate species area requirements score",
    "Candidate species vulnerability score", "Candidate species functionality score",
    "Candidate species socioeconomic score"};

const char* tipAt(std::span<const char* const> tips, int col) {
    const auto index = static_cast<std::size_t>(col) - 1;
    return col >= 1 && index < tips.size() ? tips[index] : "";
}

/// Rank and, in the original scores, the name sort as text; every other column in descending order of its values.
ui::SortOrder sortOrderOf(int index, int col) {
    const int textCol = index == 0 ? score::Rank : 0;
    return col == textCol ? ui::SortOrder::TextAscending : ui::SortOrder::GenericDescending;
}

}  // namespace

/// The first click on a table sorts it, wherever it falls; later ones sort when they fall on another heading.
void frmBrenica::flxScoresSort_MouseDown(int index) try {
    ui::Grid& grid = flxScoresSort(index);
    const int row = grid.MouseRow();
    const int col = grid.MouseCol();
    SortMemory& memory = sortMemory_;
    if (index != memory.Index) {
        memory.Row = -1;
        memory.Col = -1;
    }
    bool& sorted = memory.Sorted[static_cast<std::size_t>(index)];
    const bool onCell = row != -1 && col != -1;
    const bool onAnotherHeading = row == 0 && col != memory.Col;
    if (onCell && (!sorted || onAnotherHeading)) {
        sorted = true;
        grid.Select(0, col);
        grid.Sort(sortOrderOf(index, col));
    }
    memory.Index = index;
    memory.Row = row;
    memory.Col = col;
} catch (...) {
    ReportError(9999, "Brenica.flxScoresSort_MouseDown", "");
}

void frmBrenica::flxScoresSort_MouseMove(int index) try {
    showHeadingTip(flxScoresSort(index), index, scoreTips_, [](int grid, int col) {
        return grid == 0 ? tipAt(NormalisedTips, col) : tipAt(OriginalTips, col);
    });
} catch (...) {
    ReportError(9999, "Brenica.flxScoresSort_MouseMove", "");
}

void frmBrenica::optScoreDisplay_Click(int index) try {
    ScoreDisplayMode = index;
    const bool graphs = chkShowGraphs.Value();
    const bool aggregate = chkShowAggregateScore.Value();
    flxScoresSort(0).Visible(!graphs && index == 0);
    flxScoresSort(1).Visible(!graphs && index == 1);
    chtScores(0).Visible(graphs && index == 0 && aggregate);
    chtScores(1).Visible(graphs && index == 1);
    chtScores(2).Visible(graphs && index == 0 && !aggregate);
} catch (...) {
    ReportError(9999, "Brenica.optScoreDisplay_Click", "");
}

/// Whether charts are shown at all is not looked at.
void frmBrenica::chkShowAggregateScore_Click() try {
    const bool aggregate = chkShowAggregateScore.Value();
    if (optScoreDisplay(0).Value()) {
        chtScores(0).Visible(aggregate);
        chtScores(2).Visible(!aggregate);
        chtScores(1).Visible(false);
    } else if (optScoreDisplay(1).Value()) {
        chtScores(1).Visible(true);
        chtScores(0).Visible(false);
        chtScores(2).Visible(false);
    }
} catch (...) {
    ReportError(9999, "Brenica.chkShowAggregateScore_Click", "");
}
