// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "method/failure.h"
#include "method/landscape.h"
#include "method/levels.h"
#include "method/units.h"

/// Which units a species represents; a suite that holds it covers them.
namespace method {

/// c(s) ≤ level: such a species takes part in the selection. Element s is false for one that is excluded. Throws
/// Failure (Start) at the first status that is no number, a blank one too.
std::vector<bool> eligible(std::span<const double> status, double level);

/// L(u) as the comparison takes it: to the nearest whole number, halves to even. Throws Failure (Start) at the first
/// that is no number or beyond 32 bits.
std::vector<double> wholeThresholds(std::span<const double> thresholds, Quantity quantity);

/// l(s,u) ≥ L(u): habitats and zones. The level is taken as it is. False for a level that is no number.
inline bool represents(double level, double threshold) { return level >= threshold; }

/// The highest M(s,t) of every threat, over all species, excluded ones too, and at least 0. Throws Failure (Selection)
/// at the first score that is no number, threat by threat.
std::vector<double> highestThreatScores(const Table& scores);

/// ρ × max M(·,t) ≤ M(s,t), with the level ρ of threat representation: the score that is needed is `representation`
/// times the highest, in binary doubles and without tolerance.
inline bool representsThreat(double score, double needed) { return needed <= score; }

/// The units that each species represents.
class Coverage {
public:
    /// Habitats and zones; `habitatThresholds` and `zoneThresholds` are whole numbers.
    void load(const Landscape& landscape, std::span<const double> habitatThresholds,
              std::span<const double> zoneThresholds);
    /// Threats, for those species that are eligible.
    void loadThreats(const Table& scores, std::span<const double> highest, double representation,
                     const std::vector<bool>& eligible);

    const UnitLayout& layout() const { return layout_; }
    std::span<const Word> of(std::size_t species) const { return sets_.row(species); }
    /// Calls `visit` with every species that represents the unit.
    template <class Visit>
    void forEachRepresenting(Unit kind, std::size_t unit, Visit visit) const {
        const std::span<const Word> species = representing_[kind].row(unit);
        for (std::size_t w = 0; w < species.size(); ++w) forEachBit(species[w], w * WordBits, visit);
    }

private:
    void turn(Unit kind);

    UnitLayout layout_;
    BitTable sets_;                   ///< the units of each species
    PerKind<BitTable> representing_;  ///< the species of each unit
};

}  // namespace method
