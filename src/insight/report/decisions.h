// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "insight/report/rerun.h"
#include "selection/selection_run.h"

/// A run made once more and watched: what was decided in it, and when each species left the race.
namespace insight {

/// What a run comes to when one question is answered otherwise.
struct OtherChoice {
    std::size_t Taken;
    std::size_t Species = 0;    ///< in the suite
    std::size_t Uncovered = 0;  ///< units
};

/// A landscape can ask hundreds of questions, which nobody reads.
inline constexpr std::size_t QuestionsTried = 20;

/// A question about species within the margin of error, and its answer.
struct Decision {
    std::vector<std::size_t> Listed{};  ///< species, the highest aggregate first
    std::vector<double> Aggregates{};   ///< of each of them
    bool IsDefault = false;             ///< no answer was left
    std::optional<method::Rule> Way{};  ///< none where the answer is none of the rules
    bool AskedNumber = false;           ///< by the rule, or by a tie
    std::optional<std::size_t> Number{};
    std::size_t Taken = 0;
    bool WasOmitted = false;            ///< what was taken had been omitted: it is dropped and joins no suite
    std::vector<OtherChoice> Others{};  ///< of those listed; of the first QuestionsTried alone
};

/// What became of a species.
struct SpeciesFate {
    std::optional<double> Aggregate{};          ///< with which it joined the suite
    std::optional<std::size_t> OmittedAfter{};  ///< so many picks it added nothing any more
};

struct WatchedRun {
    std::vector<Decision> Decisions;
    std::vector<SpeciesFate> Fates;  ///< of each candidate
};

/// `rerun` is one of the run's landscape. For the other choices questions before are answered as they were; those after
/// take a species that was taken then where it is listed, else the best aggregate.
WatchedRun watch(const SelectionRun& run, const std::vector<method::Answer>& answers, Rerun& rerun);

}  // namespace insight
