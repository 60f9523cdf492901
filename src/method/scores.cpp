// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/scores.h"

#include <algorithm>
#include <numeric>

#include "method/failure.h"

namespace method {

namespace {

constexpr double HomeRangeTop = 3;

/// What is being computed, for whoever must tell where it failed.
struct Place {
    Step At;
    Quantity What;
    std::size_t Species;
    std::size_t Column = 0;
};

double finite(double value, const Place& place) {
    if (!std::isfinite(value))
        throw Failure(place.At, Cause::TooLarge, place.What, place.Species, place.Column);
    return value;
}

double number(double value, const Place& place) {
    if (!isNumber(value)) throw Failure(place.At, Cause::NoNumber, place.What, place.Species, place.Column);
    return value;
}

double sumOf(std::span<const double> values, Place place) {
    double sum = 0;
    for (place.Column = 0; place.Column < values.size(); ++place.Column)
        sum += number(values[place.Column], place);
    return sum;
}

/// Areas as they are, classes by their number.
std::vector<double> unscaled(const HomeRanges& ranges) {
    std::vector<double> values;
    values.reserve(ranges.Values.size());
    double lastClass = 0;
    for (std::size_t s = 0; s < ranges.Values.size(); ++s) {
        const double value = ranges.Values[s];
        if (isBlank(value)) {
            values.push_back(0);
        } else if (ranges.In == HomeRanges::Kind::Areas) {
            values.push_back(number(value, {Step::HomeRangeScale, Quantity::HomeRange, s}));
        } else {
            if (isNumber(value)) lastClass = value;
            values.push_back(lastClass);
        }
    }
    return values;
}

double rounded(double score, std::size_t species, std::size_t criterion) {
    return finite(shownTo(score, ScorePlaces), {Step::Normalisation, Quantity::Score, species, criterion});
}

CriterionScores rawScores(const Landscape& land, double threatTotal, double scaledHomeRange, std::size_t s) {
    CriterionScores scores;
    scores[Criterion::Heterogeneity] = heterogeneity(land.HabitatLevels.row(s), land.ZoneLevels.row(s), s);
    scores[Criterion::Area] =
        areaScore(land.Dispersal[s] != 0, land.Connectivity[s] != 0, scaledHomeRange, land.Occupied[s], s);
    scores[Criterion::Vulnerability] = vulnerability(land.Status[s], threatTotal, s);
    scores[Criterion::Functionality] = functionality(land.Functions.row(s), s);
    scores[Criterion::SocioEconomics] = socioEconomics(land.SocioEconomics.row(s), s);
    return scores;
}

void keepHighest(CriterionScores& highest, const CriterionScores& scores) {
    for (std::size_t i = 0; i < Criteria; ++i) highest[i] = std::max(highest[i], scores[i]);
}

/// The first three are rounded.
void show(const CriterionScores& scores, std::size_t species, CriterionScores& shown) {
    for (const Criterion criterion : {Criterion::Heterogeneity, Criterion::Area, Criterion::Vulnerability})
        shown[criterion] = rounded(scores[criterion], species, static_cast<std::size_t>(criterion));
    for (const Criterion criterion : {Criterion::Functionality, Criterion::SocioEconomics})
        shown[criterion] = scores[criterion];
}

/// The numerator is the score as shown, the divisor the highest before rounding.
void normalise(const CriterionScores& original, const CriterionScores& highest, std::size_t species,
               CriterionScores& normalised) {
    for (std::size_t i = 0; i < Criteria; ++i)
        normalised[i] = highest[i] <= 0 ? 0 : rounded(asWritten(original[i]) / highest[i], species, i);
}

double sumOf(const CriterionScores& scores) {
    double sum = 0;
    for (std::size_t i = 0; i < Criteria; ++i) sum += scores[i];
    return sum;
}

}  // namespace

std::vector<double> scaleHomeRanges(const HomeRanges& ranges) {
    std::vector<double> scaled = unscaled(ranges);
    double highest = 0;
    if (ranges.In == HomeRanges::Kind::Classes) {
        highest = static_cast<double>(ranges.Classes);
    } else {
        for (const double area : scaled) highest = std::max(highest, area);
    }
    for (std::size_t s = 0; s < scaled.size(); ++s) {
        scaled[s] = highest > 0 ? finite(scaled[s] * HomeRangeTop / highest,
                                         {Step::HomeRangeScale, Quantity::HomeRange, s})
                                : 0;
    }
    return scaled;
}

double heterogeneity(std::span<const double> habitatLevels, std::span<const double> zoneLevels,
                     std::size_t species) {
    const double habitats = sumOf(habitatLevels, {Step::Heterogeneity, Quantity::HabitatLevel, species});
    const double zones = sumOf(zoneLevels, {Step::Heterogeneity, Quantity::ZoneLevel, species});
    return finite(habitats + habitats + zones, {Step::Heterogeneity, Quantity::HabitatLevel, species});
}

double areaScore(bool dispersal, bool connectivity, double scaledHomeRange, double occupied,
                 std::size_t species) {
    const Place place{Step::Area, Quantity::Occupied, species};
    double score = 0;
    if (dispersal) score += 1;
    if (connectivity) score += 1;
    score += scaledHomeRange;
    return finite(score + number(occupied, place), place);
}

double vulnerability(double status, double threatTotal, std::size_t species) {
    const double left = 1 - number(status, {Step::Vulnerability, Quantity::Status, species});
    const Place total{Step::Vulnerability, Quantity::ThreatTotal, species};
    return finite(left + number(threatTotal, total), total);
}

double functionality(std::span<const double> functions, std::size_t species) {
    const Place place{Step::Functionality, Quantity::Function, species};
    return finite(sumOf(functions, place), place);
}

double socioEconomics(std::span<const double> values, std::size_t species) {
    const Place place{Step::SocioEconomics, Quantity::SocioEconomicValue, species};
    return finite(sumOf(values, place), place);
}

std::vector<int> ranksOf(std::span<const double> values) {
    std::vector<std::size_t> rising(values.size());
    std::iota(rising.begin(), rising.end(), std::size_t{0});
    std::stable_sort(rising.begin(), rising.end(),
                     [&](std::size_t a, std::size_t b) { return values[a] < values[b]; });
    std::vector<int> ranks(values.size());
    for (std::size_t k = 0; k < rising.size(); ++k) ranks[rising[k]] = static_cast<int>(rising.size() - k);
    return ranks;
}

void addSpecies(const CriterionScores& raw, Scores& scores) {
    const std::size_t species = scores.Original.size();
    keepHighest(scores.Highest, raw);
    show(raw, species, scores.Original.emplace_back());
}

void scaleToHighest(Scores& scores) {
    const std::size_t species = scores.Original.size();
    for (std::size_t s = 0; s < species; ++s)
        normalise(scores.Original[s], scores.Highest, s, scores.Normalised.emplace_back());
    for (std::size_t s = 0; s < species; ++s) {
        scores.Sum.push_back(sumOf(scores.Normalised[s]));
        scores.Aggregate.push_back(rounded(scores.Sum[s], s, Criteria));
    }
}

void scoreSpecies(const Landscape& landscape, std::span<const double> threatTotals,
                  std::span<const double> scaledHomeRanges, Scores& scores) {
    const std::size_t species = landscape.species();
    scores = {};
    for (std::size_t s = 0; s < species; ++s)
        addSpecies(rawScores(landscape, threatTotals[s], scaledHomeRanges[s], s), scores);
    scaleToHighest(scores);
    scores.Rank = ranksOf(scores.Sum);
    scores.ByRank.resize(species);
    for (std::size_t s = 0; s < species; ++s) scores.ByRank[static_cast<std::size_t>(scores.Rank[s]) - 1] = s;
}

}  // namespace method
