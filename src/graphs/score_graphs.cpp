// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "graphs/series_style.h"
#include "project/frmBrenica.h"

namespace {

struct ScoreSeries {
    const char* Label;
    ui::Colour Fill;
};

constexpr ScoreSeries Series[] = {
    {"Aggregate", ui::rgb(0, 50, 100)},       {"Heterogeneity", ui::rgb(75, 200, 200)},
    {"Area", ui::rgb(255, 255, 200)},         {"Vulnerability", ui::rgb(100, 0, 100)},
    {"Functionality", ui::rgb(255, 150, 50)}, {"Socio-economics", ui::rgb(100, 50, 0)},
};

/// A group of bars a species, from neighbouring columns of a score grid.
void showScores(ui::Chart& chart, const ui::Grid& scores, int species, int firstCol,
                std::span<const ScoreSeries> series) {
    ui::Chart::Table data;
    for (int row = 1; row <= species; ++row) {
        std::vector<std::string> group{std::string(scores.TextMatrix(row, 0))};
        for (std::size_t i = 0; i < series.size(); ++i) {
            group.emplace_back(scores.TextMatrix(row, firstCol + static_cast<int>(i)));
        }
        data.push_back(std::move(group));
    }
    chart.ChartData(std::move(data));
    for (std::size_t i = 0; i < series.size(); ++i) {
        const int index = static_cast<int>(i) + 1;
        styleSeries(chart, index, series[i].Fill);
        chart.Series(index).Label = series[i].Label;
    }
    chart.Refresh();
}

}  // namespace

void frmBrenica::UpdateScoreGraphs() try {
    const std::span<const ScoreSeries> all = Series;
    const std::span<const ScoreSeries> withoutAggregate = all.subspan(1);
    const int species = global_.TotalSpecies;
    showScores(chtScores(0), flxScores(0), species, score::Aggregate, all);
    showScores(chtScores(2), flxScores(0), species, score::FirstCriterion, withoutAggregate);
    showScores(chtScores(1), flxScores(1), species, 1, withoutAggregate);
} catch (...) {
    ReportError(9999, "Brenica.UpdateScoreGraphs", "");
}

/// Switches between the tables and the charts of the page.
void frmBrenica::chkShowGraphs_Click() try {
    const bool normalised = optScoreDisplay(0).Value();
    if (!chkShowGraphs.Value()) {
        chkShowAggregateScore.Enabled(false);
        for (ui::Chart& chart : chtScores) chart.Visible(false);
        flxScoresSort(0).Visible(normalised);
        flxScoresSort(1).Visible(!normalised);
        return;
    }
    chkShowAggregateScore.Enabled(true);
    for (ui::Grid& grid : flxScoresSort) grid.Visible(false);
    if (normalised) {
        chtScores(0).Visible(chkShowAggregateScore.Value());
        chtScores(2).Visible(!chkShowAggregateScore.Value());
        chtScores(1).Visible(false);
    } else if (optScoreDisplay(1).Value()) {
        chtScores(0).Visible(false);
        chtScores(1).Visible(true);
        chtScores(2).Visible(false);
    }
} catch (...) {
    ReportError(9999, "Brenica.chkShowGraphs_Click", "");
}
