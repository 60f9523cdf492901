// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "ui/control.h"
#include "ui/event.h"

namespace ui {

class Grid;
class Timer;

enum class WindowState { Normal, Minimized, Maximized };
/// What surrounds a window's own area.
enum class FormBorder { None, Sizable };

/// A window: the container of all its controls, which register with it in the order of their declaration. That order
/// is the order in which the keyboard reaches them. Its size is that of the whole window.
class FormWindow : public Control {
public:
    FormWindow(Platform& platform, std::string name, FormBorder border = FormBorder::Sizable);

    /// What frame, title and menu of a window with a border take of its width and height, in the design's terms.
    static constexpr int BorderWidth = 150;
    static constexpr int BorderHeight = 700;
    FormBorder Border() const { return border_; }
    /// The least size that the controls have room in, made once by the form; a window that is smaller scrolls.
    Size LeastSize;

    Event<> Click;
    Event<> KeyPress;
    /// Fired when the user or the system has given the window another size or state.
    Event<> Resize;

    std::span<Control* const> Controls() const { return controls_; }
    /// The controls whose looks have changed since this was called last, each once. A window that follows the form
    /// reads them when a user action has returned and before it shows a box.
    std::vector<Control*> TakeChanged();
    /// Differs from before when a control has changed since all changes were taken: whether there may be anything new.
    unsigned Revision() const { return revision_; }
    std::span<Timer* const> Timers() const { return timers_; }
    void Join(Timer& timer) { timers_.push_back(&timer); }
    /// The label that names a control: the one that stands right before it in its container; null for none.
    const Control* LabelOf(const Control& control) const;
    Platform& GetPlatform() const { return platform_; }
    DecimalSeparator Separator() const { return separator_; }

    ui::WindowState WindowState() const { return windowState_; }
    void WindowState(ui::WindowState state) { change(windowState_, state); }

    /// Asks for the end of the window. The event loop reads the flag.
    void Unload() { unloaded_ = true; }
    bool Unloaded() const { return unloaded_; }

    /// A click that no control takes, as pictures and labels take none, and a key of any kind.
    void UserClick() { Click(); }
    void UserKeyPress() { KeyPress(); }
    void UserResize(ui::WindowState state, int left, int top, int width, int height);
    /// The window's close box: asks nothing.
    void UserClose() {
        if (CommitOpenEditor()) Unload();
    }

    /// The grid with the open cell editor, if any.
    Grid* EditingGrid() const { return editingGrid_; }
    void EditingGrid(Grid* grid) { editingGrid_ = grid; }
    /// Commits the open cell editor; false when it refuses to close.
    bool CommitOpenEditor();

private:
    friend class Control;

    Platform& platform_;
    DecimalSeparator separator_;
    FormBorder border_;
    std::vector<Control*> controls_;
    std::vector<Control*> changed_;
    std::vector<Timer*> timers_;
    unsigned revision_ = 0;
    ui::WindowState windowState_ = ui::WindowState::Normal;
    Grid* editingGrid_ = nullptr;
    bool unloaded_ = false;
};

}  // namespace ui
