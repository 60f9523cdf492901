// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>

#include "ui/numbers.h"
#include "ui/platform.h"

namespace ui {

class FormWindow;

enum class ControlKind {
    Form,
    Frame,
    Label,
    CommandButton,
    TextBox,
    ComboBox,
    CheckBox,
    OptionButton,
    TabStrip,
    Grid,
    Chart,
    MenuItem,
    Picture,
};

/// What a form's design gives a control before any code runs.
struct Design {
    std::string Caption{};
    std::string ToolTipText{};
    bool Visible = true;
    bool Enabled = true;
    /// The letter of the caption that reaches the control together with Alt; 0 for none. That of a label reaches the
    /// control behind it.
    char AccessKey = 0;
    /// Keys that stand for a click, such as "Ctrl+S"; empty for none.
    std::string Shortcut{};
    /// How a screen reader names a control that has neither a caption nor a label before it.
    std::string AccessibleName{};
    /// What it does, where its caption does not say it: a screen reader tells it, and it is the tip of a control without one.
    std::string Description{};
};

/// What all controls share. A control belongs to one form and stands in one container, a frame or the form itself.
/// Lengths are twips. A control that a user action reaches while it is disabled ignores the action. Whatever a window
/// shows of a control reports its change to the form, which keeps a list of the changed ones for the window.
class Control {
public:
    Control(Control& container, ControlKind kind, std::string name, Design design = {});
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    ControlKind Kind() const { return kind_; }
    const std::string& Name() const { return name_; }
    FormWindow& Form() const { return *form_; }
    /// Itself for the form.
    Control& Container() const { return *container_; }

    const std::string& Caption() const { return caption_; }
    void Caption(std::string caption) { change(caption_, std::move(caption)); }
    const std::string& ToolTipText() const { return toolTipText_; }
    void ToolTipText(std::string text) { change(toolTipText_, std::move(text)); }
    bool Visible() const { return visible_; }
    void Visible(bool visible) { change(visible_, visible); }
    bool Enabled() const { return enabled_; }
    void Enabled(bool enabled) { change(enabled_, enabled); }
    char AccessKey() const { return accessKey_; }
    const std::string& Shortcut() const { return shortcut_; }
    /// The name that the design gives it, its caption, or the caption of the label before it.
    virtual std::string AccessibleName() const;
    const std::string& Description() const { return description_; }

    int Left() const { return left_; }
    void Left(int left) { change(left_, left); }
    int Top() const { return top_; }
    void Top(int top) { change(top_, top); }
    int Width() const { return width_; }
    void Width(int width) { change(width_, width); }
    int Height() const { return height_; }
    void Height(int height) { change(height_, height); }
    void Move(int left, int top, int width, int height);

protected:
    /// For the form alone, which contains itself.
    Control(FormWindow& form, std::string name);

    Platform& platform() const;
    DecimalSeparator separator() const;
    /// Commits an open cell editor first, as every user action does. False when the control is disabled or the editor
    /// refuses to close: then the action does not happen.
    bool acceptsUserAction();

    void reportChange() {
        if (!changed_) joinChanged();
    }
    template <class T>
    void change(T& property, T value) {
        if (property == value) return;
        property = std::move(value);
        reportChange();
    }

private:
    friend class FormWindow;
    void joinChanged();

    FormWindow* form_;
    Control* container_;
    ControlKind kind_;
    std::string name_;
    std::string caption_;
    std::string toolTipText_;
    bool visible_ = true;
    bool enabled_ = true;
    bool changed_ = false;
    char accessKey_ = 0;
    std::string shortcut_;
    std::string accessibleName_;
    std::string description_;
    int left_ = 0;
    int top_ = 0;
    int width_ = 0;
    int height_ = 0;
};

}  // namespace ui
