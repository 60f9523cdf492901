// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/own/own_menus.h"

class QWidget;

namespace desktop {

/// What the help asks of the program.
struct HelpLink {
    QWidget* Owner;             ///< of the boxes that it shows
    std::function<int()> Page;  ///< the page on view, from 1
    std::function<void(const QString& path)> OpenProject;
};

/// The guide, at the section of the page on view, the examples, and what this program is.
OwnEntry helpMenu(const HelpLink& link);

}  // namespace desktop
