// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/totals_block.h"

#include <utility>

namespace {

constexpr int BlockSize = 3;
constexpr ui::Colour White = ui::rgb(255, 255, 255);
constexpr ui::Colour TotalsColour = ui::rgb(128, 255, 255);

}  // namespace

void extendForTotals(ui::Grid& grid, int rows, int cols) {
    if (grid.Cols() == cols) grid.Cols(cols + BlockSize);
    if (grid.Rows() == rows) grid.Rows(rows + BlockSize);
}

void writeTotalsLabels(ui::Grid& grid, const TotalsLabels& labels, int plainRow, int plainCol) {
    const int lastRow = grid.Rows() - 1;
    const int lastCol = grid.Cols() - 1;
    grid.TextMatrix(0, lastCol - 1, labels.TotalBySpecies);
    grid.TextMatrix(0, lastCol, labels.CountBySpecies);
    grid.TextMatrix(lastRow - 1, 0, labels.TotalByUnit);
    grid.TextMatrix(lastRow, 0, labels.CountByUnit);
    grid.Select(0, 0, plainRow, plainCol);
    grid.CellFontBold(false);
    const std::pair<int, int> cells[] = {{0, lastCol - 1}, {0, lastCol}, {lastRow - 1, 0}, {lastRow, 0}};
    for (const auto& [row, col] : cells) {
        grid.Select(row, col);
        grid.CellFontBold(true);
    }
}

void clearTotalsColours(ui::Grid& grid) {
    grid.Select(1, 1, grid.Rows() - 1, grid.Cols() - 1);
    grid.CellBackColor(White);
}

void selectTotalsRows(ui::Grid& grid) {
    const int lastRow = grid.Rows() - 1;
    grid.Select(lastRow - 1, 1, lastRow, grid.Cols() - 1);
}

void paintTotals(ui::Grid& grid) {
    const int lastCol = grid.Cols() - 1;
    grid.Select(1, lastCol - 1, grid.Rows() - 1, lastCol);
    grid.CellBackColor(TotalsColour);
    selectTotalsRows(grid);
    grid.CellBackColor(TotalsColour);
}
