// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace ui {

/// red + 256 × green + 65536 × blue.
using Colour = std::int32_t;
constexpr Colour rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }

/// Values of alignment settings.
enum class CellAlign : signed char { LeftCentre = 1, CentreCentre = 4, RightCentre = 7, General = 9 };

/// Values of CellChecked.
enum class CheckState : signed char { None = 0, Checked = 1, Unchecked = 2 };

}  // namespace ui
