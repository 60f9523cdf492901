// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>

namespace ui {

/// Memory for arrays that may become large, in pages of 2 MiB where the system has some: with the usual ones of 4 KiB a
/// good part of the time that it takes to fill a large table goes into asking for them.
template <class T>
struct LargePageAllocator {
    using value_type = T;

    static constexpr std::size_t PageSize = std::size_t{1} << 21;

    LargePageAllocator() = default;
    template <class U>
    LargePageAllocator(const LargePageAllocator<U>&) {}

    T* allocate(std::size_t count) {
        if (count < PageSize / sizeof(T)) return std::allocator<T>().allocate(count);
        const std::size_t bytes = count * sizeof(T);
        const std::size_t wholePages = bytes / PageSize * PageSize;
        void* const memory = ::operator new (bytes, std::align_val_t{PageSize});
        ::madvise(memory, wholePages, MADV_HUGEPAGE);  // a wish: without large pages all is the same
        return static_cast<T*>(memory);
    }
    void deallocate(T* memory, std::size_t count) {
        if (count < PageSize / sizeof(T)) return std::allocator<T>().deallocate(memory, count);
        ::operator delete (memory, std::align_val_t{PageSize});
    }
    bool operator==(const LargePageAllocator&) const = default;
};

}  // namespace ui
