// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/combo_box_view.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QShortcut>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "desktop/texts.h"
#include "ui/form_window.h"

namespace desktop {

namespace {

constexpr int MostVisibleItems = 20;

}  // namespace

ComboBoxView::ComboBoxView(ui::ComboBox& box, FormLink& link, QWidget* parent)
    : QComboBox(parent), box_(box), link_(link) {
    setMaxVisibleItems(MostVisibleItems);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setStyleSheet("QComboBox { combobox-popup: 0; }");
    connect(this, &QComboBox::activated, this, &ComboBoxView::choose);
    view()->installEventFilter(this);
}

void ComboBoxView::choose(int index) {
    link_.command([this, index] { box_.UserChoose(index); });
    follow();  // also where the choice did not take place
}

/// Tab takes the item of the open list, which would keep the key, and goes on. With Ctrl it is a shortcut of the window.
bool ComboBoxView::eventFilter(QObject* watched, QEvent* event) {
    if (watched != view() || event->type() != QEvent::KeyPress) return QComboBox::eventFilter(watched, event);
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool back = key.key() == Qt::Key_Backtab;
    if (!back && key.key() != Qt::Key_Tab) return false;
    const int item = view()->currentIndex().row();
    hidePopup();
    if (item >= 0 && item != currentIndex()) choose(item);
    if (key.modifiers() & Qt::ControlModifier) {
        pressInWindow(QKeySequence(key.modifiers() | Qt::Key_Tab));
    } else {
        focusNextPrevChild(!back);
    }
    return true;
}

void ComboBoxView::pressInWindow(const QKeySequence& keys) const {
    for (auto* shortcut : window()->findChildren<QShortcut*>()) {
        if (shortcut->key() == keys) emit shortcut->activated();
    }
}

bool ComboBoxView::showsTheItems() const {
    if (count() != box_.ListCount()) return false;
    for (int i = 0; i < count(); ++i) {
        if (itemText(i) != shortText(box_.List(i))) return false;
    }
    return true;
}

void ComboBoxView::follow() {
    const QSignalBlocker blocker(this);
    if (!showsTheItems()) {
        QStringList items;
        for (int i = 0; i < box_.ListCount(); ++i) items.append(shortText(box_.List(i)));
        clear();
        addItems(items);
    }
    setCurrentIndex(box_.ListIndex());
}

/// What is typed is looked for in the open list, so that nothing is chosen on the way to it.
void ComboBoxView::keyPressEvent(QKeyEvent* event) {
    const QString typed = event->text();
    if (!isTyping(*event) || typed.at(0).isSpace()) return QComboBox::keyPressEvent(event);
    showPopup();
    if (view()->isVisible()) view()->keyboardSearch(typed);
}

/// Opening the list is an action of the user: an open cell editor is closed first, or the list stays closed.
void ComboBoxView::showPopup() {
    link_.run([this] { box_.Form().CommitOpenEditor(); });
    if (box_.Form().EditingGrid() != nullptr) return;
    view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    const int wanted = view()->sizeHintForColumn(0) + style()->pixelMetric(QStyle::PM_ScrollBarExtent) * 2;
    view()->setMinimumWidth(std::max(width(), std::min(wanted, window()->width() / 2)));
    QComboBox::showPopup();
}

void ComboBoxView::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace desktop
