// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <utility>
#include <vector>

#include "ui/plain_array.h"

namespace ui {

/// Rows of equally many elements, in which a run of insertions or removals at neighbouring places costs no more than
/// the rows between those places: the free room stands as one gap where the last change was. Indices are the caller's
/// to check; a row stays where it is until the next change of the buffer.
template <class T>
class GapBuffer {
public:
    explicit GapBuffer(std::size_t width = 1) : width_(width) {}

    /// Number of rows, and of elements in each.
    std::size_t size() const { return rows_ - gapLength_; }
    std::size_t width() const { return width_; }

    T* operator[](std::size_t index) { return slots_.data() + slotOf(index) * width_; }
    const T* operator[](std::size_t index) const { return slots_.data() + slotOf(index) * width_; }

    /// Visits rows one after the other, all of which must be there.
    template <class Visit>
    void forEach(std::size_t first, std::size_t count, Visit visit) const {
        const std::size_t beforeGap = std::max(first, gapStart_) - first;
        const T* row = (*this)[first];
        for (std::size_t i = 0; i < count; ++i, row += width_) {
            if (i == beforeGap && i > 0) row += gapLength_ * width_;
            visit(row);
        }
    }

    /// Room for so many more rows: the next insertion needs no memory.
    void makeRoom(std::size_t more = 1) {
        if (gapLength_ >= more) return;
        moveGap(size());
        growBy(std::max({std::size_t{8}, rows_ / 2, more}));
    }

    /// Room for just so many more rows.
    void reserve(std::size_t more) {
        if (gapLength_ >= more) return;
        const std::size_t missing = more - gapLength_;
        moveGap(size());
        growBy(missing);
    }

    /// Puts rows of empty elements before the row of that index; gives the first of them.
    T* insert(std::size_t index, std::size_t count = 1) {
        makeRoom(count);
        moveGap(index);
        empty(gapStart_, count);
        gapStart_ += count;
        gapLength_ -= count;
        return slots_.data() + index * width_;
    }

    void erase(std::size_t index) {
        moveGap(index);
        empty(gapStart_ + gapLength_, 1);
        ++gapLength_;
    }

    /// Grows with empty rows at the end, or drops the last ones.
    void resize(std::size_t count) {
        closeGap();
        slots_.resize(count * width_);
        if (count > rows_) empty(rows_, count - rows_);
        rows_ = count;
        gapStart_ = count;
    }

    /// All rows in order, in one piece. Invalid after the next change.
    T* contiguous() {
        closeGap();
        return slots_.data();
    }

private:
    std::size_t slotOf(std::size_t index) const { return index < gapStart_ ? index : index + gapLength_; }

    void empty(std::size_t firstSlot, std::size_t rows) {
        std::fill_n(slots_.begin() + static_cast<std::ptrdiff_t>(firstSlot * width_), rows * width_, T());
    }

    void moveGap(std::size_t index) {
        const auto places = slots_.begin();
        const auto at = [&](std::size_t row) { return places + static_cast<std::ptrdiff_t>(row * width_); };
        if (gapLength_ == 0) {
            // Nothing to move: an element must not be moved onto itself.
        } else if (index < gapStart_) {
            std::move_backward(at(index), at(gapStart_), at(gapStart_ + gapLength_));
        } else if (index > gapStart_) {
            std::move(at(gapStart_ + gapLength_), at(index + gapLength_), at(gapStart_));
        }
        gapStart_ = index;
    }

    void closeGap() {
        moveGap(size());
        rows_ = size();
        slots_.resize(rows_ * width_);
        gapLength_ = 0;
    }

    /// The gap is empty or stands at the end.
    void growBy(std::size_t more) {
        slots_.reserve((rows_ + more) * width_);  // resize alone would take twice what there was
        slots_.resize((rows_ + more) * width_);
        gapStart_ = rows_ - gapLength_;
        rows_ += more;
        gapLength_ += more;
    }

    std::size_t width_;
    std::conditional_t<std::is_trivially_copyable_v<T>, PlainArray<T>, std::vector<T>> slots_;
    std::size_t rows_ = 0;  // those of the gap included
    std::size_t gapStart_ = 0;
    std::size_t gapLength_ = 0;
};

}  // namespace ui
