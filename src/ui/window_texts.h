// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Texts that a window adds to those of its form's controls.
namespace ui::window_text {

inline constexpr const char* CopyCells = "Copy cells";
inline constexpr const char* PasteCells = "Paste cells";
inline constexpr const char* Yes = "Yes";
inline constexpr const char* No = "No";

}  // namespace ui::window_text
