// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "entry/modGeneralUtilities.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "project/pages.h"
#include "ui/text.h"

namespace {

/// What an area cell must not hold, beside being empty.
struct AreaRule {
    int Column;
    const char* Refused;
    const char* Message;
};

constexpr AreaRule AreaRules[] = {
    {area::Dispersal, "N/A", "Enter a dispersion value for each species before proceeding."},
    {area::Connectivity, "N/A", "Enter a connectivity value for each species before proceeding."},
    {area::HomeRange, "0", "Enter a home range value for each species before proceeding."},
    {area::Occupied, "0", "Enter propotion of the landscape occupied by each species before proceeding."},
};

/// The first row that breaks the rule, 0 for none.
int firstRefused(const ui::Grid& grid, const AreaRule& rule) {
    for (int row = 1; row <= grid.Rows() - 1; ++row) {
        const std::string_view text = ui::trim(grid.TextMatrix(row, rule.Column));
        if (text.empty() || ui::equalsIgnoringCase(text, rule.Refused)) return row;
    }
    return 0;
}

/// The first unit that no species has a level for, 0 where each has one. A level of 0 counts.
int firstUnused(const ui::Grid& levels, int units, int species) {
    for (int unit = 1; unit <= units; ++unit) {
        bool used = false;
        for (int s = 1; s <= species && !used; ++s) {
            used = !levels.TextMatrix(blockRow(s, units, unit), use::Level).empty();
        }
        if (!used) return unit;
    }
    return 0;
}

}  // namespace

bool frmBrenica::ValidateMainTab(int tab) try {
    if (tab == page::Species) {
        return removeBlankRows(
            flxCandidateSpecies, list::Name,
            "Select 'Yes' to delete those rows with blank species common names or 'No' to enter a "
            "value into each row with missing names before proceeding.",
            &frmBrenica::RemoveSpecies);
    }
    if (tab != page::Parameters) return true;
    return ValidateLandChar(modGeneralUtilities::GetOptionIndex(optLandChar));
} catch (...) {
    ReportError(9999, "Brenica.ValidateMainTab", "");
}

bool frmBrenica::ValidateLandChar(int index) try {
    switch (index) {
        case 0:
            return removeBlankRows(
                flxHabitatTypes, list::Name,
                "Select 'Yes' to delete those rows with blank habitat names or 'No' to enter a "
                "value into each row with missing names before proceeding.",
                &frmBrenica::RemoveHabitatType);
        case 1:
            return removeBlankRows(
                flxJurisUnits, list::Name,
                "Select 'Yes' to delete those rows with blank management zone names or 'No' to "
                "enter a value into each row with missing names before proceeding.",
                &frmBrenica::RemoveJurisUnit);
        case 2: return validateHumanActivities();
        case 3:
            return !optHomeRangeType(2).Value() ||
                   removeBlankRows(
                       flxBins, 1,
                       "Select 'Yes' to delete those rows with blank breakpoint values or 'No' to enter "
                       "a breakpoint into each row with missing values before proceeding.",
                       &frmBrenica::RemoveBin);
        case 4:
            return removeBlankRows(
                flxFunctions, list::Name,
                "Select 'Yes' to delete those rows with blank function names or 'No' to enter a "
                "value into each row with missing names before proceeding.",
                &frmBrenica::RemoveFunction);
        default: return true;
    }
} catch (...) {
    ReportError(9999, "Brenica.ValidateLandChar", "");
}

/// The rule of urgency and probability is run on the current cell, since the move that would do so does not happen.
bool frmBrenica::validateHumanActivities() {
    const bool complete =
        removeBlankRows(
            flxLandUses, list::Name,
            "Select 'Yes' to delete those rows with blank human activity names or 'No' to enter a value "
            "into each row with missing names before proceeding.",
            &frmBrenica::RemoveLandUse) &&
        removeBlankRows(
            flxLandUses, list::Urgency,
            "Select 'Yes' to delete those rows with blank urgency values or 'No' to enter an urgency "
            "value into each row with missing values before proceeding.",
            &frmBrenica::RemoveLandUse) &&
        removeBlankRows(flxLandUses, list::Probability,
                        "Select 'Yes' to delete those rows with blank probability values or 'No' to enter a "
                        "probability into each row with missing values before proceeding.",
                        &frmBrenica::RemoveLandUse);
    if (complete) flxLandUses_BeforeRowColChange(flxLandUses.Row(), flxLandUses.Col());
    return complete;
}

/// Offers to delete the rows with a blank in the column; false when the user keeps them. They go together, since each
/// removal passes over whole tables, but for the first one, which may be all that the list has left.
bool frmBrenica::removeBlankRows(ui::Grid& grid, int column, const char* prompt,
                                 void (frmBrenica::*remove)(RowNumbers)) {
    using modFlexGridUtilities::MissingValues;
    const MissingValues missing = modFlexGridUtilities::CheckMissingVals(grid, column, prompt);
    if (missing == MissingValues::UserSaidNo) return false;
    if (missing == MissingValues::None) return true;
    std::vector<int> blank;
    for (int row = grid.Rows() - 1; row >= 1; --row) {
        if (ui::isBlank(grid.TextMatrix(row, column))) blank.push_back(row);
    }
    const RowNumbers rows(blank);
    if (rows.size() > 1) (this->*remove)(rows.first(rows.size() - 1));
    (this->*remove)(rows.last(1));
    return true;
}

