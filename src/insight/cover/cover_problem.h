// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "insight/representation.h"

/// The search for the smallest suite, as a set cover: as few species as possible that cover every coverable unit.
namespace insight {

/// A suite, as rising row numbers of a CoverProblem.
using Rows = std::vector<std::uint32_t>;

struct CoverProblem {
    std::vector<std::size_t> Species;  ///< of each row: the candidate, rising; eligible ones alone
    std::vector<UnitNumber> Units;     ///< of each bit, in their order; coverable ones alone
    method::BitTable Covers;           ///< row × unit
    /// First-pass aggregate of each row in thousandths, so that totals are exact. One that is no number counts 0; one
    /// beyond a billion is cut there.
    std::vector<std::int64_t> Aggregates;
};

CoverProblem coverProblem(const SelectionRun& run, const Representation& representation);

/// A sum of aggregates as a number.
inline double totalOf(std::int64_t thousandths) { return static_cast<double>(thousandths) / 1000; }

}  // namespace insight
