// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/weight_bound.h"

#include <algorithm>
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
      scores_(index.species()),
      useful_(method::wordsFor(index.species())),
      times_(index.units()) {}

/// Scores the species that cover a unit of the node, and takes the others out of it: they would be redundant.
void WeightBound::scoreSpecies(CoverNode& node) {
    std::fill(scores_.begin(), scores_.end(), 0);
    std::fill(useful_.begin(), useful_.end(), 0);
    sum_ = 0;
    forEach(node.Units, [&](std::size_t u) {
        const std::int64_t weight = weights_[u];
        sum_ += weight;
        add(useful_, index_.speciesOf(u));
        for (const std::uint32_t s : index_.speciesList(u)) scores_[s] += weight;
    });
    ranked_.clear();
    for (std::size_t w = 0; w < useful_.size(); ++w) node.Species[w] &= useful_[w];
    forEach(node.Species, [&](std::size_t s) {
        if (!values_.empty()) scores_[s] += values_[s];
        ranked_.push_back({scores_[s], static_cast<std::uint32_t>(s)});
    });
}

/// What the best species have together, less all weights.
std::int64_t WeightBound::bestSum(std::size_t picks) {
    sortOutBest(picks);
    std::int64_t best = 0;
    for (std::size_t i = 0; i < std::min(picks, ranked_.size()); ++i) best += ranked_[i].Score;
    return best - sum_;
}

/// The best ones first, then the next one, then the others; of equal scores the first species.
void WeightBound::sortOutBest(std::size_t picks) {
    const auto isBetter = [](const Scored& a, const Scored& b) {
        return a.Score != b.Score ? a.Score > b.Score : a.Species < b.Species;
    };
    if (ranked_.size() <= picks) return;
    const auto next = ranked_.begin() + static_cast<std::ptrdiff_t>(picks);
    std::nth_element(ranked_.begin(), next, ranked_.end(), isBetter);
}

/// A step against the excess: units that the best species leave out gain, those that several cover lose.
void WeightBound::moveWeights(const CoverNode& node, std::size_t picks, std::int64_t excess) {
    forEach(node.Units, [&](std::size_t u) { times_[u] = -1; });
    for (std::size_t i = 0; i < std::min(picks, ranked_.size()); ++i) {
        for (const std::uint32_t u : index_.unitList(ranked_[i].Species)) ++times_[u];
    }
    std::int64_t length = 0;
    forEach(node.Units, [&](std::size_t u) {
        if (times_[u] < 0 || weights_[u] > 0) length += std::int64_t{times_[u]} * times_[u];
    });
    if (length == 0) return;
    const std::int64_t step = std::min(excess / length + 1, LargestWeight);
    forEach(node.Units, [&](std::size_t u) {
        weights_[u] = std::clamp<std::int64_t>(weights_[u] - step * times_[u], 0, LargestWeight);
    });
}

/// Too small weights have no room for small steps. With values they have the values' scale.
void WeightBound::rescale(const CoverNode& node) {
    if (!values_.empty()) return;
    std::int64_t highest = 0;
    forEach(node.Units, [&](std::size_t u) { highest = std::max(highest, weights_[u]); });
    if (highest < FirstWeight / 4) {
        for (std::int64_t& weight : weights_) weight = std::min(weight * 4, LargestWeight);
        if (highest == 0) forEach(node.Units, [&](std::size_t u) { weights_[u] = FirstWeight; });
    }
    if (highest > FirstWeight * 16) {
        for (std::int64_t& weight : weights_) weight /= 4;
    }
}

WeightBound::Finding WeightBound::look(CoverNode& node, std::int64_t least, int rounds) {
    rescale(node);
    for (int round = 0;; ++round) {
        scoreSpecies(node);
        const std::int64_t excess = bestSum(node.Picks) - least;
        if (excess < 0) return Finding::Nothing;
        if (ranked_.size() <= node.Picks) return Finding::Open;
        const std::int64_t next = ranked_[node.Picks].Score;
        std::int64_t last = ranked_.front().Score;
        for (std::size_t i = 0; i < node.Picks; ++i) last = std::min(last, ranked_[i].Score);
        for (std::size_t i = node.Picks; i < ranked_.size(); ++i) {
            if (excess - last + ranked_[i].Score < 0) drop(node.Species, ranked_[i].Species);
        }
        for (std::size_t i = 0; i < node.Picks; ++i) {
            if (excess - ranked_[i].Score + next >= 0) continue;
            required_ = ranked_[i].Species;
            return Finding::Required;
        }
        if (round == rounds) return Finding::Open;
        moveWeights(node, node.Picks, excess);
    }
}

}  // namespace insight
