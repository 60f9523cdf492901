// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/grid.h"

/// Which list's names head the columns of a table in its file, instead of the numbers on the screen.
enum class LongHeadings { None = 0, HabitatNames = 1, JurisUnitNames = 2, ThreatNames = 3 };

/// A table that can be exported. It is on view on page `Page` in view `View`, whose meaning is the page's: list frame,
/// summary tab, score display or result view. Two tables of one view are told apart by what the user chooses.
struct ExportTable {
    int Page;
    int View;
    ui::Grid* Grid;
    const char* FileName;  ///< proposed, without extension
    LongHeadings Headings = LongHeadings::None;
    int ImportCase = 0;  ///< 1 to 6 for a list that can be imported
};
