// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/control.h"

#include <utility>

#include "ui/form_window.h"

namespace ui {

Control::Control(Control& container, ControlKind kind, std::string name, Design design)
    : form_(container.form_),
      container_(&container),
      kind_(kind),
      name_(std::move(name)),
      caption_(std::move(design.Caption)),
      toolTipText_(std::move(design.ToolTipText)),
      visible_(design.Visible),
      enabled_(design.Enabled),
      accessKey_(design.AccessKey),
      shortcut_(std::move(design.Shortcut)),
      accessibleName_(std::move(design.AccessibleName)),
      description_(std::move(design.Description)) {
    form_->controls_.push_back(this);
}

Control::Control(FormWindow& form, std::string name)
    : form_(&form), container_(this), kind_(ControlKind::Form), name_(std::move(name)) {}

void Control::Move(int left, int top, int width, int height) {
    Left(left);
    Top(top);
    Width(width);
    Height(height);
}

void Control::joinChanged() {
    changed_ = true;
    form_->changed_.push_back(this);
    ++form_->revision_;
}

std::string Control::AccessibleName() const {
    if (!accessibleName_.empty()) return accessibleName_;
    if (!caption_.empty()) return caption_;
    const Control* label = form_->LabelOf(*this);
    return label != nullptr ? label->Caption() : std::string();
}

Platform& Control::platform() const { return form_->GetPlatform(); }

DecimalSeparator Control::separator() const { return form_->Separator(); }

bool Control::acceptsUserAction() {
    for (const Control* control = this;; control = control->container_) {
        if (!control->enabled_) return false;
        if (control->container_ == control) break;
    }
    return form_->CommitOpenEditor();
}

}  // namespace ui
