// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "ui/grid.h"

/// One line of a project file before it is text: its key, a value that is no cell, and the cells of a column.
struct FileLine {
    std::string_view Key;
    std::string_view First{};  ///< empty for none
    const ui::Grid* Grid = nullptr;
    int Column = 0;
    int Rows = 0;  ///< the cells are those of rows 1 to Rows
};

using TakeFileLine = std::function<void(const FileLine&)>;

/// Appends the line's text: the key, "=" and the values, each with a comma that the last one loses again. The blanks at
/// the end go, those of the last value along. `appendCell` is given the text so far, the row and the cell's text.
template <class AppendCell>
void appendLine(std::string& text, const FileLine& line, AppendCell appendCell) {
    text.append(line.Key).append(" = ");
    if (!line.First.empty()) text.append(line.First).push_back(',');
    for (int row = 1; row <= line.Rows; ++row) {
        appendCell(text, row, line.Grid->TextMatrix(row, line.Column));
        text.push_back(',');
    }
    text.pop_back();
    while (text.back() == ' ') text.pop_back();
}
