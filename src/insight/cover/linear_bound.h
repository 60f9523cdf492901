// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/reduction.h"
#include "insight/cover/search_effort.h"

namespace insight {

/// Whole-number weights of units. No suite is smaller than their sum divided by the largest sum over the units of one
/// species, rounded up, since each species brings no more than that: the dual of the linear relaxation, in a form that
/// is checked by adding whole numbers.
struct UnitWeights {
    std::vector<std::int64_t> Weights;  ///< of each unit of the problem, at least 0
    std::size_t Bound = 0;              ///< what they prove
};

/// The smallest whole number not below the sum of the weights / the largest sum of one species; 0 without weights.
std::size_t boundOf(const CoverIndex& index, const std::vector<std::int64_t>& weights);

/// Weights from the linear program of the part, as small ones as prove its value, rounded up; where the budget ends the
/// program early they prove what they prove. The part must be one that `reduced` gives for all species and units with
/// Domination::SameSize, so that a bound for it is one for all.
UnitWeights linearBound(const CoverIndex& index, const CoverPart& part, SearchBudget& budget);

}  // namespace insight
