// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"
#include "scoring/landscape_reader.h"
#include "selection/selection.h"
#include "ui/text.h"
#include "ui/wait_pointer.h"

namespace {

/// What a selection works on. The levels and ratings are those of the tables by species.
method::Landscape landscapeOf(const frmBrenica& form, const modGlobal& global) {
    const int species = global.TotalSpecies;
    const auto member = [&](int index) -> const ui::Grid& { return form.flxSummary(index); };
    method::Landscape landscape;
    landscape.HabitatLevels = levelsOf(member(summary::HabitatsBySpecies), species, global.TotalHabitatTypes);
    landscape.ZoneLevels = levelsOf(member(summary::JurisUnitsBySpecies), species, global.TotalJurisUnits);
    landscape.HabitatThresholds = columnOf(form.flxHabitatTypes, list::LevelOfUse, global.TotalHabitatTypes);
    landscape.ZoneThresholds = columnOf(form.flxJurisUnits, list::LevelOfUse, global.TotalJurisUnits);
    landscape.Ratings = ratingsOf(member(summary::ThreatsBySpecies), species, global.TotalLandUses);
    landscape.Status = columnOf(member(summary::Vulnerability), vulnerability::ConservationStatus, species);
    return landscape;
}

/// The cell over which a selection could not start.
CellPlace startCell(const frmBrenica& form, const method::Failure& failure) {
    const int row = tableIndex(failure.Row);
    if (failure.What == method::Quantity::HabitatThreshold)
        return {form.flxHabitatTypes, row, list::LevelOfUse};
    if (failure.What == method::Quantity::ZoneThreshold) return {form.flxJurisUnits, row, list::LevelOfUse};
    return {form.flxSummary(summary::Vulnerability), row, vulnerability::ConservationStatus};
}

}  // namespace

/// Whether the scores are those of the species, habitats, zones and activities that there are now. What was added since
/// they were calculated has blank cells, which no selection can read.
bool frmBrenica::scoresServe() const {
    const int species = global_.TotalSpecies;
    const auto filled = [&](const ui::Grid& grid, int rowsPerSpecies, int col) {
        for (int row = 1; row <= species * rowsPerSpecies; ++row) {
            if (ui::isBlank(grid.TextMatrix(row, col))) return false;
        }
        return true;
    };
    const auto rated = [&](int col) {
        return filled(flxSummary(summary::ThreatsBySpecies), global_.TotalLandUses, col);
    };
    return species > 0 && filled(flxScores(0), 1, score::Aggregate) &&
           filled(flxSummary(summary::HabitatsBySpecies), global_.TotalHabitatTypes, use::Level) &&
           filled(flxSummary(summary::JurisUnitsBySpecies), global_.TotalJurisUnits, use::Level) &&
           rated(threat::Severity) && rated(threat::Recovery) && rated(threat::Proportion);
}

/// Runs one whole selection, from the levels in the boxes to the report.
void frmBrenica::cmdComplement_Click() try {
    const ui::WaitPointer wait(platform());
    if (!global_.ScoresCalculated) return;
    if (!scoresServe()) return SelectionRefused();
    global_.ErrorMargin = txtErrorMargin.Real();
    global_.ThreatRepresentation = txtThreatRep.Real();
    global_.ConservationStatusRepresentation = txtCCSRep.Real();
    for (ui::Grid& grid : flxCompResults) grid.Rows(1);

    const method::Landscape landscape = landscapeOf(*this, global_);
    method::Selection selection;
    selection.load(landscape, threatScoresOf(flxSummary(summary::Vulnerability), global_.TotalSpecies,
                                             global_.TotalLandUses));
    const auto failure = failureOf([&] {
        selection.start({.Margin = global_.ErrorMargin,
                         .ThreatRepresentation = global_.ThreatRepresentation,
                         .ConservationStatus = global_.ConservationStatusRepresentation});
    });
    if (failure) modBrenicaUtilities::raiseFailure(*failure, startCell(*this, *failure));

    // Back in candidate order, however the user sorted it, so that row i is candidate i.
    flxScoresSort(0).Select(0, score::SortKey);
    flxScoresSort(0).Sort(ui::SortOrder::GenericAscending);
    InitComplementarity();
    global_.SelectionStarting = true;
    global_.ExcludedSpeciesList.clear();
    global_.ExcludedSpeciesCount = 0;
    modBrenicaUtilities::cmdComplement_Click(
        platform(), global_, selection,
        {flxCompResults(0), flxScoresSort(0), flxBrenicSuite, flxHabitatTypes, flxJurisUnits,
         flxSummary(summary::HabitatsBySpecies), flxSummary(summary::JurisUnitsBySpecies),
         flxSummary(summary::ThreatsBySpecies), flxSummary(summary::Vulnerability), flxCompResults(1),
         flxCompResults(2), flxCompResults(3)});
    for (ui::OptionButton& button : optCompResults) button.Enabled(true);
    optCompResults(0).Value(true);
    cmdExportResults.Enabled(true);
    fitShownGrids();
} catch (...) {
    ReportError(9999, "Brenica.cmdComplement_Click", "");
}

void frmBrenica::InitComplementarity() try {
    flxBrenicSuite.Rows(1);  // so that its first row begins without the colours of an earlier suite
    if (global_.ScoresCalculated) {
        flxBrenicSuite.Rows(2);
        flxBrenicSuite.TextMatrix(1, 0, "1");
    }
    optCompResults(0).Value(true);
    for (int i = 0; i < optCompResults.Count(); ++i) {
        optCompResults(i).Enabled(false);
        flxCompResults(i).Visible(false);
        flxCompResults(i).Rows(1);
    }
    flxCompResults(0).Visible(true);
} catch (...) {
    ReportError(9999, "Brenica.InitComplementarity", "");
}
