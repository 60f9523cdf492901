// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/remainder.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "method/failure.h"
#include "method/vulnerability.h"

namespace method {

namespace {

/// Multiples of 2⁻²⁰ below 2¹²: up to two million of them sum up without rounding, in any order.
bool isExact(double value) {
    constexpr double Limit = 0x1p12;
    constexpr double Parts = 0x1p20;
    return std::abs(value) < Limit && value * Parts == nearestWhole(value * Parts);
}

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
    loadThreatScores();
    uses_ = BitTable(landscape.species(), layout.words());
    all_.assign(landscape.species(), {});
    for (const Unit kind : UnitKinds) {
        for (std::size_t s = 0; s < landscape.species(); ++s) loadSums(kind, s);
        loadUsers(kind);
    }
    reset();
}

void Remainder::loadThreatScores() {
    const ThreatRatings& ratings = landscape_->Ratings;
    if (threatScores_.rows() != ratings.species() || threatScores_.columns() != ratings.threats())
        threatScores_ = Table(ratings.species(), ratings.threats());
    for (std::size_t s = 0; s < ratings.species(); ++s) {
        const std::span<double> scores = threatScores_.row(s);
        const auto urgency = ratings.Urgency.row(s);
        const auto recovery = ratings.Recovery.row(s);
        const auto severity = ratings.Severity.row(s);
        const auto proportion = ratings.Proportion.row(s);
        const auto probability = ratings.Probability.row(s);
        for (std::size_t t = 0; t < scores.size(); ++t)
            scores[t] = threatScore(urgency[t], recovery[t], severity[t], proportion[t], probability[t]);
    }
}

void Remainder::loadSums(Unit kind, std::size_t species) {
    const std::span<const double> row = values(kind).row(species);
    const std::span<Word> uses = layout_.part(uses_.row(species), kind).words();
    double sum = 0;
    bool exact = true;
    for (std::size_t w = 0; w < uses.size(); ++w) {
        const std::size_t first = w * WordBits;
        const std::size_t count = std::min(WordBits, row.size() - first);
        Word word = 0;
        for (std::size_t bit = 0; bit < count; ++bit) word |= Word{row[first + bit] != 0} << bit;
        uses[w] = word;
        forEachBit(word, first, [&](std::size_t unit) {
            sum += row[unit];
            exact = exact && isExact(row[unit]);
        });
    }
    all_[species].Sum[kind] = sum;
    all_[species].Exact[kind] = exact;
}

void Remainder::loadUsers(Unit kind) {
    const auto eachUse = [&](auto visit) {
        for (std::size_t s = 0; s < all_.size(); ++s) {
            const std::span<const Word> uses = layout_.part(std::as_const(uses_).row(s), kind).words();
            for (std::size_t w = 0; w < uses.size(); ++w)
                forEachBit(uses[w], w * WordBits, [&](std::size_t unit) { visit(s, unit); });
        }
    };
    std::vector<std::size_t>& first = firstUser_[kind];
    first.assign(layout_.units(kind) + 2, 0);
    eachUse([&](std::size_t, std::size_t unit) { ++first[unit + 2]; });
    std::partial_sum(first.begin(), first.end(), first.begin());
    users_[kind].resize(first.back());
    eachUse([&](std::size_t s, std::size_t unit) {
        users_[kind][first[unit + 1]++] = {values(kind).at(s, unit), static_cast<std::uint32_t>(s)};
    });
}

double Remainder::sumLeft(Unit kind, std::size_t species, std::span<const Word> covered) const {
    const std::span<const Word> uses = uses_.row(species);
    const std::span<const double> row = values(kind).row(species);
    double sum = 0;
    for (std::size_t w = layout_.begin(kind); w < layout_.end(kind); ++w) {
        forEachBit(uses[w] & ~covered[w], (w - layout_.begin(kind)) * WordBits,
                   [&](std::size_t unit) { sum += row[unit]; });
    }
    return sum;
}

void Remainder::cover(Unit kind, std::size_t unit) {
    const std::size_t first = firstUser_[kind][unit];
    const std::size_t count = firstUser_[kind][unit + 1] - first;
    for (const User& user : std::span(users_[kind]).subspan(first, count)) {
        Sums& left = left_[user.Species];
        left.Changed = true;
        if (left.Exact[kind]) {
            left.Sum[kind] -= user.Value;
        } else {
            left.Stale[kind] = true;
        }
    }
}

bool Remainder::refresh(std::size_t species, std::span<const Word> covered) {
    Sums& left = left_[species];
    if (!left.Changed) return false;
    left.Changed = false;
    for (const Unit kind : UnitKinds) {
        if (!left.Stale[kind]) continue;
        left.Sum[kind] = sumLeft(kind, species, covered);
        left.Stale[kind] = false;
    }
    return true;
}

double Remainder::vulnerability(std::size_t species, std::span<const Word> covered) const {
    const double status = landscape_->Status[species];
    const double score = (1 - status) + left_[species].Sum[Unit::Threat];
    if (std::isfinite(all_[species].Sum[Unit::Threat]) && std::isfinite(score)) return score;
    return vulnerabilityLeft(landscape_->Ratings, status, layout_.part(covered, Unit::Threat), species);
}

}  // namespace method
