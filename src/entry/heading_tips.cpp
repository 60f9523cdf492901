// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/heading_tips.h"

#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"

void showHeadingTip(ui::Grid& grid, int index, TipMemory& memory, const TipOfColumn& tipOf) {
    const int row = grid.MouseRow();
    const int col = grid.MouseCol();
    if (row != 0 || col < 1) {
        grid.ToolTipText("");
    } else if (!memory.isSameHeading(index, row, col)) {
        grid.ToolTipText(tipOf(index, col));
    }
    memory.remember(index, row, col);
}

std::vector<HeadingTips> frmBrenica::makeHeadingTips() {
    return {
        {&flxCandidateSpecies,
         "Brenica.flxCandidateSpecies_MouseMove",
         {"Unique identifier number for the candidate species", "Common name of the candidate species",
          "Scientific name of the candidate species"}},
        {&flxHabitatTypes,
         "Brenica.flxHabitatTypes_MouseMove",
         {"Unique identifier number for the habitat type", "Name of the habitat type",
          "Surface area of the habitat type", "Level of use required to cover the habitat type"}},
        {&flxJurisUnits,
         "Brenica.flxJurisUnits_MouseMove",
         {"Unique identifier number for the management zone", "Name of the management zone",
          "Surface area of the management zone", "Level of use required to cover the management zone"}},
        {&flxLandUses,
         "Brenica.flxLandUses_MouseMove",
         {"Unique identifier number for the human activity", "Name of the human activity",
          "Urgency in terms of timescale associated with each human activity: 0 = not within next 10 years, 1 = within "
          "3-10 years, 2 = within 1-3 years, 3 = currently happening",
          "Probability (0-1) of occurence associated with the human activity"}},
        {&flxBins,
         "Brenica.flxBins_MouseMove",
         {"Unique identifier number for breakpoint value",
          "Breakpoint value used to define the home range intervals"}},
        {&flxFunctions,
         "Brenica.flxFunctions_MouseMove",
         {"Unique identifier number for the function", "Description of the function"}},
        {&flxHabitatHetero,
         "Brenica.flxHabitatHetero_MouseMove",
         {"Name of the habitat type", "Select a level of use for the species for this habitat type"}},
        {&flxJurisUnitHetero,
         "Brenica.flxJurisUnitHetero_MouseMove",
         {"Name of the management zone", "Select level of use for the species for the management zone"}},
        {&flxLandUsesVulnerability,
         "Brenica.flxLandUsesVulnerability_MouseMove",
         {"Name of the human activity",
          "Severity in terms of the effects of the human activity on the species: 0 = none or positive, 1 = little, 2 = "
          "some, 3 = serious",
          "Time it would take the species to recover from the threat: 0 = Immediate or less than a year, 1 = 1-10 years, "
          "2 = 10-100 years, 3 = more than 100 years or never",
          "Proportion of the species' local distribution affected by the threat: 1 = .01-.1, 2 = .1-.25, 3 = .25-.5, 4 "
          "= >.5"}},
        {&flxFunctionality,
         "Brenica.flxFunctionality_MouseMove",
         {"Description of the function",
          "The significance of the functional role played by each species: 0 = no role, 1 = suspected or weak effect, 2 "
          "= clear effects, 3 = strong effects"}},
        {&flxSocioEcon,
         "Brenica.flxSocioEcon_MouseMove",
         {"Description of the socio-economic indicator",
          "Significance of the species with respect to the socioeconomic category: 0 = no significance, 1 = some "
          "significance, 2 = strong significance"}},
    };
}

void frmBrenica::wireHeadingTips() {
    for (HeadingTips& tips : headingTips_) tips.Grid->MouseMove = [&tips] { headingTips_MouseMove(tips); };
}

/// Only headings are remembered: a mouse that comes back from the body to the same heading finds no tip there until it
/// has been on another one.
void frmBrenica::headingTips_MouseMove(HeadingTips& tips) try {
    ui::Grid& grid = *tips.Grid;
    const int row = grid.MouseRow();
    const int col = grid.MouseCol();
    if (row != 0) return grid.ToolTipText("");
    if (tips.Memory.isSameHeading(0, row, col)) return;
    tips.Memory.remember(0, row, col);
    if (col >= 0 && col < static_cast<int>(tips.Texts.size())) {
        grid.ToolTipText(tips.Texts[static_cast<std::size_t>(col)]);
    }
} catch (...) {
    ReportError(9999, tips.Source, "");
}
