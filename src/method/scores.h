// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "method/landscape.h"

/// The five criterion scores of each species, the same scaled to the best species, their sum and the rank.
namespace method {

enum class Criterion : std::size_t { Heterogeneity, Area, Vulnerability, Functionality, SocioEconomics };
inline constexpr std::size_t Criteria = 5;
inline constexpr int ScorePlaces = 3;  ///< decimals of every score that a table shows

/// One number for each criterion.
class CriterionScores {
public:
    CriterionScores() : CriterionScores(Blank) {}
    explicit CriterionScores(double each) { scores_.fill(each); }
    double& operator[](Criterion criterion) { return scores_[static_cast<std::size_t>(criterion)]; }
    double operator[](Criterion criterion) const { return scores_[static_cast<std::size_t>(criterion)]; }
    double& operator[](std::size_t criterion) { return scores_[criterion]; }
    double operator[](std::size_t criterion) const { return scores_[criterion]; }

private:
    std::array<double, Criteria> scores_;
};

/// R(s), all home ranges on one scale: 3 × a(s) / max a for areas, 3 × k / n for class k of n; 0 without one, and for
/// all where no area is above 0. A species whose class is Unreadable has the last readable class before it, or 0.
/// Throws Failure (HomeRangeScale) for an Unreadable area.
std::vector<double> scaleHomeRanges(const HomeRanges& ranges);

/// H(s) = Σ l(s,h) + Σ l(s,h) + Σ l(s,z): habitats count twice. Throws Failure for a level that is no number, a blank
/// one too.
double heterogeneity(std::span<const double> habitatLevels, std::span<const double> zoneLevels,
                     std::size_t species);
/// A(s) = dispersal + connectivity + R(s) + o(s). Throws Failure where o(s) is no number.
double areaScore(bool dispersal, bool connectivity, double scaledHomeRange, double occupied,
                 std::size_t species);
/// V(s) = (1 - c(s)) + Σₜ m(s,t), the sum as the table of threat scores holds it. Throws Failure where one of the two is
/// no number.
double vulnerability(double status, double threatTotal, std::size_t species);
/// F(s) and E(s): plain sums. Throw Failure at the first value that is no number.
double functionality(std::span<const double> functions, std::size_t species);
double socioEconomics(std::span<const double> values, std::size_t species);

/// The ranks of some values: 1 for the greatest; of equal ones the later has the better rank. No rank occurs twice.
std::vector<int> ranksOf(std::span<const double> values);

/// The scores of all species, as the tables show them. What has not been computed is Blank or not there.
struct Scores {
    /// Before scaling: H, A, V to 3 decimals, F and E unrounded.
    std::vector<CriterionScores> Original;
    /// The highest of each criterion before rounding, at least 0.
    CriterionScores Highest{0};
    /// (Original, in 15 digits, / Highest), to 3 decimals; 0 where Highest is 0. May exceed 1 where Highest is below 1:
    /// Original is rounded, Highest is not.
    std::vector<CriterionScores> Normalised;
    /// Sum of the five normalised scores, 0 to 5 but for rounding, as the ranks take it: not rounded itself.
    std::vector<double> Sum;
    /// The same to 3 decimals.
    std::vector<double> Aggregate;
    /// Rank of each species, from 1, and the species of each rank (element 0 has rank 1).
    std::vector<int> Rank;
    std::vector<std::size_t> ByRank;
};

/// Takes in the five scores of the next species. Throws Failure (Normalisation) at the first that is too large to be
/// rounded; its row in `scores` then holds those before it.
void addSpecies(const CriterionScores& raw, Scores& scores);
/// Scaling and sums, once every species is in. Throws Failure (Normalisation); `scores` then holds what came before.
void scaleToHighest(Scores& scores);

/// Computes `scores` for all species: addSpecies for one after the other, then scaleToHighest and the ranks.
/// `threatTotals` is Σₜ m(s,t) to 2 decimals. Throws Failure; `scores` then holds what came before.
void scoreSpecies(const Landscape& landscape, std::span<const double> threatTotals,
                  std::span<const double> scaledHomeRanges, Scores& scores);

}  // namespace method
