// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/local_search.h"

#include <algorithm>
#include <optional>

#include "insight/cover/run_suite.h"

namespace insight {

namespace {

constexpr std::size_t StepsPerSpecies = 200;

/// A suite that is being changed, and what each species would add to it or take from it.
class ChangingSuite {
public:
    ChangingSuite(const CoverIndex& index, const CoverPart& part)
        : index_(index),
          part_(part),
          isIn_(index.species()),
          effect_(index.species()),
          changedAt_(index.species()),
          weights_(index.units(), 0),
          owners_(index.units()) {
        forEach(part.Units, [&](std::size_t u) { weights_[u] = 1; });
        forEach(part.Species, [&](std::size_t s) {
            for (const std::uint32_t u : index_.unitList(s)) effect_[s] += weights_[u];
        });
        missing_ = part.Units;
    }

    void put(std::size_t s) {
        isIn_[s] = true;
        effect_[s] = 0;
        for (const std::uint32_t u : index_.unitList(s)) {
            if (++owners_[u] == 1) {
                drop(missing_, u);
                change(
                    u, [&](std::size_t t) { return !isIn_[t]; }, -weights_[u]);
                effect_[s] += weights_[u];
            } else if (owners_[u] == 2) {
                change(
                    u, [&](std::size_t t) { return isIn_[t] && t != s; }, -weights_[u]);
            }
        }
    }
    void take(std::size_t s) {
        isIn_[s] = false;
        effect_[s] = 0;
        for (const std::uint32_t u : index_.unitList(s)) {
            if (--owners_[u] == 0) {
                if (has(part_.Units, u)) insert(missing_, u);
                change(
                    u, [&](std::size_t t) { return !isIn_[t] && t != s; }, weights_[u]);
                effect_[s] += weights_[u];
            } else if (owners_[u] == 1) {
                change(
                    u, [&](std::size_t t) { return isIn_[t]; }, weights_[u]);
            }
        }
    }
    bool coversAll() const { return isEmpty(missing_); }
    /// The species of the suite that is missed least; of equal ones that which stayed longest.
    std::optional<std::size_t> leastMissed(std::optional<std::size_t> butFor) const {
        std::optional<std::size_t> found;
        for (std::size_t s = 0; s < isIn_.size(); ++s) {
            if (!isIn_[s] || s == butFor) continue;
            if (!found || effect_[s] < effect_[*found] ||
                (effect_[s] == effect_[*found] && changedAt_[s] < changedAt_[*found]))
                found = s;
        }
        return found;
    }
    /// The species that adds most of those that cover a missing unit.
    std::optional<std::size_t> bestAddition(std::uint64_t turn, std::optional<std::size_t> butFor) const {
        std::uint64_t skip = turn % count(missing_);
        std::size_t unit = 0;
        forEach(missing_, [&](std::size_t u) {
            if (skip-- == 0) unit = u;
        });
        std::optional<std::size_t> found;
        forEachCommon(index_.speciesOf(unit), part_.Species, [&](std::size_t s) {
            if (s == butFor) return;
            if (!found || effect_[s] > effect_[*found] ||
                (effect_[s] == effect_[*found] && changedAt_[s] < changedAt_[*found]))
                found = s;
        });
        return found;
    }
    void weighMissing() {
        forEach(missing_, [&](std::size_t u) {
            ++weights_[u];
            change(
                u, [](std::size_t) { return true; }, 1);
        });
    }
    void stamp(std::size_t s, std::uint64_t step) { changedAt_[s] = step; }
    Rows rows() const {
        Rows rows;
        for (std::size_t s = 0; s < isIn_.size(); ++s) {
            if (isIn_[s]) rows.push_back(static_cast<std::uint32_t>(s));
        }
        return rows;
    }

private:
    template <class Which>
    void change(std::size_t unit, Which which, std::int64_t by) {
        for (const std::uint32_t t : index_.speciesList(unit)) {
            if (which(t)) effect_[t] += by;
        }
    }

    const CoverIndex& index_;
    const CoverPart& part_;
    std::vector<bool> isIn_;
    std::vector<std::int64_t> effect_;  ///< weight that a species would add, or that would be lost without it
    std::vector<std::uint64_t> changedAt_;
    std::vector<std::int64_t> weights_;  ///< 0 for units that are not asked for
    std::vector<std::size_t> owners_;    ///< species of the suite that cover a unit
    BitSet missing_;
};

/// Numbers that are spread evenly (the Weyl sequence of the golden section), instead of random ones.
std::uint64_t spread(std::uint64_t step) { return (step * 0x9E3779B97F4A7C15U) >> 32; }

}  // namespace

Rows smallSuite(const CoverIndex& index, const CoverPart& part, std::size_t lower, SearchBudget& budget) {
    Rows suite = greedySuite(index, part.Species, part.Units);
    if (suite.size() <= lower) return suite;
    ChangingSuite changing(index, part);
    for (const std::uint32_t row : suite) changing.put(row);
    std::optional<std::size_t> justPut;
    const std::size_t steps = StepsPerSpecies * count(part.Species);
    for (std::uint64_t step = 1; step <= steps && budget.spend(); ++step) {
        while (changing.coversAll()) {
            suite = changing.rows();
            if (suite.size() <= lower) return suite;
            changing.take(*changing.leastMissed(std::nullopt));
        }
        const auto out = changing.leastMissed(justPut);
        if (out) {
            changing.take(*out);
            changing.stamp(*out, step);
        }
        justPut = changing.bestAddition(spread(step), out);
        if (!justPut) justPut = changing.bestAddition(spread(step), std::nullopt);
        changing.put(*justPut);
        changing.stamp(*justPut, step);
        changing.weighMissing();
    }
    return suite;
}

}  // namespace insight
