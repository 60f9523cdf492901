// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

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

/// A threat to which nobody is exposed is represented by every species: the first pick covers it, and its ratings are
/// never read.
bool frmBrenica::readsRatings(int threatNumber) const {
    if (!(global_.ThreatRepresentation > 0)) return false;
    const ui::Grid& scores = flxSummary(summary::Vulnerability);
    for (int species = 1; species <= global_.TotalSpecies; ++species) {
        const auto score =
            ui::tryReal(scores.TextMatrix(species, threatNumber + vulnerability::ThreatOffset), separator());
        if (score && *score > 0) return true;
    }
    return false;
}

/// Whether a grade of a species is blank that a selection in which it takes part reads: what was added to the lists
/// since the scores has none.
bool frmBrenica::lacksGrades(int species, const std::vector<int>& threatsRead) const {
    const auto lacksLevel = [&](int member, int units) {
        for (int unit = 1; unit <= units; ++unit) {
            if (ui::isBlank(flxSummary(member).TextMatrix(blockRow(species, units, unit), use::Level)))
                return true;
        }
        return false;
    };
    const auto lacksRating = [&](int threatNumber) {
        const int row = blockRow(species, global_.TotalLandUses, threatNumber);
        return ui::isBlank(flxSummary(summary::ThreatsBySpecies).TextMatrix(row, threat::Severity)) ||
               ui::isBlank(flxSummary(summary::ThreatsBySpecies).TextMatrix(row, threat::Recovery)) ||
               ui::isBlank(flxSummary(summary::ThreatsBySpecies).TextMatrix(row, threat::Proportion));
    };
    return lacksLevel(summary::HabitatsBySpecies, global_.TotalHabitatTypes) ||
           lacksLevel(summary::JurisUnitsBySpecies, global_.TotalJurisUnits) ||
           std::any_of(threatsRead.begin(), threatsRead.end(), lacksRating);
}

std::optional<SelectionObstacle> frmBrenica::FindSelectionObstacle() const {
    const int total = global_.TotalSpecies;
    if (total < 1) return SelectionObstacle::NoSpecies;
    const auto blankIn = [&](const ui::Grid& grid, int col) {
        for (int species = 1; species <= total; ++species) {
            if (ui::isBlank(grid.TextMatrix(species, col))) return true;
        }
        return false;
    };
    const ui::Grid& vulnerabilities = flxSummary(summary::Vulnerability);
    if (blankIn(flxScores(0), score::Aggregate)) return SelectionObstacle::OldScores;
    if (blankIn(vulnerabilities, vulnerability::ConservationStatus)) return SelectionObstacle::NoStatus;

    std::vector<int> threatsRead;
    for (int t = 1; t <= global_.TotalLandUses; ++t) {
        if (readsRatings(t)) threatsRead.push_back(t);
    }
    for (int species = 1; species <= total; ++species) {
        const auto status =
            ui::tryReal(vulnerabilities.TextMatrix(species, vulnerability::ConservationStatus), separator());
        const bool takesPart = status && *status <= global_.ConservationStatusRepresentation;
        if (takesPart && lacksGrades(species, threatsRead)) return SelectionObstacle::OldScores;
    }
    return {};
}

/// Runs one whole selection, from the levels in the boxes to the report.
void frmBrenica::cmdComplement_Click() try {
    const ui::WaitPointer wait(platform());
    if (!global_.ScoresCalculated) return;
    global_.ErrorMargin = txtErrorMargin.Real();
    global_.ThreatRepresentation = txtThreatRep.Real();
    global_.ConservationStatusRepresentation = txtCCSRep.Real();
    if (const auto obstacle = FindSelectionObstacle()) return SelectionRefused(*obstacle);
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
