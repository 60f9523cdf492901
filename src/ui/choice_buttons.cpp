// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/choice_buttons.h"

#include <utility>

namespace ui {

CheckBox::CheckBox(Control& container, std::string name, bool value, Design design)
    : Control(container, ControlKind::CheckBox, std::move(name), std::move(design)), value_(value) {}

void CheckBox::Value(bool value) {
    if (value == value_) return;
    change(value_, value);
    Click();
}

void CheckBox::UserClick() {
    if (acceptsUserAction()) Value(!value_);
}

OptionButton::OptionButton(Control& container, std::string name, Design design)
    : Control(container, ControlKind::OptionButton, std::move(name), std::move(design)) {}

void OptionButton::Value(bool value) {
    const bool another = value != value_;
    change(value_, value);
    if (value) switchOthersOff();
    if (another) Click();
}

void OptionButton::UserClick() {
    if (!acceptsUserAction()) return;
    change(value_, true);
    switchOthersOff();
    Click();
}

void OptionButton::switchOthersOff() {
    if (group_ == nullptr) return;
    for (OptionButton& other : *group_) {
        if (&other != this) other.change(other.value_, false);
    }
}

}  // namespace ui
