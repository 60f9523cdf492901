// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

#include "ui/appearance.h"

namespace desktop {

inline QColor toColour(ui::Colour colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

}  // namespace desktop
