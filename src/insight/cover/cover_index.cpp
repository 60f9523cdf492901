// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/cover_index.h"

namespace insight {

CoverIndex::CoverIndex(const CoverProblem& problem)
    : problem_(problem),
      speciesOf_(problem.Units.size(), method::wordsFor(problem.Species.size())),
      unitLists_(problem.Species.size()),
      speciesLists_(problem.Units.size()) {
    for (std::size_t s = 0; s < species(); ++s) {
        forEach(unitsOf(s), [&](std::size_t u) {
            insert(speciesOf_.row(u), s);
            unitLists_[s].push_back(static_cast<std::uint32_t>(u));
            speciesLists_[u].push_back(static_cast<std::uint32_t>(s));
        });
    }
}

BitSet unitsCovered(const CoverIndex& index, const Rows& rows) {
    BitSet covered(method::wordsFor(index.units()));
    for (const std::uint32_t row : rows) add(covered, index.unitsOf(row));
    return covered;
}

bool coversAll(const CoverIndex& index, const Rows& rows) {
    return unitsCovered(index, rows) == index.allUnits();
}

std::int64_t totalOf(const CoverIndex& index, const Rows& rows) {
    std::int64_t total = 0;
    for (const std::uint32_t row : rows) total += index.total(row);
    return total;
}

}  // namespace insight
