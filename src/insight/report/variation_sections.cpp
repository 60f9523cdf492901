// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <tuple>

#include "insight/report/data_table.h"
#include "insight/report/figures.h"
#include "insight/report/sections.h"
#include "insight/report/sweep_tables.h"
#include "insight/report/verdict.h"

namespace insight {

namespace {

constexpr std::array Frequencies = {ShownColumn{"levels", "Levels"},
                                    ShownColumn{"levels_low", "Levels, low"},
                                    ShownColumn{"levels_high", "Levels, high"},
                                    ShownColumn{"answers", "Answers"},
                                    ShownColumn{"answers_low", "Answers, low"},
                                    ShownColumn{"answers_high", "Answers, high"},
                                    ShownColumn{"grades", "Grades"},
                                    ShownColumn{"grades_low", "Grades, low"},
                                    ShownColumn{"grades_high", "Grades, high"}};

Markup frequencyTable(std::string_view caption, const ResultTable& table,
                      std::initializer_list<ShownColumn> first) {
    std::vector<ShownColumn> columns(first);
    columns.insert(columns.end(), Frequencies.begin(), Frequencies.end());
    return dataTable(caption, table, columns);
}

std::string startOf(const ReportSweep& sweep) {
    const std::string name = sweep.Name;
    if (name == "levels")
        return "Other levels (the margin from 0 to twice the given one, the two others up to 0.2 away): ";
    if (name == "answers") return "Other answers (any of the species that a question lists): ";
    return "Other grades (each that is not 0 off by one step with a probability of " +
           fieldOf(sweep.Settings.P) + "): ";
}

Markup sweepItems(const ReportFindings& found) {
    Markup items;
    for (const ReportSweep& sweep : found.Sweeps) {
        Markup item = escaped(startOf(sweep)) + sweepSentence(found, sweep).markup();
        if (sweep.Counts.Errors > 0)
            item += escaped(" " + counted(sweep.Counts.Errors, "run", "runs") + " ended in an error.");
        if (!sweep.isWhole())
            item += escaped(" It was stopped after " + counted(sweep.Counts.Runs, "run", "runs") + ".");
        items += element("li", item);
    }
    return element("ul", items);
}

/// Sizes, or units not covered, by level.
Markup gridTable(const LevelGrid& grid, const char* caption, std::size_t LevelRun::*value) {
    ResultTable table;
    table.Columns = {"status", "admitted"};
    for (const double level : grid.Representations) table.Columns.push_back(fieldOf(level));
    for (std::size_t row = 0; row < grid.Runs.size(); ++row) {
        std::vector<Cell> cells = {fieldOf(grid.Statuses[row]), numberCell(grid.Admitted[row])};
        for (const LevelRun& run : grid.Runs[row]) cells.emplace_back(numberCell(run.*value));
        table.Rows.push_back(std::move(cells));
    }
    std::vector<ShownColumn> columns = {{"status", "Conservation status"}, {"admitted", "Species eligible"}};
    for (std::size_t i = 2; i < table.Columns.size(); ++i)
        columns.push_back({table.Columns[i].c_str(), table.Columns[i].c_str()});
    return dataTable(caption, table, columns);
}

/// The pair of levels that leaves fewest units uncovered, with the smallest suite of those.
std::string bestLevels(const LevelGrid& grid) {
    using Place = std::tuple<std::size_t, std::size_t, std::size_t, std::size_t>;
    std::vector<Place> places;
    for (std::size_t row = 0; row < grid.Runs.size(); ++row) {
        for (std::size_t column = 0; column < grid.Representations.size(); ++column) {
            const LevelRun& run = grid.Runs[row][column];
            places.emplace_back(run.Uncovered, run.Species, row, column);
        }
    }
    const auto [uncovered, species, row, column] = *std::min_element(places.begin(), places.end());
    const auto asGood = std::count_if(places.begin(), places.end(),
                                      [&](const Place& place) { return std::get<0>(place) == uncovered; });
    const std::string left = uncovered == 0
                                 ? "no unit uncovered"
                                 : countedInWords(uncovered, "unit", "units") + " uncovered, none fewer";
    return "Of the " + std::to_string(places.size()) + " pairs " + std::to_string(asGood) +
           (asGood == 1 ? " leaves " : " leave ") + left + "; the smallest suite of these has " +
           countedInWords(species, "species", "species") + ", at threat representation " +
           fieldOf(grid.Representations[column]) + " and conservation status " + fieldOf(grid.Statuses[row]) +
           ".";
}

}  // namespace

Markup frequencySection(const ReportFindings& findings, const ReportOrigin&) {
    const SweepSettings& settings = findings.Sweeps.front().Settings;
    return paragraph("The selection was made anew " + withThousands(settings.Runs) +
                     " times for each of three questions, with one thing drawn by chance each time (seed " +
                     std::to_string(settings.Seed) + "):") +
           sweepItems(findings) +
           paragraph(
               "A frequency is the share of these runs whose suite holds the species. It is not "
               "irreplaceability: a species in 95 of 100 suites may have a substitute that is nearly as "
               "good, and one in 30 may be the only one for a unit that the other 70 leave uncovered. Low "
               "and high bound the 95 % interval; they speak of the number of runs alone, not of whether "
               "the grades are right. A run ends in an error as the program does, as a rule where none of "
               "the species that are left adds a unit; it then counts with its suite so far.") +
           frequencyFigure(findings) +
           frequencyTable("Share of the runs that select each species", selectedTable(findings),
                          {{"number", "No."},
                           {"species", "Species", ColumnKind::Name},
                           {"pick", "Place in the suite"}}) +
           frequencyTable("Share of the runs that leave a unit uncovered", uncoveredTable(findings),
                          {{"unit", "Unit", ColumnKind::Name}, {"kind", "Kind", ColumnKind::Term}}) +
           frequencyTable("Share of the runs by size of the suite", sizeTable(findings),
                          {{"size", "Species in the suite"}});
}

Markup levelSection(const ReportFindings& findings, const ReportOrigin&) {
    const LevelGrid& grid = findings.Levels;
    if (grid.Runs.empty())
        return paragraph("At no level is a species eligible, or the work was stopped before.");
    Markup content = paragraph(
        "One run for each pair of levels, at the margin of error of this report (" +
        fieldOf(findings.Run.Levels.Margin) +
        " %). Each takes the answers that this run was given, in their order, and then the defaults, "
        "whatever its questions are; other answers may give another suite.");
    content += paragraph(bestLevels(grid));
    if (!grid.isComplete()) content += paragraph("The work was stopped: rows are missing.");
    return content + levelFigure(findings) +
           gridTable(grid, "Species in the suite, by threat representation", &LevelRun::Species) +
           gridTable(grid, "Units not covered, by threat representation", &LevelRun::Uncovered);
}

}  // namespace insight
