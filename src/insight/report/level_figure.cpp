// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "insight/report/figures.h"
#include "insight/report/svg.h"
#include "insight/table.h"

namespace insight {

namespace {

using svg::Anchor;

constexpr double Left = 124;
constexpr double Top = 44;
constexpr double CellWidth = 50;
constexpr double CellHeight = 38;
constexpr std::array Shades = {"heat0", "heat1", "heat2", "heat3", "heat4", "heat5"};

constexpr std::array LegendTexts = {"none", "to 5 %", "to 10 %", "to 20 %", "to 50 %", "more"};
constexpr double LegendStep = 78;
constexpr double LegendSwatch = 14;
constexpr double LegendHeight = 34;

/// The share of units not covered, in percent, up to which each shade goes: finer where little is missing.
constexpr std::array Percents = {0, 5, 10, 20, 50, 100};

std::size_t shadeOf(std::size_t uncovered, std::size_t units) {
    const auto shade = std::find_if(Percents.begin(), Percents.end(), [&](int percent) {
        return 100 * uncovered <= static_cast<std::size_t>(percent) * units;
    });
    return static_cast<std::size_t>(shade - Percents.begin());
}

class LevelDrawing {
public:
    explicit LevelDrawing(const ReportFindings& found) : found_(found), grid_(found.Levels) {}

    Markup draw() {
        headings();
        for (std::size_t row = 0; row < grid_.Runs.size(); ++row) {
            for (std::size_t column = 0; column < grid_.Representations.size(); ++column) cell(row, column);
        }
        ownCell();
        legend();
        return svg::drawing(
            {"level-drawing", "The suite at other levels",
             "A row for each conservation status, a column for each threat representation; in each cell "
             "the species of the suite and the units not covered. The tables below say the same."},
            x(grid_.Representations.size()) + 4, y(grid_.Runs.size()) + LegendHeight, content_);
    }

private:
    static double x(std::size_t column) { return Left + CellWidth * static_cast<double>(column); }
    static double y(std::size_t row) { return Top + CellHeight * static_cast<double>(row); }

    void headings() {
        content_ += svg::text("tick", x(0), 14, Anchor::Start, "threat representation");
        content_ += svg::text("tick", 0, Top - 10, Anchor::Start, "conservation status");
        for (std::size_t column = 0; column < grid_.Representations.size(); ++column)
            content_ += svg::text("label", x(column) + CellWidth / 2, Top - 10, Anchor::Middle,
                                  fieldOf(grid_.Representations[column]));
        for (std::size_t row = 0; row < grid_.Runs.size(); ++row) {
            content_ += svg::text("label", 0, y(row) + 17, Anchor::Start, fieldOf(grid_.Statuses[row]));
            content_ += svg::text("tick", 0, y(row) + 31, Anchor::Start,
                                  std::to_string(grid_.Admitted[row]) + " species eligible");
        }
    }

    void cell(std::size_t row, std::size_t column) {
        const LevelRun& run = grid_.Runs[row][column];
        const std::size_t shade = shadeOf(run.Uncovered, found_.Units.units());
        const svg::Box box = {x(column) + 1, y(row) + 1, CellWidth - 2, CellHeight - 2};
        content_ += svg::rectangle(Shades[shade], box);
        const char* dark = shade >= 3 ? "cell on-dark" : "cell";
        const char* small = shade >= 3 ? "under on-dark" : "under";
        const double middle = x(column) + CellWidth / 2;
        content_ += svg::text(dark, middle, y(row) + 18, Anchor::Middle,
                              std::to_string(run.Species) + (run.Failed ? " !" : ""));
        content_ +=
            svg::text(small, middle, y(row) + 31, Anchor::Middle, std::to_string(run.Uncovered) + " open");
    }

    /// What the shades stand for.
    void legend() {
        const double top = y(grid_.Runs.size()) + 14;
        content_ += svg::text("tick", 0, top + 11, Anchor::Start, "units left open");
        double at = Left;
        for (std::size_t shade = 0; shade < Shades.size(); ++shade) {
            content_ += svg::rectangle(Shades[shade], {at, top, LegendSwatch, LegendSwatch}) +
                        svg::text("tick", at + LegendSwatch + 5, top + 11, Anchor::Start, LegendTexts[shade]);
            at += LegendStep;
        }
    }

    /// The cell of the run itself.
    void ownCell() {
        const auto column = std::find(grid_.Representations.begin(), grid_.Representations.end(),
                                      found_.Run.Levels.ThreatRepresentation);
        const auto row =
            std::find(grid_.Statuses.begin(), grid_.Statuses.end(), found_.Run.Levels.ConservationStatus);
        const auto place = static_cast<std::size_t>(row - grid_.Statuses.begin());
        if (place >= grid_.Runs.size() || column == grid_.Representations.end()) return;
        content_ +=
            svg::rectangle("own", {x(static_cast<std::size_t>(column - grid_.Representations.begin())),
                                   y(place), CellWidth, CellHeight});
    }

    const ReportFindings& found_;
    const LevelGrid& grid_;
    Markup content_;
};

}  // namespace

Markup levelFigure(const ReportFindings& findings) {
    return figure(
        "The suite at other levels", LevelDrawing(findings).draw(),
        escaped(
            "In each cell stand above the species of the suite that a run at these levels selects, and below the "
            "units that it leaves uncovered; the shade tells their share of all units. The frame marks the levels "
            "of this report. “!” marks a run that ended early, as a rule since none of the species left added "
            "a unit. Where no species is eligible there is no row."));
}

}  // namespace insight
