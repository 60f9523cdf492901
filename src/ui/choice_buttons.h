// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>

#include "ui/control.h"
#include "ui/event.h"

namespace ui {

class CheckBox : public Control {
public:
    CheckBox(Control& container, std::string name, bool value, Design design = {});

    /// Fired when the value has become another one.
    Event<> Click;
    bool Value() const { return value_; }
    void Value(bool value);
    /// Toggles.
    void UserClick();

private:
    bool value_;
};

/// One of an array of which at most one is on.
class OptionButton : public Control {
public:
    OptionButton(Control& container, std::string name, Design design = {});
    void JoinGroup(std::deque<OptionButton>& group) { group_ = &group; }

    /// Fired when code changes the value, and on every click by the user.
    Event<> Click;
    bool Value() const { return value_; }
    /// Setting it on sets the others of the array off, without events for those.
    void Value(bool value);
    void UserClick();

private:
    void switchOthersOff();

    std::deque<OptionButton>* group_ = nullptr;
    bool value_ = false;
};

}  // namespace ui
