// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/disjoint_units.h"

#include <algorithm>

namespace insight {

namespace {

class DisjointSearch {
public:
    DisjointSearch(const CoverIndex& index, SearchBudget& budget)
        : index_(index), budget_(budget), apart_(index.units(), method::wordsFor(index.units())) {
        for (std::size_t u = 0; u < index.units(); ++u) {
            BitSet together(method::wordsFor(index.units()));
            for (const std::uint32_t s : index.speciesList(u)) add(together, index.unitsOf(s));
            const BitSet all = index.allUnits();
            add(apart_.row(u), all);
            remove(apart_.row(u), together);
        }
    }

    /// Adds `wanted` units of `open` to those that are chosen; false where it cannot.
    bool choose(BitSet open, std::size_t wanted) {
        if (wanted == 0) return true;
        while (canHold(open, wanted) && budget_.spend()) {
            const std::size_t unit = leastInTheWay(open);
            BitSet left = open;
            for (std::size_t w = 0; w < left.size(); ++w) left[w] &= apart_.row(unit)[w];
            chosen_.push_back(static_cast<std::uint32_t>(unit));
            if (choose(left, wanted - 1)) return true;
            chosen_.pop_back();
            drop(open, unit);
        }
        return false;
    }
    const Rows& chosen() const { return chosen_; }

private:
    /// Whether it takes `wanted` species or more to cover the open units one species at a time, the fullest first: fewer
    /// species hold no more than one chosen unit each.
    bool canHold(BitSet open, std::size_t wanted) const {
        for (std::size_t groups = 0; !isEmpty(open); ++groups) {
            if (groups + 1 >= wanted) return true;
            std::size_t fullest = 0;
            std::size_t most = 0;
            for (std::size_t s = 0; s < index_.species(); ++s) {
                const std::size_t units = countCommon(index_.unitsOf(s), open);
                if (units > most) {
                    most = units;
                    fullest = s;
                }
            }
            remove(open, index_.unitsOf(fullest));
        }
        return false;
    }
    std::size_t leastInTheWay(const BitSet& open) const {
        std::size_t best = 0;
        std::size_t mostLeft = 0;
        bool any = false;
        forEach(open, [&](std::size_t u) {
            const std::size_t left = countCommon(apart_.row(u), open);
            if (any && left <= mostLeft) return;
            any = true;
            mostLeft = left;
            best = u;
        });
        return best;
    }

    const CoverIndex& index_;
    SearchBudget& budget_;
    method::BitTable apart_;  ///< for each unit those that it shares no species with
    Rows chosen_;
};

}  // namespace

std::optional<Rows> disjointUnits(const CoverIndex& index, const CoverPart& part, std::size_t wanted,
                                  SearchBudget& budget) {
    DisjointSearch search(index, budget);
    if (!search.choose(part.Units, wanted)) return std::nullopt;
    Rows units = search.chosen();
    std::sort(units.begin(), units.end());
    return units;
}

}  // namespace insight
