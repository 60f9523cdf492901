// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/strip.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/accessible_role.h"
#include "desktop/own/own_texts.h"
#include "desktop/own/strip_row.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

constexpr int MostTextLines = 12;  // high; what is more is scrolled
constexpr int EdgeLine = 1;        // between the form and the strip

/// Of a button, by the mouse or by a key.
bool isPressOf(const QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick: return true;
        case QEvent::KeyPress: return isPress(static_cast<const QKeyEvent&>(event));
        default: return false;
    }
}

}  // namespace

Strip::Strip(QWidget* parent)
    : QFrame(parent),
      scroll_(new QScrollArea(this)),
      contents_(new QWidget),
      layout_(new QVBoxLayout(contents_)) {
    setObjectName("ownStrip");
    announceAs(*this, QAccessible::Grouping);
    setAccessibleName(own_texts::Strip);
    setFocusPolicy(Qt::NoFocus);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(EdgeLine);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidgetResizable(true);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setWidget(contents_);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, EdgeLine, 0, 0);
    whole->addWidget(scroll_);
    hide();
}

/// The row that shows the line already, which is no longer among the others; null for none.
StripRow* Strip::takeRow(const StripLine& line) {
    const auto same = std::find_if(rows_.begin(), rows_.end(),
                                   [&](const StripRow* row) { return row != nullptr && row->shows(line); });
    if (same == rows_.end()) return nullptr;
    return std::exchange(*same, nullptr);
}

void Strip::show(std::vector<StripLine> lines) {
    const int focused = rowWithFocus();
    const std::vector<StripRow*> before = rows_;
    std::vector<StripRow*> rows;
    std::vector<StripRow*> added;
    for (StripLine& line : lines) {
        StripRow* row = takeRow(line);
        if (row != nullptr) {
            row->take(std::move(line));
        } else {
            row = new StripRow(std::move(line), contents_);
            for (QWidget* button : row->buttons()) button->installEventFilter(this);
            added.push_back(row);
        }
        rows.push_back(row);
    }
    const std::vector<StripRow*> gone = std::exchange(rows_, std::move(rows));
    if (rows_ == before) return emit heightChanged();  // the progress of one may take another line
    for (StripRow* row : rows_) {
        layout_->removeWidget(row);
        layout_->addWidget(row);
        row->show();
    }
    if (focused >= 0) keepFocus(focused);  // while the button that has it is still on view
    setVisible(!rows_.empty());
    for (StripRow* row : gone) {
        if (row == nullptr) continue;
        rest_.setRemainingTime(TimeToRest);
        row->hide();
        row->deleteLater();  // its button may be the one that was pressed
    }
    emit heightChanged();
    for (StripRow* row : added) {
        row->announce();
        emit announced(row->accessibleName());
    }
}

int Strip::heightForWidth(int width) const {
    if (rows_.empty()) return 0;
    const int wanted = layout_->heightForWidth(width);
    return std::min(wanted, MostTextLines * fontMetrics().height()) + EdgeLine;
}

std::vector<QWidget*> Strip::buttons() const {
    std::vector<QWidget*> all;
    for (const StripRow* row : rows_) all.insert(all.end(), row->buttons().begin(), row->buttons().end());
    return all;
}

/// From 0; -1 while the focus is elsewhere.
int Strip::rowWithFocus() const {
    const QWidget* focused = window()->focusWidget();
    const auto row = std::find_if(rows_.begin(), rows_.end(),
                                  [&](const StripRow* each) { return each->isAncestorOf(focused); });
    return row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
}

/// Leads to the row that has taken the place of the one with the focus, where that one has gone.
void Strip::keepFocus(int place) {
    if (rowWithFocus() >= 0) return;
    if (rows_.empty()) return leave();
    const StripRow* row = rows_[std::min(static_cast<std::size_t>(place), rows_.size() - 1)];
    if (row->buttons().empty()) return leave();
    focus(row->buttons().front());
}

void Strip::enter() {
    if (rowWithFocus() >= 0) return leave();
    cameFrom_ = window()->focusWidget();
    step(0);
}

/// Leads from the button with the focus to the next one, around the end; without a focus here to the first one.
void Strip::step(int by) {
    const std::vector<QWidget*> all = buttons();
    if (all.empty()) return;
    const auto focused = std::find(all.begin(), all.end(), window()->focusWidget());
    const int count = static_cast<int>(all.size());
    const int place =
        focused == all.end() ? 0 : (static_cast<int>(focused - all.begin()) + by + count) % count;
    focus(all[static_cast<std::size_t>(place)]);
}

void Strip::focus(QWidget* button) {
    button->setFocus(Qt::TabFocusReason);
    scroll_->ensureWidgetVisible(button);
}

void Strip::leave() {
    if (cameFrom_ != nullptr) cameFrom_->setFocus(Qt::OtherFocusReason);
}

bool Strip::eventFilter(QObject* watched, QEvent* event) {
    if (!rest_.hasExpired() && isPressOf(*event)) {
        rest_.setRemainingTime(TimeToRest);  // a key that is held goes on
        return true;
    }
    if (event->type() == QEvent::KeyPress &&
        takesKey(static_cast<QKeyEvent*>(event)->key(), *static_cast<QAbstractButton*>(watched)))
        return true;
    return QFrame::eventFilter(watched, event);
}

/// A key on the button that has the focus; false for those that the button itself knows.
bool Strip::takesKey(int key, QAbstractButton& button) {
    switch (key) {
        case Qt::Key_Tab:
        case Qt::Key_Right:
        case Qt::Key_Down: step(1); return true;
        case Qt::Key_Backtab:
        case Qt::Key_Left:
        case Qt::Key_Up: step(-1); return true;
        case Qt::Key_Return:
        case Qt::Key_Enter: button.click(); return true;
        case Qt::Key_Escape: leave(); return true;
        default: return false;
    }
}

void Strip::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), palette().color(QPalette::Mid)); }

void Strip::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange) emit heightChanged();
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::StyleChange) return;
    for (StripRow* row : rows_) row->followPalette();
}

}  // namespace desktop
