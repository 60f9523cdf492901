// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/best_coverage.h"

#include <algorithm>

namespace insight {

namespace {

/// What one size may cost, in looks at a unit of a species.
constexpr std::uint64_t LooksForSize = 100'000'000;
constexpr int FirstLooks = 50;  // at the prices, before the search

/// Species that another one makes up for, whatever else is picked, are left out.
Rows usefulSpecies(const CoverIndex& index) {
    Rows useful;
    const auto isBeaten = [&](std::uint32_t s, std::uint32_t by) {
        if (s == by || !isSubset(index.unitsOf(s), index.unitsOf(by))) return false;
        return by < s || !isSubset(index.unitsOf(by), index.unitsOf(s));
    };
    for (std::uint32_t s = 0; s < index.species(); ++s) {
        bool beaten = false;
        for (std::uint32_t by = 0; by < index.species() && !beaten; ++by) beaten = isBeaten(s, by);
        if (!beaten) useful.push_back(s);
    }
    return useful;
}

/// A bound from prices of units (Lagrangian relaxation): a unit is worth `Whole`, of which its price goes to each species
/// that covers it and the rest is for nothing. No `picks` species cover more than the best so many earn, and the rests
/// of all units. Whatever the prices are, that is true; they are moved to where it says most.
class PriceBound {
public:
    explicit PriceBound(const CoverIndex& index)
        : index_(index), prices_(index.units(), Whole), times_(index.units()) {}

    /// Orders the species by what they earn of the open units, the best first, and gives the bound.
    std::size_t look(const BitSet& open, Rows& species, std::size_t picks, std::size_t wanted) {
        std::size_t bound = count(open);
        for (int round = 0; round < Rounds; ++round) {
            const std::int64_t excess = earn(open, species, picks);
            bound = std::min(bound, static_cast<std::size_t>(excess / Whole));
            if (bound < wanted) return bound;
            move(open, species, picks, excess - static_cast<std::int64_t>(wanted) * Whole);
        }
        return bound;
    }

private:
    static constexpr std::int64_t Whole = 1 << 12;
    static constexpr int Rounds = 4;

    std::int64_t earn(const BitSet& open, Rows& species, std::size_t picks) {
        earned_.assign(index_.species(), 0);
        std::int64_t sum = 0;
        forEach(open, [&](std::size_t u) { sum += Whole - prices_[u]; });
        for (const std::uint32_t s : species)
            forEachCommon(index_.unitsOf(s), open, [&](std::size_t u) { earned_[s] += prices_[u]; });
        std::sort(species.begin(), species.end(), [&](std::uint32_t a, std::uint32_t b) {
            return earned_[a] != earned_[b] ? earned_[a] > earned_[b] : a < b;
        });
        for (std::size_t i = 0; i < std::min(picks, species.size()); ++i) sum += earned_[species[i]];
        return sum;
    }

    /// Units that several of the best cover become cheaper, those that none covers dearer.
    void move(const BitSet& open, const Rows& species, std::size_t picks, std::int64_t excess) {
        forEach(open, [&](std::size_t u) { times_[u] = -1; });
        for (std::size_t i = 0; i < std::min(picks, species.size()); ++i)
            forEachCommon(index_.unitsOf(species[i]), open, [&](std::size_t u) { ++times_[u]; });
        std::int64_t length = 0;
        forEach(open, [&](std::size_t u) { length += std::int64_t{times_[u]} * times_[u]; });
        if (length == 0) return;
        const std::int64_t step = excess / length + 1;
        forEach(open, [&](std::size_t u) {
            prices_[u] = std::clamp<std::int64_t>(prices_[u] - step * times_[u], 0, Whole);
        });
    }

    const CoverIndex& index_;
    std::vector<std::int64_t> prices_;
    std::vector<std::int64_t> earned_;
    std::vector<int> times_;
};

class CoverageSearch {
public:
    CoverageSearch(const CoverIndex& index, const std::atomic<bool>* stop)
        : index_(index),
          useful_(usefulSpecies(index)),
          effort_{.Nodes = 1 + LooksForSize / (index.species() * index.units()), .Stop = stop},
          prices_(index) {}

