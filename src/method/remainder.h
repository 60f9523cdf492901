// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "method/landscape.h"
#include "method/units.h"

/// The two criterion scores that a selection takes anew in each pass, over the units that no member of the suite covers.
namespace method {

/// H'(s) = Σ l(s,h) + Σ l(s,h) + Σ l(s,z) over the uncovered habitats and zones.
double heterogeneityLeft(double habitatSum, double zoneSum, std::size_t species);

/// V'(s) = (1 - c(s)) + Σ m(s,t) over the uncovered threats, whether or not the species represents them; m is not
/// rounded. Throws Failure (VulnerabilityLeft) at the first rating that is no number, a blank one too.
double vulnerabilityLeft(const ThreatRatings& ratings, double status, UnitSpan<const Word> coveredThreats,
                         std::size_t species);

/// The sums of all species, kept up to date from pass to pass, each in the bits that adding up anew would give: what is
/// 0 is never added, and a sum of whole numbers is the same in any order, so that a covered one can be taken off.
class Remainder {
public:
    /// The landscape must outlive this.
    void load(const Landscape& landscape, const UnitLayout& layout);
    /// Nothing is covered.
    void reset() { left_ = all_; }
    /// The units in `newly` have been added to `covered`. To be called for each species that is still in the race.
    void cover(std::size_t species, std::span<const Word> newly, std::span<const Word> covered);

    /// REQUIRES: the species' levels of use are numbers.
    double heterogeneity(std::size_t species) const {
        return heterogeneityLeft(left_[species].Sum[Unit::Habitat], left_[species].Sum[Unit::Zone], species);
    }
    double vulnerability(std::size_t species, std::span<const Word> covered) const;
    /// Whether all levels of use of the species for this kind are numbers.
    bool numbers(Unit kind, std::size_t species) const { return isNumber(all_[species].Sum[kind]); }

private:
    struct Sums {
        PerKind<double> Sum;
        PerKind<bool> Whole;  ///< all that is added is a whole number, and the sum is exact
    };
    void loadKind(Unit kind, std::span<const double> values, std::size_t species);
    double sumLeft(Unit kind, std::size_t species, std::span<const Word> covered) const;
    const Table& values(Unit kind) const;

    const Landscape* landscape_ = nullptr;
    UnitLayout layout_;
    Table threatScores_;  ///< m(s,t)
    UnitSets uses_;       ///< where the value is not 0
    std::vector<Sums> all_;
    std::vector<Sums> left_;
};

}  // namespace method
