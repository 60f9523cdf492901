// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "method/use.h"
#include "project/frmBrenica.h"
#include "scoring/landscape_reader.h"
#include "scoring/totals_block.h"
#include "ui/text.h"

namespace {

struct UseTexts {
    const char* CountBySpecies;
    const char* TotalByUnit;
};

/// Adds the totals block to a cross table of species and units, or fills it anew.
void calculateUse(ui::Grid& grid, int species, int units, method::Quantity level, const UseTexts& texts) {
    if (species < 1 || units < 1) return;
    extendForTotals(grid, species + 1, units + 1);
    const int lastRow = grid.Rows() - 1;
    const int lastCol = grid.Cols() - 1;
    writeTotalsLabels(grid, {"Total by species", texts.CountBySpecies, texts.TotalByUnit, "No. species"},
                      lastRow - 1, lastCol - 1);
    clearTotalsColours(grid);
    method::UseTotals totals;
    const auto failure =
        failureOf([&] { method::totalUse(tableOf(grid, 1, species, units), level, totals); });
    for (std::size_t s = 0; s < totals.LevelBySpecies.size(); ++s) {
        grid.TextMatrix(tableIndex(s), lastCol - 1, ui::toText(totals.LevelBySpecies[s]));
        grid.TextMatrix(tableIndex(s), lastCol, ui::toText(totals.UnitsBySpecies[s]));
    }
    if (failure) raiseForCell(grid, tableIndex(failure->Row), tableIndex(failure->Column));
    for (std::size_t unit = 0; unit < totals.LevelByUnit.size(); ++unit) {
        grid.TextMatrix(lastRow - 1, tableIndex(unit), ui::toText(totals.LevelByUnit[unit]));
        grid.TextMatrix(lastRow, tableIndex(unit), ui::toText(totals.SpeciesByUnit[unit]));
    }
    paintTotals(grid);
}

/// What one sentence of the hint is made of.
struct OccupancyTexts {
    const char* Start;
    const char* Units;
    const char* UnitsWithAreas;
    const char* According;
};

struct OccupancySource {
    const ui::Grid& Table;
    int Units;
    const std::vector<double>& Areas;
    double AreaTotal;
    bool AreasEntered;
};

std::optional<double> proportionOf(double part, double whole) try {
    return method::proportionOf(part, whole);
} catch (const method::Failure&) {
    ui::raise(ui::ErrorNumber::Overflow);
}

std::string occupancySentence(const OccupancySource& source, int species, const OccupancyTexts& texts) {
    if (source.Units < 1) return "";
    int used = 0;
    succeeds([&] { used = source.Table.Long(species, source.Table.Cols() - 1); });
    const auto ending = [&](double proportion) {
        return std::string(" used or required the proportion of the landscape occupied according to ") +
               texts.According + " is " + ui::toText(proportion) + " or less.";
    };
    if (!source.AreasEntered) {
        return std::string("\r\n") + texts.Start + ui::toText(used) + texts.Units + " out of " +
               ui::toText(source.Units) + ending(proportionOf(used, source.Units).value());
    }
    const double area = method::areaUsed(rowOf(source.Table, species, 1, source.Units), source.Areas);
    const std::optional<double> proportion = proportionOf(area, source.AreaTotal);
    if (!proportion) return "";
    return std::string("\r\n") + texts.Start + ui::toText(used) + texts.UnitsWithAreas +
           " (Area = " + ui::toText(area) + ") out of " + ui::toText(source.Units) +
           " (Area = " + ui::toText(source.AreaTotal) + ")" + ending(*proportion);
}

}  // namespace

/// The levels of each unit come from the table that holds them by unit. This is no edit: nothing is written through, and
/// the totals are still to be calculated.
void frmBrenica::realignLevels(const ParameterList& list) {
    const int units = global_.*list.Total;
    if (!levelsShifted(list)) return;
    ui::Grid& table = flxSummary(list.WideMember);
    const ui::Grid& levels = flxSummary(list.LongMember);
    for (int species = 1; species <= global_.TotalSpecies; ++species) {
        for (int unit = 1; unit <= units; ++unit) {
            table.TextMatrix(species, unit, levels.TextMatrix(blockRow(species, units, unit), use::Level));
        }
    }
    levelsShifted(list) = false;
}

void frmBrenica::CalculateHabitatUse() try {
    realignLevels(parameterList(ListKind::HabitatTypes));
    calculateUse(flxSummary(summary::HabitatUse), global_.TotalSpecies, global_.TotalHabitatTypes,
                 method::Quantity::HabitatLevel, {"No. habitats", "Total by habitat"});
} catch (...) {
    ReportError(9999, "Brenica.CalculateHabitatUse", "");
}

void frmBrenica::CalculateJurisUnitUse() try {
    realignLevels(parameterList(ListKind::JurisUnits));
    calculateUse(flxSummary(summary::JurisUnitUse), global_.TotalSpecies, global_.TotalJurisUnits,
                 method::Quantity::ZoneLevel, {"No. Manag. zones", "Total by MZ"});
} catch (...) {
    ReportError(9999, "Brenica.CalculateJurisUnitUse", "");
}

/// The hint beside the box for the proportion occupied: an upper bound from the units that the species uses. The
/// sentence on zones begins with a blank, the one on habitats does not.
std::string frmBrenica::CalculatePropOccup(int species) {
    std::string hint = "Hint: ";
    succeeds([&] {
        hint +=
            occupancySentence({flxSummary(summary::HabitatUse), global_.TotalHabitatTypes,
                               global_.HabitatAreas, global_.HabitatAreaTotal, global_.HabitatAreasEntered},
                              species, {"With ", " habitats", " habitat types", "habitats"});
    });
    succeeds([&] {
        hint += occupancySentence(
            {flxSummary(summary::JurisUnitUse), global_.TotalJurisUnits, global_.JurisUnitAreas,
             global_.JurisUnitAreaTotal, global_.JurisUnitAreasEntered},
            species, {" With ", " management zones", " management zones", "management zone"});
    });
    return hint;
}
