// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <stdexcept>
#include <vector>

#include "method/landscape.h"

/// The scores of the first pass, computed anew to check what a program wrote: plainly, step by step, and by no code that
/// the selection runs on. It takes the landscape's numbers and their rounding from method/, nothing else.
namespace insight {

/// A run on this landscape cannot come to its end: a value that it needs is no number or too large, or nobody is left to
/// pick. Says which, for a person.
struct RunFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The criteria as the tables of results order them.
enum ScoreColumn : std::size_t {
    HeterogeneityColumn,
    AreaColumn,
    VulnerabilityColumn,
    FunctionColumn,
    SocioColumn
};
inline constexpr std::size_t ScoreColumns = 5;

struct RecomputedScores {
    method::Table Threats;            ///< species × threats, to 2 decimals
    method::Table Normalised;         ///< species × ScoreColumns, to 3 decimals
    std::vector<double> Aggregates;   ///< their sums, to 3 decimals
    std::vector<std::size_t> ByRank;  ///< the species, the best first; of equal sums the later one first
};

/// Throws RunFailure.
RecomputedScores recomputeScores(const method::Landscape& landscape);

/// (urgency + recovery) × severity × proportion × probability, multiplied from the left.
double pairScore(double urgency, double recovery, double severity, double proportion, double probability);

/// The value; throws RunFailure about `what` where it is missing, unreadable or beyond all bounds.
double needed(double value, const char* what);

}  // namespace insight
