// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "entry/modGeneralUtilities.h"
#include "project/frmBrenica.h"
#include "ui/text.h"

namespace {

constexpr int UserDefinedBins = 2;

}  // namespace

/// A click on the button that is on already clears the dirty flag; so does the answer No, which clicks it back on.
void frmBrenica::optHomeRangeType_Click(int index) try {
    if (index == HomeRangeType) {
        ProjectChanged = false;
        return;
    }
    ProjectChanged = true;
    bool exists = false;
    HRDataExists(exists);
    if (!exists) return UpdateHRInfo(index);
    if (modGeneralUtilities::AskYesNo(
            platform(),
            "You will lose all previously entered home range data by changing the home "
            "range type. Do you wish to proceed?",
            "Delete home range data")) {
        modFlexGridUtilities::RemoveHRData(flxSummary(summary::Area));
        UpdateHRInfo(index);
    } else {
        optHomeRangeType(HomeRangeType).Value(true);
    }
} catch (...) {
    ReportError(9999, "Brenica.optHomeRangeType_Click", "");
}

void frmBrenica::HRDataExists(bool& exists) try {
    const ui::Grid& grid = flxSummary(summary::Area);
    exists = false;
    for (int row = 1; row <= grid.Rows() - 1 && !exists; ++row) {
        exists = !ui::isBlank(grid.TextMatrix(row, area::HomeRange));
    }
} catch (...) {
    ReportError(9999, "Brenica.HRDataExists", "");
}

void frmBrenica::UpdateHRInfo(int index) try {
    HomeRangeType = index;
    enableBinControls(index == UserDefinedBins);
    flxBins.Enabled(index == UserDefinedBins);
    showHomeRangeControls(index);
} catch (...) {
    ReportError(9999, "Brenica.UpdateHRInfo", "");
}

void frmBrenica::enableBinControls(bool enabled) {
    for (ui::Control* control : std::initializer_list<ui::Control*>{
             &lblAddBins, &lblNewBins, &txtTotalBins, &cmdUpdateBins, &cmdRemoveBin, &txtRemoveBinIndex}) {
        control->Enabled(enabled);
    }
}

void frmBrenica::cmdUpdateBins_Click() try {
    modFlexGridUtilities::UpdateFlexGrid(flxBins, txtTotalBins.Long(), global_.TotalBins, true);
    arrangeListPages();
} catch (...) {
    ReportError(9999, "Brenica.cmdUpdateBins_Click", "");
}

void frmBrenica::cmdRemoveBin_Click() try { RemoveBin(txtRemoveBinIndex.Long()); } catch (...) {
    ReportError(9999, "Brenica.cmdRemoveBin_Click", "");
}

void frmBrenica::RemoveBin(int row) {
    if (row < 0 || row > global_.TotalBins) return txtRemoveBinIndex.Text("0");
    RemoveBin(RowNumbers(&row, 1));
}

/// The item removed from the box is the one behind the breakpoint's label. That is of no consequence, since a fresh
/// list is made when the page is left. A breakpoint added since the box was filled has no item yet.
void frmBrenica::RemoveBin(RowNumbers rows) try {
    modFlexGridUtilities::RemoveGridEntry(flxBins, rows, global_.TotalBins);
    for (const int row : rows) {
        const int labels = cbxUserDefBinsHR.ListCount();
        if (labels > 0 && row <= labels) cbxUserDefBinsHR.RemoveItem(row);
    }
} catch (...) {
    ReportError(9999, "Brenica.RemoveBin", "");
}

void frmBrenica::storeBinHomeRange(const ui::ComboBox& box, const char* source) try {
    if (CurrentSpeciesIndex == 0) return;
    flxSummary(summary::Area).TextMatrix(CurrentSpeciesIndex, area::HomeRange, box.Text());
} catch (...) {
    ReportError(9999, source, "");
}

/// Zero means no home range, so that the box's resting "0" is no data.
void frmBrenica::storeContinuousHomeRange() {
    AreaDataChanged = true;
    if (CurrentSpeciesIndex == 0) return;
    const bool none = txtContinuousHR.Real() <= 0;
    flxSummary(summary::Area)
        .TextMatrix(CurrentSpeciesIndex, area::HomeRange, none ? std::string_view() : txtContinuousHR.Text());
}

void frmBrenica::flxBins_CellChanged() { ProjectChanged = true; }
