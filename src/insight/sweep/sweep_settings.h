// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "method/margin.h"

/// What a sweep is asked for: all that its counts depend on besides the run that it varies.
namespace insight {

/// What is drawn anew for each run.
struct Varied {
    bool Levels = false;
    bool Answers = false;
    bool Grades = false;
};

/// Part Number of a sweep that is spread over Of parts. From 1; 1 <= Number <= Of.
struct Shard {
    std::uint32_t Number = 1;
    std::uint32_t Of = 1;
};

struct SweepSettings {
    Varied Vary{};
    std::uint64_t Runs = 2500;  ///< of all shards together, up to MostRuns
    std::uint64_t Seed = 1;
    double P = 0.1;        ///< probability, 0 to 1, that a grade is off by one step
    bool Zeros = false;    ///< grades of 0 are varied, too
    bool Quality = false;  ///< the worse the data of a criterion, the likelier are its grades off
    Shard Part{};
    /// To the questions of each run, in order, where answers are not varied; after them the defaults.
    std::vector<method::Answer> Answers{};
};

inline constexpr std::uint64_t MostRuns = 1'000'000'000'000;

/// How many runs a shard has. Its k-th, from 0, is run Number - 1 + k × Of of the sweep.
constexpr std::uint64_t runsOf(std::uint64_t runs, const Shard& part) {
    return (runs + part.Of - part.Number) / part.Of;
}

}  // namespace insight
