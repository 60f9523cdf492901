// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/landscape_reader.h"

#include "project/columns.h"
#include "ui/form_window.h"
#include "ui/numbers.h"
#include "ui/text.h"

namespace {

/// One column of a table of blocks: a row for each species and item.
method::Table blocksOf(const ui::Grid& table, int col, int species, int items) {
    method::Table values(static_cast<std::size_t>(species), static_cast<std::size_t>(items));
    for (int s = 1; s <= species; ++s) {
        int item = 0;
        for (double& value : values.row(static_cast<std::size_t>(s) - 1))
            value = numberAt(table, blockRow(s, items, ++item), col);
    }
    return values;
}

}  // namespace

double numberOf(std::string_view text, ui::DecimalSeparator separator) {
    if (text.size() == 1 && text[0] >= '0' && text[0] <= '9') return text[0] - '0';  // nearly every grade
    if (ui::isBlank(text)) return method::Blank;
    return ui::tryReal(text, separator).value_or(method::Unreadable);
}

double numberAt(const ui::Grid& table, int row, int col) {
    if (row >= table.Rows() || col >= table.Cols()) return method::Unreadable;
    return numberOf(table.TextMatrix(row, col), table.Form().Separator());
}

std::vector<double> rowOf(const ui::Grid& table, int row, int firstCol, int cols) {
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(cols));
    for (int col = firstCol; col < firstCol + cols; ++col) values.push_back(numberAt(table, row, col));
    return values;
}

std::vector<double> columnOf(const ui::Grid& table, int col, int rows) {
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(rows));
    for (int row = 1; row <= rows; ++row) values.push_back(numberAt(table, row, col));
    return values;
}

method::Table tableOf(const ui::Grid& table, int firstCol, int rows, int cols) {
    method::Table values(static_cast<std::size_t>(rows), static_cast<std::size_t>(cols));
    for (int row = 1; row <= rows; ++row) {
        int col = firstCol;
        for (double& value : values.row(static_cast<std::size_t>(row) - 1))
            value = numberAt(table, row, col++);
    }
    return values;
}

method::Table levelsOf(const ui::Grid& table, int species, int units) {
    return blocksOf(table, use::Level, species, units);
}

std::vector<double> levelsOfSpecies(const ui::Grid& table, int species, int units) {
    std::vector<double> levels;
    levels.reserve(static_cast<std::size_t>(units));
    for (int unit = 1; unit <= units; ++unit)
        levels.push_back(numberAt(table, blockRow(species, units, unit), use::Level));
    return levels;
}

method::ThreatRatings ratingsOf(const ui::Grid& table, int species, int threats) {
    const auto rating = [&](int col) { return blocksOf(table, col, species, threats); };
    return {rating(threat::Urgency), rating(threat::Recovery), rating(threat::Severity),
            rating(threat::Proportion), rating(threat::Probability)};
}

method::Table threatScoresOf(const ui::Grid& vulnerabilityTable, int species, int threats) {
    return tableOf(vulnerabilityTable, vulnerability::ThreatOffset + 1, species, threats);
}

void raiseForCell(const ui::Grid& grid, int row, int col) {
    grid.Real(row, col);
    ui::raise(ui::ErrorNumber::Overflow);
}
