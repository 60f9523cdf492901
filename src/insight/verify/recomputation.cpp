// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verify/recomputation.h"

#include <algorithm>
#include <limits>

namespace insight {

namespace {

constexpr int Decimals = 3;
constexpr std::size_t ThreatKind = 2;

double shown(double value) { return needed(method::shownTo(value, Decimals), "a score"); }

/// The highest score for each threat, at least 0, over all species.
std::vector<double> highestOf(const method::Table& scores) {
    std::vector<double> highest(scores.columns(), 0);
    for (std::size_t s = 0; s < scores.rows(); ++s) {
        for (std::size_t t = 0; t < scores.columns(); ++t)
            highest[t] = std::max(highest[t], needed(scores.at(s, t), "a threat score"));
    }
    return highest;
}

}  // namespace

Recomputation::Recomputation(const method::Landscape& landscape, const method::Levels& levels)
    : landscape_(landscape),
      levels_(levels),
      scores_(recomputeScores(landscape)),
      highestThreats_(highestOf(scores_.Threats)),
      units_{landscape.habitats(), landscape.zones(), landscape.threats()},
      gone_(landscape.species()) {
    for (std::size_t s = 0; s < landscape.species(); ++s) {
        if (landscape.Status[s] <= levels.ConservationStatus) continue;
        excluded_.push_back(s);
        remove(s);
    }
    for (std::size_t kind = 0; kind < UnitKindCount; ++kind) covered_[kind].resize(units_[kind]);
}

void Recomputation::remove(std::size_t species) {
    gone_[species] = true;
    ++removals_;
}

bool Recomputation::ended() const {
    if (passes_ == 0) return false;
    const bool all = std::all_of(covered_.begin(), covered_.end(), [](const std::vector<bool>& units) {
        return std::find(units.begin(), units.end(), false) == units.end();
    });
    return all || removals_ >= landscape_.species();
}

double Recomputation::level(std::size_t species, std::size_t kind, std::size_t unit) const {
    if (kind == ThreatKind) return scores_.Threats.at(species, unit);
    return (kind == 0 ? landscape_.HabitatLevels : landscape_.ZoneLevels).at(species, unit);
}

double Recomputation::threshold(std::size_t kind, std::size_t unit) const {
    if (kind == ThreatKind) return levels_.ThreatRepresentation * highestThreats_[unit];
    const double entered = (kind == 0 ? landscape_.HabitatThresholds : landscape_.ZoneThresholds)[unit];
    const double whole = method::nearestWhole(needed(entered, "a threshold"));
    using Limits = std::numeric_limits<std::int32_t>;
    if (whole < Limits::min() || whole > Limits::max()) throw RunFailure("a threshold is too large");
    return whole;
}

bool Recomputation::represents(std::size_t species, std::size_t kind, std::size_t unit) const {
    return needed(level(species, kind, unit), "a level of use") >= threshold(kind, unit);
}

Pass Recomputation::nextPass() {
    const bool first = passes_++ == 0;
    Pass pass;
    for (std::size_t s = 0; s < gone_.size(); ++s) {
        if (!gone_[s]) pass.Rows.push_back(rowOf(s, first));
    }
    if (!first) normalise(pass.Rows);
    std::stable_sort(pass.Rows.begin(), pass.Rows.end(),
                     [](const PassRow& a, const PassRow& b) { return a.Aggregate > b.Aggregate; });
    if (!first) omit(pass.Rows);
    const auto best = std::find_if(pass.Rows.begin(), pass.Rows.end(),
                                   [&](const PassRow& row) { return !gone_[row.Species]; });
    if (best == pass.Rows.end()) throw RunFailure("no species is left to pick");
    pass.Top = static_cast<std::size_t>(best - pass.Rows.begin());
    findMargin(pass);
    permit(pass);
    return pass;
}

/// Of a later pass: heterogeneity and vulnerability are not yet scaled.
PassRow Recomputation::rowOf(std::size_t species, bool first) {
    PassRow row;
    row.Species = species;
    row.Aggregate = scores_.Aggregates[species];
    const std::span<const double> scores = scores_.Normalised.row(species);
    std::copy(scores.begin(), scores.end(), row.Scores.begin());
    for (std::size_t kind = 0; kind < UnitKindCount; ++kind) {
        for (std::size_t unit = 0; unit < units_[kind]; ++unit) {
            if (represents(species, kind, unit) && !covered_[kind][unit]) ++row.Adds[kind];
        }
    }
    if (first) return row;
    const std::array left = {heterogeneityLeft(species), vulnerabilityLeft(species)};
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (left[i] > highestLeft_[i]) highestLeft_[i] = method::roundTo(left[i], Decimals);
    }
    row.Scores[HeterogeneityColumn] = shown(left[0]);
    row.Scores[VulnerabilityColumn] = shown(left[1]);
    return row;
}

