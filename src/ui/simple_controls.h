// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "ui/appearance.h"
#include "ui/control.h"
#include "ui/event.h"

namespace ui {

/// A text, broken into lines where its width wants it.
class Label : public Control {
public:
    Label(Control& container, std::string name, Design design = {})
        : Control(container, ControlKind::Label, std::move(name), std::move(design)) {}

    // Fixed settings, made once by the form.
    Font TextFont;
    /// Of the text; nothing where the desktop chooses.
    std::optional<Colour> ForeColor;
    CellAlign Alignment = CellAlign::LeftCentre;
};

class Frame : public Control {
public:
    Frame(Control& container, std::string name, Design design = {})
        : Control(container, ControlKind::Frame, std::move(name), std::move(design)) {}
};

/// A picture that the program brings along, known to the platform by the control's name.
class Picture : public Control {
public:
    Picture(Control& container, std::string name, Design design = {})
        : Control(container, ControlKind::Picture, std::move(name), std::move(design)) {}
};

class CommandButton : public Control {
public:
    CommandButton(Control& container, std::string name, Design design = {})
        : Control(container, ControlKind::CommandButton, std::move(name), std::move(design)) {}

    Event<> Click;
    void UserClick() {
        if (acceptsUserAction()) Click();
    }
};

/// A menu or an entry of one; its container is the form or the menu that it stands in.
class MenuItem : public Control {
public:
    MenuItem(Control& container, std::string name, Design design = {})
        : Control(container, ControlKind::MenuItem, std::move(name), std::move(design)) {}

    Event<> Click;
    void UserClick() {
        if (acceptsUserAction()) Click();
    }
};

}  // namespace ui
