// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_painter.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/colours.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

constexpr ui::Colour Unset = ui::rgb(255, 255, 255);  // a white cell is one without a colour
constexpr int MostTexts = 6000;                       // of which a large screen holds a few thousand
constexpr int RightPadding = 2;
constexpr int SortMarkWidth = 9;
constexpr int SortMarkHeight = 5;
constexpr double LineWeight = 0.18;
constexpr double HeadingLineWeight = 0.3;
constexpr double SelectionWeight = 0.16;
constexpr double FadedWeight = 0.5;
constexpr double NarrowestHeading = 0.85;  // of the width that its text has by itself
// Above this lightness black contrasts more than white.
constexpr double MiddleLightness = 0.179;

QColor mixed(const QColor& back, const QColor& front, double weight) {
    const auto part = [&](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * weight)); };
    return {part(back.red(), front.red()), part(back.green(), front.green()),
            part(back.blue(), front.blue())};
}

/// How light the eye finds a colour, from 0 to 1.
double lightness(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

bool isDisabled(const QPalette& palette) { return palette.currentColorGroup() == QPalette::Disabled; }

/// A text in as many lines as there are, word by word; each is cut where it is longer than `longest`.
QStringList brokenIntoLines(const QString& text, int room, int longest, int lines,
                            const QFontMetricsF& metrics) {
    // No character that shows is narrower than a pixel: a long text need not be measured to its end.
    const QStringList words = text.left((longest + 1) * lines).split(' ');
    QStringList broken;
    QString line = words.first();
    for (const QString& word : words.mid(1)) {
        const QString longer = line + ' ' + word;
        const bool last = broken.size() + 1 == lines;
        if (!last && metrics.horizontalAdvance(longer) > room) {
            broken.append(line);
            line = word;
        } else {
            line = longer;
        }
    }
    broken.append(line);
    for (QString& shown : broken) shown = metrics.elidedText(shown, Qt::ElideRight, longest);
    return broken;
}

}  // namespace

QString cellText(const ui::Grid& grid, CellAddress cell) {
    QString text = shortText(grid.TextMatrix(cell.Row, cell.Col));
    for (QChar& character : text) {
        if (character < u' ' || character == QChar::LineSeparator) character = u' ';
    }
    return text;
}

GridPainter::GridPainter(const ui::Grid& grid, const GridGeometry& geometry, const Scale& scale)
    : grid_(grid),
      geometry_(geometry),
      font_(scale.font({})),
      boldFont_(scale.font({.Bold = true})),
      padding_(scale.pixels(ui::Grid::CellPadding / 2)),
      texts_(MostTexts) {}

void GridPainter::paint(QPainter& painter, QSize view, const Look& look) {
    palette_ = look.Palette;
    painter.fillRect(QRect(QPoint(), view), palette_.base());
    if (grid_.Rows() == 0 || grid_.Cols() == 0) return;
    const int fixedRows = geometry_.fixedRows();
    const int fixedCols = geometry_.fixedCols();
    const QPoint body(geometry_.bodyLeft(), geometry_.bodyTop());
    const int rowsEnd = std::min(grid_.Rows(), geometry_.firstRow() + geometry_.touchedRows(view.height()));
    const int lastCol = geometry_.colAt(view.width() - 1);
    const int colsEnd = lastCol < 0 ? grid_.Cols() : lastCol + 1;
    const int firstCol = std::max(fixedCols, geometry_.colAt(body.x()));
    const QRect all(QPoint(), view);
    const QRect bodyPlace(body, QPoint(view.width() - 1, view.height() - 1));
    const QRect top(0, 0, view.width(), body.y());
    const QRect left(0, 0, body.x(), view.height());

    const Area cells{geometry_.firstRow(), rowsEnd, firstCol, colsEnd, bodyPlace};
    paintArea(painter, cells, false);
    paintSelection(painter, cells, look.Focused);
    paintArea(painter, {0, fixedRows, firstCol, colsEnd, top & bodyPlace.adjusted(0, -body.y(), 0, 0)}, true);
    paintArea(painter,
              {geometry_.firstRow(), rowsEnd, 0, fixedCols, left & bodyPlace.adjusted(-body.x(), 0, 0, 0)},
              true);
    paintArea(painter, {0, fixedRows, 0, fixedCols, top & left}, true);
    painter.setClipRect(all);
}

