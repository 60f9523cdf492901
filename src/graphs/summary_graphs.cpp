// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <functional>

#include "entry/modErrorHandling.h"
#include "graphs/series_style.h"
#include "project/frmBrenica.h"
#include "ui/text.h"

namespace {

constexpr std::size_t LongestLabel = 25;
constexpr ui::Colour HabitatFill = ui::rgb(75, 200, 200);
constexpr ui::Colour JurisUnitFill = ui::rgb(80, 20, 120);
constexpr ui::Colour ThreatCountFill = ui::rgb(135, 50, 120);
constexpr ui::Colour ThreatScoreFill = ui::rgb(255, 150, 50);

/// One bar for each row of a list, its value taken from a summary table.
void showBars(ui::Chart& chart, const ui::Grid& list, int count, ui::Colour fill,
              const std::function<std::string(int)>& valueOf) {
    ui::Chart::Table data;
    for (int i = 1; i <= count; ++i) {
        data.push_back(
            {std::string(ui::firstCharacters(list.TextMatrix(i, list::Name), LongestLabel)), valueOf(i)});
    }
    chart.ChartData(std::move(data));
    styleSeries(chart, 1, fill);
    chart.Refresh();
}

}  // namespace

/// Fills the eight charts from the totals of the summary tables; a project that lacks a list leaves them as they are.
void frmBrenica::UpdateSummaryGraphs() try {
    if (global_.TotalSpecies < 1 || global_.TotalHabitatTypes < 1 || global_.TotalJurisUnits < 1 ||
        global_.TotalLandUses < 1) {
        return;
    }
    const ui::Grid& habitats = flxSummary(summary::HabitatUse);
    const ui::Grid& zones = flxSummary(summary::JurisUnitUse);
    const ui::Grid& threats = flxSummary(summary::Vulnerability);
    const auto inRow = [](const ui::Grid& grid, int fromLast, int offset) {
        return [&grid, fromLast, offset](int i) {
            return std::string(grid.TextMatrix(grid.Rows() - 1 - fromLast, i + offset));
        };
    };
    const auto inColumn = [](const ui::Grid& grid, int fromLast) {
        return
            [&grid, fromLast](int i) { return std::string(grid.TextMatrix(i, grid.Cols() - 1 - fromLast)); };
    };
    const int species = global_.TotalSpecies;
    constexpr int Offset = vulnerability::ThreatOffset;
    showBars(chtSummary(0), flxHabitatTypes, global_.TotalHabitatTypes, HabitatFill, inRow(habitats, 0, 0));
    showBars(chtSummary(1), flxCandidateSpecies, species, HabitatFill, inColumn(habitats, 0));
    showBars(chtSummary(3), flxCandidateSpecies, species, JurisUnitFill, inColumn(zones, 0));
    showBars(chtSummary(2), flxJurisUnits, global_.TotalJurisUnits, JurisUnitFill, inRow(zones, 0, 0));
    showBars(chtSummary(4), flxCandidateSpecies, species, ThreatCountFill, inColumn(threats, 0));
    showBars(chtSummary(5), flxCandidateSpecies, species, ThreatScoreFill, inColumn(threats, 1));
    showBars(chtSummary(6), flxLandUses, global_.TotalLandUses, ThreatCountFill, inRow(threats, 0, Offset));
    showBars(chtSummary(7), flxLandUses, global_.TotalLandUses, ThreatScoreFill, inRow(threats, 1, Offset));
} catch (...) {
    ReportError(9999, "Brenica.UpdateSummaryGraphs", "");
}

void frmBrenica::tabGraphSummary_Click() try {
    const int selected = tabGraphSummary.SelectedItem();
    if (selected == CurrentGraphTab || CurrentGraphTab < 1) return;
    chtSummary(CurrentGraphTab - 1).Visible(false);
    CurrentGraphTab = selected;
    chtSummary(CurrentGraphTab - 1).Visible(true);
} catch (...) {
    ReportError(9999, "Brenica.tabGraphSummary_Click", "");
}
