// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/cover_index.h"

namespace insight {

/// The suite of a run as a cover, whole or not.
struct RunSuite {
    Rows Picks;            ///< in the order of the suite
    bool Complete = true;  ///< no coverable unit was missed
    Rows Redundant;        ///< each of which alone could go, rising
    /// Rising, without those that, taken in order of rising aggregate and then of the candidates, could each go.
    Rows Pruned;
};

RunSuite runSuite(const SelectionRun& run, const CoverIndex& index);

/// The units of `rows` that no row of it but `row` covers.
BitSet lostWithout(const CoverIndex& index, const Rows& rows, std::uint32_t row);

/// A suite that covers all units: the species that adds most, then the next; of equal ones that with the higher
/// aggregate, then the first (Chvátal 1979). Rising. The part's species must cover its units.
Rows greedySuite(const CoverIndex& index, BitSet species, BitSet units);

}  // namespace insight
