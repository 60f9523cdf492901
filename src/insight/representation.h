// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "method/units.h"
#include "selection/selection_run.h"

/// Which species represents which unit at the levels of a run: all that the questions about suites start from.
namespace insight {

/// A unit by its kind and its number within the kind, from 0.
struct UnitNumber {
    method::Unit Kind;
    std::size_t Number;
    bool operator==(const UnitNumber&) const = default;
};

/// What the score of a threat must reach: the level of threat representation times the highest score of any species, and
/// at least 0. As method::highestThreatScores, but a score that is no number is passed over.
double neededThreatScore(const method::Table& scores, std::size_t threat, double representation);

/// Units count over all kinds here, from 0: habitats, then zones, then threats.
class Representation {
public:
    /// REQUIRES: a run that came as far as its selection, so that its statuses and thresholds are numbers.
    explicit Representation(const SelectionRun& run);

    std::size_t species() const { return eligible_.size(); }
    std::size_t units() const { return units_.size(); }
    const UnitNumber& unit(std::size_t unit) const { return units_[unit]; }

    /// Whether the species' conservation status is not above the level.
    bool eligible(std::size_t species) const { return eligible_[species]; }
    /// Whether the species represents the unit, be it eligible or not. A level or score that is no number represents
    /// nothing.
    bool covers(std::size_t species, std::size_t unit) const {
        return (covers_.row(species)[unit / method::WordBits] >> (unit % method::WordBits) & 1) != 0;
    }
    /// The units of a species, one bit for each.
    std::span<const method::Word> unitsOf(std::size_t species) const { return covers_.row(species); }
    /// The species that cover a unit, eligible ones or excluded ones, rising.
    std::vector<std::size_t> covering(std::size_t unit, bool eligible) const;
    /// Whether an eligible species covers the unit.
    bool coverable(std::size_t unit) const { return coverable_[unit]; }

    /// What a species must reach: the threshold as a whole number; for a threat its neededThreatScore.
    double needed(std::size_t unit) const { return needed_[unit]; }
    /// The level of use or threat score of a species that is compared with it; may be no number.
    double value(std::size_t species, std::size_t unit) const;

private:
    void findCovers();

    const SelectionRun& run_;
    std::vector<bool> eligible_;
    std::vector<UnitNumber> units_;
    std::vector<double> needed_;
    method::BitTable covers_;
    std::vector<bool> coverable_;
};

}  // namespace insight
