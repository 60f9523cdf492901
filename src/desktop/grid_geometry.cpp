// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_geometry.h"

#include <algorithm>
#include <cstdlib>

namespace desktop {

namespace {

constexpr int EdgeReach = 4;          // pixels to both sides of a column's edge
constexpr int FarAway = 100'000;      // rows; a place that no view reaches
constexpr int NarrowestColumn = 105;  // twips that a dragged column keeps

}  // namespace

GridGeometry::GridGeometry(const ui::Grid& grid, const Scale& scale) : grid_(grid), scale_(scale) {
    follow();
}

void GridGeometry::follow() {
    const int cols = grid_.Cols();
    twips_.assign(1, 0);
    edges_.assign(1, 0);
    for (int col = 0; col < cols; ++col) {
        twips_.push_back(twips_.back() + (grid_.ColHidden(col) ? 0 : grid_.ColWidth(col)));
        edges_.push_back(scale_.pixels(twips_.back()));
    }
    furtherLines_ = (grid_.HeadingHeight() - ui::Grid::RowHeight) / ui::Grid::LineHeight;
}

/// All rows are equally high but the first, which may have further lines.
int GridGeometry::slotTop(int slot) const {
    const int furtherHeight = slot > 0 ? furtherLines_ * ui::Grid::LineHeight : 0;
    return scale_.pixels(slot * ui::Grid::RowHeight + furtherHeight);
}

void GridGeometry::scrollTo(int rows, int pixels) {
    scrolledRows_ = rows;
    scrolledPixels_ = pixels;
}

int GridGeometry::fixedRows() const { return std::min(grid_.FixedRows(), grid_.Rows()); }

int GridGeometry::fixedCols() const {
    return std::min(grid_.FixedCols(), static_cast<int>(edges_.size()) - 1);
}

int GridGeometry::wholeRows(int height) const {
    const int slot = slotAt(height);
    return std::max(0, slot - fixedRows());
}

int GridGeometry::touchedRows(int height) const {
    return height <= 0 ? 0 : std::max(0, slotAt(height - 1) + 1 - fixedRows());
}

int GridGeometry::left(int col) const {
    const int edge = edges_[static_cast<std::size_t>(col)];
    return col < fixedCols() ? edge : edge - scrolledPixels_;
}

int GridGeometry::width(int col) const {
    const auto index = static_cast<std::size_t>(col);
    return edges_[index + 1] - edges_[index];
}

int GridGeometry::top(int row) const {
    if (row < fixedRows()) return slotTop(row);
    return slotTop(fixedRows() + std::clamp(row - firstRow(), -FarAway, FarAway));
}

QRect GridGeometry::cell(int row, int col) const {
    const int y = top(row);
    const int behind = row < fixedRows() ? slotTop(row + 1) : top(row + 1);
    return {left(col), y, width(col), behind - y};
}

int GridGeometry::slotAt(int y) const {
    const int plain = scale_.twips(y) - furtherLines_ * ui::Grid::LineHeight;
    int slot = std::max(0, plain / ui::Grid::RowHeight);
    while (slot > 0 && slotTop(slot) > y) --slot;
    while (slotTop(slot + 1) <= y) ++slot;
    return slot;
}

int GridGeometry::rowAt(int y) const {
    if (y < 0) return -1;
    const int slot = slotAt(y);
    const int row = slot < fixedRows() ? slot : slot + scrolledRows_;
    return row < grid_.Rows() ? row : -1;
}

int GridGeometry::colAt(int x) const {
    if (x < 0) return -1;
    const int place = x < bodyLeft() ? x : x + scrolledPixels_;
    const auto edge = std::upper_bound(edges_.begin(), edges_.end(), place);
    return edge == edges_.end() ? -1 : static_cast<int>(edge - edges_.begin()) - 1;
}

CellAddress GridGeometry::cellAt(QPoint place) const {
    const CellAddress cell{rowAt(place.y()), colAt(place.x())};
    return cell.Row < 0 || cell.Col < 0 ? CellAddress{} : cell;
}

int GridGeometry::edgeAt(QPoint place) const {
    if (place.y() < 0 || place.y() >= bodyTop()) return -1;
    for (int col = static_cast<int>(edges_.size()) - 2; col >= 0; --col) {
        if (grid_.ColHidden(col) || std::abs(right(col) - 1 - place.x()) > EdgeReach) continue;
        if (col < fixedCols() || right(col) >= bodyLeft()) return col;
    }
    return -1;
}

int GridGeometry::nextShownCol(int col, int step) const {
    for (col += step; col >= grid_.FixedCols() && col < grid_.Cols(); col += step) {
        if (!grid_.ColHidden(col)) return col;
    }
    return -1;
}

int GridGeometry::widthUpTo(int col, int x) const {
    const int scrolled = col < fixedCols() ? 0 : scrolledPixels_;
    return std::max(NarrowestColumn, scale_.twips(x + scrolled) - twips_[static_cast<std::size_t>(col)]);
}

}  // namespace desktop
