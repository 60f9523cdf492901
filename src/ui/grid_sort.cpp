// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "ui/file_numbers.h"
#include "ui/grid.h"
#include "ui/text.h"

namespace ui {

namespace {

/// What a row sorts by, read once. In generic order an empty cell comes before every number and every number before every
/// text.
struct SortKey {
    enum class Kind { Empty, Number, Text };
    std::size_t Place = 0;  ///< of the row among those to be sorted
    Kind Rank = Kind::Empty;
    double Number = 0;
    std::size_t Text = 0;  ///< among the texts, without case
};

class SortKeys {
public:
    explicit SortKeys(std::size_t rows) { keys_.reserve(rows); }

    void add(std::string_view text, SortOrder order, DecimalSeparator separator) {
        SortKey& key = keys_.emplace_back();
        key.Place = keys_.size() - 1;
        if (order != SortOrder::TextAscending) {
            if (text.empty()) return;
            if (const auto number = tryReal(text, separator)) {
                key.Rank = SortKey::Kind::Number;
                key.Number = *number;
                return;
            }
        }
        key.Rank = SortKey::Kind::Text;
        key.Text = texts_.size();
        texts_.push_back(foldCase(text));
    }

    /// The places of the rows in their new order; equal ones stay in theirs.
    std::vector<std::size_t> sortedPlaces(SortOrder order) {
        std::stable_sort(keys_.begin(), keys_.end(), [&](const SortKey& a, const SortKey& b) {
            return order == SortOrder::GenericDescending ? comesBefore(b, a) : comesBefore(a, b);
        });
        std::vector<std::size_t> places;
        places.reserve(keys_.size());
        for (const SortKey& key : keys_) places.push_back(key.Place);
        return places;
    }

private:
    bool comesBefore(const SortKey& left, const SortKey& right) const {
        if (left.Rank != right.Rank) return left.Rank < right.Rank;
        if (left.Rank == SortKey::Kind::Number) return left.Number < right.Number;
        return left.Rank == SortKey::Kind::Text && texts_[left.Text] < texts_[right.Text];
    }

    std::vector<SortKey> keys_;
    std::vector<std::string> texts_;
};

}  // namespace

void Grid::Sort(SortOrder order) {
    requireCell(row_, col_);
    const bool oneCell = row_ == rowSel_ && col_ == colSel_;
    const int first = oneCell ? fixedRows_ : std::min(row_, rowSel_);
    const int last = oneCell ? Rows() - 1 : std::max(row_, rowSel_);
    contentChanged();
    sortMark_ = oneCell ? SortMark{col_, order == SortOrder::GenericDescending} : SortMark{};
    if (first >= last) return;
    tellReshape();

    SortKeys keys(size(last - first + 1));
    ReadColumn(col_, first, last - first + 1,
               [&](std::string_view text) { keys.add(text, order, separator_); });
    const std::vector<std::size_t> places = keys.sortedPlaces(order);
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
