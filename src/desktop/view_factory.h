// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/view.h"
#include "ui/control.h"

namespace desktop {

/// The view for a control's kind, as a child of `parent`, which owns it. Menu items and the form itself have none.
View* makeView(ui::Control& control, FormLink& link, QWidget* parent);

}  // namespace desktop
