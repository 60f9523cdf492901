// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCache>
#include <QPainter>
#include <QPalette>
#include <QStaticText>

#include "desktop/grid_geometry.h"

namespace desktop {

/// Draws the cells of a grid that are in view, and nothing else of it. Texts stay as they are shaped, since the same
/// ones are drawn again and again.
class GridPainter {
public:
    GridPainter(const ui::Grid& grid, const GridGeometry& geometry, const Scale& scale);

    struct Look {
        QPalette Palette;  ///< with the colour group to draw in
        bool Focused = false;
    };
    void paint(QPainter& painter, QSize view, const Look& look);
    /// Whether the cell is too narrow for its text.
    bool isCut(CellAddress cell) const;
    const QFont& font(bool bold) const { return bold ? boldFont_ : font_; }
    /// What a text keeps free at each side, in pixels.
    int padding() const { return padding_; }

private:
    struct Area {
        int FirstRow, RowsEnd, FirstCol, ColsEnd;
        QRect Clip;
    };
    struct ShapedText {
        QStaticText Text;
        double Width = 0;
    };
    struct TextKey {
        QString Text;
        int Room;
        int Longest;
        int Lines;
        bool Bold;
        bool operator==(const TextKey&) const = default;
        friend std::size_t qHash(const TextKey& key, std::size_t seed) {
            return qHashMulti(seed, key.Text, key.Room, key.Longest, key.Lines, key.Bold);
        }
    };

    void paintArea(QPainter& painter, const Area& area, bool headings);
    void paintCell(QPainter& painter, CellAddress cell, const QRect& place, bool heading);
    void paintText(QPainter& painter, CellAddress cell, const QRect& place);
    void paintLines(QPainter& painter, const Area& area, const QColor& colour) const;
    void paintSortMark(QPainter& painter, const QRect& heading) const;
    void paintSelection(QPainter& painter, const Area& body, bool focused) const;
    QColor backColour(CellAddress cell, bool heading) const;
    QColor textColour(CellAddress cell, bool heading) const;
    bool bearsSortMark(CellAddress cell) const;
    int roomFor(CellAddress cell, const QRect& place) const;
    int linesFor(CellAddress cell) const { return cell.Row == 0 ? geometry_.headingLines() : 1; }
    int longestFor(CellAddress cell, int room) const;
    const ShapedText& shaped(const QString& text, int room, int longest, int lines, bool bold);

    const ui::Grid& grid_;
    const GridGeometry& geometry_;
    QFont font_;
    QFont boldFont_;
    int padding_;
    QPalette palette_;
    QCache<TextKey, ShapedText> texts_;
};

/// A cell's text on one line, as it is drawn.
QString cellText(const ui::Grid& grid, CellAddress cell);

}  // namespace desktop
