// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/landscape_reader.h"

#include <array>
#include <utility>

#include "project/columns.h"
#include "ui/form_window.h"
#include "ui/numbers.h"
#include "ui/text.h"

namespace {

double gradeOf(std::string_view text, ui::DecimalSeparator separator) {
    if (text.size() == 1 && text[0] >= '0' && text[0] <= '9') return text[0] - '0';  // nearly every grade
    return numberOf(text, separator);
}

/// The cells of a grid as numbers.
class Numbers {
    /// What puts a text's number where `value` points to, and moves on.
    auto readingInto(std::span<double>::iterator& value) const {
        return
            [&value, separator = separator_](std::string_view text) { *value++ = gradeOf(text, separator); };
    }

public:
    explicit Numbers(const ui::Grid& table) : table_(table), separator_(table.Form().Separator()) {}

    double at(int row, int col) const {
        if (row >= table_.Rows() || col >= table_.Cols()) return method::Unreadable;
        return gradeOf(table_.TextMatrix(row, col), separator_);
    }
    /// The cells of a row from column `firstCol` on.
    void readRow(int row, int firstCol, std::span<double> values) const {
        auto value = values.begin();
        table_.ReadRow(row, firstCol, static_cast<int>(values.size()), readingInto(value));
        while (value != values.end()) *value++ = method::Unreadable;
    }
    /// The cells of a column from row `firstRow` on.
    void readColumn(int col, int firstRow, std::span<double> values) const {
        auto value = values.begin();
        table_.ReadColumn(col, firstRow, static_cast<int>(values.size()), readingInto(value));
        while (value != values.end()) *value++ = method::Unreadable;
    }

private:
    const ui::Grid& table_;
    ui::DecimalSeparator separator_;
};

/// Columns of a table of blocks, which has a row for each species and item. A block is read whole while it is at hand.
template <std::size_t Count>
std::array<method::Table, Count> blocksOf(const ui::Grid& table, const std::array<int, Count>& cols,
                                          int species, int items) {
    const Numbers numbers(table);
    std::array<method::Table, Count> values;
    for (method::Table& column : values)
        column = method::Table(static_cast<std::size_t>(species), static_cast<std::size_t>(items));
    for (int s = 1; s <= species; ++s) {
        for (std::size_t i = 0; i < Count; ++i)
            numbers.readColumn(cols[i], blockRow(s, items, 1), values[i].row(landscapeIndex(s)));
    }
    return values;
}

std::vector<double> zeros(int count) { return std::vector<double>(static_cast<std::size_t>(count)); }

}  // namespace

double numberOf(std::string_view text, ui::DecimalSeparator separator) {
    if (ui::isBlank(text)) return method::Blank;
    return ui::tryReal(text, separator).value_or(method::Unreadable);
}

double numberAt(const ui::Grid& table, int row, int col) { return Numbers(table).at(row, col); }

std::vector<double> rowOf(const ui::Grid& table, int row, int firstCol, int cols) {
    std::vector<double> values = zeros(cols);
    Numbers(table).readRow(row, firstCol, values);
    return values;
}

std::vector<double> columnOf(const ui::Grid& table, int col, int rows) {
    std::vector<double> values = zeros(rows);
    Numbers(table).readColumn(col, 1, values);
    return values;
}

method::Table tableOf(const ui::Grid& table, int firstCol, int rows, int cols) {
    const Numbers numbers(table);
    method::Table values(static_cast<std::size_t>(rows), static_cast<std::size_t>(cols));
    for (int row = 1; row <= rows; ++row) numbers.readRow(row, firstCol, values.row(landscapeIndex(row)));
    return values;
}

method::Table levelsOf(const ui::Grid& table, int species, int units) {
    return std::move(blocksOf(table, std::array{use::Level}, species, units).front());
}

std::vector<double> levelsOfSpecies(const ui::Grid& table, int species, int units) {
    std::vector<double> levels = zeros(units);
    Numbers(table).readColumn(use::Level, blockRow(species, units, 1), levels);
    return levels;
}

method::ThreatRatings ratingsOf(const ui::Grid& table, int species, int threats) {
    auto [urgency, recovery, severity, proportion, probability] =
        blocksOf(table,
                 std::array{threat::Urgency, threat::Recovery, threat::Severity, threat::Proportion,
                            threat::Probability},
                 species, threats);
    return {std::move(urgency), std::move(recovery), std::move(severity), std::move(proportion),
            std::move(probability)};
}

method::Table threatScoresOf(const ui::Grid& vulnerabilityTable, int species, int threats) {
    return tableOf(vulnerabilityTable, vulnerability::ThreatOffset + 1, species, threats);
}

void raiseForCell(const ui::Grid& grid, int row, int col) {
    grid.Real(row, col);
    ui::raise(ui::ErrorNumber::Overflow);
}
