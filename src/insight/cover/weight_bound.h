// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/cover_index.h"

/// A bound of the search, in whole numbers alone: Lagrangian relaxation of the set covering problem (Etcheberry 1977;
/// Beasley 1990).
namespace insight {

/// What is still to be decided at one place of a search.
struct CoverNode {
    BitSet Units;       ///< not covered yet
    BitSet Species;     ///< that may still be picked
    std::size_t Picks;  ///< how many may be picked at most
};

/// Gives every unit a weight, at least 0, and every species the sum of its units that are not covered, plus a value of
/// its own. What `Picks` species with the highest sums have together, less all weights, is at least the value of any
/// suite that covers the units; where that is below what is asked for there is none. Whatever the weights are, what
/// follows is true; they are moved to where most follows, and kept from one call to the next.
class WeightBound {
public:
    /// `values`: of each species. A suite of a sum of `least` values or more is looked for; without values and with
    /// a least of 0 any suite is.
    WeightBound(const CoverIndex& index, std::vector<std::int64_t> values);

    enum class Finding {
        Nothing,  ///< no suite is left in the node
        Open,
        Required,  ///< the species of `required()` is in every suite of the node
    };
    /// Moves the weights up to `rounds` times, and takes species out of the node that are in no suite but with a
    /// redundant species.
    /// REQUIRES: Picks of at least 1. With values, no suite of the node has fewer than Picks species.
    Finding look(CoverNode& node, std::int64_t least, int rounds);
    std::size_t required() const { return required_; }
    /// Sum of a species in the last round. REQUIRES: it was in the node then
    std::int64_t score(std::size_t species) const { return scores_[species]; }
    /// How much of the room for worse suites is left with the species, after the last round: the more, the more is to be
    /// searched; above 0, at most 1. REQUIRES: the last look was Open, and the species is still in its node
    double chance(std::size_t species) const;

private:
    struct Scored {
        std::int64_t Score;
        std::uint32_t Species;
    };
    void follow(Bits units);
    void addToScores(std::size_t unit, std::int64_t weight);
    void setWeight(std::size_t openUnit, std::int64_t weight);
    void rescale();
    void listScores(CoverNode& node);
    bool countsNothing(std::size_t species) const;
    Finding lookAtAll(std::int64_t least);
    std::int64_t bestSum(std::size_t picks);
    std::int64_t scoreAt(std::size_t place);
    void dropHopeless(CoverNode& node) const;
    bool findRequired();
    void moveWeights(std::size_t picks);
    void countTimes(std::size_t picks);

    const CoverIndex& index_;
    std::vector<std::int64_t> values_;
    std::vector<std::int64_t> weights_;  ///< by unit
    std::int64_t highest_;               ///< of the weights that were moved last
    BitSet open_;                        ///< units of the node of the last look
    std::vector<std::int64_t> scores_;   ///< by species, of the open units
    std::int64_t sum_ = 0;               ///< of the weights of the open units

    std::vector<Scored> listed_;  ///< the first `count_`: species of the node
    std::size_t count_ = 0;
    std::vector<std::int64_t> competing_;  ///< scores being sorted
    std::int64_t last_ = 0;                ///< lowest of the best scores
    std::int64_t next_ = 0;                ///< highest of the others
    std::int64_t excess_ = 0;              ///< of the best scores over what is asked for
    std::vector<std::int32_t> times_;      ///< how often the best species cover each open unit, less one
    std::size_t required_ = 0;
};

}  // namespace insight
