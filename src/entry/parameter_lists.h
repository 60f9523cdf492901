// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "project/modGlobal.h"
#include "ui/control_array.h"
#include "ui/grid.h"
#include "ui/simple_controls.h"
#include "ui/text_box.h"

/// The four lists that species are judged against.
enum class ListKind { HabitatTypes, JurisUnits, LandUses, Functions };

/// How one of the four lists differs from the others: its controls, the grids that follow it, and the names under
/// which its procedures report a failure.
struct ParameterList {
    static constexpr int NoMember = -1;

    ListKind Kind;
    ui::Grid* Grid;
    int modGlobal::*Total;
    ui::TextBox* NewRows;
    ui::CommandButton* Update;
    ui::TextBox* RemoveIndex;
    ui::CommandButton* Remove;
    ui::ControlArray<ui::CommandButton>* Move;
    ui::Grid* Entry;  ///< shows the values of one species
    bool
        EntryNumbered;  ///< growing numbers its first column anew, and that of the long table without species
    bool HasLevelOfUse;  ///< new rows need level 2
    int LastCol;         ///< last column that a move swaps
    int WideMember;      ///< flxSummary member with a column an entry
    int WideOffset;      ///< entry i stands in column i + WideOffset
    bool WideNumbered;   ///< headed with numbers; otherwise with names
    int LongMember;      ///< flxSummary member with a block of entries a species, or NoMember
    const char* UpdateSource;
    const char* UpdateOtherSource;
    const char* RemoveClickSource;
    const char* RemoveSource;
    const char* MoveSource;
};
