// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Texts that a window adds to those of its form's controls.
namespace ui::window_text {

inline constexpr const char* CopyCells = "Copy cells";
inline constexpr const char* PasteCells = "Paste cells";
// Of the menu of a text box.
inline constexpr const char* CutText = "Cut";
inline constexpr const char* CopyText = "Copy";
inline constexpr const char* PasteText = "Paste";
inline constexpr const char* SelectAllText = "Select all";

}  // namespace ui::window_text
