// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cell_table.h"

#include <algorithm>
#include <utility>

namespace ui {

namespace {

template <class T>
void permute(T* elements, std::size_t width, std::span<const std::size_t> places) {
    std::vector<T> sorted;
    sorted.reserve(places.size() * width);
    for (const std::size_t place : places) {
        sorted.insert(sorted.end(), elements + place * width, elements + (place + 1) * width);
    }
    std::copy(sorted.begin(), sorted.end(), elements);
}

}  // namespace

RowFormats::Id RowFormats::add(std::vector<CellFormat> cells) {
    if (firstFree_ == 0) {
        shared_.push_back({std::move(cells), 1});
        return static_cast<Id>(shared_.size());
    }
    const Id id = firstFree_;
    firstFree_ = shared_[id - 1].NextFree;
    shared_[id - 1] = {std::move(cells), 1};
    return id;
}

void RowFormats::release(Id id) {
    if (id == 0) return;
    Shared& shared = shared_[id - 1];
    if (--shared.Rows > 0) return;
    shared = {{}, 0, firstFree_};
    firstFree_ = id;
}

RowFormats::Id RowFormats::changed(Id id, std::size_t cols, std::size_t firstCol, std::size_t lastCol,
                                   const std::function<void(CellFormat&)>& change) {
    if (id == 0) {
        CellFormat format;
        change(format);
        if (format == unset_) return 0;
        id = add(std::vector<CellFormat>(cols));
    } else if (shared_[id - 1].Rows > 1) {
        const Id own = add(shared_[id - 1].Cells);
        release(id);
        id = own;
    }
    std::vector<CellFormat>& cells = shared_[id - 1].Cells;
    for (std::size_t col = firstCol; col <= lastCol; ++col) change(cells[col]);
    return id;
}

void RowFormats::resizeCols(std::size_t count) {
    for (Shared& shared : shared_) {
        if (shared.Rows > 0) shared.Cells.resize(count);
    }
}

/// The new text is taken over before the old one goes, since it may be that very text.
bool CellTable::replace(Cell& cell, std::string_view text) {
    if (cell.text() == text) return false;
    LongTexts::Entry* const before = cell.isLong() ? cell.longText() : nullptr;
    if (text.size() > Cell::MostInPlace) {
        cell.assignLong(longTexts_.add(text));
    } else {
        cell.assignShort(text);
    }
    if (before != nullptr) longTexts_.release(*before);
    return true;
}

void CellTable::fill(const Rows& rows, std::size_t col, std::string_view text) {
    if (rows.Count == 0) return;
    Cell filled;
    if (text.size() > Cell::MostInPlace) {
        filled.assignLong(longTexts_.add(text, rows.Count));
    } else {
        filled.assignShort(text);
    }
    for (std::size_t i = 0; i < rows.Count; ++i) {
        Cell& cell = cells_[rows.First + i * rows.Step][col];
        const Cell before = std::exchange(cell, filled);
        if (before.isLong()) longTexts_.release(*before.longText());
    }
}

/// Gives up the long texts of a row's cells from a column on, before the cells go.
void CellTable::releaseTexts(std::size_t row, std::size_t firstCol) {
    const Cell* const cells = cells_[row];
    for (std::size_t col = firstCol; col < cols(); ++col) {
        if (cells[col].isLong()) longTexts_.release(*cells[col].longText());
    }
}

/// A row that was like the one before it stays so.
void CellTable::changeFormats(const Range& range, const std::function<void(CellFormat&)>& change) {
    RowFormats::Id before = 0;
    RowFormats::Id after = 0;
    for (std::size_t row = range.FirstRow; row <= range.LastRow; ++row) {
        RowFormats::Id& id = *formatIds_[row];
        const bool likeTheLast = row > range.FirstRow && id == before;
        if (likeTheLast) {
            formats_.acquire(after);
            formats_.release(id);
        } else {
            before = id;
            after = formats_.changed(id, cols(), range.FirstCol, range.LastCol, change);
        }
        id = after;
    }
}

/// Where the memory runs out there may be room for more formats than there are rows, but no row without its format.
void CellTable::resizeRows(std::size_t count) {
    for (std::size_t row = count; row < rows(); ++row) {
        releaseTexts(row, 0);
        formats_.release(*formatIds_[row]);
    }
    formatIds_.resize(count);
    cells_.resize(count);
}

void CellTable::resizeCols(std::size_t count) {
    const std::size_t kept = std::min(cols(), count);
    constexpr std::size_t MoreRows = 8;  // a table that becomes wider mostly becomes a little longer as well
    GapBuffer<Cell> resized(count);
    resized.reserve(rows() + MoreRows);
    resized.resize(rows());
    formats_.resizeCols(count);
    for (std::size_t row = 0; row < rows(); ++row) {
        releaseTexts(row, kept);
        std::copy_n(cells_[row], kept, resized[row]);
    }
    cells_ = std::move(resized);
}

/// Where the memory runs out no row is added.
void CellTable::insertRows(std::size_t index, std::size_t count) {
    cells_.makeRoom(count);
    formatIds_.makeRoom(count);
    cells_.insert(index, count);
    formatIds_.insert(index, count);
}

void CellTable::reserveRows(std::size_t more) {
    cells_.reserve(more);
    formatIds_.reserve(more);
}

void CellTable::eraseRow(std::size_t index) {
    releaseTexts(index, 0);
    formats_.release(*formatIds_[index]);
    cells_.erase(index);
    formatIds_.erase(index);
}

void CellTable::reorder(std::size_t first, std::span<const std::size_t> places) {
    permute(cells_.contiguous() + first * cols(), cols(), places);
    permute(formatIds_.contiguous() + first, 1, places);
}

}  // namespace ui