void GridPainter::paintArea(QPainter& painter, const Area& area, bool headings) {
    if (area.FirstRow >= area.RowsEnd || area.FirstCol >= area.ColsEnd || area.Clip.isEmpty()) return;
    painter.setClipRect(area.Clip);
    for (int row = area.FirstRow; row < area.RowsEnd; ++row) {
        for (int col = area.FirstCol; col < area.ColsEnd; ++col) {
            if (geometry_.width(col) > 0) paintCell(painter, {row, col}, geometry_.cell(row, col), headings);
        }
    }
    const QColor back = headings ? palette_.color(QPalette::Button) : palette_.color(QPalette::Base);
    const QColor text = headings ? palette_.color(QPalette::ButtonText) : palette_.color(QPalette::Text);
    paintLines(painter, area, mixed(back, text, headings ? HeadingLineWeight : LineWeight));
}

void GridPainter::paintCell(QPainter& painter, CellAddress cell, const QRect& place, bool heading) {
    if (heading || grid_.BackColorOf(cell.Row, cell.Col) != Unset) {
        painter.fillRect(place, backColour(cell, heading));
    }
    if (!grid_.TextMatrix(cell.Row, cell.Col).empty()) {
        painter.setPen(textColour(cell, heading));
        paintText(painter, cell, place);
    }
    if (bearsSortMark(cell)) paintSortMark(painter, place);
}

/// Only headings have room for more than one line.
void GridPainter::paintText(QPainter& painter, CellAddress cell, const QRect& place) {
    const bool bold = grid_.IsBold(cell.Row, cell.Col);
    const int room = roomFor(cell, place);
    if (room <= 0) return;
    const ShapedText& text =
        shaped(cellText(grid_, cell), room, longestFor(cell, room), linesFor(cell), bold);
    const double free = std::max(0.0, room - text.Width);
    const ui::CellAlign alignment = grid_.AlignmentOf(cell.Row, cell.Col);
    const double indent = alignment == ui::CellAlign::CentreCentre  ? std::floor(free / 2)
                          : alignment == ui::CellAlign::RightCentre ? std::floor(free)
                                                                    : 0;
    const int height = static_cast<int>(std::ceil(text.Text.size().height()));
    painter.setFont(font(bold));
    const QPointF at(place.left() + padding_ + indent, place.top() + (place.height() - 1 - height) / 2);
    if (text.Width <= room) return painter.drawStaticText(at, text.Text);
    painter.save();
    painter.translate(at);
    painter.scale(room / text.Width, 1);
    painter.drawStaticText(0, 0, text.Text);
    painter.restore();
}

/// The longest line that is drawn whole. A heading that is a little too wide for its column is drawn narrower.
int GridPainter::longestFor(CellAddress cell, int room) const {
    return cell.Row < geometry_.fixedRows() ? static_cast<int>(room / NarrowestHeading) : room;
}

/// What padding and sort mark leave of a cell. Right of the text less is kept free than is counted for it, so that
/// rounding cuts no text that fits.
int GridPainter::roomFor(CellAddress cell, const QRect& place) const {
    return place.width() - padding_ - RightPadding - (bearsSortMark(cell) ? SortMarkWidth + RightPadding : 0);
}

const GridPainter::ShapedText& GridPainter::shaped(const QString& text, int room, int longest, int lines,
                                                   bool bold) {
    const TextKey key{text, room, longest, lines, bold};
    if (const ShapedText* known = texts_.object(key)) return *known;
    const QFontMetricsF metrics(font(bold));
    auto added = std::make_unique<ShapedText>();
    const QStringList shown = brokenIntoLines(text, room, longest, lines, metrics);
    added->Text.setTextFormat(Qt::PlainText);
    added->Text.setText(shown.join(QChar::LineSeparator));
    added->Text.prepare({}, font(bold));
    for (const QString& line : shown) added->Width = std::max(added->Width, metrics.horizontalAdvance(line));
    ShapedText* kept = added.release();
    texts_.insert(key, kept);
    return *kept;
}

