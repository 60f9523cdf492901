// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/grid.h"

/// The tip of a heading cell; an empty text for a column that has none.
using TipOfColumn = std::function<std::string(int index, int col)>;

/// What a mouse-move handler remembers from event to event. It serves one grid or an array of grids, and lasts as long
/// as the form.
struct TipMemory {
    bool Set = false;
    int Index = 0;
    int Row = 0;
    int Col = 0;

    /// Whether the mouse is still in the heading cell of the last event.
    bool isSameHeading(int index, int row, int col) const {
        return Set && Index == index && Row == 0 && row == 0 && Col == col;
    }
    void remember(int index, int row, int col) { *this = {true, index, row, col}; }
};

/// The tip of the heading under the mouse, from column 1 on; a cell that is no heading has an empty tip. The tip stays as
/// it is while the mouse stays in one heading.
void showHeadingTip(ui::Grid& grid, int index, TipMemory& memory, const TipOfColumn& tipOf);

/// The tips of a grid's headings, one a column from 0 on.
struct HeadingTips {
    ui::Grid* Grid;
    const char* Source;
    std::vector<const char*> Texts;
    TipMemory Memory{};
};