double Recomputation::heterogeneityLeft(std::size_t species) const {
    std::array<double, 2> sums{};
    for (std::size_t kind = 0; kind < sums.size(); ++kind) {
        for (std::size_t unit = 0; unit < units_[kind]; ++unit) {
            if (!covered_[kind][unit]) sums[kind] += level(species, kind, unit);
        }
    }
    return needed(sums[0] + sums[0] + sums[1], "a level of use");
}

double Recomputation::vulnerabilityLeft(std::size_t species) const {
    const method::ThreatRatings& ratings = landscape_.Ratings;
    double sum = 0;
    for (std::size_t t = 0; t < units_[ThreatKind]; ++t) {
        if (covered_[ThreatKind][t]) continue;
        sum += needed(pairScore(ratings.Urgency.at(species, t), ratings.Recovery.at(species, t),
                                ratings.Severity.at(species, t), ratings.Proportion.at(species, t),
                                ratings.Probability.at(species, t)),
                      "a rating");
    }
    return needed((1 - landscape_.Status[species]) + sum, "a sum of threat scores");
}

void Recomputation::normalise(std::vector<PassRow>& rows) const {
    const auto scaled = [](double score, double highest) { return highest > 0 ? shown(score / highest) : 0; };
    for (PassRow& row : rows) {
        double& heterogeneity = row.Scores[HeterogeneityColumn];
        double& vulnerability = row.Scores[VulnerabilityColumn];
        heterogeneity = scaled(heterogeneity, highestLeft_[0]);
        vulnerability = scaled(vulnerability, highestLeft_[1]);
        row.Aggregate = shown(heterogeneity + vulnerability + row.Scores[AreaColumn] +
                              row.Scores[FunctionColumn] + row.Scores[SocioColumn]);
    }
}

void Recomputation::omit(std::vector<PassRow>& rows) {
    for (PassRow& row : rows) {
        if (!row.addsNothing()) continue;
        row.Omitted = true;
        remove(row.Species);
    }
}

/// Once all but one were removed the margin is not looked at any more, and the count of an earlier pass stays.
void Recomputation::findMargin(Pass& pass) {
    pass.Rows[pass.Top].WithinMargin = true;
    if (removals_ + 1 >= landscape_.species()) return;
    const double best = pass.Rows[pass.Top].Aggregate;
    const double band = levels_.Margin / 100 * best;
    marginCount_ = 0;
    for (std::size_t r = pass.Top + 1; r < pass.Rows.size(); ++r) {
        PassRow& row = pass.Rows[r];
        if (best - row.Aggregate > band) continue;
        ++marginCount_;
        row.WithinMargin = !row.Omitted;
    }
}

/// Where somebody is asked, every row from the best one on that the count reaches can be named by its number, and a wrong
/// answer takes the first row. The other answers come to one of these.
void Recomputation::permit(Pass& pass) const {
    pass.Rows[pass.Top].Permitted = true;
    if (marginCount_ == 0) return;
    const std::size_t last = pass.Top + marginCount_;
    if (last >= pass.Rows.size()) throw RunFailure("the margin of an earlier pass reaches past this one");
    const auto end = pass.Rows.begin() + static_cast<std::ptrdiff_t>(last) + 1;
    const auto first = pass.Rows.begin() + static_cast<std::ptrdiff_t>(pass.Top);
    const auto offered = std::count_if(first, end, [](const PassRow& row) { return !row.Omitted; });
    if (offered < 2) return;
    pass.Rows.front().Permitted = true;
    std::for_each(first, end, [](PassRow& row) { row.Permitted = true; });
}

void Recomputation::pick(const PassRow& row) {
    remove(row.Species);
    for (std::size_t kind = 0; kind < UnitKindCount; ++kind) {
        for (std::size_t unit = 0; unit < units_[kind]; ++unit) {
            if (represents(row.Species, kind, unit)) covered_[kind][unit] = true;
        }
    }
}

std::vector<std::size_t> Recomputation::uncovered(std::size_t kind) const {
    std::vector<std::size_t> units;
    for (std::size_t unit = 0; unit < units_[kind]; ++unit) {
        if (!covered_[kind][unit]) units.push_back(unit);
    }
    return units;
}

}  // namespace insight
