// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenuBar>
#include <unordered_map>

#include "desktop/view.h"
#include "ui/simple_controls.h"

namespace desktop {

/// The menu bar: one menu for each menu item that stands in the form itself, one entry for each item of these.
class MenuView : public QMenuBar {
public:
    MenuView(FormLink& link, QWidget* parent) : QMenuBar(parent), link_(link) {}

    void add(ui::MenuItem& item);
    void follow(const ui::MenuItem& item);
    bool isEmpty() const { return actions_.empty(); }

private:
    QAction* makeMenu(const ui::MenuItem& item);
    QAction* makeEntry(ui::MenuItem& item);

    FormLink& link_;
    std::unordered_map<const ui::Control*, QAction*> actions_;
};

}  // namespace desktop
