// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "ui/control.h"
#include "ui/event.h"

namespace ui {

class Grid;

enum class WindowState { Normal, Minimized, Maximized };

/// A window: the container of all its controls, which register with it in the order of their declaration. That order
/// is the order in which the keyboard reaches them.
class FormWindow : public Control {
public:
    FormWindow(Platform& platform, std::string name);

    Event<> Click;
    Event<> KeyPress;
    /// Fired when the user or the system has given the window another size or state.
    Event<> Resize;

    std::span<Control* const> Controls() const { return controls_; }
    Platform& GetPlatform() const { return platform_; }
    DecimalSeparator Separator() const { return separator_; }

    ui::WindowState WindowState() const { return windowState_; }
    void WindowState(ui::WindowState state) { windowState_ = state; }

    /// Asks for the end of the window. The event loop reads the flag.
    void Unload() { unloaded_ = true; }
    bool Unloaded() const { return unloaded_; }

    /// A click that no control takes, as pictures and labels take none, and a key of any kind.
    void UserClick() { Click(); }
    void UserKeyPress() { KeyPress(); }
    void UserResize(ui::WindowState state, int left, int top, int width, int height);
    /// The window's close box: asks nothing.
    void UserClose() { Unload(); }

    /// The grid with the open cell editor, if any.
    Grid* EditingGrid() const { return editingGrid_; }
    void EditingGrid(Grid* grid) { editingGrid_ = grid; }
    /// Commits the open cell editor; false when it refuses to close.
    bool CommitOpenEditor();

private:
    friend class Control;

    Platform& platform_;
    DecimalSeparator separator_;
    std::vector<Control*> controls_;
    ui::WindowState windowState_ = ui::WindowState::Normal;
    Grid* editingGrid_ = nullptr;
    bool unloaded_ = false;
};

}  // namespace ui