bool GridPainter::isCut(CellAddress cell) const {
    const QFontMetricsF metrics(font(grid_.IsBold(cell.Row, cell.Col)));
    const int room = roomFor(cell, geometry_.cell(cell.Row, cell.Col));
    const QString text = cellText(grid_, cell);
    return brokenIntoLines(text, room, longestFor(cell, room), linesFor(cell), metrics).join(' ') != text;
}

bool GridPainter::bearsSortMark(CellAddress cell) const {
    return cell.Row == geometry_.fixedRows() - 1 && cell.Col == grid_.Sorted().Col;
}

void GridPainter::paintSortMark(QPainter& painter, const QRect& heading) const {
    const bool down = grid_.Sorted().Descending;
    const int right = heading.right() - 1 - RightPadding;
    const int top = heading.center().y() - SortMarkHeight / 2;
    const int base = down ? top : top + SortMarkHeight;
    const int tip = down ? top + SortMarkHeight : top;
    const QPolygon triangle({{right - SortMarkWidth, base}, {right, base}, {right - SortMarkWidth / 2, tip}});
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette_.color(QPalette::ButtonText));
    painter.drawPolygon(triangle);
    painter.restore();
}

void GridPainter::paintLines(QPainter& painter, const Area& area, const QColor& colour) const {
    const int left = geometry_.left(area.FirstCol);
    const int right = geometry_.right(area.ColsEnd - 1) - 1;
    const int top = geometry_.top(area.FirstRow);
    const int bottom = geometry_.cell(area.RowsEnd - 1, area.FirstCol).bottom();
    QList<QLine> lines;
    for (int row = area.FirstRow; row < area.RowsEnd; ++row) {
        const int y = geometry_.cell(row, area.FirstCol).bottom();
        lines.append(QLine(left, y, right, y));
    }
    for (int col = area.FirstCol; col < area.ColsEnd; ++col) {
        const int x = geometry_.right(col) - 1;
        if (geometry_.width(col) > 0) lines.append(QLine(x, top, x, bottom));
    }
    painter.setPen(colour);
    painter.drawLines(lines);
}

/// Shades a range that the user has selected, and frames the cell that keys begin at in the grid with the focus. A range
/// that code has selected to set its colours must not change how these look.
void GridPainter::paintSelection(QPainter& painter, const Area& body, bool focused) const {
    const auto [row, col] = grid_.KeyCell();
    const CellAddress current{row, col};
    if (!body.Clip.isValid() || !grid_.IsBody(row, col)) return;
    painter.setClipRect(body.Clip);
    const QColor highlight = palette_.color(QPalette::Highlight);
    // The frame covers the line before the cell too.
    const QRect place = geometry_.cell(current.Row, current.Col);
    const QRect frame = place.adjusted(-1, -1, 0, 0);
    const CellAddress other{grid_.RowSel(), grid_.ColSel()};
    if (other != current && grid_.UserSelected()) {
        const QRect range = place | geometry_.cell(other.Row, other.Col);
        QColor shade = highlight;
        shade.setAlphaF(SelectionWeight);
        QRegion shaded = QRegion(range & body.Clip) - place;
        for (const QRect& part : shaded) painter.fillRect(part, shade);
    }
    if (place.width() == 0 || !focused) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(highlight);
    painter.drawRect(frame.adjusted(0, 0, -1, -1));
    painter.drawRect(frame.adjusted(1, 1, -2, -2));
}

QColor GridPainter::backColour(CellAddress cell, bool heading) const {
    const ui::Colour own = grid_.BackColorOf(cell.Row, cell.Col);
    if (own == Unset) return palette_.color(heading ? QPalette::Button : QPalette::Base);
    if (!isDisabled(palette_)) return toColour(own);
    return mixed(toColour(own), palette_.color(QPalette::Window), FadedWeight);
}

QColor GridPainter::textColour(CellAddress cell, bool heading) const {
    if (grid_.BackColorOf(cell.Row, cell.Col) == Unset) {
        return palette_.color(heading ? QPalette::ButtonText : QPalette::Text);
    }
    const QColor back = backColour(cell, heading);
    const QColor contrasting = lightness(back) > MiddleLightness ? Qt::black : Qt::white;
    return isDisabled(palette_) ? mixed(contrasting, back, FadedWeight) : contrasting;
}

}  // namespace desktop
