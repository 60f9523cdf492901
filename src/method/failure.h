// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <exception>

namespace method {

/// The step that could not go on.
enum class Step {
    UnitUse,         ///< totals of the levels of use
    HomeRangeScale,  ///< home ranges on one scale
    Heterogeneity,   ///< the five criterion scores
    Area,
    Vulnerability,
    Functionality,
    SocioEconomics,
    Normalisation,      ///< rounding, dividing and adding the five
    Start,              ///< who is excluded, and the thresholds of the units
    Selection,          ///< the passes of the selection
    UnitsAdded,         ///< how many habitats or zones a species would add
    HeterogeneityLeft,  ///< heterogeneity over what is not covered
    VulnerabilityLeft,  ///< vulnerability over what is not covered
    Margin,             ///< who lies within the margin of error
    Choice,             ///< the planner's choice between them
};

/// The value that stopped it.
enum class Quantity {
    HabitatLevel,  ///< Row is the species, Column the unit
    ZoneLevel,
    HabitatThreshold,  ///< Row is the unit
    ZoneThreshold,
    Urgency,  ///< Row is the species, Column the threat
    Recovery,
    Severity,
    Proportion,
    Probability,
    ThreatScore,
    ThreatTotal,  ///< Row is the species
    Status,
    HomeRange,
    Occupied,
    Function,  ///< Row is the species, Column the item
    SocioEconomicValue,
    /// Row is the species or the row of the block, Column the criterion, or Criteria (5) for the aggregate.
    Score,
    Aggregate,  ///< where the margin is looked at: Row is the row of the block
    Candidate,  ///< Row is a row past the end of the block
};

enum class Cause {
    NoNumber,  ///< the value is Blank or Unreadable
    TooLarge,  ///< a result is outside the range of its numbers
    NoRow,     ///< there is no such row
};

/// What every calculation of this folder throws, and nothing else. Numbers of rows and columns count from 0.
struct Failure : std::exception {
    Failure(Step step, Cause cause, Quantity what, std::size_t row, std::size_t column = 0)
        : At(step), Why(cause), What(what), Row(row), Column(column) {}
    const char* what() const noexcept override;

    Step At;
    Cause Why;
    Quantity What;
    std::size_t Row;
    std::size_t Column;
};

}  // namespace method
