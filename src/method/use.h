// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "method/failure.h"
#include "method/landscape.h"

/// Who uses which habitats or zones, and how large a share of the landscape that can be.
namespace method {

/// A level of use as the totals take it: 0 where it is blank, else to the nearest whole number, halves to even.
/// A unit is used where this is above 0; so a level of 0.4 is no use here, but is one in areaUsed.
struct UseTotals {
    std::vector<std::int32_t> LevelBySpecies;  ///< sum of a species' levels
    std::vector<std::int32_t> UnitsBySpecies;  ///< units that it uses
    std::vector<std::int32_t> LevelByUnit;     ///< sum of a unit's levels
    std::vector<std::int32_t> SpeciesByUnit;   ///< species that use it
};

/// Species by species. Throws Failure (UnitUse) for a level that is Unreadable and for a level or sum beyond 32 bits:
/// then `totals` holds the species before that one, and sums by unit that are not complete.
void totalUse(const Table& levels, Quantity quantity, UseTotals& totals);

/// The sum and the count of one row or column of levels. Never fails: a level that is Unreadable or beyond 32 bits
/// counts like the one before it, 0 for the first; one that carries the sum beyond 32 bits is left out of it.
struct Use {
    std::int32_t Level = 0;
    std::int32_t Count = 0;
};
Use useOf(std::span<const double> levels);

/// Area of the units with a level other than 0, unrounded. Left out are levels that are Blank or Unreadable, units
/// without an area, and an area that would carry the sum out of range.
double areaUsed(std::span<const double> levels, std::span<const double> areas);

/// Upper bound of the proportion occupied, part / whole to 3 decimals; nothing where the whole is not above 0. Throws
/// Failure (UnitUse) where it is not finite.
std::optional<double> proportionOf(double part, double whole);

}  // namespace method
