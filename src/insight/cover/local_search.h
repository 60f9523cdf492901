// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/reduction.h"
#include "insight/cover/search_effort.h"

namespace insight {

/// A small suite of the part, rising: the greedy one, and from there a search for fewer species, until one of `lower` is
/// found or the steps are spent: it takes a species away, then swaps species while units are missing, which weigh more the
/// longer they are (weighting local search, Gao et al. 2015). It proves nothing, and draws nothing: the same input gives
/// the same suite. REQUIRES: the part's species cover its units
Rows smallSuite(const CoverIndex& index, const CoverPart& part, std::size_t lower, SearchBudget& budget);

}  // namespace insight
