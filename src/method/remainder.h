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

/// The sums of all species, kept up to date from pass to pass, bit-identical to fresh sums: it subtracts what was
/// covered where sums are exact in any order, else adds up again. What is 0 changes no sum.
class Remainder {
public:
    /// The landscape must outlive this.
    void load(const Landscape& landscape, const UnitLayout& layout);
    /// Nothing is covered, and no species is up to date.
    void reset() { left_ = all_; }
    /// The unit is covered from now on.
    void cover(Unit kind, std::size_t unit);
    /// Brings the sums of the species up to date; `covered` are all units that cover() was told. False where nothing has
    /// changed since the last time.
    bool refresh(std::size_t species, std::span<const Word> covered);

    /// REQUIRES: refresh(), and levels of use that are numbers.
    double heterogeneity(std::size_t species) const {
        return heterogeneityLeft(left_[species].Sum[Unit::Habitat], left_[species].Sum[Unit::Zone], species);
    }
    double vulnerability(std::size_t species, std::span<const Word> covered) const;
    /// Whether all levels of use of the species for this kind are numbers.
    bool numbers(Unit kind, std::size_t species) const { return isNumber(all_[species].Sum[kind]); }

private:
    struct Sums {
        PerKind<double> Sum;
        PerKind<bool> Exact;  ///< the same in any order
        PerKind<bool> Stale;  ///< to be added up anew
        bool Changed = true;  ///< since the last refresh
    };
    struct User {
        double Value;  ///< not 0
        std::uint32_t Species;
    };
    void loadThreatScores();
    void loadSums(Unit kind, std::size_t species);
    void loadUsers(Unit kind);
    double sumLeft(Unit kind, std::size_t species, std::span<const Word> covered) const;
    const Table& values(Unit kind) const;

    const Landscape* landscape_ = nullptr;
    UnitLayout layout_;
    Table threatScores_;  ///< m(s,t)
    BitTable uses_;       ///< where the value is not 0
    /// The users of each unit, unit by unit: those of unit u are from FirstUser[u] to FirstUser[u + 1].
    PerKind<std::vector<User>> users_;
    PerKind<std::vector<std::size_t>> firstUser_;
    std::vector<Sums> all_;
    std::vector<Sums> left_;
};

}  // namespace method
