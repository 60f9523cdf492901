// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/number_boxes.h"

#include <algorithm>

#include "entry/modErrorHandling.h"
#include "entry/modGeneralUtilities.h"
#include "entry/modValidationUtilities.h"
#include "project/frmBrenica.h"

/// The boxes that hold a number. Those of the list pages select, on focus, the text of the species page's box; and the
/// box for new breakpoints holds that for new habitats within the bounds instead of itself. Both are settled.
std::vector<NumberBox> frmBrenica::makeNumberBoxes() {
    using modValidationUtilities::ValidateNumber;
    using modValidationUtilities::ValidatePositiveNumber;
    using modValidationUtilities::ValidateSimpleNumber;
    using Form = frmBrenica;
    return {
        {&txtTotalSpecies, &txtTotalSpecies, &txtTotalSpecies, "species", "0", "1000", "0", nullptr, true,
         ValidateSimpleNumber, nullptr, "Brenica.txtTotalSpecies_Change", "Brenica.txtTotalSpecies_KeyPress",
         "Brenica.txtTotalSpecies_GotFocus"},
        {&txtTotalHabitatTypes, &txtTotalHabitatTypes, &txtTotalSpecies, "habitat types", "0", "1000", "0",
         nullptr, true, ValidateSimpleNumber, nullptr, "Brenica.txtTotalHabitatTypes_Change",
         "Brenica.txtTotalHabitatTypes_KeyPress", "Brenica.txtTotalHabitatTypes_GotFocus"},
        {&txtTotalJurisUnits, &txtTotalJurisUnits, &txtTotalSpecies, "management zones", "0", "1000", "0",
         nullptr, true, ValidateSimpleNumber, nullptr, "Brenica.txtTotalJurisUnits_Change",
         "Brenica.txtTotalJurisUnits_KeyPress", "Brenica.txtTotalJurisUnits_GotFocus"},
        {&txtTotalLandUses, &txtTotalLandUses, &txtTotalSpecies, "human activities", "0", "1000", "0",
         nullptr, true, ValidateSimpleNumber, nullptr, "Brenica.txtTotalLandUses_Change",
         "Brenica.txtTotalLandUses_KeyPress", "Brenica.txtTotalLandUses_GotFocus"},
        {&txtTotalFunctions, &txtTotalFunctions, &txtTotalSpecies, "functions", "0", "1000", "0", nullptr,
         true, ValidateSimpleNumber, nullptr, "Brenica.txtTotalFunctions_Change",
         "Brenica.txtTotalFunctions_KeyPress", "Brenica.txtTotalFunctions_GotFocus"},
        {&txtTotalBins, &txtTotalHabitatTypes, &txtTotalSpecies, "bins", "0", "1000", "0", nullptr, true,
         ValidateSimpleNumber, nullptr, "Brenica.txtTotalBins_Change", "Brenica.txtTotalBins_KeyPress",
         "Brenica.txtTotalBins_GotFocus"},
        {&txtRemoveSpeciesIndex, &txtRemoveSpeciesIndex, &txtTotalSpecies, "remove species index", "0",
         nullptr, "0", &flxCandidateSpecies, true, ValidateSimpleNumber, nullptr,
         "Brenica.txtRemoveSpeciesIndex_Change", "Brenica.txtRemoveSpeciesIndex_KeyPress",
         "Brenica.txtRemoveSpeciesIndex_GotFocus"},
        {&txtRemoveHabitatIndex, &txtRemoveHabitatIndex, &txtTotalSpecies, "remove habitat index", "0",
         nullptr, "0", &flxHabitatTypes, true, ValidateSimpleNumber, nullptr,
         "Brenica.txtRemoveHabitatIndex_Change", "Brenica.txtRemoveHabitatIndex_KeyPress",
         "Brenica.txtRemoveHabitatIndex_GotFocus"},
        {&txtRemoveJurisUnitIndex, &txtRemoveJurisUnitIndex, &txtTotalSpecies, "remove management zone index",
         "0", nullptr, "0", &flxJurisUnits, true, ValidateSimpleNumber, nullptr,
         "Brenica.txtRemoveJurisUnitIndex_Change", "Brenica.txtRemoveJurisUnitIndex_KeyPress",
         "Brenica.txtRemoveJurisUnitIndex_GotFocus"},
        {&txtRemoveLandUseIndex, &txtRemoveLandUseIndex, &txtTotalSpecies, "remove human activity index", "0",
         nullptr, "0", &flxLandUses, true, ValidateSimpleNumber, nullptr,
         "Brenica.txtRemoveLandUseIndex_Change", "Brenica.txtRemoveLandUseIndex_KeyPress",
         "Brenica.txtRemoveLandUseIndex_GotFocus"},
        {&txtRemoveFunctionIndex, &txtRemoveFunctionIndex, &txtTotalSpecies, "remove function index", "0",
         nullptr, "0", &flxFunctions, true, ValidateSimpleNumber, nullptr,
         "Brenica.txtRemoveFunctionIndex_Change", "Brenica.txtRemoveFunctionIndex_KeyPress",
         "Brenica.txtRemoveFunctionIndex_GotFocus"},
        {&txtRemoveBinIndex, &txtRemoveBinIndex, &txtTotalSpecies, "remove bin index", "0", nullptr, "0",
         &flxBins, true, ValidateSimpleNumber, nullptr, "Brenica.txtRemoveBinIndex_Change",
         "Brenica.txtRemoveBinIndex_KeyPress", "Brenica.txtTotalBins_GotFocus"},
        {&txtContinuousHR, &txtContinuousHR, &txtTotalSpecies, "continuous home range", "0", "10000000", "0",
         nullptr, false, ValidateNumber, &Form::storeContinuousHomeRange, "Brenica.txtContinuousHR_Change",
         "Brenica.txtContinuousHR_KeyPress", "Brenica.txtTotalBins_GotFocus"},
        {&txtPropOccupied, &txtPropOccupied, &txtPropOccupied, "proportion occupied", "0", "1", "0", nullptr,
         false, ValidatePositiveNumber, &Form::storePropOccupied, "Brenica.txtPropOccupied_Change",
         "Brenica.txtPropOccupied_KeyPress", "Brenica.txtPropOccupied_GotFocus"},
        {&txtCCS, &txtCCS, &txtCCS, "current conservation status", "0", "1", "1", nullptr, false,
         ValidatePositiveNumber, &Form::storeConservationStatus, "Brenica.txtCCS_Change",
         "Brenica.txtCCS_KeyPress", "Brenica.txtCCS_GotFocus"},
        {&txtCCSRep, &txtCCSRep, &txtCCSRep, "conservation status", "0", "1", "1", nullptr, false,
         ValidatePositiveNumber, nullptr, "Brenica.txtCCSRep_Change", "Brenica.txtCCSRep_KeyPress",
         "Brenica.txtCCSRep_GotFocus"},
        {&txtThreatRep, &txtThreatRep, &txtThreatRep, "score level for threat representation", "0", "1", "0",
         nullptr, false, ValidatePositiveNumber, nullptr, "Brenica.txtThreatRep_Change",
         "Brenica.txtThreatRep_KeyPress", "Brenica.txtThreatRep_GotFocus"},
        {&txtErrorMargin, &txtErrorMargin, &txtErrorMargin, "margin of error", "0", "100", "0", nullptr,
         false, ValidatePositiveNumber, nullptr, "Brenica.txtErrorMargin_Change",
         "Brenica.txtErrorMargin_KeyPress", "Brenica.txtErrorMargin_GotFocus"},
    };
}

void frmBrenica::numberBox_Change(const NumberBox& box) try {
    // A grid that has lost even its heading has no row: bounds that exclude each other would never come to rest.
    const std::string maximum = box.Maximum != nullptr ? std::string(box.Maximum)
                                                       : ui::toText(std::max(box.MaximumRows->Rows() - 1, 0));
    modValidationUtilities::CheckTotal(platform(), *box.Bounded, box.Name, box.Minimum, maximum, box.Default);
    if (box.Normalises) box.Box->Text(ui::toText(box.Box->Long()));
    if (box.Store != nullptr) (this->*box.Store)();
} catch (...) {
    ReportError(9999, box.ChangeSource, "");
}

void frmBrenica::numberBox_KeyPress(const NumberBox& box, int& key) try {
    key = box.Filter(platform(), key, false);
} catch (...) {
    ReportError(9999, box.KeyPressSource, "");
}

void frmBrenica::numberBox_GotFocus(const NumberBox& box) try {
    modGeneralUtilities::SelectAllText(*box.SelectedOnFocus);
} catch (...) {
    ReportError(9999, box.GotFocusSource, "");
}
