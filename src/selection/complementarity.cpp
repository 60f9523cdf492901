// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "method/missing.h"
#include "project/frmBrenica.h"
#include "scoring/landscape_reader.h"
#include "selection/selection.h"
#include "ui/text.h"
#include "ui/wait_pointer.h"

namespace {

/// The cell over which a selection could not start.
CellPlace startCell(const frmBrenica& form, const method::Failure& failure) {
    const int row = tableIndex(failure.Row);
    if (failure.What == method::Quantity::HabitatThreshold)
        return {form.flxHabitatTypes, row, list::LevelOfUse};
    if (failure.What == method::Quantity::ZoneThreshold) return {form.flxJurisUnits, row, list::LevelOfUse};
    return {form.flxSummary(summary::Vulnerability), row, vulnerability::ConservationStatus};
}

/// The first of the rows from 1 to `last` that has nothing in the column, 0 for none.
int firstBlank(const ui::Grid& grid, int col, int last) {
    for (int row = 1; row <= last; ++row) {
        if (ui::isBlank(grid.TextMatrix(row, col))) return row;
    }
    return 0;
}

}  // namespace

/// The levels and ratings are those of the tables by species.
method::Landscape frmBrenica::selectionLandscape() const {
    const int species = global_.TotalSpecies;
    method::Landscape landscape;
    landscape.HabitatLevels =
        levelsOf(flxSummary(summary::HabitatsBySpecies), species, global_.TotalHabitatTypes);
    landscape.ZoneLevels =
        levelsOf(flxSummary(summary::JurisUnitsBySpecies), species, global_.TotalJurisUnits);
    landscape.HabitatThresholds = columnOf(flxHabitatTypes, list::LevelOfUse, global_.TotalHabitatTypes);
    landscape.ZoneThresholds = columnOf(flxJurisUnits, list::LevelOfUse, global_.TotalJurisUnits);
    landscape.Ratings = ratingsOf(flxSummary(summary::ThreatsBySpecies), species, global_.TotalLandUses);
    landscape.Status =
        columnOf(flxSummary(summary::Vulnerability), vulnerability::ConservationStatus, species);
    return landscape;
}

int frmBrenica::FirstWithoutStatus() const {
    return firstBlank(flxSummary(summary::Vulnerability), vulnerability::ConservationStatus,
                      global_.TotalSpecies);
}

std::optional<SelectionObstacle> frmBrenica::FindSelectionObstacle() const {
    return obstacleIn(selectionLandscape(), threatScoresOf(flxSummary(summary::Vulnerability),
                                                           global_.TotalSpecies, global_.TotalLandUses));
}

/// What was added to the lists since the scores has blank cells.
std::optional<SelectionObstacle> frmBrenica::obstacleIn(const method::Landscape& landscape,
                                                        const method::Table& threatScores) const {
    if (global_.TotalSpecies < 1) return SelectionObstacle::NoSpecies;
    if (firstBlank(flxScores(0), score::Aggregate, global_.TotalSpecies) > 0)
        return SelectionObstacle::OldScores;
    if (FirstWithoutStatus() > 0) return SelectionObstacle::NoStatus;
    if (method::lacksGrades(landscape, threatScores, askedLevels_)) return SelectionObstacle::OldScores;
    return {};
}

void frmBrenica::refuseSelection(SelectionObstacle obstacle) {
    firstMissing_.reset();
    if (obstacle == SelectionObstacle::NoStatus)
        noteMissing(flxSummary(summary::Vulnerability), FirstWithoutStatus(),
                    vulnerability::ConservationStatus);
    SelectionRefused(obstacle);
}

/// Runs one whole selection, from the levels in the boxes to the report.
void frmBrenica::cmdComplement_Click() try {
    const ui::WaitPointer wait(platform());
    if (!global_.ScoresCalculated) return;
    askedLevels_.Margin = txtErrorMargin.Real();
    askedLevels_.ThreatRepresentation = txtThreatRep.Real();
    askedLevels_.ConservationStatus = txtCCSRep.Real();
    const method::Landscape landscape = selectionLandscape();
    method::Table threatScores =
        threatScoresOf(flxSummary(summary::Vulnerability), global_.TotalSpecies, global_.TotalLandUses);
    if (const auto obstacle = obstacleIn(landscape, threatScores)) return refuseSelection(*obstacle);
    global_.ErrorMargin = askedLevels_.Margin;
    global_.ThreatRepresentation = askedLevels_.ThreatRepresentation;
    global_.ConservationStatusRepresentation = askedLevels_.ConservationStatus;
    for (ui::Grid& grid : flxCompResults) grid.Rows(1);

    method::Selection selection;
    selection.load(landscape, std::move(threatScores));
    const auto failure = failureOf([&] { selection.start(askedLevels_); });
    if (failure) modBrenicaUtilities::raiseFailure(*failure, startCell(*this, *failure));

    // Back in candidate order, however the user sorted it, so that row i is candidate i.
    flxScoresSort(0).Select(0, score::SortKey);
    flxScoresSort(0).Sort(ui::SortOrder::GenericAscending);
    InitComplementarity();
    global_.SelectionStarting = true;
    global_.ExcludedSpeciesList.clear();
    global_.ExcludedSpeciesCount = 0;
    global_.MarginAnswers.clear();
    runSelection(selection);
    for (ui::OptionButton& button : optCompResults) button.Enabled(true);
    optCompResults(0).Value(true);
    cmdExportResults.Enabled(true);
    fitShownGrids();
} catch (...) {
    ReportError(9999, "Brenica.cmdComplement_Click", "");
}

/// What it came to is kept, however it ended.
void frmBrenica::runSelection(method::Selection& selection) try {
    modBrenicaUtilities::cmdComplement_Click(
        platform(), global_, selection,
        {flxCompResults(0), flxScoresSort(0), flxBrenicSuite, flxHabitatTypes, flxJurisUnits,
         flxSummary(summary::HabitatsBySpecies), flxSummary(summary::JurisUnitsBySpecies),
         flxSummary(summary::ThreatsBySpecies), flxSummary(summary::Vulnerability), flxCompResults(1),
         flxCompResults(2), flxCompResults(3)});
    outcome_ = SelectionOutcome{selection.suite(), {}, global_.MarginAnswers};
} catch (...) {
    outcome_ =
        SelectionOutcome{selection.suite(), InternalDescription(CurrentError()), global_.MarginAnswers};
    throw;
}

void frmBrenica::InitComplementarity() try {
    outcome_.reset();
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
