// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verify/recomputed_scores.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <string>

namespace insight {

namespace {

using method::Landscape;
using method::Table;

constexpr int ScoreDecimals = 3;
constexpr int ThreatDecimals = 2;

/// A table's cell after a value that may be too large for it: then it stays blank.
double cellAfter(double value) {
    const double shown = method::shownTo(value, ThreatDecimals);
    return std::isfinite(shown) ? shown : method::Blank;
}

/// Ratings are read with faults passed over: what cannot be read leaves the value of the pair before.
void readRating(double cell, double& rating) {
    if (method::isBlank(cell)) rating = 0;
    if (method::isNumber(cell)) rating = cell;
}

struct ThreatTables {
    Table Scores;                   ///< species × threats
    std::vector<double> BySpecies;  ///< sums of scores that were not rounded
};

ThreatTables threatTables(const method::ThreatRatings& ratings) {
    ThreatTables tables{Table(ratings.species(), ratings.threats()), {}};
    std::array<double, 5> pair{};
    double score = 0;
    for (std::size_t s = 0; s < ratings.species(); ++s) {
        double total = 0;
        for (std::size_t t = 0; t < ratings.threats(); ++t) {
            readRating(ratings.Urgency.at(s, t), pair[0]);
            readRating(ratings.Recovery.at(s, t), pair[1]);
            readRating(ratings.Severity.at(s, t), pair[2]);
            readRating(ratings.Proportion.at(s, t), pair[3]);
            readRating(ratings.Probability.at(s, t), pair[4]);
            const double product = pairScore(pair[0], pair[1], pair[2], pair[3], pair[4]);
            if (std::isfinite(product)) score = product;
            if (std::isfinite(total + score)) total += score;
            tables.Scores.at(s, t) = cellAfter(score);
        }
        tables.BySpecies.push_back(cellAfter(total));
    }
    return tables;
}

/// Home ranges from 0 to 3, that of the largest area or the last class.
std::vector<double> homeRanges(const method::HomeRanges& ranges) {
    const bool areas = ranges.In == method::HomeRanges::Kind::Areas;
    std::vector<double> values;
    double highest = areas ? 0 : static_cast<double>(ranges.Classes);
    double lastClass = 0;
    for (const double value : ranges.Values) {
        if (method::isBlank(value)) {
            values.push_back(0);
        } else if (areas) {
            values.push_back(needed(value, "a home range"));
            highest = std::max(highest, value);
        } else {
            if (method::isNumber(value)) lastClass = value;
            values.push_back(lastClass);
        }
    }
    for (double& value : values) value = highest > 0 ? value * 3 / highest : 0;
    return values;
}

double sumOf(std::span<const double> values, const char* what) {
    double sum = 0;
    for (const double value : values) sum += needed(value, what);
    return needed(sum, what);
}

double shownScore(double value) { return needed(method::shownTo(value, ScoreDecimals), "a score"); }

/// The scores before normalisation, not rounded: species × ScoreColumns.
Table rawScores(const Landscape& land, const std::vector<double>& threatTotals) {
    const std::vector<double> ranges = homeRanges(land.Ranges);
    Table raw(land.species(), ScoreColumns);
    for (std::size_t s = 0; s < land.species(); ++s) {
        const double habitats = sumOf(land.HabitatLevels.row(s), "a level of use");
        const double zones = sumOf(land.ZoneLevels.row(s), "a level of use");
        raw.at(s, HeterogeneityColumn) = needed(habitats + habitats + zones, "a level of use");
        double area = 0;
        if (land.Dispersal[s] != 0) area += 1;
        if (land.Connectivity[s] != 0) area += 1;
        area += ranges[s];
        raw.at(s, AreaColumn) = needed(area + land.Occupied[s], "a proportion occupied");
        const double left = 1 - needed(land.Status[s], "a conservation status");
        raw.at(s, VulnerabilityColumn) = needed(left + threatTotals[s], "a sum of threat scores");
        raw.at(s, FunctionColumn) = sumOf(land.Functions.row(s), "a function");
        raw.at(s, SocioColumn) = sumOf(land.SocioEconomics.row(s), "a socio-economic value");
    }
    return raw;
}

/// The table of scores before normalisation shows the first three rounded and the others with all the digits of a text;
/// the cell is divided by the highest score as it was before.
Table normalisedScores(const Table& raw) {
    Table normalised(raw.rows(), ScoreColumns);
    for (std::size_t column = 0; column < ScoreColumns; ++column) {
        const bool isRounded = column <= VulnerabilityColumn;
        double highest = 0;
        for (std::size_t s = 0; s < raw.rows(); ++s) highest = std::max(highest, raw.at(s, column));
        for (std::size_t s = 0; s < raw.rows(); ++s) {
            const double value = raw.at(s, column);
            const double cell = isRounded ? shownScore(value) : method::asWritten(value);
            normalised.at(s, column) = highest > 0 ? shownScore(cell / highest) : 0;
        }
    }
    return normalised;
}

}  // namespace

double needed(double value, const char* what) {
    if (!method::isNumber(value)) throw RunFailure(std::string(what) + " is no number");
    if (!std::isfinite(value)) throw RunFailure(std::string(what) + " is too large");
    return value;
}

double pairScore(double urgency, double recovery, double severity, double proportion, double probability) {
    return (urgency + recovery) * severity * proportion * probability;
}

RecomputedScores recomputeScores(const Landscape& landscape) {
    ThreatTables threats = threatTables(landscape.Ratings);
    RecomputedScores scores;
    scores.Threats = std::move(threats.Scores);
    scores.Normalised = normalisedScores(rawScores(landscape, threats.BySpecies));
    std::vector<double> sums;
    for (std::size_t s = 0; s < landscape.species(); ++s) {
        const std::span<const double> row = scores.Normalised.row(s);
        sums.push_back(std::accumulate(row.begin(), row.end(), 0.0));
        scores.Aggregates.push_back(shownScore(sums.back()));
    }
    scores.ByRank.resize(landscape.species());
    std::iota(scores.ByRank.begin(), scores.ByRank.end(), std::size_t{0});
    std::sort(scores.ByRank.begin(), scores.ByRank.end(),
              [&](std::size_t a, std::size_t b) { return sums[a] != sums[b] ? sums[a] > sums[b] : a > b; });
    return scores;
}

}  // namespace insight
