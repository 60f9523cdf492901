// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <tuple>

#include "insight/report/figures.h"
#include "insight/report/sentence.h"
#include "insight/report/svg.h"

namespace insight {

namespace {

using svg::Anchor;

constexpr double NameRoom = 200;
constexpr double PanelWidth = 140;
constexpr double PanelGap = 44;
constexpr double Top = 44;
constexpr double RowHeight = 19;
constexpr double Radius = 4;
constexpr std::size_t MostRows = 40;
constexpr double Rare = 0.01;

double share(const ReportSweep& sweep, std::size_t species) {
    if (sweep.runsWithSuite() == 0) return 0;
    return static_cast<double>(sweep.Counts.Species[species]) / static_cast<double>(sweep.runsWithSuite());
}

/// The suite in its order, then the others by how often they stand in for one of it.
std::vector<std::size_t> shownSpecies(const ReportFindings& found) {
    std::vector<std::size_t> shown;
    for (const method::Pick& pick : found.Run.Outcome.Suite.Picks) shown.push_back(pick.Species);
    const auto often = [&](std::size_t s) {
        double most = 0;
        for (const ReportSweep& sweep : found.Sweeps) most = std::max(most, share(sweep, s));
        return most;
    };
    std::vector<std::size_t> others;
    for (std::size_t s = 0; s < found.Run.Species.size(); ++s) {
        if (!found.placeOf(s) && often(s) >= Rare) others.push_back(s);
    }
    std::sort(others.begin(), others.end(), [&](std::size_t a, std::size_t b) {
        return std::tuple(-often(a), a) < std::tuple(-often(b), b);
    });
    shown.insert(shown.end(), others.begin(), others.end());
    if (shown.size() > MostRows) shown.resize(MostRows);
    return shown;
}

double panelX(std::size_t panel) {
    return NameRoom + 16 + static_cast<double>(panel) * (PanelWidth + PanelGap);
}

Markup panel(const ReportSweep& sweep, std::size_t place, double bottom) {
    const double x = panelX(place);
    Markup content = svg::text("kind", x, 14, Anchor::Start, std::string("other ") + sweep.Name);
    for (const int percent : {0, 50, 100}) {
        const double at = x + PanelWidth * percent / 100;
        content += svg::line("grid", at, Top - 8, at, bottom);
        content += svg::text("tick", at, Top - 14, Anchor::Middle, std::to_string(percent) + " %");
    }
    return content;
}

Markup mark(const ReportFindings& found, const ReportSweep& sweep, std::size_t place, std::size_t species,
            double y) {
    const bool mayBe = found.Units.eligible(species) || sweep.Settings.Vary.Levels;
    if (sweep.runsWithSuite() == 0 || !mayBe) return {};
    const double x = panelX(place);
    const Interval interval = wilsonInterval(sweep.Counts.Species[species], sweep.runsWithSuite());
    const char* look = found.placeOf(species) ? "run" : "best";
    return svg::line("interval", x + PanelWidth * interval.Low, y, x + PanelWidth * interval.High, y) +
           svg::circle(look, x + PanelWidth * share(sweep, species), y, Radius);
}

}  // namespace

Markup frequencyFigure(const ReportFindings& findings) {
    const std::vector<std::size_t> shown = shownSpecies(findings);
    const double bottom = Top + RowHeight * static_cast<double>(shown.size());
    Markup content;
    for (std::size_t p = 0; p < findings.Sweeps.size(); ++p) content += panel(findings.Sweeps[p], p, bottom);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const double y = Top + RowHeight * (static_cast<double>(i) + 0.5);
        content +=
            svg::label("label", NameRoom, y + 4, Anchor::End, findings.Run.Species[shown[i]], NameRoom);
        for (std::size_t p = 0; p < findings.Sweeps.size(); ++p)
            content += mark(findings, findings.Sweeps[p], p, shown[i], y);
    }
    const double width = panelX(findings.Sweeps.size()) - PanelGap + 24;
    return figure(
        "How often each species is selected",
        svg::drawing(
            {"frequency-drawing", "How often each species is selected",
             "A row for each species, a dot for its share of the runs. The table below has the numbers."},
            width, bottom + 6, content),
        escaped(
            "Dots: species of the suite, in the order of selection. Rings: others that were selected in at "
            "least 1 % of the runs of a column, " +
            std::to_string(MostRows) +
            " rows at most; the table has all. A bar is the 95 % interval where it is wider than its mark. "
            "Species that none of the runs admits have no mark."));
}

}  // namespace insight
