// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/reduction.h"

namespace insight {

namespace {

/// Of units that the same species cover the first stays.
void dropImpliedUnits(const CoverIndex& index, CoverPart& part) {
    const auto implies = [&](std::size_t v, std::size_t u) {
        if (v == u || !has(part.Units, v) || !isSubset(index.speciesOf(v), index.speciesOf(u), part.Species))
            return false;
        return v < u || !isSubset(index.speciesOf(u), index.speciesOf(v), part.Species);
    };
    forEach(BitSet(part.Units), [&](std::size_t u) {
        for (std::size_t v = 0; v < index.units(); ++v) {
            if (!implies(v, u)) continue;
            drop(part.Units, u);
            return;
        }
    });
}

bool dropDominatedSpecies(const CoverIndex& index, CoverPart& part, Domination domination) {
    if (domination == Domination::None) return false;
    bool dropped = false;
    const auto dominates = [&](std::size_t b, std::size_t a) {
        if (a == b || !isSubset(index.unitsOf(a), index.unitsOf(b), part.Units)) return false;
        return yields(index, a, b, isSubset(index.unitsOf(b), index.unitsOf(a), part.Units), domination);
    };
    forEach(BitSet(part.Species), [&](std::size_t a) {
        bool isDominated = false;
        forEach(part.Species, [&](std::size_t b) { isDominated = isDominated || dominates(b, a); });
        if (!isDominated) return;
        drop(part.Species, a);
        dropped = true;
    });
    return dropped;
}

}  // namespace

bool yields(const CoverIndex& index, std::size_t loser, std::size_t winner, bool equal,
            Domination domination) {
    const bool wins = index.total(winner) > index.total(loser);
    const bool draws = index.total(winner) == index.total(loser);
    switch (domination) {
        case Domination::None: return false;
        case Domination::SameSize: return !equal || winner < loser;
        case Domination::NoLessTotal: return wins || (draws && (!equal || winner < loser));
        case Domination::BestThenFirst: return wins || (draws && winner < loser);
    }
    return false;
}

CoverPart reduced(const CoverIndex& index, CoverPart part, Domination domination) {
    do {
        dropImpliedUnits(index, part);
    } while (dropDominatedSpecies(index, part, domination));
    return part;
}

}  // namespace insight
