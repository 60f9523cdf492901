// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/form_window.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ui/grid.h"

namespace ui {

FormWindow::FormWindow(Platform& platform, std::string name, FormBorder border)
    : Control(*this, std::move(name)),
      platform_(platform),
      separator_(platform.decimalSeparator()),
      border_(border) {}

std::vector<Control*> FormWindow::TakeChanged() {
    for (Control* control : changed_) control->changed_ = false;
    return std::exchange(changed_, {});
}

const Control* FormWindow::LabelOf(const Control& control) const {
    const auto place = std::find(controls_.begin(), controls_.end(), &control);
    if (place == controls_.begin() || place == controls_.end()) return nullptr;
    const Control* before = *std::prev(place);
    const bool names = before->Kind() == ControlKind::Label && &before->Container() == &control.Container();
    return names ? before : nullptr;
}

void FormWindow::UserResize(ui::WindowState state, int left, int top, int width, int height) {
    windowState_ = state;
    if (state != ui::WindowState::Minimized) Move(left, top, width, height);
    Resize();
}

bool FormWindow::CommitOpenEditor() { return editingGrid_ == nullptr || editingGrid_->UserCommitEdit(); }

}  // namespace ui
