// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "method/failure.h"
#include "method/landscape.h"
#include "ui/grid.h"

/// The landscape as the tables hold it, for the method. To read it fails over no cell: one that is blank, is no number or
/// is not there goes into the landscape as such, and fails in the step that needs it. The failure then becomes the
/// platform's own when the cell is read once more.

/// The number that a text spells; Blank for none, Unreadable for what is no number.
double numberOf(std::string_view text, ui::DecimalSeparator separator);

double numberAt(const ui::Grid& table, int row, int col);
/// The cells of one row from column `firstCol` on.
std::vector<double> rowOf(const ui::Grid& table, int row, int firstCol, int cols);
/// The cells of one column from row 1 on.
std::vector<double> columnOf(const ui::Grid& table, int col, int rows);
/// The cells from row 1 and column `firstCol` on.
method::Table tableOf(const ui::Grid& table, int firstCol, int rows, int cols);

/// Levels of use, out of the table of one row for each species and unit.
method::Table levelsOf(const ui::Grid& table, int species, int units);
/// The same of one species, which counts from 1.
std::vector<double> levelsOfSpecies(const ui::Grid& table, int species, int units);
/// The five ratings, out of the table of one row for each species and threat.
method::ThreatRatings ratingsOf(const ui::Grid& table, int species, int threats);
/// The scores of each species and threat, out of the vulnerability table.
method::Table threatScoresOf(const ui::Grid& vulnerabilityTable, int species, int threats);

/// Raises what reading the cell as a number raises; Overflow for one that is a number, since then a result was too large.
[[noreturn]] void raiseForCell(const ui::Grid& grid, int row, int col);

/// What a calculation of the method failed with, if it did.
template <class Calculation>
std::optional<method::Failure> failureOf(Calculation calculation) {
    try {
        calculation();
        return std::nullopt;
    } catch (const method::Failure& failure) {
        return failure;
    }
}

struct CellPlace {
    const ui::Grid& Grid;
    int Row;
    int Col;
};

/// The result of a calculation of the method; raises for the cell that `cellOf` finds for a failure.
template <class Calculation, class CellOf>
auto resultOf(Calculation calculation, CellOf cellOf) {
    try {
        return calculation();
    } catch (const method::Failure& failure) {
        const CellPlace cell = cellOf(failure);
        raiseForCell(cell.Grid, cell.Row, cell.Col);
    }
}

/// Row or column of a failure, from 0, as a table counts that has its headings before the numbers.
inline int tableIndex(std::size_t index) { return static_cast<int>(index) + 1; }
/// The index of a species or unit that counts from 1.
inline std::size_t landscapeIndex(int number) { return static_cast<std::size_t>(number) - 1; }
