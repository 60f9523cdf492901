// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "entry/modErrorHandling.h"
#include "entry/modValidationUtilities.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "ui/text.h"

namespace {

constexpr const char* Grades = "0|1|2|3";
constexpr std::array EditableMembers = {
    summary::HabitatUse,      summary::JurisUnitUse,  summary::Area,      summary::Vulnerability,
    summary::SpeciesByThreat, summary::Functionality, summary::SocioEcon, summary::DataQuality};
constexpr int VulnerabilityTab = 4;

/// The first two tabs show two tables each, every other one table.
std::vector<int> membersOfTab(int tab) {
    if (tab == 1) return {summary::HabitatUse, summary::JurisUnitUse};
    if (tab == 2) return {summary::HabitatsBySpecies, summary::JurisUnitsBySpecies};
    return {tab + 1};
}

bool tabCanBeEdited(int tab) { return tab != 2 && tab != 5; }

bool within(int col, int last) { return col >= 1 && col <= last; }

}  // namespace

void frmBrenica::tabCriteriaSummary_Click() try {
    const int tab = tabCriteriaSummary.SelectedItem();
    if (tab == CurrentSummaryTab || CurrentSummaryTab <= 0) return;
    for (const int member : membersOfTab(CurrentSummaryTab)) flxSummary(member).Visible(false);
    CurrentSummaryTab = tab;
    for (const int member : membersOfTab(tab)) flxSummary(member).Visible(true);
    if (tab == VulnerabilityTab && chkAllowSummaryEdit.Value()) CalculateVunerabilityScores();
    chkAllowSummaryEdit.Enabled(tabCanBeEdited(tab));
} catch (...) {
    ReportError(9999, "Brenica.tabCriteriaSummary_Click", "");
}

void frmBrenica::chkAllowSummaryEdit_Click() try {
    const auto mode = chkAllowSummaryEdit.Value() ? ui::EditMode::KeyboardAndMouse : ui::EditMode::ReadOnly;
    for (const int member : EditableMembers) flxSummary(member).Editable = mode;
} catch (...) {
    ReportError(9999, "Brenica.chkAllowSummaryEdit_Click", "");
}

/// Offers the cell's list of items, or refuses a cell outside the data with a beep. Errors are ignored.
void frmBrenica::flxSummary_BeforeEdit(int index, int row, int col, bool& cancel) {
    ui::Grid& grid = flxSummary(index);
    const auto offer = [&](bool listed, const char* items) { grid.ComboList(listed ? items : ""); };
    const auto refuseOutside = [&](int lastCol) {
        if (col <= lastCol && row <= global_.TotalSpecies) return;
        platform().beep();
        cancel = true;
    };
    switch (index) {
        case summary::HabitatUse:
            refuseOutside(global_.TotalHabitatTypes);
            return offer(within(col, global_.TotalHabitatTypes), Grades);
        case summary::JurisUnitUse:
            refuseOutside(global_.TotalJurisUnits);
            return offer(within(col, global_.TotalJurisUnits), Grades);
        case summary::Area: return grid.ComboList(areaItems(col));
        case summary::Vulnerability: return refuseOutside(vulnerability::ConservationStatus);
        case summary::SpeciesByThreat:
            if (col == 4) return offer(true, "0|1|2|3|4");
            return offer(col == 2 || col == 3, Grades);
        case summary::Functionality: return offer(within(col, global_.TotalFunctions), Grades);
        case summary::SocioEcon: return offer(within(col, TotalSocioEcon), "0|1|2");
        case summary::DataQuality: return offer(within(col, TotalCriteria), "1|2|3|4|5|6");
        default: return;
    }
}

/// The labels of the bins are joined end to end without a separator, so that the list of the home range is one long
/// item. It is settled so.
std::string frmBrenica::areaItems(int col) const {
    if (col == area::Dispersal || col == area::Connectivity) return "Y|N";
    if (col != area::HomeRange) return "";
    std::string items;
    if (HomeRangeType == 1) {
        for (const char* label : DefaultBinLabels) items += label;
    } else if (HomeRangeType == 2) {
        const auto count = static_cast<std::size_t>(std::max(global_.TotalBins, 0));
        for (std::size_t i = 0; i < std::min(count, global_.UserBinLabels.size()); ++i)
            items += global_.UserBinLabels[i];
    }
    return items;
}

/// The two proportions lie between 0 and 1.
void frmBrenica::flxSummary_ValidateEdit(int index, int row, int col, bool& cancel) try {
    const bool occupied = index == summary::Area && col == area::Occupied;
    const bool status = index == summary::Vulnerability && col == vulnerability::ConservationStatus &&
                        row <= global_.TotalSpecies;
    if (!occupied && !status) return;
    if (modValidationUtilities::IsNothingOrWithin({.Least = 0, .Most = 1}, flxSummary(index).EditText(),
                                                  separator())) {
        return;
    }
    platform().beep();
    cancel = true;
} catch (...) {
    ReportError(9999, "Brenica.flxSummary_ValidateEdit", "");
}

/// Errors are ignored: a tip that cannot be found leaves the old one.
void frmBrenica::flxSummary_MouseMove(int index) {
    ui::Grid& grid = flxSummary(index);
    const int row = grid.MouseRow();
    const int col = grid.MouseCol();
    if (summaryTips_.isSameHeading(index, row, col)) return;
    summaryTips_.remember(index, row, col);
    succeeds([&] { grid.ToolTipText(summaryTip(index, row, col)); });
}

/// What differs between the three cross tables that have tips.
struct frmBrenica::CrossTableTips {
    int Member;
    const char* TotalByUnit;
    const char* CountByUnit;
    const char* CountBySpecies;
    const char* TotalBySpecies;
    ui::Grid frmBrenica::*Names;
    int Offset;  ///< the unit of column c is c - Offset
};

std::string frmBrenica::summaryTip(int index, int row, int col) const {
    static constexpr CrossTableTips Tables[] = {
        {summary::HabitatUse, "Habitat level of use total across all species",
         "Number of species using the habitat", "Number of habitats used by the species",
         "Summed habitat level of use by the species", &frmBrenica::flxHabitatTypes, 0},
        {summary::JurisUnitUse, "Management zone level of use total across all species",
         "Number of species using the management zone", "Number of management zones used by the species",
         "Summed management zone level of use by the species", &frmBrenica::flxJurisUnits, 0},
        {summary::Vulnerability, "Total threat score summed by threat",
         "Number of species affected by the threat", "Number of threats affecting a species",
         "Total threat score summed by species", &frmBrenica::flxLandUses, vulnerability::ThreatOffset},
    };
    if (row >= 1 && row <= global_.TotalSpecies) return "";
    const ui::Grid& grid = flxSummary(index);
    for (const CrossTableTips& table : Tables) {
        if (table.Member != index || row < 0) continue;
        if (row == grid.Rows() - 2) return table.TotalByUnit;
        if (row == grid.Rows() - 1) return table.CountByUnit;
        if (row != 0 || col < 1 || global_.TotalSpecies < 1) return "";
        if (index == summary::Vulnerability && col == vulnerability::ConservationStatus) {
            return "A species current conservation status";
        }
        if (col == grid.Cols() - 1) return table.CountBySpecies;
        if (col == grid.Cols() - 2) return table.TotalBySpecies;
        if (col == grid.Cols() - 3) return "";
        return std::string((this->*table.Names).TextMatrix(col - table.Offset, list::Name));
    }
    return "";
}
