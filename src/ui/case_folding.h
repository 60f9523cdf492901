// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

namespace ui {

/// A run of characters, `Step` apart, that fold to the character `Offset` further on.
struct CaseFolding {
    char32_t First;
    char32_t Last;
    std::uint32_t Step;
    std::int32_t Offset;
};

/// Simple case folding of all characters beyond ASCII, in ascending order without overlaps.
/// Made by tools/make_case_folding from the Unicode character database that comes with Python.
extern const std::span<const CaseFolding> CaseFoldings;

}  // namespace ui
