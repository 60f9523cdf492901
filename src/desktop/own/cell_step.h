// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "ui/grid.h"

namespace desktop {

/// What one step in a grid's cells has overwritten: each cell once, with the text that stood there before the step.
class CellStep {
public:
    struct Cell {
        int Row;
        int Col;
        std::string Before;
        bool ByUser;  ///< otherwise a handler filled it in consequence
    };

    /// Takes what a cell shows, unless the step has it already.
    void take(const ui::Grid& grid, int row, int col, bool byUser);
    /// Whether the user has written this cell.
    bool isByUser(int row, int col) const;
    /// Whether any cell shows another text than before.
    bool changes(const ui::Grid& grid) const;
    /// Writes back what stood there: the user's cells as the user does, and whatever then still differs.
    void putBack(ui::Grid& grid) const;
    /// Makes the user's first cell the current one, if it may be, with the range of all of them selected.
    bool select(ui::Grid& grid) const;

private:
    static std::uint64_t keyOf(int row, int col) {
        return static_cast<std::uint64_t>(row) << 32 | static_cast<std::uint32_t>(col);
    }

    std::vector<Cell> cells_;
    std::unordered_map<std::uint64_t, std::size_t> places_;
};

}  // namespace desktop
