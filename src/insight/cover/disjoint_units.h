// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "insight/cover/reduction.h"
#include "insight/cover/search_effort.h"

namespace insight {

/// `wanted` units no two of which have a species in common, rising: so many species are needed, one for each. None where
/// there are none, or the budget ended the search. The part must be as for linearBound.
std::optional<Rows> disjointUnits(const CoverIndex& index, const CoverPart& part, std::size_t wanted,
                                  SearchBudget& budget);

}  // namespace insight
