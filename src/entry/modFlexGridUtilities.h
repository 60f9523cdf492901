// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <vector>

#include "ui/combo_box.h"
#include "ui/grid.h"
#include "ui/simple_controls.h"
#include "ui/text_box.h"

/// How the program grows grids, removes rows, looks for blanks, and moves values between the summary grids and the
/// entry grids of one species. Row 0 of every grid is its heading. Species and units count from 1. Each procedure
/// knows only the grids that it is given.
namespace modFlexGridUtilities {

/// Sets a grid up with one row, the headings, and editing by keyboard and mouse.
void InitFlexGrid(ui::Grid& grid, int columns, std::span<const char* const> headings, bool checked,
                  int fixedCols);

enum class MissingValues { None = 0, UserSaidYes = 1, UserSaidNo = 2 };

/// Asks the prompt when a cell of the column, trimmed, is empty. Removes nothing.
MissingValues CheckMissingVals(const ui::Grid& grid, int column, const std::string& prompt);

/// Sum of the Area column over rows 1 to `count`, each area being stored in `areas` at row - 1; `count` itself when a
/// blank is met, the areas from there on being left as they were.
double GetAreaTotal(const ui::Grid& grid, int count, std::vector<double>& areas);

/// What GetAreaVals fills and what it reads beside the summary grid.
struct AreaControls {
    ui::ComboBox& Dispersal;
    ui::ComboBox& Connectivity;
    int HomeRangeType;
    ui::ComboBox& DefaultBins;
    ui::ComboBox& UserBins;
    ui::TextBox& ContinuousHR;
    ui::TextBox& PropOccupied;
    ui::Label& Hint;
    /// Labels of the user-defined bins: the first `TotalBins` of them count.
    const std::vector<std::string>& UserBinLabels;
    int TotalBins;
};

/// Loads the controls of the area page from row `species` of the area table.
void GetAreaVals(int species, const ui::Grid& source, const AreaControls& controls, const std::string& hint);

/// Copy the block of one species from a summary grid into an entry grid; `count` is the number of units.
void GetHeteroVals(int species, int count, const ui::Grid& source, ui::Grid& target);
void GetVulnVals(int species, int count, const ui::Grid& source, ui::Grid& target);
void GetFuncSEVals(int species, int count, const ui::Grid& source, ui::Grid& target);

/// The body cells of a column; returns their number, and leaves the array alone when there are none.
int GetColContents(const ui::Grid& grid, int column, std::vector<std::string>& contents);

/// Removes rows between 1 and `count`, given the last first, lowers the count and numbers column 0 anew. Does nothing
/// where one of them is not there.
void RemoveGridEntry(ui::Grid& grid, std::span<const int> rows, int& count);

/// Empties the home range of every species.
void RemoveHRData(ui::Grid& grid);

/// Fits the columns to their texts, then stretches all but the last `columnsToKeep` to fill the client width. With
/// `keepLast` the columns kept count in what is filled.
void ResizeGrid(ui::Grid& grid, bool keepLast, int columnsToKeep);

/// Adds body rows, or drops them for a negative number; the new count is that of the body rows. Does nothing where
/// fewer than 0 rows would remain.
void UpdateFlexGrid(ui::Grid& grid, int rowsToAdd, int& count, bool numberFirstColumn);
/// The same for a grid whose rows are counted elsewhere.
void UpdateFlexGrid(ui::Grid& grid, int rowsToAdd, bool numberFirstColumn);

/// Writes one text a body row, when there are just as many.
void UpdateFlexGridCol(ui::Grid& grid, int column, std::span<const char* const> texts);

/// Gives every cell of the body a box that is not ticked.
void uncheckBody(ui::Grid& grid);

/// Removes rows, given the last first.
void removeRows(ui::Grid& grid, std::span<const int> rows);

/// Writes 1 to `count` into column 0.
void numberRows(ui::Grid& grid, int count);

}  // namespace modFlexGridUtilities
