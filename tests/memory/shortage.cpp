// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "memory/shortage.h"

#include <cstdlib>
#include <new>

namespace {

constexpr long Never = -1;
long stepsLeft = Never;
bool failed = false;

bool isTheOne() {
    if (stepsLeft == Never) return false;
    if (stepsLeft-- > 0) return false;
    failed = true;
    return true;
}

}  // namespace

Shortage::Shortage(long steps) {
    failed = false;
    stepsLeft = steps;
}

Shortage::~Shortage() { stepsLeft = Never; }

bool Shortage::happened() const { return failed; }

void Shortage::step() {
    if (isTheOne()) throw std::bad_alloc();
}

void* operator new(std::size_t size) {
    Shortage::step();
    if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
    throw std::bad_alloc();
}

// The tables' memory. What the library is asked for by others than ours fails as well, and they bear it.
extern "C" void* __libc_realloc(void* memory, std::size_t size);
extern "C" void* realloc(void* memory, std::size_t size) noexcept {
    return isTheOne() ? nullptr : __libc_realloc(memory, size);
}

// Whoever can do without the memory asks so; that is no step.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return std::malloc(size > 0 ? size : 1);
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
