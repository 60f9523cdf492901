// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/menu_view.h"

#include "desktop/texts.h"

namespace desktop {

void MenuView::add(ui::MenuItem& item) {
    const bool isMenu = item.Container().Kind() == ui::ControlKind::Form;
    actions_[&item] = isMenu ? makeMenu(item) : makeEntry(item);
    follow(item);
}

QAction* MenuView::makeMenu(const ui::MenuItem& item) {
    QMenu* menu = addMenu(QString());
    menu->setObjectName(shownText(item.Name()));
    return menu->menuAction();
}

QAction* MenuView::makeEntry(ui::MenuItem& item) {
    QAction* entry = actions_.at(&item.Container())->menu()->addAction(QString());
    entry->setShortcut(QKeySequence(shownText(item.Shortcut())));
    connect(entry, &QAction::triggered, this,
            [this, &item] { link_.command([&item] { item.UserClick(); }); });
    return entry;
}

void MenuView::follow(const ui::MenuItem& item) {
    QAction& action = *actions_.at(&item);
    action.setObjectName(shownText(item.Name()));
    action.setText(captionWithAccessKey(item));
    action.setEnabled(item.Enabled());
    action.setVisible(item.Visible());
}

}  // namespace desktop
