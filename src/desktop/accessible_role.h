// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>

namespace desktop {

/// Names a widget to screen readers by another role than its class has. A button can be pressed through it, and is
/// checked or selected as the role has it.
void announceAs(QWidget& widget, QAccessible::Role role);

}  // namespace desktop
