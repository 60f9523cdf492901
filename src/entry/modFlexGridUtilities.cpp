// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modFlexGridUtilities.h"

#include <algorithm>

#include "entry/modErrorHandling.h"
#include "entry/modGeneralUtilities.h"
#include "project/columns.h"
#include "project/constant_tables.h"
#include "ui/arrays.h"
#include "ui/form_window.h"
#include "ui/text.h"

namespace modFlexGridUtilities {

namespace {

/// Chooses the item that a Y/N cell stands for; any other text leaves the box as it is.
void chooseYesNo(ui::ComboBox& box, const std::string& text) {
    if (text.empty()) {
        box.ListIndex(0);
    } else if (ui::equalsIgnoringCase(text, "Y")) {
        box.ListIndex(1);
    } else if (ui::equalsIgnoringCase(text, "N")) {
        box.ListIndex(2);
    }
}

/// Position of the first label that equals the text without regard to case, -1 where none does.
template <class Labels>
int labelIndex(const Labels& labels, int count, const std::string& text) {
    for (int i = 0; i < count; ++i) {
        if (ui::equalsIgnoringCase(ui::elementAt(labels, i), text)) return i;
    }
    return -1;
}

void loadHomeRange(const std::string& homeRange, const AreaControls& controls) {
    switch (controls.HomeRangeType) {
        case 0: return controls.ContinuousHR.Text(homeRange.empty() ? "0" : homeRange);
        case 1:
            return controls.DefaultBins.ListIndex(
                homeRange.empty()
                    ? -1
                    : labelIndex(DefaultBinLabels, static_cast<int>(DefaultBinLabels.size()), homeRange));
        case 2:
            if (controls.TotalBins < 1) return;
            return controls.UserBins.ListIndex(
                homeRange.empty() ? -1 : labelIndex(controls.UserBinLabels, controls.TotalBins, homeRange));
        default: return;
    }
}

int autoSizedWidth(ui::Grid& grid) {
    grid.AutoSize(0, grid.Cols() - 1);
    int sum = 0;
    for (int col = 0; col < grid.Cols(); ++col) sum += grid.ColWidth(col);
    return sum;
}

}  // namespace

void InitFlexGrid(ui::Grid& grid, int columns, std::span<const char* const> headings, bool checked,
                  int fixedCols) try {
    grid.Redraw(false);
    grid.Rows(1);
    grid.Cols(columns);
    grid.WordWrap = true;
    grid.FixedRows(1);
    grid.FixedCols(fixedCols);
    grid.Editable = ui::EditMode::KeyboardAndMouse;
    grid.FocusRect = 2;
    grid.HighLight = 0;
    grid.SelectionMode = 0;
    grid.ScrollTrack = true;
    grid.FillStyle = 1;
    grid.MergeCells = 1;
    grid.Select(0, 0, grid.Rows() - 1, grid.Cols() - 1);
    grid.CellAlignment(ui::CellAlign::LeftCentre);
    grid.CellPictureAlignment(ui::CellAlign::CentreCentre);
    if (checked) uncheckBody(grid);
    for (std::size_t i = 0; i < headings.size(); ++i) grid.TextMatrix(0, static_cast<int>(i), headings[i]);
    grid.Redraw(true);
} catch (...) {
    ReportError(9999, "FlexGridUtilities.InitFlexGrid", "");
}

MissingValues CheckMissingVals(const ui::Grid& grid, int column, const std::string& prompt) try {
    bool missing = false;
    for (int row = 1; row <= grid.Rows() - 1 && !missing; ++row)
        missing = ui::isBlank(grid.TextMatrix(row, column));
    if (!missing) return MissingValues::None;
    const bool yes = modGeneralUtilities::AskYesNo(grid.Form().GetPlatform(), prompt, "Invalid value");
    return yes ? MissingValues::UserSaidYes : MissingValues::UserSaidNo;
} catch (...) {
    ReportError(9999, "FlexGridUtilities.CheckMissingVals", "");
}

double GetAreaTotal(const ui::Grid& grid, int count, std::vector<double>& areas) try {
    double sum = 0;
    for (int row = 1; row <= count; ++row) {
        if (grid.TextMatrix(row, list::Area).empty()) return count;
        const double area = grid.Real(row, list::Area);
        sum = ui::finite(sum + area);
        ui::elementAt(areas, row - 1) = area;
    }
    return sum;
} catch (...) {
    ReportError(9999, "FlexGridUtilities.GetAreaTotal", "");
}

void GetAreaVals(int species, const ui::Grid& source, const AreaControls& controls,
                 const std::string& hint) try {
    if (species < 1) return;
    // Each text is copied, since loading a box writes it back to its cell.
    chooseYesNo(controls.Dispersal, std::string(source.TextMatrix(species, area::Dispersal)));
    chooseYesNo(controls.Connectivity, std::string(source.TextMatrix(species, area::Connectivity)));
    controls.PropOccupied.Text(std::string(source.TextMatrix(species, area::Occupied)));
    controls.Hint.Caption(hint);
    loadHomeRange(std::string(source.TextMatrix(species, area::HomeRange)), controls);
} catch (...) {
    ReportError(9999, "FlexGridUtilities.GetAreaVals", "");
}

void GetHeteroVals(int species, int count, const ui::Grid& source, ui::Grid& target) try {
    if (species < 1) return;
    for (int i = 1; i <= count; ++i)
        target.TextMatrix(i, 1, source.TextMatrix(blockRow(species, count, i), use::Level));
} catch (...) {
    ReportError(9999, "FlexGridUtilities.GetHeteroVals", "");
}

void GetVulnVals(int species, int count, const ui::Grid& source, ui::Grid& target) try {
    if (species < 1) return;
    for (int i = 1; i <= count; ++i) {
        const int row = blockRow(species, count, i);
        target.TextMatrix(i, 1, source.TextMatrix(row, threat::Severity));
        target.TextMatrix(i, 2, source.TextMatrix(row, threat::Recovery));
        target.TextMatrix(i, 3, source.TextMatrix(row, threat::Proportion));
    }
} catch (...) {
    ReportError(9999, "FlexGridUtilities.GetVulnVals", "");
}

void GetFuncSEVals(int species, int count, const ui::Grid& source, ui::Grid& target) try {
    if (species < 1) return;
    for (int i = 1; i <= count; ++i) target.TextMatrix(i, 1, source.TextMatrix(species, i));
} catch (...) {
    ReportError(9999, "FlexGridUtilities.GetFuncSEVals", "");
}

int GetColContents(const ui::Grid& grid, int column, std::vector<std::string>& contents) try {
    const int count = grid.Rows() - 1;
    if (count < 1) return 0;
    contents.clear();
    for (int row = 1; row <= count; ++row) contents.emplace_back(grid.TextMatrix(row, column));
    return count;
} catch (...) {
    ReportError(9999, "FlexGridUtilities.GetColContents", "");
}

void RemoveGridEntry(ui::Grid& grid, std::span<const int> rows, int& count) try {
    if (rows.front() > count || rows.back() < 1) return;
    count -= static_cast<int>(rows.size());
    removeRows(grid, rows);
    numberRows(grid, count);
} catch (...) {
    ReportError(9999, "FlexGridUtilities.RemoveGridEntry", "");
}

void RemoveHRData(ui::Grid& grid) try {
    for (int row = 1; row <= grid.Rows() - 1; ++row) grid.TextMatrix(row, area::HomeRange, "");
} catch (...) {
    ReportError(9999, "FlexGridUtilities.RemoveHRData", "");
}

void ResizeGrid(ui::Grid& grid, bool keepLast, int columnsToKeep) try {
    constexpr int RoomForBorder = 10;
    if (autoSizedWidth(grid) >= grid.ClientWidth() || grid.Cols() <= 1) return;
    grid.AutoSize(0);
    int filled = grid.ColWidth(0);
    for (int col = grid.Cols() - columnsToKeep; keepLast && col < grid.Cols(); ++col)
        filled += grid.ColWidth(col);

    const int stretched = grid.Cols() - columnsToKeep - 1;
    const double width = stretched > 0 ? (static_cast<double>(grid.ClientWidth()) - filled) / stretched : 0;
    for (int col = 1; col <= stretched; ++col) {
        grid.ColWidth(col, width);
        filled += grid.ColWidth(col);
    }
    grid.Width(grid.Width() - grid.ClientWidth() + filled + RoomForBorder);
} catch (...) {
    ReportError(9999, "FlexGridUtilities.ResizeGrid", "");
}

void UpdateFlexGrid(ui::Grid& grid, int rowsToAdd, int& count, bool numberFirstColumn) try {
    const int rows = ui::addLong(grid.Rows(), rowsToAdd);
    if (rows < 0) return;
    grid.Rows(rows);
    if (numberFirstColumn) numberRows(grid, rows - 1);
    for (int col = 0; col < grid.Cols(); ++col) grid.ColAlignment(col, ui::CellAlign::LeftCentre);
    if (rows > 0 && grid.Cols() > 0) grid.CellAlignment(ui::CellAlign::LeftCentre);
    count = rows - 1;
} catch (...) {
    ReportError(9999, "FlexGridUtilities.UpdateFlexGrid", "");
}

void UpdateFlexGrid(ui::Grid& grid, int rowsToAdd, bool numberFirstColumn) {
    int unused = 0;
    UpdateFlexGrid(grid, rowsToAdd, unused, numberFirstColumn);
}

void UpdateFlexGridCol(ui::Grid& grid, int column, std::span<const char* const> texts) try {
    const int count = static_cast<int>(texts.size());
    if (grid.Rows() - 1 != count) return;
    for (int i = 1; i <= count; ++i) grid.TextMatrix(i, column, texts[static_cast<std::size_t>(i) - 1]);
} catch (...) {
    ReportError(9999, "FlexGridUtilities.UpdateFlexGridCol", "");
}

void uncheckBody(ui::Grid& grid) {
    if (grid.Rows() - 1 <= 0 || grid.Cols() - 1 <= 0) return;
    grid.Select(1, 1, grid.Rows() - 1, grid.Cols() - 1);
    grid.CellChecked(ui::CheckState::Unchecked);
}

void removeRows(ui::Grid& grid, std::span<const int> rows) {
    for (const int row : rows) grid.RemoveItem(row);
}

void numberRows(ui::Grid& grid, int count) {
    for (int row = 1; row <= count; ++row) grid.TextMatrix(row, 0, ui::toText(row));
}

}  // namespace modFlexGridUtilities
