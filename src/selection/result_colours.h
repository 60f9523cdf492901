// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/chart.h"

/// Cell colours of the overall results. They are the only record of what became of a row.
namespace resultcolour {
inline constexpr ui::Colour Margin = ui::rgb(192, 255, 192);   ///< column 0: within the margin of error
inline constexpr ui::Colour Picked = ui::rgb(255, 255, 192);   ///< other columns: in the suite
inline constexpr ui::Colour Omitted = ui::rgb(255, 128, 128);  ///< other columns: adds nothing
}  // namespace resultcolour
