// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <numeric>

#include "ui/file_numbers.h"
#include "ui/grid.h"
#include "ui/text.h"

namespace ui {

namespace {

/// What a cell sorts by, read once. In generic order an empty cell comes before every number and every number before
/// every text.
struct SortKey {
    enum class Kind { Empty, Number, Text };
    Kind Rank = Kind::Text;
    double Number = 0;
    std::string Text{};
};

SortKey genericKey(std::string_view text, DecimalSeparator separator) {
    if (text.empty()) return {SortKey::Kind::Empty};
    if (const auto number = tryReal(text, separator)) return {SortKey::Kind::Number, *number};
    return {SortKey::Kind::Text, 0, foldCase(text)};
}

SortKey textKey(std::string_view text) { return {SortKey::Kind::Text, 0, foldCase(text)}; }

bool comesBefore(const SortKey& left, const SortKey& right) {
    if (left.Rank != right.Rank) return left.Rank < right.Rank;
    if (left.Rank == SortKey::Kind::Number) return left.Number < right.Number;
    return left.Text < right.Text;
}

}  // namespace

void Grid::Sort(SortOrder order) {
    requireCell(row_, col_);
    const bool oneCell = row_ == rowSel_ && col_ == colSel_;
    const int first = oneCell ? fixedRows_ : std::min(row_, rowSel_);
    const int last = oneCell ? Rows() - 1 : std::max(row_, rowSel_);
    reportChange();
    sortMark_ = oneCell ? SortMark{col_, order == SortOrder::GenericDescending} : SortMark{};
    if (first >= last) return;
    tellReshape();

    const auto count = static_cast<std::size_t>(last - first + 1);
    std::vector<SortKey> keys(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view text = TextMatrix(first + static_cast<int>(i), col_);
        keys[i] = order == SortOrder::TextAscending ? textKey(text) : genericKey(text, separator_);
    }
    std::vector<std::size_t> places(count);
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::stable_sort(places.begin(), places.end(), [&](std::size_t a, std::size_t b) {
        return order == SortOrder::GenericDescending ? comesBefore(keys[b], keys[a])
                                                     : comesBefore(keys[a], keys[b]);
    });
    cells_.reorder(static_cast<std::size_t>(first), places);
}

void Grid::SaveGrid(Files& files, const std::string& path, GridFileFormat) const {
    files.Open(path, FileMode::Output, filenumber::Table);
    try {
        printRows(files, filenumber::Table);
        files.Close(filenumber::Table);
    } catch (...) {
        files.Abandon(filenumber::Table);
        throw;
    }
}

void Grid::printRows(Files& files, int fileNumber) const {
    std::string line;
    for (int row = 0; row < Rows(); ++row) {
        line.clear();
        for (int col = 0; col < Cols(); ++col) {
            if (col > 0) line += '\t';
            line += TextMatrix(row, col);
        }
        files.Print(fileNumber, line);
    }
}

}  // namespace ui
