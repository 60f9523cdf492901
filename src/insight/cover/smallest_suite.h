// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/shared_search.h"

namespace insight {

/// What is known of the smallest suites of a part.
struct SmallestSuite {
    std::size_t Lower = 0;  ///< no suite is smaller
    Rows Suite;             ///< the best known, rising

    std::size_t upper() const { return Suite.size(); }
    bool isProven() const { return Lower == upper(); }
};

/// Narrows what is known, size by size from below, until a suite of the lower size is found or the budget is spent.
/// `known.Suite` must cover the part.
void narrow(SharedSearch& search, const CoverPart& part, SmallestSuite& known, SearchBudget& budget);

/// Of the suites of the part that are as small as `suite`, the one with the highest total, of these the first in candidate
/// order. REQUIRES: `suite` covers the part, and none is smaller. False where the budget was spent before; `suite` is then
/// the best known.
bool findBestTotal(SharedSearch& search, const CoverIndex& index, const CoverPart& part, Rows& suite);

}  // namespace insight