    /// Raises `best` to what `picks` species can cover, and lowers its bound to it where the steps last.
    void run(std::size_t picks, BestCoverage& best) {
        best_ = &best;
        SearchBudget budget(effort_);
        budget_ = &budget;
        const BitSet all = index_.allUnits();
        takeGreedily(all, picks);
        lowerBound(all, picks);
        if (best.isProven()) return;
        if (search(all, useful_, picks)) best.Bound = best.Units;
    }

private:
    /// What the prices say before anything is decided; it stands where the search is cut.
    void lowerBound(const BitSet& all, std::size_t picks) {
        Rows species = useful_;
        for (int look = 0; look < FirstLooks && !best_->isProven(); ++look)
            best_->Bound = std::min(best_->Bound, prices_.look(all, species, picks, best_->Units + 1));
    }
    std::size_t bestAddition(const BitSet& open, const Rows& species) const {
        std::size_t best = 0;
        for (std::size_t i = 1; i < species.size(); ++i) {
            if (gain(open, species[i]) > gain(open, species[best])) best = i;
        }
        return best;
    }
    std::size_t gain(const BitSet& open, std::uint32_t species) const {
        return countCommon(index_.unitsOf(species), open);
    }
    void takeGreedily(BitSet open, std::size_t picks) {
        picked_.clear();
        for (; picks > 0; --picks) pick(useful_[bestAddition(open, useful_)], open);
        picked_.clear();
    }
    void pick(std::uint32_t species, BitSet& open) {
        picked_.push_back(species);
        remove(open, index_.unitsOf(species));
        const std::size_t units = index_.units() - count(open);
        if (units <= best_->Units) return;
        best_->Units = units;
        best_->Suite = picked_;
        std::sort(best_->Suite.begin(), best_->Suite.end());
    }

    /// Whether all of it was looked at. `open` has the units that are not covered yet.
    bool search(const BitSet& open, Rows species, std::size_t picks) {
        if (!budget_->spend()) return false;
        const std::size_t covered = index_.units() - count(open);
        while (picks > 0 && !species.empty()) {
            const std::size_t wanted = best_->Units + 1 - covered;
            if (prices_.look(open, species, picks, wanted) < wanted) return true;
            const std::uint32_t first = species.front();
            species.erase(species.begin());
            BitSet left = open;
            pick(first, left);
            const bool isWhole = search(left, species, picks - 1);
            picked_.pop_back();
            if (!isWhole || best_->isProven()) return isWhole;
        }
        return true;
    }

    const CoverIndex& index_;
    Rows useful_;
    SearchEffort effort_;
    SearchBudget* budget_ = nullptr;
    PriceBound prices_;
    BestCoverage* best_ = nullptr;
    Rows picked_;
};

std::size_t mostUnitsOfOne(const CoverIndex& index) {
    std::size_t most = 0;
    for (std::size_t s = 0; s < index.species(); ++s) most = std::max(most, index.unitList(s).size());
    return most;
}

/// What the size before and the minimum say of this one: of its species the one that adds least can go, and the units
/// that it leaves uncovered could each be covered by one species more.
std::size_t boundOf(std::size_t picks, const BestCoverage& before, const CoverIndex& index,
                    std::size_t lower) {
    const std::size_t bound = index.units() - (lower > picks ? lower - picks : 0);
    const std::size_t byBefore = picks == 1 ? mostUnitsOfOne(index) : before.Bound * picks / (picks - 1);
    return std::min(bound, byBefore);
}

}  // namespace

std::vector<BestCoverage> bestCoverages(const CoverIndex& index, const MinimumAnswer& minimum,
                                        const std::atomic<bool>* stop) {
    const std::size_t size = minimum.Known.upper();
    std::vector<BestCoverage> best(size + 1);
    if (size == 0) return best;
    CoverageSearch search(index, stop);
    for (std::size_t picks = 1; picks < size; ++picks) {
        const BestCoverage& before = best[picks - 1];
        best[picks] = {before.Units, boundOf(picks, before, index, minimum.Known.Lower), before.Suite};
        search.run(picks, best[picks]);
    }
    best[size] = {index.units(), index.units(), minimum.Known.Suite};
    return best;
}

}  // namespace insight
