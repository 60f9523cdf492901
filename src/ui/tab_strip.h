// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "ui/control.h"
#include "ui/event.h"

namespace ui {

struct Tab {
    std::string Caption;
    std::string Key{};
    std::string ToolTipText{};
};

/// Where a tab stands in its strip, in twips.
struct TabPlace {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
};

/// A strip of tabs counted from 1, one of which is always selected. The tabs stand at the top, in as many rows as their
/// captions need at the strip's width, so that each can be read and reached; what they show stands below them, in the
/// strip as its container.
class TabStrip : public Control {
public:
    TabStrip(Control& container, std::string name, std::vector<Tab> tabs, Design design = {});

    /// Fired on every selection, also of the tab that is selected already, by the user or by code.
    Event<> Click;
    /// Fired after Click, when what the tab shows is on view: the moment to fit it in.
    Event<> Shown;

    const std::vector<Tab>& Tabs() const { return tabs_; }
    int SelectedItem() const { return selectedItem_; }
    void SelectedItem(int index);
    void UserSelectTab(int index);

    /// One place for each tab, in the order of the tabs.
    std::vector<TabPlace> TabPlaces() const;
    /// What the rows of tabs take of the strip's height.
    int HeaderHeight() const;

    /// Height of one row of tabs.
    static constexpr int RowHeight = 300;

private:
    std::vector<Tab> tabs_;
    int selectedItem_ = 1;
};

}  // namespace ui
