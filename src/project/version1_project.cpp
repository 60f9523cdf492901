// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "ui/arrays.h"
#include "ui/text.h"

/// Files of version 1 lack the proportion of the landscape and the conservation status: both get a first value.

namespace {

constexpr int Places = 3;

/// The share of the landscape in the units that a species uses: of the area where areas are entered, else of the units.
double proportionUsed(const ui::Grid& table, int species, int units, const std::vector<double>& areas,
                      double total, bool areasEntered) {
    const int unitsUsed = table.Long(species, table.Cols() - 1);
    if (total > 0 && areasEntered) {
        double area = 0;
        for (int unit = 1; unit <= units; ++unit) {
            const bool used = !table.TextMatrix(species, unit).empty() && table.Real(species, unit) != 0;
            if (used) area += ui::elementAt(areas, unit - 1);
        }
        return ui::roundTo(area / total, Places);
    }
    if (!areasEntered) return ui::roundTo(static_cast<double>(unitsUsed) / units, Places);
    return 0;
}

/// The reader gives a level of use to the units that have an area; a file may have fewer areas than units.
void fillLevelsOfUse(ui::Grid& units) {
    for (int row = 1; row <= units.Rows() - 1; ++row) {
        if (ui::isBlank(units.TextMatrix(row, list::LevelOfUse)))
            units.TextMatrix(row, list::LevelOfUse, DefaultLevelOfUse);
    }
}

}  // namespace

void frmBrenica::convertVersion1Project() {
    fillLevelsOfUse(flxHabitatTypes);
    fillLevelsOfUse(flxJurisUnits);
    CalculateHabitatUse();
    CalculateJurisUnitUse();
    updateAreaTotals();
    for (int species = 1; species <= global_.TotalSpecies; ++species) {
        double proportion = 0;
        if (global_.TotalHabitatTypes > 0) {
            proportion =
                proportionUsed(flxSummary(summary::HabitatUse), species, global_.TotalHabitatTypes,
                               global_.HabitatAreas, global_.HabitatAreaTotal, global_.HabitatAreasEntered);
        }
        if (proportion == 0 && global_.TotalJurisUnits > 0) {
            proportion = proportionUsed(flxSummary(summary::JurisUnitUse), species, global_.TotalJurisUnits,
                                        global_.JurisUnitAreas, global_.JurisUnitAreaTotal,
                                        global_.JurisUnitAreasEntered);
        }
        flxSummary(summary::Area)
            .TextMatrix(species, area::Occupied,
                        proportion > 0 ? ui::toText(ui::roundTo(proportion, Places)) : "0");
    }
    ui::Grid& status = flxSummary(summary::Vulnerability);
    for (int species = 1; species <= global_.TotalSpecies; ++species) {
        status.TextMatrix(species, vulnerability::ConservationStatus, "1");
    }
    status.TextMatrix(0, vulnerability::ConservationStatus, "CCS");
    platform().showMessage(
        "As this is an early project files default values will be put in the 'Proportion of Landscape Occupied', "
        "'Current Conservation Status', 'Habitat Level of Use', and 'Management Level of Use' fields. Remember to "
        "update these values.",
        "Version 1 poject file", ui::MessageIcon::Exclamation);
}
