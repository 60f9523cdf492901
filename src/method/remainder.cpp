// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/remainder.h"

#include <algorithm>

#include "method/failure.h"
#include "method/vulnerability.h"

namespace method {

namespace {

/// So many whole numbers below this sum up below 2^53.
constexpr double SmallWhole = 0x1p32;

bool isSmallWhole(double value) { return std::abs(value) < SmallWhole && value == nearestWhole(value); }

double rating(const Table& ratings, Quantity what, std::size_t species, std::size_t threat) {
    const double value = ratings.at(species, threat);
    if (!isNumber(value)) throw Failure(Step::VulnerabilityLeft, Cause::NoNumber, what, species, threat);
    return value;
}

}  // namespace

double heterogeneityLeft(double habitatSum, double zoneSum, std::size_t species) {
    const double score = habitatSum + habitatSum + zoneSum;
    if (!std::isfinite(score))
        throw Failure(Step::HeterogeneityLeft, Cause::TooLarge, Quantity::HabitatLevel, species);
    return score;
}

double vulnerabilityLeft(const ThreatRatings& ratings, double status, UnitSpan<const Word> coveredThreats,
                         std::size_t species) {
    double sum = 0;
    for (std::size_t t = 0; t < ratings.threats(); ++t) {
        if (coveredThreats.has(t)) continue;
        const double urgency = rating(ratings.Urgency, Quantity::Urgency, species, t);
        const double recovery = rating(ratings.Recovery, Quantity::Recovery, species, t);
        const double severity = rating(ratings.Severity, Quantity::Severity, species, t);
        const double proportion = rating(ratings.Proportion, Quantity::Proportion, species, t);
        const double probability = rating(ratings.Probability, Quantity::Probability, species, t);
        sum += threatScore(urgency, recovery, severity, proportion, probability);
    }
    const double score = (1 - status) + sum;
    if (!std::isfinite(score))
        throw Failure(Step::VulnerabilityLeft, Cause::TooLarge, Quantity::ThreatScore, species);
    return score;
}

const Table& Remainder::values(Unit kind) const {
    if (kind == Unit::Habitat) return landscape_->HabitatLevels;
    if (kind == Unit::Zone) return landscape_->ZoneLevels;
    return threatScores_;
}

void Remainder::load(const Landscape& landscape, const UnitLayout& layout) {
    landscape_ = &landscape;
    layout_ = layout;
    const std::size_t species = landscape.species();
    const ThreatRatings& ratings = landscape.Ratings;
    if (threatScores_.rows() != species || threatScores_.columns() != ratings.threats())
        threatScores_ = Table(species, ratings.threats());
    uses_ = UnitSets(species, layout);
    all_.assign(species, {});
    for (std::size_t s = 0; s < species; ++s) {
        const std::span<double> scores = threatScores_.row(s);
        const auto urgency = ratings.Urgency.row(s);
        const auto recovery = ratings.Recovery.row(s);
        const auto severity = ratings.Severity.row(s);
        const auto proportion = ratings.Proportion.row(s);
        const auto probability = ratings.Probability.row(s);
        for (std::size_t t = 0; t < scores.size(); ++t)
            scores[t] = threatScore(urgency[t], recovery[t], severity[t], proportion[t], probability[t]);
        for (const Unit kind : UnitKinds) loadKind(kind, values(kind).row(s), s);
    }
    reset();
}

void Remainder::loadKind(Unit kind, std::span<const double> values, std::size_t species) {
    const std::span<Word> uses = layout_.part(uses_.row(species), kind).words();
    double sum = 0;
    bool whole = true;
    for (std::size_t w = 0; w < uses.size(); ++w) {
        const std::size_t first = w * WordBits;
        const std::size_t count = std::min(WordBits, values.size() - first);
        Word word = 0;
        for (std::size_t bit = 0; bit < count; ++bit) {
            const double value = values[first + bit];
            word |= Word{value != 0} << bit;
            whole = whole && isSmallWhole(value);
            sum += value;
        }
        uses[w] = word;
    }
    all_[species].Sum[kind] = sum;
    all_[species].Whole[kind] = whole;
}

double Remainder::sumLeft(Unit kind, std::size_t species, std::span<const Word> covered) const {
    const std::span<const Word> uses = uses_.row(species);
    const std::span<const double> row = values(kind).row(species);
    double sum = 0;
    for (std::size_t w = layout_.begin(kind); w < layout_.end(kind); ++w) {
        forEachUnit(uses[w] & ~covered[w], (w - layout_.begin(kind)) * WordBits,
                    [&](std::size_t unit) { sum += row[unit]; });
    }
    return sum;
}

void Remainder::cover(std::size_t species, std::span<const Word> newly, std::span<const Word> covered) {
    const std::span<const Word> uses = uses_.row(species);
    Sums& left = left_[species];
    for (const Unit kind : UnitKinds) {
        bool inOrder = false;
        for (std::size_t w = layout_.begin(kind); w < layout_.end(kind); ++w) {
            const Word hit = uses[w] & newly[w];
            if (hit == 0) continue;
            if (!left.Whole[kind]) {
                inOrder = true;
                break;
            }
            const std::span<const double> row = values(kind).row(species);
            forEachUnit(hit, (w - layout_.begin(kind)) * WordBits,
                        [&](std::size_t unit) { left.Sum[kind] -= row[unit]; });
        }
        if (inOrder) left.Sum[kind] = sumLeft(kind, species, covered);
    }
}

double Remainder::vulnerability(std::size_t species, std::span<const Word> covered) const {
    const double status = landscape_->Status[species];
    const double score = (1 - status) + left_[species].Sum[Unit::Threat];
    if (std::isfinite(all_[species].Sum[Unit::Threat]) && std::isfinite(score)) return score;
    return vulnerabilityLeft(landscape_->Ratings, status, layout_.part(covered, Unit::Threat), species);
}

}  // namespace method
