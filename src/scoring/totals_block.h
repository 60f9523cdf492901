// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/grid.h"

/// The totals block of a table of species by units: behind a blank spacer, two rows at the bottom and two columns at
/// the right. The first holds sums, the second counts.

/// Adds three rows and columns to a table that has none of them yet.
void extendForTotals(ui::Grid& grid, int rows, int cols);

struct TotalsLabels {
    const char* TotalBySpecies;
    const char* CountBySpecies;
    const char* TotalByUnit;
    const char* CountByUnit;
};

/// Writes the labels in bold; the cells from the corner to (plainRow, plainCol) lose theirs first.
void writeTotalsLabels(ui::Grid& grid, const TotalsLabels& labels, int plainRow, int plainCol);

/// All cells but the headings to white, which wipes the colours of an earlier run.
void clearTotalsColours(ui::Grid& grid);

/// The two columns and the two rows to the colour of totals; the rows stay selected.
void paintTotals(ui::Grid& grid);
void selectTotalsRows(ui::Grid& grid);
