// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/cover_index.h"

/// What of a cover problem need not be looked at (the reductions of the set covering problem, Garfinkel and Nemhauser
/// 1972).
namespace insight {

/// When a species that covers nothing that another one does not cover may be left out in favour of that one.
enum class Domination {
    None,         ///< never: all suites are asked for
    SameSize,     ///< always, of equal ones the first stays: only the size counts
    NoLessTotal,  ///< unless its aggregate is higher: whether a suite of some total exists
    /// Unless its aggregate is higher, or equal and it comes first: which suite has the best total, and is first then.
    BestThenFirst,
};

/// Whether `loser` may be left out for `winner`, given that it covers no more (`equal`: and no less).
bool yields(const CoverIndex& index, std::size_t loser, std::size_t winner, bool equal,
            Domination domination);

/// The part of a problem that a question is about.
struct CoverPart {
    BitSet Species;  ///< that may be picked
    BitSet Units;    ///< that must be covered
};

/// Drops units that are covered whenever another one is, and species that `domination` allows to drop, as long as there
/// are any. What covers the units of the result with its species covers all units of `part`.
CoverPart reduced(const CoverIndex& index, CoverPart part, Domination domination);

}  // namespace insight
