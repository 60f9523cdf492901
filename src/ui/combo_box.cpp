// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/combo_box.h"

#include <utility>

#include "ui/errors.h"

namespace ui {

ComboBox::ComboBox(Control& container, std::string name, std::vector<std::string> items, Design design)
    : Control(container, ControlKind::ComboBox, std::move(name), std::move(design)) {
    for (std::string& item : items) AddItem(std::move(item));
}

const std::string& ComboBox::List(int index) const {
    if (index < 0 || index >= ListCount()) raise(ErrorNumber::InvalidPropertyValue);
    return *items_[static_cast<std::size_t>(index)];
}

void ComboBox::ListIndex(int index) {
    if (index < -1 || index >= ListCount()) raise(ErrorNumber::InvalidPropertyValue);
    const bool another = index != listIndex_ && index >= 0;
    change(listIndex_, index);
    if (another) Click();
}

std::string ComboBox::Text() const { return listIndex_ < 0 ? std::string() : List(listIndex_); }

void ComboBox::RemoveItem(int index) {
    if (index < 0 || index >= ListCount()) raise(ErrorNumber::InvalidProcedureCall);
    items_.erase(static_cast<std::size_t>(index));
    reportChange();
    if (index == listIndex_) {
        change(listIndex_, -1);
    } else if (index < listIndex_) {
        --listIndex_;
    }
}

void ComboBox::Clear() {
    items_.resize(0);
    reportChange();
    change(listIndex_, -1);
}

void ComboBox::UserChoose(int index) {
    if (index < 0 || index >= ListCount() || !acceptsUserAction()) return;
    change(listIndex_, index);
    Click();
}

}  // namespace ui
