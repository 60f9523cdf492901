// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/own_menus.h"

#include <QMenuBar>

namespace desktop {

namespace {

void addEntries(QMenu& menu, const OwnEntry& described) {
    menu.setObjectName(described.Name);
    for (const OwnEntry& entry : described.Entries) {
        if (!entry.Entries.empty()) {
            addEntries(*menu.addMenu(entry.Caption), entry);
            continue;
        }
        if (entry.Caption.isEmpty()) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(entry.Caption, entry.Keys, &menu, entry.Run);
        action->setObjectName(entry.Name);
    }
}

}  // namespace

void addMenu(QMenuBar& bar, const OwnEntry& menu) { addEntries(*bar.addMenu(menu.Caption), menu); }

}  // namespace desktop
