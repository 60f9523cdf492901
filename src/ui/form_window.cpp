// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/form_window.h"

#include <utility>

#include "ui/grid.h"

namespace ui {

FormWindow::FormWindow(Platform& platform, std::string name)
    : Control(*this, std::move(name)), platform_(platform), separator_(platform.decimalSeparator()) {}

void FormWindow::UserResize(ui::WindowState state, int left, int top, int width, int height) {
    windowState_ = state;
    if (state != ui::WindowState::Minimized) Move(left, top, width, height);
    Resize();
}

bool FormWindow::CommitOpenEditor() { return editingGrid_ == nullptr || editingGrid_->UserCommitEdit(); }

}  // namespace ui
