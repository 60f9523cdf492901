// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "entry/modErrorHandling.h"
#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "ui/file_numbers.h"
#include "ui/text.h"

namespace {

constexpr int LastCase = 6;

/// How the fields of a record go to the columns of its row from column 1 on: as they are, or without the number that
/// stands before them.
struct RecordForm {
    enum class Order { Plain, Numbered, NumberedIfNumeric };

    int Fields;
    Order Kind;
};

const std::vector<RecordForm>& formsOf(int importCase) {
    using enum RecordForm::Order;
    static const std::vector<RecordForm> Species = {{1, Plain}, {2, Plain}, {3, Numbered}};
    static const std::vector<RecordForm> Units = {
        {1, Plain}, {2, NumberedIfNumeric}, {3, NumberedIfNumeric}, {4, Numbered}};
    static const std::vector<RecordForm> Activities = {{1, Plain}, {3, Plain}, {4, Numbered}};
    static const std::vector<RecordForm> None = {};
    switch (importCase) {
        case 1: return Species;
        case 2:
        case 3: return Units;
        case 4: return Activities;
        default: return None;
    }
}

/// The fields that go to the row; none for a record of a form that the list does not know.
std::vector<std::string> fieldsToStore(int importCase, const std::vector<std::string>& fields,
                                       ui::DecimalSeparator separator) {
    // A breakpoint or a function stands alone or second.
    const bool oneColumn = importCase == 5 || importCase == 6;
    if (oneColumn) return {fields.size() == 1 ? fields[0] : fields[1]};
    for (const RecordForm& form : formsOf(importCase)) {
        if (form.Fields != static_cast<int>(fields.size())) continue;
        const bool numbered =
            form.Kind == RecordForm::Order::Numbered ||
            (form.Kind == RecordForm::Order::NumberedIfNumeric && ui::IsNumeric(fields[0], separator));
        return {fields.begin() + (numbered ? 1 : 0), fields.end()};
    }
    return {};
}

}  // namespace

void frmBrenica::ImportData(int importCase, const std::string& path, bool firstLineIsHeading) try {
    files_.Open(path, ui::FileMode::Input, ui::filenumber::Shared);
    appendRecords(importCase, firstLineIsHeading);
    arrangeListPages();
} catch (...) {
    ReportError(9999, "Brenica.ImportData", "");
}

/// Appends a row for each line of a grid text file; an empty line ends the import.
void frmBrenica::appendRecords(int importCase, bool firstLineIsHeading) {
    std::vector<std::string> fields;
    if (!files_.EndOfFile(ui::filenumber::Shared) && firstLineIsHeading && GetCheckData(fields) == 0) return;
    while (!files_.EndOfFile(ui::filenumber::Shared)) {
        if (GetCheckData(fields) == 0) return;
        appendRecord(importCase, fields);
    }
    files_.Close(ui::filenumber::Shared);
}

/// Reads a record; 0 at an empty line, and then the file is closed.
int frmBrenica::GetCheckData(std::vector<std::string>& fields) try {
    const std::string line = files_.LineInput(ui::filenumber::Shared, ui::LineEnds::AnyEnd);
    fields.clear();
    for (const std::string_view field : ui::split(line, '\t')) fields.emplace_back(field);
    if (!line.empty()) return static_cast<int>(fields.size());
    files_.Close(ui::filenumber::Shared);
    return 0;
} catch (...) {
    ReportError(9999, "Brenica.GetCheckData", "");
}

/// The dependent grids grow before the list does.
void frmBrenica::appendRecord(int importCase, const std::vector<std::string>& fields) {
    struct Target {
        ui::Grid& Grid;
        int& Total;
    };
    const Target targets[LastCase] = {{flxCandidateSpecies, global_.TotalSpecies},
                                      {flxHabitatTypes, global_.TotalHabitatTypes},
                                      {flxJurisUnits, global_.TotalJurisUnits},
                                      {flxLandUses, global_.TotalLandUses},
                                      {flxBins, global_.TotalBins},
                                      {flxFunctions, global_.TotalFunctions}};
    const auto& [grid, total] = targets[importCase - 1];
    const int row = std::max(grid.Rows(), 1);  // a list that has lost its headings has no row at all
    total = row;
    switch (importCase) {
        case 1: UpdateOtherSpeciesFlexGrids(1, row - 1); break;
        case 2: UpdateOtherHabitatFlexGrids(1); break;
        case 3: UpdateOtherJurisUnitFlexGrids(1); break;
        case 4: UpdateOtherLandUseFlexGrids(1); break;
        case 5: UpdateHRInfo(HomeRangeType); break;
        default: UpdateOtherFunctionFlexGrids(1); break;
    }
    grid.Rows(row + 1);
    grid.TextMatrix(row, list::Number, ui::toText(row));
    const std::vector<std::string> stored = fieldsToStore(importCase, fields, separator());
    for (std::size_t i = 0; i < stored.size(); ++i) grid.TextMatrix(row, static_cast<int>(i) + 1, stored[i]);
    const bool unit = importCase == 2 || importCase == 3;
    if (unit && !stored.empty() && ui::isBlank(grid.TextMatrix(row, list::LevelOfUse)))
        grid.TextMatrix(row, list::LevelOfUse, DefaultLevelOfUse);
}
