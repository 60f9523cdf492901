// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "entry/modErrorHandling.h"
#include "scoring/landscape_reader.h"
#include "selection/selection.h"
#include "ui/numbers.h"

/// Which pick covered a unit first, and what stops the steps that look for it.

namespace modBrenicaUtilities {

namespace {

constexpr int FirstCoveredBy = 1;  // column of the coverage views

void markFirstCovered(ui::Grid& unitGrid, int unit, int pickNumber) {
    unitGrid.TextMatrix(unit, FirstCoveredBy, ui::toText(pickNumber));
    unitGrid.Select(unit, FirstCoveredBy);
    unitGrid.CellBackColor(GetCellColor(pickNumber));
}

}  // namespace

void raiseFailure(const method::Failure& failure, const CellPlace& cell) {
    if (failure.Why == method::Cause::TooLarge) ui::raise(ui::ErrorNumber::Overflow);
    raiseForCell(cell.Grid, cell.Row, cell.Col);
}

void GetUnitsUsed(const method::Failure& failure, const CellPlace& cell) try {
    raiseFailure(failure, cell);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.GetUnitsUsed", "");
}

void RecalcHeteroScore(const method::Failure& failure, const CellPlace& cell) try {
    raiseFailure(failure, cell);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.RecalcHeteroScore", "");
}

void RecalcVulnerabilityScore(const method::Failure& failure, const CellPlace& cell) try {
    raiseFailure(failure, cell);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.RecalcVulnerabilityScore", "");
}

void HighlightCoverUnitsUsed(ui::Grid& unitGrid, int unit, int pickNumber) try {
    markFirstCovered(unitGrid, unit, pickNumber);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.HighlightCoverUnitsUsed", "");
}

void HighlightThreatsEncountered(ui::Grid& unitGrid, int threatNumber, int pickNumber) try {
    markFirstCovered(unitGrid, threatNumber, pickNumber);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.HighlightThreatsEncountered", "");
}

ui::Colour GetCellColor(int pickNumber) {
    static constexpr std::array Colours = {
        ui::rgb(200, 50, 0),    ui::rgb(255, 150, 0),   ui::rgb(200, 100, 0),
        ui::rgb(255, 255, 100), ui::rgb(200, 255, 50),  ui::rgb(50, 150, 50),
        ui::rgb(100, 200, 175), ui::rgb(150, 150, 255), ui::rgb(150, 0, 200)};
    constexpr ui::Colour Later = ui::rgb(255, 255, 200);
    const bool own = pickNumber >= 1 && pickNumber <= static_cast<int>(Colours.size());
    return own ? Colours[static_cast<std::size_t>(pickNumber) - 1] : Later;
}

}  // namespace modBrenicaUtilities
