// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The mouse in a grid.
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/grid_view.h"

namespace desktop {

namespace {

constexpr int AutoScrollInterval = 50;  // milliseconds a row

}  // namespace

void GridView::hover(QPoint place) {
    const CellAddress cell = viewport()->rect().contains(place) ? geometry_.cellAt(place) : CellAddress{};
    if (cell == hovered_) return;
    hovered_ = cell;
    act([&] { grid_.UserMouseMove(cell.Row, cell.Col); });
}

/// The form hears nothing of it: a tip stays with its heading until the mouse is over another cell.
void GridView::leave() {
    hovered_ = {};
    if (draggedCol_ < 0) viewport()->unsetCursor();
}

void GridView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint place = event->position().toPoint();
    draggedCol_ = geometry_.edgeAt(place);
    if (draggedCol_ >= 0) return;
    const CellAddress cell = geometry_.cellAt(place);
    const bool body = cell.Row >= geometry_.fixedRows() && cell.Col >= geometry_.fixedCols();
    if (body && event->modifiers() & Qt::ShiftModifier) {
        act([&] { selecting_ = grid_.UserSelectTo(cell.Row, cell.Col); });
    } else {
        act([&] { grid_.UserMouseDown(cell.Row, cell.Col); });
        selecting_ = body && CellAddress{grid_.Row(), grid_.Col()} == cell && !grid_.Editing();
    }
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    // A box that a press brought up takes the release.
    if (!(event->buttons() & Qt::LeftButton)) endDrag();
    if (draggedCol_ >= 0) return dragColumn(place);
    hover(place);
    if (selecting_) return dragSelection(place);
    if (geometry_.edgeAt(place) >= 0) {
        viewport()->setCursor(Qt::SplitHCursor);
    } else {
        viewport()->unsetCursor();
    }
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) endDrag();
}

void GridView::endDrag() {
    draggedCol_ = -1;
    selecting_ = false;
    autoScroll_.stop();
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint place = event->position().toPoint();
    if (const int edge = geometry_.edgeAt(place); edge >= 0) return act([&] { grid_.UserFitColumn(edge); });
    const CellAddress cell = geometry_.cellAt(place);
    if (cell.Row < geometry_.fixedRows()) return;
    if (cell != CellAddress{grid_.Row(), grid_.Col()}) return mousePressEvent(event);
    beginEdit();
}

void GridView::dragColumn(QPoint place) {
    const int width = geometry_.widthUpTo(draggedCol_, place.x() + 1);
    if (width != grid_.ColWidth(draggedCol_)) act([&] { grid_.UserDragColumn(draggedCol_, width); });
}

CellAddress GridView::bodyCellNear(QPoint place) const {
    const int right = std::min(viewport()->width(), geometry_.right(grid_.Cols() - 1)) - 1;
    const int x = std::clamp(place.x(), geometry_.bodyLeft(), std::max(geometry_.bodyLeft(), right));
    const int y =
        std::clamp(place.y(), geometry_.bodyTop(), std::max(geometry_.bodyTop(), viewport()->height() - 1));
    const int row = geometry_.rowAt(y);
    return {row < 0 ? grid_.Rows() - 1 : row, geometry_.colAt(x)};
}

/// Selects up to the cell nearest to the pointer, and goes on scrolling while the pointer is outside.
void GridView::dragSelection(QPoint place) {
    dragPlace_ = place;
    const QRect body(QPoint(geometry_.bodyLeft(), geometry_.bodyTop()), viewport()->rect().bottomRight());
    if (body.contains(place)) {
        autoScroll_.stop();
    } else if (!autoScroll_.isActive()) {
        autoScroll_.start(AutoScrollInterval, this);
    }
    const CellAddress cell = bodyCellNear(place);
    if (cell.Col < 0 || cell == CellAddress{grid_.RowSel(), grid_.ColSel()}) return;
    act([&] { grid_.UserSelectTo(cell.Row, cell.Col); });
}

void GridView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != autoScroll_.timerId()) return QAbstractScrollArea::timerEvent(event);
    const auto scroll = [](QScrollBar* bar, int place, int low, int high) {
        if (place < low) bar->setValue(bar->value() - bar->singleStep());
        if (place > high) bar->setValue(bar->value() + bar->singleStep());
    };
    scroll(verticalScrollBar(), dragPlace_.y(), geometry_.bodyTop(), viewport()->height() - 1);
    scroll(horizontalScrollBar(), dragPlace_.x(), geometry_.bodyLeft(), viewport()->width() - 1);
    dragSelection(dragPlace_);
}

void GridView::wheelEvent(QWheelEvent* event) {
    QAbstractScrollArea::wheelEvent(event);
    event->accept();
    hover(viewport()->mapFromGlobal(event->globalPosition().toPoint()));
}

}  // namespace desktop
