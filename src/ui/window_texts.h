// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Texts that a window adds to those of its form's controls.
namespace ui::window_text {

inline constexpr const char* CopyCells = "Copy cells";
inline constexpr const char* PasteCells = "Paste cells";
// Of a file dialogue; %1 is the folder or the file.
inline constexpr const char* NoSuchFolder = "There is no folder %1.";
inline constexpr const char* MayBeReplaced = "%1 exists already. Do you want to replace it?";
// Of the menu of a text box.
inline constexpr const char* CutText = "Cut";
inline constexpr const char* CopyText = "Copy";
inline constexpr const char* PasteText = "Paste";
inline constexpr const char* SelectAllText = "Select all";
// Of a chart's menu and of the table of its numbers.
inline constexpr const char* CopyPicture = "Copy picture";
inline constexpr const char* ShowNumbers = "Show numbers";
inline constexpr const char* ShowAllCategories = "Show all categories";
inline constexpr const char* ChartCategory = "Category";
inline constexpr const char* ChartValue = "Value";
// What a screen reader says of a chart: its title, how many categories and series it has, its smallest value and where
// that stands, its greatest value and where that stands.
inline constexpr const char* ChartSummary =
    "%1. Categories: %2. Series: %3. Smallest value: %4, %5. Greatest value: %6, %7.";
inline constexpr const char* ChartWithoutValues = "%1. No values.";

}  // namespace ui::window_text
