// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"
#include "scoring/totals_block.h"
#include "ui/arrays.h"
#include "ui/text.h"

namespace {

/// A cell of the cross table: blank counts 0, a fraction is rounded half to even.
int levelOf(const ui::Grid& grid, int row, int col) {
    return ui::isBlank(grid.TextMatrix(row, col)) ? 0 : grid.Long(row, col);
}

struct UseLabels {
    const char* CountBySpecies;
    const char* TotalByUnit;
};

/// Adds the totals block to a cross table of species and units, or fills it anew.
void calculateUse(ui::Grid& grid, int species, int units, const UseLabels& labels) {
    if (species < 1 || units < 1) return;
    std::vector<int> levelByUnit(static_cast<std::size_t>(units));
    std::vector<int> speciesByUnit(static_cast<std::size_t>(units));
    extendForTotals(grid, species + 1, units + 1);
    const int lastRow = grid.Rows() - 1;
    const int lastCol = grid.Cols() - 1;
    writeTotalsLabels(grid, {"Total by species", labels.CountBySpecies, labels.TotalByUnit, "No. species"},
                      lastRow - 1, lastCol - 1);
    clearTotalsColours(grid);
    for (int s = 1; s <= species; ++s) {
        int total = 0;
        int count = 0;
        for (int unit = 1; unit <= units; ++unit) {
            const int level = levelOf(grid, s, unit);
            int& unitTotal = levelByUnit[static_cast<std::size_t>(unit) - 1];
            total = ui::addLong(total, level);
            unitTotal = ui::addLong(unitTotal, level);
            if (level <= 0) continue;
            ++count;
            ++speciesByUnit[static_cast<std::size_t>(unit) - 1];
        }
        grid.TextMatrix(s, lastCol - 1, ui::toText(total));
        grid.TextMatrix(s, lastCol, ui::toText(count));
    }
    for (int unit = 1; unit <= units; ++unit) {
        grid.TextMatrix(lastRow - 1, unit, ui::toText(levelByUnit[static_cast<std::size_t>(unit) - 1]));
        grid.TextMatrix(lastRow, unit, ui::toText(speciesByUnit[static_cast<std::size_t>(unit) - 1]));
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

/// Area of the units with a level other than 0; a level that is no number, or a unit without an area, is left out.
double areaUsed(const OccupancySource& source, int species) {
    double area = 0;
    for (int unit = 1; unit <= source.Units; ++unit) {
        succeeds([&] {
            if (source.Table.TextMatrix(species, unit).empty() || source.Table.Real(species, unit) == 0)
                return;
            area = ui::finite(area + ui::elementAt(source.Areas, unit - 1));
        });
    }
    return area;
}

std::string occupancySentence(const OccupancySource& source, int species, const OccupancyTexts& texts) {
    constexpr int Places = 3;
    if (source.Units < 1) return "";
    int used = 0;
    succeeds([&] { used = source.Table.Long(species, source.Table.Cols() - 1); });
    const auto ending = [&](double proportion) {
        return std::string(" used or required the proportion of the landscape occupied according to ") +
               texts.According + " is " + ui::toText(proportion) + " or less.";
    };
    if (source.AreaTotal > 0 && source.AreasEntered) {
        const double area = areaUsed(source, species);
        return std::string("\r\n") + texts.Start + ui::toText(used) + texts.UnitsWithAreas +
               " (Area = " + ui::toText(area) + ") out of " + ui::toText(source.Units) +
               " (Area = " + ui::toText(source.AreaTotal) + ")" +
               ending(ui::roundTo(area / source.AreaTotal, Places));
    }
    if (source.AreasEntered) return "";
    return std::string("\r\n") + texts.Start + ui::toText(used) + texts.Units + " out of " +
           ui::toText(source.Units) + ending(ui::roundTo(static_cast<double>(used) / source.Units, Places));
}

}  // namespace

/// The levels of each unit come from the table that holds them by unit. This is no edit: nothing is written through, and
/// the totals are still to be calculated.
void frmBrenica::realignLevels(const ParameterList& list) {
    const int units = global_.*list.Total;
    if (!levelsShifted(list) || units < 1) return;
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
                 {"No. habitats", "Total by habitat"});
} catch (...) {
    ReportError(9999, "Brenica.CalculateHabitatUse", "");
}

void frmBrenica::CalculateJurisUnitUse() try {
    realignLevels(parameterList(ListKind::JurisUnits));
    calculateUse(flxSummary(summary::JurisUnitUse), global_.TotalSpecies, global_.TotalJurisUnits,
                 {"No. Manag. zones", "Total by MZ"});
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
