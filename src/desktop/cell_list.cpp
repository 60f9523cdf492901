// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/cell_list.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace desktop {

namespace {

constexpr int MostRowsShown = 12;

}  // namespace

CellList::CellList(QWidget* view, int rowHeight) : QListWidget(view), view_(view), rowHeight_(rowHeight) {
    setWindowFlags(Qt::Popup);
    setFocusPolicy(Qt::NoFocus);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    connect(this, &QListWidget::itemEntered, this, [this](QListWidgetItem* item) { setCurrentItem(item); });
}

void CellList::open(const QStringList& items, int current, const QRect& cell) {
    clear();
    for (const QString& text : items) {
        // A blank item is as high as the others.
        (new QListWidgetItem(text, this))->setSizeHint(QSize(1, rowHeight_));
    }
    setCurrentRow(current);
    const int frame = 2 * frameWidth();
    const int rows = std::clamp(count(), 1, MostRowsShown);
    const int bar = count() > rows ? verticalScrollBar()->sizeHint().width() : 0;
    const QSize size(std::max(cell.width(), sizeHintForColumn(0) + bar + frame), rows * rowHeight_ + frame);
    const QRect screen = view_->screen()->availableGeometry();
    QRect place(cell.bottomLeft() + QPoint(0, 1), size);
    if (place.bottom() > screen.bottom()) place.moveBottom(cell.top() - 1);
    if (place.right() > screen.right()) place.moveRight(screen.right());
    setGeometry(place);
    show();
}

bool CellList::move(int key) {
    const int last = count() - 1;
    const int page = std::max(1, height() / rowHeight_ - 1);
    int row = std::max(0, currentRow());
    switch (key) {
        case Qt::Key_Up: --row; break;
        case Qt::Key_Down: row = currentRow() + 1; break;
        case Qt::Key_PageUp: row -= page; break;
        case Qt::Key_PageDown: row += page; break;
        case Qt::Key_Home: row = 0; break;
        case Qt::Key_End: row = last; break;
        default: return false;
    }
    setCurrentRow(std::clamp(row, 0, last));
    return true;
}

bool CellList::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::InputMethod: return QCoreApplication::sendEvent(view_, event);
        case QEvent::MouseButtonPress:
            if (rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) break;
            hide();
            return true;
        default: break;
    }
    return QListWidget::event(event);
}

}  // namespace desktop
