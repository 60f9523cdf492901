// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/minimum.h"

/// How far few species go (the maximal covering problem, Church and ReVelle 1974).
namespace insight {

/// The units that so many species cover at most.
struct BestCoverage {
    std::size_t Units = 0;  ///< of the best suite known
    std::size_t Bound = 0;  ///< no suite covers more
    Rows Suite{};           ///< the best known, rising; of fewer species where these do as much

    bool isProven() const { return Units == Bound; }
};

/// Element k: of k species, from 0 to the size of the smallest suite known, which covers all. Some steps are spent on each
/// size, whatever the minimum took: the same problem has the same answer, unless `stop`, which may be null, ends the search.
/// What they leave unproven has a bound above its units.
std::vector<BestCoverage> bestCoverages(const CoverIndex& index, const MinimumAnswer& minimum,
                                        const std::atomic<bool>* stop = nullptr);

}  // namespace insight
