// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/combo_box_view.h"

#include <QAbstractItemView>
#include <QKeyEvent>
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
    connect(this, &QComboBox::activated, this, [this, &link](int index) {
        link.command([this, index] { box_.UserChoose(index); });
        follow();  // also where the choice did not take place
    });
}

bool ComboBoxView::showsTheItems() const {
    if (count() != box_.ListCount()) return false;
    for (int i = 0; i < count(); ++i) {
        if (itemText(i).toStdString() != box_.List(i)) return false;
    }
    return true;
}

void ComboBoxView::follow() {
    const QSignalBlocker blocker(this);
    if (!showsTheItems()) {
        QStringList items;
        for (int i = 0; i < box_.ListCount(); ++i) items.append(QString::fromStdString(box_.List(i)));
        clear();
        addItems(items);
    }
    setCurrentIndex(box_.ListIndex());
}

/// What is typed is looked for in the open list, so that nothing is chosen on the way to it.
void ComboBoxView::keyPressEvent(QKeyEvent* event) {
    const QString typed = event->text();
    const bool command =
        (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (command || typed.isEmpty() || !typed.at(0).isPrint() || typed.at(0).isSpace()) {
        return QComboBox::keyPressEvent(event);
    }
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
