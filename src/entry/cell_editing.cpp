// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/cell_editing.h"

#include "entry/modErrorHandling.h"
#include "entry/modValidationUtilities.h"
#include "project/frmBrenica.h"

namespace {

constexpr const char* Grades = "0|1|2|3";
constexpr const char* ProportionGrades = "0|1|2|3|4";
constexpr const char* SocioEconGrades = "0|1|2";

}  // namespace

std::vector<CellEditing> frmBrenica::makeCellEditings() {
    return {
        {.Grid = &flxHabitatTypes,
         .DropDowns = {{list::LevelOfUse, list::LevelOfUse, Grades}},
         .NumberCol = list::Area,
         .Validates = true,
         .BeforeEditSource = "Brenica.flxHabitatTypes_BeforeEdit",
         .KeyPressEditSource = "Brenica.flxHabitatTypes_KeyPressEdit",
         .ValidateEditSource = "Brenica.flxHabitatTypes_ValidateEdit"},
        {.Grid = &flxJurisUnits,
         .DropDowns = {{list::LevelOfUse, list::LevelOfUse, Grades}},
         .NumberCol = list::Area,
         .Validates = true,
         .BeforeEditSource = "Brenica.flxJurisUnits_BeforeEdit",
         .KeyPressEditSource = "Brenica.flxJurisUnits_KeyPressEdit",
         .ValidateEditSource = "Brenica.flxJurisUnits_ValidateEdit"},
        {.Grid = &flxLandUses,
         .DropDowns = {{list::Urgency, list::Urgency, Grades}},
         .NumberCol = list::Probability,
         .Validates = true,
         .NumberBounds = {.Most = 1.0},
         .BeforeEditSource = "Brenica.flxLandUses_BeforeEdit",
         .KeyPressEditSource = "Brenica.flxLandUses_KeyPressEdit",
         .ValidateEditSource = "Brenica.flxLandUses_ValidateEdit"},
        {.Grid = &flxBins,
         .DropDowns = {},
         .NumberCol = 1,
         .KeyPressEditSource = "Brenica.flxBins_KeyPressEdit"},
        {.Grid = &flxHabitatHetero,
         .DropDowns = {{1, 1, Grades}},
         .BeforeEditSource = "Brenica.flxHabitatHetero_BeforeEdit"},
        {.Grid = &flxJurisUnitHetero,
         .DropDowns = {{1, 1, Grades}},
         .BeforeEditSource = "Brenica.flxJurisUnitHetero_BeforeEdit"},
        {.Grid = &flxLandUsesVulnerability,
         .DropDowns = {{1, 2, Grades}, {3, 3, ProportionGrades}},
         .BeforeEditSource = "Brenica.flxLandUsesVulnerability_BeforeEdit"},
        {.Grid = &flxFunctionality,
         .DropDowns = {{1, 1, Grades}},
         .BeforeEditSource = "Brenica.flxFunctionality_BeforeEdit"},
        {.Grid = &flxSocioEcon,
         .DropDowns = {{1, 1, SocioEconGrades}},
         .BeforeEditSource = "Brenica.flxSocioEcon_BeforeEdit"},
    };
}

void frmBrenica::wireCellEditing() {
    for (const CellEditing& editing : cellEditings_) {
        editing.Grid->BeforeEdit = [&editing](int, int col, bool&) { offerItems(editing, col); };
        if (editing.NumberCol == CellEditing::NoCol) continue;
        editing.Grid->KeyPressEdit = [this, &editing](int, int col, int& key) {
            filterCellKey(editing, col, key);
        };
        if (!editing.Validates) continue;
        editing.Grid->ValidateEdit = [this, &editing](int, int col, bool& cancel) {
            validateCell(editing, col, cancel);
        };
    }
}

void frmBrenica::offerItems(const CellEditing& editing, int col) try {
    const char* items = "";
    for (const DropDown& dropDown : editing.DropDowns) {
        if (col >= dropDown.FirstCol && col <= dropDown.LastCol) items = dropDown.Items;
    }
    editing.Grid->ComboList(items);
} catch (...) {
    ReportError(9999, editing.BeforeEditSource, "");
}

void frmBrenica::filterCellKey(const CellEditing& editing, int col, int& key) try {
    if (col == editing.NumberCol)
        key = modValidationUtilities::ValidatePositiveNumber(platform(), key, false);
} catch (...) {
    ReportError(9999, editing.KeyPressEditSource, "");
}

void frmBrenica::validateCell(const CellEditing& editing, int col, bool& cancel) try {
    if (col != editing.NumberCol) return;
    if (modValidationUtilities::IsNothingOrWithin(editing.NumberBounds, editing.Grid->EditText(),
                                                  separator())) {
        return;
    }
    platform().beep();
    cancel = true;
} catch (...) {
    ReportError(9999, editing.ValidateEditSource, "");
}
