// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/cell_step.h"

#include <algorithm>

namespace desktop {

void CellStep::take(const ui::Grid& grid, int row, int col, bool byUser) {
    const auto [place, isNew] = places_.try_emplace(keyOf(row, col), cells_.size());
    if (isNew) cells_.push_back({row, col, std::string(grid.TextMatrix(row, col)), byUser});
    if (byUser) cells_[place->second].ByUser = true;
}

bool CellStep::isByUser(int row, int col) const {
    const auto found = places_.find(keyOf(row, col));
    return found != places_.end() && cells_[found->second].ByUser;
}

bool CellStep::changes(const ui::Grid& grid) const {
    return std::any_of(cells_.begin(), cells_.end(),
                       [&](const Cell& cell) { return grid.TextMatrix(cell.Row, cell.Col) != cell.Before; });
}

void CellStep::putBack(ui::Grid& grid) const {
    for (auto cell = cells_.rbegin(); cell != cells_.rend(); ++cell) {
        if (cell->ByUser) grid.UserPutBack(cell->Row, cell->Col, cell->Before);
    }
    for (const Cell& cell : cells_) {
        if (grid.TextMatrix(cell.Row, cell.Col) != cell.Before)
            grid.TextMatrix(cell.Row, cell.Col, cell.Before);
    }
}

bool CellStep::select(ui::Grid& grid) const {
    const auto user =
        std::find_if(cells_.begin(), cells_.end(), [](const Cell& cell) { return cell.ByUser; });
    if (user == cells_.end()) return false;
    int firstRow = user->Row, lastRow = user->Row, firstCol = user->Col, lastCol = user->Col;
    for (const Cell& cell : cells_) {
        if (!cell.ByUser) continue;
        firstRow = std::min(firstRow, cell.Row);
        lastRow = std::max(lastRow, cell.Row);
        firstCol = std::min(firstCol, cell.Col);
        lastCol = std::max(lastCol, cell.Col);
    }
    if (!grid.UserMoveTo(firstRow, firstCol)) return false;
    if (firstRow != lastRow || firstCol != lastCol) grid.UserSelectTo(lastRow, lastCol);
    return true;
}

}  // namespace desktop
