// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "insight/cover/suites.h"

/// What hangs on each species.
namespace insight {

/// In how many of the suites of minimal size a species is.
enum class SpeciesClass { All, Some, None };

/// The minimum when a species is barred less the minimum (replacement cost, Cabeza and Moilanen 2006).
struct ReplacementCost {
    std::size_t Lower = 0;
    std::optional<std::size_t> Upper = 0;  ///< none: a unit becomes uncoverable

    bool isProven() const { return !Upper || Lower == *Upper; }
};

struct SpeciesRole {
    std::optional<SpeciesClass> Class;  ///< none where it was not proven
    std::optional<double> Share;        ///< of the suites of minimal size; none where these were not counted
    ReplacementCost Cost;
    BitSet OnlyFor;     ///< units that no other eligible species covers
    double Rarity = 0;  ///< rarity-weighted richness (Williams et al. 1996) over the eligible species

    bool isProven() const { return Class && Cost.isProven(); }
};

/// Of each row of the problem. Classes and costs are proven species by species: barred, then forced.
std::vector<SpeciesRole> findRoles(const CoverIndex& index, const MinimumAnswer& minimum,
                                   SearchBudget& budget);

/// Species outside the suite each of which alone covers every unit that is lost without `row`; none where none is lost.
Rows substitutesOf(const CoverIndex& index, const Rows& suite, std::uint32_t row);

}  // namespace insight
