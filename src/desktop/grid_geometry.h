// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <vector>

#include "desktop/scale.h"
#include "ui/grid.h"

namespace desktop {

struct CellAddress {
    int Row = -1;
    int Col = -1;
    bool operator==(const CellAddress&) const = default;
};

/// Where the cells of a grid stand in a view of it, in pixels from the top left of the view. Headings stay; the body
/// scrolls by whole rows and by pixels. Edges are rounded from cumulated twips, so that a grid that fits by the core's
/// count fits on the screen.
class GridGeometry {
public:
    GridGeometry(const ui::Grid& grid, const Scale& scale);

    /// Takes over the columns' widths and the heading's height.
    void follow();
    /// Scrolls to this many rows and pixels of the body.
    void scrollTo(int rows, int pixels);

    /// Lines of text that row 0 has room for.
    int headingLines() const { return furtherLines_ + 1; }
    /// Heading rows and columns that there are.
    int fixedRows() const;
    int fixedCols() const;
    /// The first row of the body in view.
    int firstRow() const { return fixedRows() + scrolledRows_; }
    /// Where the body begins.
    int bodyLeft() const { return edges_[static_cast<std::size_t>(fixedCols())]; }
    int bodyTop() const { return slotTop(fixedRows()); }
    /// The width of all columns together.
    int totalWidth() const { return edges_.back(); }
    /// How many rows of the body stand whole in a view of this height, and how many show at all.
    int wholeRows(int height) const;
    int touchedRows(int height) const;

    int left(int col) const;
    int right(int col) const { return left(col) + width(col); }
    int width(int col) const;
    int top(int row) const;
    /// Empty for a cell of a hidden column; outside the view for one that is scrolled away.
    QRect cell(int row, int col) const;

    /// The row or column that covers a place, -1 for none.
    int rowAt(int y) const;
    int colAt(int x) const;
    /// The cell there, a row and a column or neither.
    CellAddress cellAt(QPoint place) const;
    /// The column whose right edge is near this place in the headings, -1 for none.
    int edgeAt(QPoint place) const;
    /// The next shown column of the body, or -1.
    int nextShownCol(int col, int step) const;
    /// The width in twips with which a column ends at `x`.
    int widthUpTo(int col, int x) const;

private:
    int slotTop(int slot) const;
    int slotAt(int y) const;

    const ui::Grid& grid_;
    const Scale& scale_;
    std::vector<int> edges_{0};
    std::vector<int> twips_{0};
    int furtherLines_ = 0;
    int scrolledRows_ = 0;
    int scrolledPixels_ = 0;
};

}  // namespace desktop
