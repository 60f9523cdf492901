// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/reduction.h"
#include "insight/search_effort.h"

namespace insight {

/// Looks for a suite of fewer species than `suite`, until one of `lower` is found or the steps are spent: takes a species
/// away, then swaps species while units are missing, which weigh more the longer they are (weighting local search, Gao
/// et al. 2015). It proves nothing, and draws nothing: the same input gives the same suite.
/// REQUIRES: `suite` covers all units
Rows smallerSuite(const CoverIndex& index, const CoverPart& part, Rows suite, std::size_t lower,
                  SearchBudget& budget);

}  // namespace insight
