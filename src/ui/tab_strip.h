// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ui/control.h"
#include "ui/errors.h"
#include "ui/event.h"

namespace ui {

struct Tab {
    std::string Caption;
    std::string Key{};
    std::string ToolTipText{};
};

/// A strip of tabs counted from 1, one of which is always selected.
class TabStrip : public Control {
public:
    TabStrip(Control& container, std::string name, std::vector<Tab> tabs, Design design = {})
        : Control(container, ControlKind::TabStrip, std::move(name), std::move(design)),
          tabs_(std::move(tabs)) {}

    /// Fired on every selection, also of the tab that is selected already, by the user or by code.
    Event<> Click;

    const std::vector<Tab>& Tabs() const { return tabs_; }
    int SelectedItem() const { return selectedItem_; }
    void SelectedItem(int index) {
        if (index < 1 || index > static_cast<int>(tabs_.size())) raise(ErrorNumber::InvalidPropertyValue);
        selectedItem_ = index;
        Click();
    }
    void UserSelectTab(int index) {
        if (acceptsUserAction()) SelectedItem(index);
    }

private:
    std::vector<Tab> tabs_;
    int selectedItem_ = 1;
};

}  // namespace ui
