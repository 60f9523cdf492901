// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/run_suite.h"

#include <algorithm>
#include <tuple>

namespace insight {

namespace {

Rows pruned(const CoverIndex& index, Rows suite) {
    std::sort(suite.begin(), suite.end(), [&](std::uint32_t a, std::uint32_t b) {
        return std::tuple(index.total(a), a) < std::tuple(index.total(b), b);
    });
    for (std::size_t i = 0; i < suite.size();) {
        if (isEmpty(lostWithout(index, suite, suite[i]))) {
            suite.erase(suite.begin() + static_cast<std::ptrdiff_t>(i));
        } else {
            ++i;
        }
    }
    std::sort(suite.begin(), suite.end());
    return suite;
}

}  // namespace

BitSet lostWithout(const CoverIndex& index, const Rows& rows, std::uint32_t row) {
    const Bits units = index.unitsOf(row);
    BitSet lost(units.begin(), units.end());
    for (const std::uint32_t other : rows) {
        if (other != row) remove(lost, index.unitsOf(other));
    }
    return lost;
}

RunSuite runSuite(const SelectionRun& run, const CoverIndex& index) {
    RunSuite suite;
    const std::vector<std::size_t>& species = index.problem().Species;
    for (const method::Pick& pick : run.Outcome.Suite.Picks) {
        const auto place = std::lower_bound(species.begin(), species.end(), pick.Species);
        suite.Picks.push_back(static_cast<std::uint32_t>(place - species.begin()));
    }
    suite.Complete = coversAll(index, suite.Picks);
    for (const std::uint32_t row : suite.Picks) {
        if (isEmpty(lostWithout(index, suite.Picks, row))) suite.Redundant.push_back(row);
    }
    std::sort(suite.Redundant.begin(), suite.Redundant.end());
    suite.Pruned = pruned(index, suite.Picks);
    return suite;
}

Rows greedySuite(const CoverIndex& index, BitSet species, BitSet units) {
    Rows suite;
    while (!isEmpty(units)) {
        std::tuple<std::size_t, std::int64_t> most;
        std::size_t best = 0;
        forEach(species, [&](std::size_t s) {
            const std::tuple adds(countCommon(index.unitsOf(s), units), index.total(s));
            if (std::get<0>(adds) == 0 || (std::get<0>(most) > 0 && adds <= most)) return;
            most = adds;
            best = s;
        });
        suite.push_back(static_cast<std::uint32_t>(best));
        remove(units, index.unitsOf(best));
    }
    std::sort(suite.begin(), suite.end());
    return suite;
}

}  // namespace insight