bool frmBrenica::ValidateScoreValues() try {
    firstMissing_.reset();
    if (global_.TotalSpecies < 1 || global_.TotalHabitatTypes < 1 || global_.TotalJurisUnits < 1 ||
        global_.TotalLandUses < 1) {
        return false;
    }
    if (!allUnitsInUse(summary::HabitatsBySpecies, flxHabitatTypes, global_.TotalHabitatTypes,
                       "habitat type")) {
        return false;
    }
    if (!allUnitsInUse(summary::JurisUnitsBySpecies, flxJurisUnits, global_.TotalJurisUnits,
                       "management zone")) {
        return false;
    }
    const ui::Grid& areas = flxSummary(summary::Area);
    for (const AreaRule& rule : AreaRules) {
        const int row = firstRefused(areas, rule);
        if (row > 0) return refuseMissing(areas, row, rule.Column, rule.Message);
    }
    return allFilled(summary::ThreatsBySpecies, threat::Severity, threat::Severity,
                     "Enter a severity value for each human activity by species before proceeding.") &&
           allFilled(summary::ThreatsBySpecies, threat::Recovery, threat::Recovery,
                     "Enter a recovery value for each human activity by species before proceeding.") &&
           allFilled(
               summary::ThreatsBySpecies, threat::Proportion, threat::Proportion,
               "Enter a proportion affected value for each human activity by species before proceeding.") &&
           allFilled(summary::Functionality, 1, global_.TotalFunctions,
                     "Enter function values for each species before proceeding.") &&
           allFilled(summary::SocioEcon, 1, TotalSocioEcon,
                     "Enter socio-economic values for each species before proceeding.");
} catch (...) {
    ReportError(9999, "Brenica.ValidateScoreValues", "");
}

bool frmBrenica::allUnitsInUse(int member, const ui::Grid& units, int count, const char* kind) {
    const int unused = firstUnused(flxSummary(member), count, global_.TotalSpecies);
    if (unused == 0) return true;
    showInvalidValue("The '" + std::string(units.TextMatrix(unused, list::Name)) + "' " + kind +
                     " is not used by any candidate species. Either select or remove this " + kind + ".");
    return false;
}

bool frmBrenica::allFilled(int member, int firstCol, int lastCol, const char* message) {
    const ui::Grid& grid = flxSummary(member);
    for (int row = 1; row <= grid.Rows() - 1; ++row) {
        for (int col = firstCol; col <= lastCol; ++col) {
            if (ui::isBlank(grid.TextMatrix(row, col))) return refuseMissing(grid, row, col, message);
        }
    }
    return true;
}

bool frmBrenica::refuseMissing(const ui::Grid& grid, int row, int col, const char* message) {
    noteMissing(grid, row, col);
    showInvalidValue(message);
    return false;
}

void frmBrenica::noteMissing(const ui::Grid& grid, int row, int col) {
    firstMissing_ = MissingCell{&grid, row, col, ++missingFound_};
}

void frmBrenica::showInvalidValue(const std::string& message) {
    platform().showMessage(message, "Invalid value", ui::MessageIcon::Exclamation);
}

/// Writes the label columns of the long tables anew; -1 for all of them.
void frmBrenica::GetFlexGridsUpdated(int index) try {
    const auto wanted = [&](int member) { return index == -1 || index == member; };
    const auto labelBySpecies = [&](int member, const ui::Grid& units, int count, int lastCol) {
        if (!wanted(member)) return;
        for (int species = 1; species <= global_.TotalSpecies; ++species) {
            for (int unit = 1; unit <= count; ++unit) {
                const int row = blockRow(species, count, unit);
                flxSummary(member).TextMatrix(
                    row, 0, unit == 1 ? flxCandidateSpecies.TextMatrix(species, list::Name) : "");
                for (int col = 1; col <= lastCol; ++col) {
                    flxSummary(member).TextMatrix(row, col, units.TextMatrix(unit, col));
                }
            }
        }
    };
    labelBySpecies(summary::HabitatsBySpecies, flxHabitatTypes, global_.TotalHabitatTypes, list::Name);
    labelBySpecies(summary::JurisUnitsBySpecies, flxJurisUnits, global_.TotalJurisUnits, list::Name);
    labelBySpecies(summary::ThreatsBySpecies, flxLandUses, global_.TotalLandUses, list::Probability);
    if (!wanted(summary::SpeciesByThreat)) return;
    ui::Grid& byThreat = flxSummary(summary::SpeciesByThreat);
    for (int threatNumber = 1; threatNumber <= global_.TotalLandUses; ++threatNumber) {
        for (int species = 1; species <= global_.TotalSpecies; ++species) {
            const int row = blockRow(threatNumber, global_.TotalSpecies, species);
            byThreat.TextMatrix(row, 0, species == 1 ? flxLandUses.TextMatrix(threatNumber, list::Name) : "");
            byThreat.TextMatrix(row, 1, flxCandidateSpecies.TextMatrix(species, list::Name));
        }
    }
} catch (...) {
    ReportError(9999, "Brenica.GetFlexGridsUpdated", "");
}
