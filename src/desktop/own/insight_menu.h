// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/own/own_menus.h"

class QWidget;

namespace desktop {

class WindowReport;

/// The report on the suite, and what its numbers say. Both outlive the menu.
OwnEntry insightMenu(WindowReport& report, QWidget& ownerOfBoxes);

}  // namespace desktop
