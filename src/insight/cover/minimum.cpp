// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/minimum.h"

#include <algorithm>
#include <optional>

#include "insight/cover/disjoint_units.h"
#include "insight/cover/local_search.h"

namespace insight {

namespace {

/// What is always spent on a witness, in looks at a unit of a species; it decides nearly always.
constexpr std::uint64_t LooksForWitness = 200'000'000;

std::optional<Rows> findWitness(const CoverIndex& index, const CoverPart& part, std::size_t wanted,
                                SearchBudget& budget) {
    const SearchEffort effort = {.Nodes = LooksForWitness / (index.species() * index.units())};
    SearchBudget own(effort);
    auto witness = disjointUnits(index, part, wanted, own);
    return !witness && own.isOver() ? disjointUnits(index, part, wanted, budget) : witness;
}

void prove(const CoverIndex& index, const CoverPart& part, const UnitWeights& linear, SearchBudget& budget,
           MinimumAnswer& answer) {
    const std::size_t lower = answer.Known.Lower;
    if (auto witness = findWitness(index, part, lower, budget)) {
        answer.By = Proof::Witness;
        answer.Witness = *witness;
    } else if (linear.Bound == lower) {
        answer.By = Proof::Weights;
        answer.Weights = linear;
    } else {
        answer.By = Proof::Search;
    }
}

}  // namespace

MinimumAnswer findMinimum(const CoverIndex& index, const RunSuite& run, SearchBudget& budget) {
    MinimumAnswer answer;
    SmallestSuite& known = answer.Known;
    const CoverPart all = {index.allSpecies(), index.allUnits()};
    known.Suite = run.Complete ? run.Pruned : greedySuite(index, all.Species, all.Units);
    if (index.units() == 0) {
        answer.BestIsProven = true;
        return answer;
    }
    const CoverPart part = reduced(index, all, Domination::SameSize);
    const UnitWeights linear = linearBound(index, part, budget);
    known.Lower = std::max<std::size_t>(linear.Bound, 1);
    budget.reached(known.Lower, known.upper());
    const Rows small = smallSuite(index, part, known.Lower, budget);
    if (small.size() < known.upper()) known.Suite = small;
    SharedSearch search(index, budget);
    narrow(search, part, known, budget);
    if (known.isProven()) answer.BestIsProven = findBestTotal(search, index, all, known.Suite);
    prove(index, part, linear, budget, answer);
    return answer;
}

}  // namespace insight
