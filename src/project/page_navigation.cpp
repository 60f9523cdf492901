// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "ui/wait_pointer.h"

namespace {

constexpr int AreaCriterion = 2;
constexpr int VulnerabilityCriterion = 3;

}  // namespace

/// The page moved to is shown only at the end, so that no page is on view while its tables are calculated.
void frmBrenica::tabBrenica_Click() try {
    const int page = tabBrenica.SelectedItem();
    if (page == CurrentMainTab) return;
    const ui::WaitPointer wait(platform());
    if (!ValidateMainTab(CurrentMainTab)) {
        tabBrenica.SelectedItem(CurrentMainTab);
        return;
    }
    if (CurrentMainTab > 0) fraTabContents(CurrentMainTab - 1).Visible(false);
    leavePage(CurrentMainTab);
    const int oldPage = CurrentMainTab;
    CurrentMainTab = page;
    enterPage(page, oldPage);
    flxSummary(summary::Vulnerability).TextMatrix(0, vulnerability::ConservationStatus, "CCS");
    fraTabContents(CurrentMainTab - 1).Visible(true);
} catch (...) {
    ReportError(9999, "Brenica.tabBrenica_Click", "");
}

void frmBrenica::tabCriteria_Click() try {
    const int criterion = tabCriteria.SelectedItem();
    if (criterion == CurrentCriteriaTab) return;
    if (CurrentCriteriaTab > 0) fraCriteria(CurrentCriteriaTab - 1).Visible(false);
    storeShownConservationStatus();
    CurrentCriteriaTab = criterion;
    lblCCS.Visible(CurrentCriteriaTab == VulnerabilityCriterion);
    txtCCS.Visible(CurrentCriteriaTab == VulnerabilityCriterion);
    if (CurrentCriteriaTab == AreaCriterion) showHomeRangeControls(HomeRangeType);
    if (noSpeciesOnView()) {
        cbxDataQuality.ListIndex(-1);
    } else {
        showDataQuality();
    }
    fraCriteria(CurrentCriteriaTab - 1).Visible(true);
} catch (...) {
    ReportError(9999, "Brenica.tabCriteria_Click", "");
}

/// On leaving the vulnerability criterion, or the page while it is on view.
void frmBrenica::storeShownConservationStatus() {
    if (CurrentCriteriaTab != VulnerabilityCriterion || noSpeciesOnView()) return;
    flxSummary(summary::Vulnerability)
        .TextMatrix(CurrentSpeciesIndex, vulnerability::ConservationStatus, txtCCS.Text());
}

void frmBrenica::showHomeRangeControls(int type) {
    if (type < 0 || type > 2) return;
    lblContinuousHR.Visible(type == 0);
    txtContinuousHR.Visible(type == 0);
    lblDefaultBinsHR.Visible(type == 1);
    cbxDefaultBinsHR.Visible(type == 1);
    lblUserDefBinsHR.Visible(type == 2);
    cbxUserDefBinsHR.Visible(type == 2);
}

/// The level of the criterion on view, for the species on view.
void frmBrenica::showDataQuality() {
    if (CurrentCriteriaTab < 1 || CurrentCriteriaTab > TotalCriteria) return;
    const ui::Grid& levels = flxSummary(summary::DataQuality);
    const bool entered = !levels.TextMatrix(CurrentSpeciesIndex, CurrentCriteriaTab).empty();
    cbxDataQuality.ListIndex(entered ? levels.Long(CurrentSpeciesIndex, CurrentCriteriaTab) - 1 : -1);
}

void frmBrenica::optLandChar_Click(int index) try {
    if (index == CurrentLandChar) return;
    if (!ValidateLandChar(CurrentLandChar)) {
        optLandChar(CurrentLandChar).Value(true);
        return;
    }
    for (int i = 0; i < fraLandCharInfo.Count(); ++i) fraLandCharInfo(i).Visible(i == index);
    CurrentLandChar = index;
} catch (...) {
    ReportError(9999, "Brenica.optLandChar_Click", "");
}
