// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/tab_strip_view.h"

#include <QKeyEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

#include "desktop/accessible_role.h"
#include "desktop/texts.h"

namespace desktop {

TabView::TabView(int index, TabStripView& strip) : QAbstractButton(&strip), index_(index), strip_(strip) {
    announceAs(*this, QAccessible::PageTab);
    setCheckable(true);
    connect(this, &QAbstractButton::clicked, this, [this] { strip_.select(index_); });
}

void TabView::paintEvent(QPaintEvent*) {
    QStyleOptionTab option;
    option.initFrom(this);
    option.shape = QTabBar::RoundedNorth;
    option.position = QStyleOptionTab::Middle;
    if (isChecked()) option.state |= QStyle::State_Selected;
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_TabBarTabShape, option);
    painter.drawControl(QStyle::CE_TabBarTabLabel, option);  // the frame of the focus
    // Styles leave so much room beside a text that the design's tabs would cut theirs off.
    painter.drawItemText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(), text(),
                         QPalette::WindowText);
}

void TabView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left: return strip_.step(-1);
        case Qt::Key_Right: return strip_.step(1);
        default: return QAbstractButton::keyPressEvent(event);
    }
}

TabStripView::TabStripView(ui::TabStrip& strip, FormLink& link, QWidget* parent)
    : QWidget(parent), strip_(strip), link_(link) {
    for (int i = 1; i <= static_cast<int>(strip.Tabs().size()); ++i) {
        const ui::Tab& tab = strip.Tabs()[static_cast<std::size_t>(i) - 1];
        auto* view = new TabView(i, *this);
        view->setText(shownText(tab.Caption).replace('&', "&&"));
        view->setAccessibleName(shownText(tab.Caption).trimmed());
        view->setObjectName(QString("%1.%2").arg(shownText(strip.Name())).arg(i));
        view->setToolTip(plainToolTip(tab.ToolTipText));
        tabs_.append(view);
    }
}

/// Only the selected tab is reached by the Tab key; the arrows go on from there.
void TabStripView::follow() {
    const std::vector<ui::TabPlace> places = strip_.TabPlaces();
    const Scale& scale = link_.scale();
    for (int i = 0; i < tabs_.size(); ++i) {
        const ui::TabPlace& place = places[static_cast<std::size_t>(i)];
        const bool selected = i + 1 == strip_.SelectedItem();
        tabs_[i]->setGeometry(scale.place(place.Left, place.Top, place.Width, place.Height));
        tabs_[i]->setChecked(selected);
        tabs_[i]->setFocusPolicy(selected ? Qt::StrongFocus : Qt::ClickFocus);
    }
    update();
}

void TabStripView::select(int index) {
    link_.command([this, index] { strip_.UserSelectTab(index); });
    follow();  // also where the tab could not be left
}

void TabStripView::step(int by, bool goesRound) {
    const int count = static_cast<int>(tabs_.size());
    int wanted = strip_.SelectedItem() + by;
    if (goesRound) wanted = (wanted - 1 + count) % count + 1;
    if (wanted < 1 || wanted > count) return;
    const bool onTabs = tabs_[strip_.SelectedItem() - 1]->hasFocus();
    select(wanted);
    if (onTabs) tabs_[strip_.SelectedItem() - 1]->setFocus(Qt::TabFocusReason);
}

void TabStripView::paintEvent(QPaintEvent*) {
    QStyleOptionTabWidgetFrame option;
    option.initFrom(this);
    option.shape = QTabBar::RoundedNorth;
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    option.rect.setTop(link_.scale().pixels(strip_.HeaderHeight()) - 1);
    QStylePainter painter(this);
    painter.drawPrimitive(QStyle::PE_FrameTabWidget, option);
}

}  // namespace desktop
