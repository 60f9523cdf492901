// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>

namespace ui {

/// A growing array of plain values that may become large, unset until they are written. Where a std::vector copies into
/// new memory, the system moves its pages.
template <class T>
class PlainArray {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

public:
    T* data() { return memory_.get(); }
    const T* data() const { return memory_.get(); }
    T* begin() { return data(); }
    std::size_t size() const { return size_; }

    /// Room for so many elements in all, and no more than that.
    void reserve(std::size_t count) {
        if (count > capacity_) reallocate(count);
    }
    /// New elements are unset.
    void resize(std::size_t count) {
        if (count > capacity_) reallocate(std::max(count, capacity_ + capacity_ / 2));
        size_ = count;
    }

private:
    struct Release {
        void operator()(T* memory) const { std::free(memory); }
    };

    void reallocate(std::size_t capacity) {
        if (capacity > static_cast<std::size_t>(PTRDIFF_MAX) / sizeof(T)) throw std::bad_alloc();
        void* const memory = std::realloc(memory_.get(), capacity * sizeof(T));
        if (memory == nullptr) throw std::bad_alloc();
        static_cast<void>(memory_.release());
        memory_.reset(static_cast<T*>(memory));
        capacity_ = capacity;
    }

    std::unique_ptr<T, Release> memory_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

}  // namespace ui
