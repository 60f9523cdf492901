// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/tab_strip.h"

#include <algorithm>
#include <utility>

#include "ui/errors.h"

namespace ui {

namespace {

constexpr int RoomBesideCaption = 240;

}  // namespace

TabStrip::TabStrip(Control& container, std::string name, std::vector<Tab> tabs, Design design)
    : Control(container, ControlKind::TabStrip, std::move(name), std::move(design)), tabs_(std::move(tabs)) {}

void TabStrip::SelectedItem(int index) {
    if (index < 1 || index > static_cast<int>(tabs_.size())) raise(ErrorNumber::InvalidPropertyValue);
    change(selectedItem_, index);
    Click();
    Shown();
}

void TabStrip::UserSelectTab(int index) {
    if (acceptsUserAction()) SelectedItem(index);
}

std::vector<TabPlace> TabStrip::TabPlaces() const {
    std::vector<TabPlace> places;
    int left = 0;
    int top = 0;
    for (const Tab& tab : tabs_) {
        const int width = std::min(platform().textWidth(tab.Caption, Font{}) + RoomBesideCaption, Width());
        if (left > 0 && left + width > Width()) {
            left = 0;
            top += RowHeight;
        }
        places.push_back({left, top, width, RowHeight});
        left += width;
    }
    return places;
}

int TabStrip::HeaderHeight() const {
    const std::vector<TabPlace> places = TabPlaces();
    return places.empty() ? RowHeight : places.back().Top + RowHeight;
}

}  // namespace ui
