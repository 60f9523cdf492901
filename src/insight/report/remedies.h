// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <optional>
#include <vector>

#include "insight/cover/smallest_suite.h"
#include "insight/unit_states.h"
#include "method/margin.h"

/// What would cover a unit that a run leaves uncovered: each change is tried.
namespace insight {

/// A level of use that is asked for in the place of a unit's own.
struct AskedLevel {
    std::size_t Unit;
    double Level;
};

struct Change {
    method::Levels Levels;
    std::optional<AskedLevel> Asked{};
    bool BestAggregates = false;  ///< the best aggregate is taken at each question
};

/// What a changed run comes to. Species are candidates; units count as those of the run.
struct TriedRun {
    std::vector<std::size_t> Species{};       ///< of the suite, in order
    std::vector<std::size_t> Open{};          ///< units that it leaves
    std::optional<SmallestSuite> Smallest{};  ///< none in a landscape too large to search for it in passing
};

struct Remedy {
    Change Made;
    std::vector<std::size_t> For;  ///< units that it makes coverable, or would not miss
    TriedRun Run;
};

/// A run that differs by the change; `answers` are taken in order. `stop`, which may be null, ends the search for the
/// smallest suite; some steps are spent on that, whatever else is asked.
TriedRun tryChange(const SelectionRun& run, const Change& change, const std::vector<method::Answer>& answers,
                   const std::atomic<bool>* stop);

/// For each open unit the changes that suggest themselves: a level of conservation status that admits a species, less
/// that is asked for, the best aggregates. Equal ones are one. MostRemedies at most, in the order of the units.
std::vector<Remedy> findRemedies(const SelectionRun& run, const Representation& units,
                                 const std::vector<UnitState>& states,
                                 const std::vector<method::Answer>& answers, const std::atomic<bool>* stop);

inline constexpr std::size_t MostRemedies = 8;

/// The highest score for a threat, of any species; at least 0.
double highestScore(const SelectionRun& run, std::size_t threat);

/// The highest threat representation, to 2 decimals, at which a species with this score covers the threat; none where
/// only 0 would do.
std::optional<double> representationFor(double score, double highest);

}  // namespace insight
