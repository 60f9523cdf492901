// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/grid.h"
#include "ui/platform.h"
#include "ui/text_box.h"

class frmBrenica;

/// How one of the boxes that hold a number differs from the others.
struct NumberBox {
    using KeyFilter = int (*)(ui::Platform&, int key, bool allowControlKeys);

    ui::TextBox* Box;
    ui::TextBox* Bounded;          ///< the box that is held within the bounds
    ui::TextBox* SelectedOnFocus;  ///< the box whose text is selected when this one gets the focus
    const char* Name;              ///< in messages
    const char* Minimum;
    const char* Maximum;  ///< or none: the body rows of MaximumRows
    const char* Default;
    const ui::Grid* MaximumRows;
    bool Normalises;  ///< writes the number back in its plain form
    KeyFilter Filter;
    void (frmBrenica::*Store)();  ///< takes the value over, or none
    const char* ChangeSource;
    const char* KeyPressSource;
    const char* GotFocusSource;
};
