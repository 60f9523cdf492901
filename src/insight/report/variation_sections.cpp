// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "insight/report/data_table.h"
#include "insight/report/figures.h"
#include "insight/report/sections.h"
#include "insight/report/sweep_sentences.h"
#include "insight/report/sweep_tables.h"

namespace insight {

namespace {

constexpr std::array ShareColumns = {ShownColumn{"levels", "Other levels"},
                                     ShownColumn{"answers", "Other answers"},
                                     ShownColumn{"grades", "Other grades"}};
constexpr std::array OpenColumns = {
    ShownColumn{"unit", "Unit", ColumnKind::Name}, ShownColumn{"kind", "Kind", ColumnKind::Term},
    ShownColumn{"levels", "Other levels"},         ShownColumn{"levels_missed", "Other levels: missed"},
    ShownColumn{"answers", "Other answers"},       ShownColumn{"answers_missed", "Other answers: missed"},
    ShownColumn{"grades", "Other grades"},         ShownColumn{"grades_missed", "Other grades: missed"}};

Markup shareTable(std::string_view caption, const ResultTable& table,
                  std::initializer_list<ShownColumn> first) {
    std::vector<ShownColumn> columns(first);
    columns.insert(columns.end(), ShareColumns.begin(), ShareColumns.end());
    return dataTable(caption, table, columns);
}

/// What was varied, within what bounds, and what stayed.
Markup drawnTable(const ReportFindings& found) {
    static constexpr std::array Columns = {ShownColumn{"sweep", "Sweep", ColumnKind::Name},
                                           ShownColumn{"drawn", "What is drawn", ColumnKind::Text},
                                           ShownColumn{"range", "From", ColumnKind::Text},
                                           ShownColumn{"stays", "What stays", ColumnKind::Text}};
    const method::Levels& levels = found.Run.Levels;
    const std::string p = fieldOf(found.Sweeps.back().Settings.P);
    const auto around = [](double level) {
        return fieldOf(Fixed{std::max(0.0, level - 0.2), 2}) + " to " +
               fieldOf(Fixed{std::min(1.0, level + 0.2), 2});
    };
    const ResultTable table = {
        {"sweep", "drawn", "range", "stays"},
        {{std::string("Other levels"),
          std::string("The three levels together; which of them made a difference is not told"),
          "All values alike likely, to 2 decimals: margin of error 0 to " +
              fieldOf(std::min(100.0, 2 * levels.Margin)) + ", threat representation " +
              around(levels.ThreatRepresentation) + ", conservation status " +
              around(levels.ConservationStatus),
          std::string("All grades; the given answers")},
         {std::string("Other answers"), std::string("The species that is taken at each question"),
          std::string("Those that the question lists, all alike likely"),
          std::string("All levels and grades")},
         {std::string("Other grades"),
          std::string("Levels of use, severity, recovery, proportion affected, functions and "
                      "socio-economics, each by itself"),
          "With a probability of " + p +
              " one step up or down, alike likely; a step beyond the scale is none; a 0 stays 0",
          std::string(
              "Conservation status (so that nothing here tells how sure an exclusion is), urgency, "
              "probability, home range, dispersal, connectivity, proportion occupied; all levels; the "
              "given answers")}}};
    return dataTable("What was drawn", table, Columns);
}

Markup sweepItems(const ReportFindings& found) {
    Markup items;
    for (const ReportSweep& sweep : found.Sweeps) {
        Markup item = element("b", std::string("Other ") + sweep.Name + ".");
        for (const Sentence& sentence : sweepSentences(found, sweep))
            item += escaped(" ") + sentence.markup();
        items += element("li", item);
    }
    return element("ul", items);
}

/// p is chosen, not measured, and what was entered about the data is not used here.
Sentence aboutQuality(const ReportFindings& found) {
    const method::Table& quality = found.Run.DataQuality;
    bool isEntered = false;
    for (std::size_t s = 0; s < quality.rows(); ++s) {
        for (const double grade : quality.row(s)) isEntered = isEntered || method::isNumber(grade);
    }
    Sentence sentence(
        "How far the levels are varied, and that a grade is off with a probability of " +
        fieldOf(found.Sweeps.back().Settings.P) +
        ", are assumptions, no estimates; the shares depend on them more than on the number of runs.");
    if (isEntered)
        sentence.say(
            " The data quality that was entered is not taken into account here; “brenica-batch sweep --vary "
            "grades --quality” does so, and --p sets another probability.");
    return sentence;
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

/// What the cells of the figure say, to copy.
Markup gridTables(const LevelGrid& grid) {
    return element("details",
                   element("summary", "The same as tables") +
                       gridTable(grid, "Species in the suite, by threat representation", &LevelRun::Species) +
                       gridTable(grid, "Units not covered, by threat representation", &LevelRun::Uncovered));
}

std::size_t coveringPairs(const LevelGrid& grid) {
    std::size_t pairs = 0;
    for (const std::vector<LevelRun>& runs : grid.Runs) {
        for (std::size_t column = 0; column < runs.size(); ++column)
            pairs += runs[column].Uncovered == 0 && grid.Representations[column] > 0 ? 1 : 0;
    }
    return pairs;
}

/// The pair nearest to the levels of the run that leaves nothing uncovered.
std::string nearestLevels(const ReportFindings& found) {
    const LevelGrid& grid = found.Levels;
    if (!found.Nearest)
        return "At no pair of these levels is every unit covered (a threat representation of 0 left aside).";
    const std::size_t pairs = coveringPairs(grid);
    const LevelRun& run = grid.Runs[found.Nearest->Status][found.Nearest->Representation];
    std::string text =
        capitalCountWord(pairs) + (pairs == 1 ? " pair leaves" : " pairs leave") +
        " no unit uncovered (a threat representation of 0 left aside). Nearest to the levels of "
        "this report: threat representation " +
        fieldOf(grid.Representations[found.Nearest->Representation]) + ", conservation status " +
        fieldOf(grid.Statuses[found.Nearest->Status]) + ", where the run has " +
        countedInWords(run.Species, "species", "species");
    const auto& smallest = found.AtNearest.Smallest;
    if (smallest && smallest->isProven()) text += " and the smallest suite " + countWord(smallest->upper());
    return text + ".";
}

}  // namespace

Markup frequencySection(const ReportFindings& findings, const ReportOrigin&) {
    const SweepSettings& settings = findings.Sweeps.front().Settings;
    return paragraph("The selection was made anew " + withThousands(settings.Runs) +
                     " times for each of three questions, with one thing drawn by chance each time (seed " +
                     std::to_string(settings.Seed) + "):") +
           sweepItems(findings) + paragraph(answersByPosition(findings)) +
           paragraph(
               "A share is that of the runs whose suite holds the species. It is not irreplaceability: a "
               "species in 95 of 100 suites may have a substitute that is nearly as good, and one in 30 may be "
               "the only one for a unit that the other 70 leave uncovered. In brackets stands the 95 % "
               "interval, of each share by itself; it speaks of the number of runs alone, not of whether the "
               "grades are right.") +
           paragraph(aboutQuality(findings)) + frequencyFigure(findings) + drawnTable(findings) +
           shareTable("Share of the runs that select each species", selectedTable(findings),
                      {{"number", "No."},
                       {"species", "Species", ColumnKind::Name},
                       {"pick", "Place in the suite"}}) +
           dataTable("Share of the runs that leave a unit uncovered", uncoveredTable(findings), OpenColumns) +
           shareTable("Share of the runs by size of the suite", sizeTable(findings),
                      {{"size", "Species in the suite"}});
}

Markup levelSection(const ReportFindings& findings, const ReportOrigin&) {
    const LevelGrid& grid = findings.Levels;
    if (grid.Runs.empty())
        return paragraph("At no level is a species eligible, or the work was stopped before.");
    Markup content =
        paragraph("One run for each pair of levels, at the margin of error of this report (" +
                  fieldOf(findings.Run.Levels.Margin) +
                  " %). Sizes are those of runs; smaller suites may exist.") +
        paragraph(answersByPosition(findings)) + paragraph(nearestLevels(findings)) +
        paragraph(
            "Lower demands are easier to reach and mean less: that fewer species are enough at a lower threat "
            "representation is no gain. At 0 any species counts for each threat.");
    if (!grid.isComplete()) content += paragraph("The work was stopped: rows are missing.");
    return content + levelFigure(findings) + gridTables(grid);
}

}  // namespace insight
