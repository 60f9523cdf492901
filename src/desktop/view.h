// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/scale.h"

namespace desktop {

/// The one way from a widget into the form.
class FormLink {
public:
    virtual ~FormLink() = default;

    /// Runs `action`, which calls user actions of the form's controls. When it has returned, every view of a control
    /// that it changed has followed. If it fails, the failure is shown and the program ends: nothing is thrown on. While
    /// another action runs, as under a box that it shows, nothing happens.
    virtual void run(const std::function<void()>& action) = 0;
    /// The same for an action that may set off a lot, or fail: a move between pages, a button, a choice, an entry of the
    /// menu, the end.
    virtual void command(const std::function<void()>& action) { run(action); }
    /// Whether an action runs, so that another one would be dropped.
    virtual bool isBusy() const { return false; }
    virtual const Scale& scale() const = 0;
};

/// What shows one control. Place, visibility, state, tool tip and names of its widget are taken over for all kinds
/// alike (form_view.cpp); a view takes over what is its kind's own.
class View {
public:
    virtual ~View() = default;

    virtual QWidget& widget() = 0;
    /// Takes over what the control has become. Called when the control has changed, which may be often: what costs
    /// time is done only where it shows.
    virtual void follow() = 0;
};

}  // namespace desktop
