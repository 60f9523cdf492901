// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Tables of results, for people, spreadsheets and scripts.
namespace insight {

/// A number that a table shows with a fixed count of decimals.
struct Fixed {
    double Value;
    int Places;
};

/// Nothing, yes or no, a whole number, a number in its shortest form, one with fixed decimals, a text, a list of texts.
using Cell =
    std::variant<std::monostate, bool, std::int64_t, double, Fixed, std::string, std::vector<std::string>>;

/// How many there are, or a place in a list.
inline Cell numberCell(std::uint64_t value) { return static_cast<std::int64_t>(value); }

struct ResultTable {
    std::vector<std::string> Columns;
    std::vector<std::vector<Cell>> Rows;  ///< each has a cell for every column
};

/// The place of a column. REQUIRES: the table has it
std::size_t columnOf(const ResultTable& table, std::string_view name);

/// A text with its tabs and line breaks as blanks.
std::string oneLine(std::string text);

/// A cell as one field: "yes" or "no", lists parted by "; ", tabs and line breaks as blanks.
std::string fieldOf(const Cell& cell);

/// A heading and a line for each row, fields parted by tabs, each line ended by LF.
std::string tabSeparated(const ResultTable& table);

}  // namespace insight
