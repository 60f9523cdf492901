// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace ui {

/// A sequence in which a run of insertions or removals at neighbouring places costs no more than the elements between
/// those places: the free room stands as one gap where the last change was. Indices are the caller's to check.
template <class T>
class GapBuffer {
public:
    std::size_t size() const { return slots_.size() - gapLength_; }

    T& operator[](std::size_t index) { return slots_[slotOf(index)]; }
    const T& operator[](std::size_t index) const { return slots_[slotOf(index)]; }

    void insert(std::size_t index, T element) {
        if (gapLength_ == 0) grow();
        moveGap(index);
        slots_[gapStart_++] = std::move(element);
        --gapLength_;
    }

    void erase(std::size_t index) {
        moveGap(index);
        slots_[gapStart_ + gapLength_] = T();
        ++gapLength_;
    }

    /// Grows with empty elements at the end, or drops the last ones.
    void resize(std::size_t count) {
        closeGap();
        slots_.resize(count);
        gapStart_ = count;
    }

    /// All elements in order, in one piece. Invalid after the next change.
    T* contiguous() {
        closeGap();
        return slots_.data();
    }

private:
    std::size_t slotOf(std::size_t index) const { return index < gapStart_ ? index : index + gapLength_; }

    void moveGap(std::size_t index) {
        const auto places = slots_.begin();
        const auto at = [&](std::size_t i) { return places + static_cast<std::ptrdiff_t>(i); };
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
        slots_.resize(size());
        gapLength_ = 0;
    }

    void grow() {
        const std::size_t end = slots_.size();
        const std::size_t room = std::max<std::size_t>(8, end / 2);
        slots_.resize(end + room);
        gapStart_ = end;
        gapLength_ = room;
    }

    std::vector<T> slots_;
    std::size_t gapStart_ = 0;
    std::size_t gapLength_ = 0;
};

}  // namespace ui
