// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "entry/modValidationUtilities.h"
#include "ui/grid.h"

/// Columns whose cells offer a list of items, separated by "|".
struct DropDown {
    int FirstCol;
    int LastCol;
    const char* Items;
};

/// How the cells of a list grid or an entry grid are edited.
struct CellEditing {
    static constexpr int NoCol = 0;

    ui::Grid* Grid;
    std::vector<DropDown> DropDowns;
    int NumberCol = NoCol;   ///< column that takes a positive number, key by key
    bool Validates = false;  ///< that number is tested again when the edit ends
    modValidationUtilities::Bounds NumberBounds{};
    const char* BeforeEditSource = "";
    const char* KeyPressEditSource = "";
    const char* ValidateEditSource = "";
};
