// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "insight/verify/recomputed_scores.h"
#include "method/levels.h"

/// A selection computed anew that follows picks which somebody else made, and tells which ones it would have permitted.
namespace insight {

/// Habitats, zones, threats.
inline constexpr std::size_t UnitKindCount = 3;

/// One species in one pass.
struct PassRow {
    std::size_t Species = 0;
    double Aggregate = 0;
    std::array<double, ScoreColumns> Scores{};
    std::array<int, UnitKindCount> Adds{};
    bool Omitted = false;  ///< leaves the race in this pass, since it adds nothing
    bool WithinMargin =
        false;  ///< shown as such: the best that is left, and those that the margin puts beside it
    bool Permitted = false;  ///< an answer, or the want of a question, makes it the pick

    bool addsNothing() const { return Adds[0] <= 0 && Adds[1] <= 0 && Adds[2] <= 0; }
};

/// The rows by aggregate, the best first.
struct Pass {
    std::vector<PassRow> Rows;
    std::size_t Top = 0;  ///< the best row that is still in the race
};

/// Runs pass by pass:
///
///     while (!run.ended()) {
///         const Pass pass = run.nextPass();
///         run.pick(pass.Rows[…]);
///     }
class Recomputation {
public:
    /// The landscape must outlive this. Throws RunFailure.
    Recomputation(const method::Landscape& landscape, const method::Levels& levels);

    const RecomputedScores& scores() const { return scores_; }
    /// Those whose conservation status is above the level, rising.
    const std::vector<std::size_t>& excluded() const { return excluded_; }

    bool ended() const;
    /// Throws RunFailure where the run would end in an error within this pass. REQUIRES: !ended(), and a pick for the
    /// pass before
    Pass nextPass();
    /// The species leaves the race, and what it represents is covered. REQUIRES: a row of the last pass
    void pick(const PassRow& row);

    /// The units of a kind that nothing covers, from 0.
    std::vector<std::size_t> uncovered(std::size_t kind) const;

private:
    double level(std::size_t species, std::size_t kind, std::size_t unit) const;
    double threshold(std::size_t kind, std::size_t unit) const;
    bool represents(std::size_t species, std::size_t kind, std::size_t unit) const;
    PassRow rowOf(std::size_t species, bool first);
    double heterogeneityLeft(std::size_t species) const;
    double vulnerabilityLeft(std::size_t species) const;
    void normalise(std::vector<PassRow>& rows) const;
    void omit(std::vector<PassRow>& rows);
    void findMargin(Pass& pass);
    void permit(Pass& pass) const;
    void remove(std::size_t species);

    const method::Landscape& landscape_;
    method::Levels levels_;
    RecomputedScores scores_;
    std::vector<double> highestThreats_;
    std::array<std::size_t, UnitKindCount> units_{};
    std::vector<std::size_t> excluded_;

    std::vector<bool> gone_;                                ///< by species
    std::array<std::vector<bool>, UnitKindCount> covered_;  ///< by unit
    std::array<double, 2> highestLeft_{};  ///< heterogeneity, vulnerability: of all later passes so far
    std::size_t passes_ = 0;
    /// Counts removals: a species that is omitted and then picked counts twice.
    std::size_t removals_ = 0;
    std::size_t marginCount_ = 0;  ///< of the last pass that looked for the margin
};

}  // namespace insight
