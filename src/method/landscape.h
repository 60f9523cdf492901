// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "method/numbers.h"

/// A landscape as numbers: what is known of the candidate species and of the units that a suite must cover.
///
///     s   a candidate species, 0 to S - 1, in the order of the list
///     h   a habitat type     z   a management zone     t   a threat (a human activity)     each from 0
///     unit   any of the three
///
/// Any value may be Blank or Unreadable. As a rule it then fails in the step that reads it, and in no other. Elsewhere
/// another value stands in for it: see scoreThreats, scaleHomeRanges and use.h.
namespace method {

/// Numbers for each species and item, one row a species.
class Table {
public:
    Table() = default;
    Table(std::size_t rows, std::size_t columns, double value = Blank)
        : rows_(rows), columns_(columns), cells_(rows * columns, value) {}

    std::size_t rows() const { return rows_; }
    std::size_t columns() const { return columns_; }
    double& at(std::size_t row, std::size_t column) { return cells_[row * columns_ + column]; }
    double at(std::size_t row, std::size_t column) const { return cells_[row * columns_ + column]; }
    std::span<double> row(std::size_t row) { return {cells_.data() + row * columns_, columns_}; }
    std::span<const double> row(std::size_t row) const { return {cells_.data() + row * columns_, columns_}; }

private:
    std::size_t rows_ = 0;
    std::size_t columns_ = 0;
    std::vector<double> cells_;
};

/// How a threat touches a species, the higher the worse. Urgency and probability belong to the threat and are the same
/// in each row.
struct ThreatRatings {
    Table Urgency;   ///< u(s,t), 0 to 3: how soon the activity begins; 0 not within 10 years, 3 present
    Table Recovery;  ///< r(s,t), 0 to 3: time to recover; 0 less than a year, 3 over 100 years or never
    Table Severity;  ///< v(s,t), 0 to 3: 0 none or positive, 3 serious
    /// p(s,t), 0 to 4: class of the share of the local distribution that is affected; 0 none, 1 up to 0.1, 2 up to
    /// 0.25, 3 up to 0.5, 4 more.
    Table Proportion;
    Table Probability;  ///< q(s,t), 0 to 1: probability that the activity occurs

    std::size_t species() const { return Severity.rows(); }
    std::size_t threats() const { return Severity.columns(); }
};

/// Home ranges, as areas or as classes from the smallest to the largest.
struct HomeRanges {
    enum class Kind { Areas, Classes };

    Kind In = Kind::Areas;
    std::size_t Classes = 0;  ///< n, where they are classes
    /// a(s) in km², or the number of the class, 1 to n. Blank is no home range and counts 0. An Unreadable class is one
    /// that the list of classes does not have: the species takes the last readable class before it, or 0.
    std::vector<double> Values;
};

struct Landscape {
    Table HabitatLevels;  ///< l(s,h), 0 to 3: how much the species uses the habitat
    Table ZoneLevels;     ///< l(s,z), 0 to 3
    std::vector<double>
        HabitatThresholds;               ///< L(h): level of use from which on the habitat counts as covered
    std::vector<double> ZoneThresholds;  ///< L(z)
    std::vector<double> HabitatAreas;    ///< any unit of area; enter no score, but bound o(s)
    std::vector<double> ZoneAreas;
    ThreatRatings Ratings;
    /// c(s), 0 to 1: current conservation status, the higher the better; Red List categories rise with the threat.
    std::vector<double> Status;
    std::vector<std::uint8_t> Dispersal;     ///< 1 for a species that disperses farther than 10 km, else 0
    std::vector<std::uint8_t> Connectivity;  ///< 1 for a species that needs its habitats connected, else 0
    HomeRanges Ranges;
    std::vector<double> Occupied;  ///< o(s), 0 to 1: proportion of the landscape that the species occupies
    Table Functions;               ///< f(s,i), 0 to 3: effect on ecological function i
    Table SocioEconomics;          ///< e(s,i), 0 to 2: significance in socio-economic category i

    std::size_t species() const { return Status.size(); }
    std::size_t habitats() const { return HabitatLevels.columns(); }
    std::size_t zones() const { return ZoneLevels.columns(); }
    std::size_t threats() const { return Ratings.threats(); }
};

}  // namespace method
