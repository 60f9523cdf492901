// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/form_view.h"
#include "desktop/own/strip_lines.h"

namespace desktop {

/// The strip of one window, with all that it says. The window, the form and the copies outlive it.
class WindowStrip {
public:
    WindowStrip(FormView& window, frmBrenica& form, ui::Files& files, SafetyCopies& copies);

    /// To be called after each user action; `programEnds` before the box of one that ends the program.
    void look(bool programEnds = false);

    Strip& strip() { return *strip_; }
    StripLines& lines() { return lines_; }

private:
    Strip* strip_;  // the window owns it
    FormWatch watch_;
    StripLines lines_;
};

}  // namespace desktop
