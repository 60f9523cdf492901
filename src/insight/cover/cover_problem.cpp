// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/cover_problem.h"

#include <algorithm>
#include <cmath>

#include "insight/cover/bit_set.h"
#include "method/numbers.h"

namespace insight {

namespace {

constexpr double LargestAggregate = 1e9;

std::int64_t thousandthsOf(double aggregate) {
    if (!method::isNumber(aggregate)) return 0;
    return std::llround(std::clamp(aggregate, -LargestAggregate, LargestAggregate) * 1000);
}

}  // namespace

CoverProblem coverProblem(const SelectionRun& run, const Representation& representation) {
    CoverProblem problem;
    std::vector<std::size_t> coverable;
    for (std::size_t u = 0; u < representation.units(); ++u) {
        if (!representation.coverable(u)) continue;
        coverable.push_back(u);
        problem.Units.push_back(representation.unit(u));
    }
    for (std::size_t s = 0; s < representation.species(); ++s) {
        if (!representation.eligible(s)) continue;
        problem.Species.push_back(s);
        problem.Aggregates.push_back(thousandthsOf(run.Aggregates[s]));
    }
    problem.Covers = method::BitTable(problem.Species.size(), method::wordsFor(problem.Units.size()));
    for (std::size_t row = 0; row < problem.Species.size(); ++row) {
        for (std::size_t bit = 0; bit < coverable.size(); ++bit) {
            if (representation.covers(problem.Species[row], coverable[bit]))
                insert(problem.Covers.row(row), bit);
        }
    }
    return problem;
}

}  // namespace insight
