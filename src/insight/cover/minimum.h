// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/linear_bound.h"
#include "insight/cover/run_suite.h"
#include "insight/cover/smallest_suite.h"

/// The fewest species that cover every coverable unit, and how that is known.
namespace insight {

/// What tells that no suite is smaller than the lower bound; the first that does.
enum class Proof {
    Witness,  ///< as many units no two of which share a species
    Weights,  ///< whole-number weights of units
    Search,   ///< all other suites have been ruled out
};

struct MinimumAnswer {
    /// The lower bound, and the best suite known; where all is proven that with the highest total, then the first.
    SmallestSuite Known;
    bool BestIsProven = false;  ///< no suite as small has a higher total, or the same and comes first
    Proof By = Proof::Witness;
    Rows Witness;         ///< of the proof, rising
    UnitWeights Weights;  ///< of the proof

    bool isProven() const { return Known.isProven() && BestIsProven; }
};

MinimumAnswer findMinimum(const CoverIndex& index, const RunSuite& run, SearchBudget& budget);

}  // namespace insight
