// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/coverage.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace method {

namespace {

/// Writes one bit for each unit: whether `holds(unit)`.
template <class Holds>
void fill(std::span<Word> words, std::size_t units, Holds holds) {
    for (std::size_t w = 0; w < words.size(); ++w) {
        const std::size_t first = w * WordBits;
        const std::size_t count = std::min(WordBits, units - first);
        Word word = 0;
        for (std::size_t bit = 0; bit < count; ++bit) word |= Word{holds(first + bit)} << bit;
        words[w] = word;
    }
}

void fillLevels(UnitSpan<Word> set, std::span<const double> levels, std::span<const double> thresholds) {
    fill(set.words(), levels.size(), [&](std::size_t u) { return represents(levels[u], thresholds[u]); });
}

[[noreturn]] void failScore(const Table& scores) {
    for (std::size_t t = 0; t < scores.columns(); ++t) {
        for (std::size_t s = 0; s < scores.rows(); ++s) {
            if (!isNumber(scores.at(s, t)))
                throw Failure(Step::Selection, Cause::NoNumber, Quantity::ThreatScore, s, t);
        }
    }
    throw std::logic_error("every threat score is a number");
}

}  // namespace

std::vector<bool> eligible(std::span<const double> status, double level) {
    std::vector<bool> species;
    species.reserve(status.size());
    for (std::size_t s = 0; s < status.size(); ++s) {
        if (!isNumber(status[s])) throw Failure(Step::Start, Cause::NoNumber, Quantity::Status, s);
        species.push_back(status[s] <= level);
    }
    return species;
}

std::vector<double> wholeThresholds(std::span<const double> thresholds, Quantity quantity) {
    std::vector<double> whole;
    whole.reserve(thresholds.size());
    for (std::size_t unit = 0; unit < thresholds.size(); ++unit) {
        if (!isNumber(thresholds[unit])) throw Failure(Step::Start, Cause::NoNumber, quantity, unit);
        whole.push_back(nearestWhole(thresholds[unit]));
        if (whole.back() < std::numeric_limits<std::int32_t>::min() ||
            whole.back() > std::numeric_limits<std::int32_t>::max()) {
            throw Failure(Step::Start, Cause::TooLarge, quantity, unit);
        }
    }
    return whole;
}

std::vector<double> highestThreatScores(const Table& scores) {
    std::vector<double> highest(scores.columns(), 0.0);
    bool numbers = true;
    for (std::size_t s = 0; s < scores.rows(); ++s) {
        const std::span<const double> row = scores.row(s);
        for (std::size_t t = 0; t < row.size(); ++t) {
            numbers = numbers && isNumber(row[t]);
            highest[t] = std::max(highest[t], row[t]);
        }
    }
    if (!numbers) failScore(scores);
    return highest;
}

void Coverage::load(const Landscape& landscape, std::span<const double> habitatThresholds,
                    std::span<const double> zoneThresholds) {
    layout_ = UnitLayout(landscape.habitats(), landscape.zones(), landscape.threats());
    sets_ = BitTable(landscape.species(), layout_.words());
    for (std::size_t s = 0; s < landscape.species(); ++s) {
        const std::span<Word> row = sets_.row(s);
        fillLevels(layout_.part(row, Unit::Habitat), landscape.HabitatLevels.row(s), habitatThresholds);
        fillLevels(layout_.part(row, Unit::Zone), landscape.ZoneLevels.row(s), zoneThresholds);
    }
    turn(Unit::Habitat);
    turn(Unit::Zone);
}

void Coverage::loadThreats(const Table& scores, std::span<const double> highest, double representation,
                           const std::vector<bool>& eligible) {
    std::vector<double> needed;
    needed.reserve(highest.size());
    for (const double score : highest) needed.push_back(representation * score);
    for (std::size_t s = 0; s < scores.rows(); ++s) {
        if (!eligible[s]) continue;
        const std::span<const double> row = scores.row(s);
        fill(layout_.part(sets_.row(s), Unit::Threat).words(), row.size(),
             [&](std::size_t t) { return representsThreat(row[t], needed[t]); });
    }
    turn(Unit::Threat);
}

void Coverage::turn(Unit kind) {
    BitTable& species = representing_[kind];
    species = BitTable(layout_.units(kind), wordsFor(sets_.rows()));
    for (std::size_t s = 0; s < sets_.rows(); ++s) {
        const std::span<const Word> words = layout_.part(std::as_const(sets_).row(s), kind).words();
        for (std::size_t w = 0; w < words.size(); ++w) {
            forEachBit(words[w], w * WordBits, [&](std::size_t unit) {
                species.row(unit)[s / WordBits] |= Word{1} << (s % WordBits);
            });
        }
    }
}

}  // namespace method
