// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/weight_bound.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

namespace insight {

namespace {

constexpr std::int64_t FirstWeight = 1 << 12;
constexpr std::int64_t LargestWeight = std::int64_t{1} << 40;  // so that no sum of some thousands overflows

}  // namespace

WeightBound::WeightBound(const CoverIndex& index, std::vector<std::int64_t> values)
    : index_(index),
      values_(std::move(values)),
      weights_(index.units(), FirstWeight),
      highest_(FirstWeight),
      open_(method::wordsFor(index.units())),
      scores_(values_),
      listed_(index.species()),
      competing_(index.species()),
      times_(index.units()) {
    scores_.resize(index.species());
}

WeightBound::Finding WeightBound::look(CoverNode& node, std::int64_t least, int rounds) {
    follow(node.Units);
    rescale();
    for (int round = 0;; ++round) {
        listScores(node);
        if (count_ <= node.Picks) return lookAtAll(least);
        excess_ = bestSum(node.Picks) - least;
        if (excess_ < 0) return Finding::Nothing;
        dropHopeless(node);
        if (findRequired()) return Finding::Required;
        if (round == rounds) return Finding::Open;
        moveWeights(node.Picks);
    }
}

double WeightBound::chance(std::size_t species) const {
    const std::int64_t loss = std::max<std::int64_t>(last_ - scores_[species], 0);
    return static_cast<double>(excess_ - loss + 1) / static_cast<double>(excess_ + 1);
}

/// Between two looks few units change: the scores are kept and brought up to date.
void WeightBound::follow(Bits units) {
    for (std::size_t w = 0; w < open_.size(); ++w) {
        method::forEachBit(open_[w] ^ units[w], w * WordBits, [&](std::size_t u) {
            addToScores(u, has(units, u) ? weights_[u] : -weights_[u]);
        });
        open_[w] = units[w];
    }
}

void WeightBound::addToScores(std::size_t unit, std::int64_t weight) {
    sum_ += weight;
    for (const std::uint32_t s : index_.speciesList(unit)) scores_[s] += weight;
}

void WeightBound::setWeight(std::size_t openUnit, std::int64_t weight) {
    if (weight != weights_[openUnit]) addToScores(openUnit, weight - weights_[openUnit]);
    weights_[openUnit] = weight;
}

/// Too small weights have no room for small steps. With values they have the values' scale.
void WeightBound::rescale() {
    if (!values_.empty() || (highest_ >= FirstWeight / 4 && highest_ <= FirstWeight * 16)) return;
    const BitSet open = open_;
    follow(BitSet(open.size()));
    for (std::int64_t& weight : weights_)
        weight = highest_ < FirstWeight ? std::min(weight * 4, LargestWeight) : weight / 4;
    if (highest_ == 0) forEach(open, [&](std::size_t u) { weights_[u] = FirstWeight; });
    highest_ = FirstWeight;
    follow(open);
}

/// Lists the species of the node, and takes those out of it that cover no open unit: they would be redundant.
void WeightBound::listScores(CoverNode& node) {
    count_ = 0;
    forEach(node.Species, [&](std::size_t s) {
        if (countsNothing(s)) return drop(node.Species, s);
        listed_[count_++] = {scores_[s], static_cast<std::uint32_t>(s)};
    });
}

bool WeightBound::countsNothing(std::size_t species) const {
    const Bits units = index_.unitsOf(species);
    Word common = 0;
    for (std::size_t w = 0; w < open_.size(); ++w) common |= units[w] & open_[w];
    return common == 0;
}

/// No more species are left than may be picked.
WeightBound::Finding WeightBound::lookAtAll(std::int64_t least) {
    excess_ = -sum_ - least;
    for (std::size_t i = 0; i < count_; ++i) excess_ += listed_[i].Score;
    last_ = std::numeric_limits<std::int64_t>::min() / 2;
    return excess_ < 0 ? Finding::Nothing : Finding::Open;
}

/// What the best species have together, less all weights.
std::int64_t WeightBound::bestSum(std::size_t picks) {
    next_ = scoreAt(picks);
    last_ = std::numeric_limits<std::int64_t>::max();
    std::int64_t best = next_ * static_cast<std::int64_t>(picks);
    std::size_t above = 0;
    for (std::size_t i = 0; i < count_; ++i) {
        const std::int64_t score = listed_[i].Score;
        const bool isAbove = score > next_;
        above += isAbove ? 1 : 0;
        best += isAbove ? score - next_ : 0;
        last_ = isAbove ? std::min(score, last_) : last_;
    }
    if (above < picks) last_ = next_;
    return best - sum_;
}

/// The score at a place of the falling order. It is near the one of the last look; what is far below need not be sorted.
std::int64_t WeightBound::scoreAt(std::size_t place) {
    const std::int64_t least = next_ - next_ / 16;
    std::size_t competing = 0;
    for (std::size_t i = 0; i < count_; ++i) {
        competing_[competing] = listed_[i].Score;
        competing += listed_[i].Score >= least ? 1 : 0;
    }
    if (competing <= place) {
        for (std::size_t i = 0; i < count_; ++i) competing_[i] = listed_[i].Score;
        competing = count_;
    }
    const auto at = competing_.begin() + static_cast<std::ptrdiff_t>(place);
    std::nth_element(competing_.begin(), at, competing_.begin() + static_cast<std::ptrdiff_t>(competing),
                     std::greater<>());
    return *at;
}

/// With such a species in the place of the last of the best too little is left.
void WeightBound::dropHopeless(CoverNode& node) const {
    for (std::size_t i = 0; i < count_; ++i) {
        if (listed_[i].Score < last_ - excess_) drop(node.Species, listed_[i].Species);
    }
}

/// Without such a species, with the next one in its place, too little is left.
bool WeightBound::findRequired() {
    for (std::size_t i = 0; i < count_; ++i) {
        if (listed_[i].Score <= excess_ + next_) continue;
        required_ = listed_[i].Species;
        return true;
    }
    return false;
}

/// A step against the excess: units that the best species leave out gain, those that several cover lose. It is longer
/// than what would do if nothing else changed: that has shown to need fewer steps.
void WeightBound::moveWeights(std::size_t picks) {
    countTimes(picks);
    std::int64_t length = 0;
    forEach(open_, [&](std::size_t u) {
        if (times_[u] < 0 || weights_[u] > 0) length += std::int64_t{times_[u]} * times_[u];
    });
    if (length == 0) return;
    const std::int64_t step = std::min((excess_ + excess_ / 2) / length + 1, LargestWeight);
    highest_ = 0;
    forEach(open_, [&](std::size_t u) {
        setWeight(u, std::clamp<std::int64_t>(weights_[u] - step * times_[u], 0, LargestWeight));
        highest_ = std::max(highest_, weights_[u]);
    });
}

/// How often the best species cover each open unit, less one; of equal scores the first species.
void WeightBound::countTimes(std::size_t picks) {
    forEach(open_, [&](std::size_t u) { times_[u] = -1; });
    std::size_t equal = picks;
    for (std::size_t i = 0; i < count_; ++i) equal -= listed_[i].Score > last_ ? 1 : 0;
    for (std::size_t i = 0; i < count_; ++i) {
        if (listed_[i].Score < last_ || (listed_[i].Score == last_ && equal == 0)) continue;
        if (listed_[i].Score == last_) --equal;
        for (const std::uint32_t u : index_.unitList(listed_[i].Species)) ++times_[u];
    }
}

}  // namespace insight
