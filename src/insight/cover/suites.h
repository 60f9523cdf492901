// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/minimum.h"
#include "insight/table.h"

namespace insight {

/// Suites are counted up to here.
inline constexpr std::size_t MostCounted = 100'000;

/// Suites that cover every coverable unit without a redundant species (all optimal solutions, Arthur et al. 1997).
struct SuiteList {
    /// Smaller ones first, then highest total, then candidate by candidate; the first is the best one of the minimum.
    std::vector<Rows> Suites;
    /// How many there are. Where it is not exact there are more: than MostCounted, or than were found in time.
    std::size_t Count = 0;
    bool IsExact = false;

    bool isOneOnly() const { return IsExact && Count == 1; }
    bool isComplete() const { return IsExact && Count == Suites.size(); }
};

/// Those of the minimal size and up to `within` larger ones, `limit` of them at most. Where the minimum is not proven
/// its suite alone, as an incomplete list. REQUIRES: a limit of at least 1
SuiteList findSuites(const CoverIndex& index, const MinimumAnswer& minimum, std::size_t within,
                     std::size_t limit, SearchBudget& budget);

ResultTable suiteTable(const SelectionRun& run, const CoverIndex& index, const SuiteList& list);

}  // namespace insight
