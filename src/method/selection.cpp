// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/selection.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace method {

namespace {

bool addNothing(const Additions& adds) {
    return adds[Unit::Habitat] <= 0 && adds[Unit::Zone] <= 0 && adds[Unit::Threat] <= 0;
}

int countOf(std::span<const Word> words) {
    int units = 0;
    for (const Word word : words) units += std::popcount(word);
    return units;
}

}  // namespace

void Selection::load(const Landscape& landscape, Table threatScores) {
    landscape_ = &landscape;
    threatScores_ = std::move(threatScores);
    highestThreats_.clear();
    coverageLoaded_ = false;
    remainder_.load(landscape, UnitLayout(landscape.habitats(), landscape.zones(), landscape.threats()));
}

void Selection::loadScores(std::span<const CriterionScores> normalised, std::span<const double> aggregates) {
    firstRows_.assign(landscape_->species(), {});
    for (std::size_t s = 0; s < firstRows_.size(); ++s) {
        firstRows_[s].Species = s;
        firstRows_[s].Aggregate = aggregates[s];
        firstRows_[s].Scores = normalised[s];
    }
}

void Selection::start(const Levels& levels) {
    levels_ = levels;
    eligible_ = eligible(landscape_->Status, levels.ConservationStatus);
    if (coverageLoaded_) return;
    const auto habitats = wholeThresholds(landscape_->HabitatThresholds, Quantity::HabitatThreshold);
    const auto zones = wholeThresholds(landscape_->ZoneThresholds, Quantity::ZoneThreshold);
    coverage_.load(*landscape_, habitats, zones);
    coverageLoaded_ = true;
}

void Selection::run(Chooser& chooser, Listener* listener) {
    chooser_ = &chooser;
    listener_ = listener;
    prepareRun();
    if (highestThreats_.empty()) highestThreats_ = highestThreatScores(threatScores_);
    coverage_.loadThreats(threatScores_, highestThreats_, levels_.ThreatRepresentation, eligible_);
    if (listener_) listener_->begun();
    firstPass();
    while (!allCovered() && progress_.Removals < landscape_->species()) laterPass();
    suite_.Complete = allCovered();
    if (listener_) listener_->ended(suite_);
}

void Selection::prepareRun() {
    const UnitLayout& layout = coverage_.layout();
    suite_ = {};
    for (const Unit kind : UnitKinds) suite_.CoveredBy[kind].assign(layout.units(kind), 0);
    rows_ = firstRows_;
    covered_.assign(layout.words(), 0);
    newlyCovered_.clear();
    remainder_.reset();
    left_.assign(eligible_.size(), {});
    rescored_.resize(eligible_.size());
    progress_ = {};
    removed_.assign(eligible_.size(), 0);
    for (std::size_t s = 0; s < eligible_.size(); ++s) {
        if (!eligible_[s]) remove(s);
    }
}

void Selection::remove(std::size_t species) {
    removed_[species] = true;
    ++progress_.Removals;
}

bool Selection::allCovered() const {
    const auto covers = [&](Unit kind) {
        return static_cast<std::size_t>(suite_.Covered[kind]) == coverage_.layout().units(kind);
    };
    return covers(Unit::Habitat) && covers(Unit::Zone) && covers(Unit::Threat);
}

/// The first pass works on the scores as they stand.
void Selection::firstPass() {
    appendBlock(true);
    for (std::size_t offset = 0; offset < order_.size(); ++offset) countAll(offset);
    sortBlock();
    if (listener_) {
        for (std::size_t offset = 0; offset < order_.size(); ++offset)
            listener_->ranked(offset, static_cast<int>(offset) + 1);
    }
    const std::size_t pick = findPick();
    progress_.PickNumber = 1;
    takePick(order_[pick]);
    if (!addNothing(row(pick).Adds)) return addToSuite(pick);
    progress_.PickNumber = 0;
    if (listener_) listener_->pickOmitted(pick);
}

void Selection::laterPass() {
    appendBlock(false);
    takeOffCovered();
    const ScoresLeft highestBefore = progress_.Highest;
    for (std::size_t offset = 0; offset < order_.size(); ++offset) {
        tellAdditions(offset);
        rescore(offset);
    }
    const bool all = listener_ || progress_.Highest != highestBefore;
    for (std::size_t offset = 0; offset < order_.size(); ++offset) {
        if (all || rescored_[order_[offset]]) normalise(offset);
    }
    sortBlock();
    omitRowsThatAddNothing();
    const std::size_t pick = findPick();
    ++progress_.PickNumber;
    takePick(order_[pick]);
    if (!addNothing(row(pick).Adds)) return addToSuite(pick);
    --progress_.PickNumber;
    if (removed_[order_[pick]]) return;  // by takePick, so that the pick is dropped without a word
    if (listener_) listener_->pickOmitted(pick);
    remove(order_[pick]);
}

void Selection::appendBlock(bool first) {
    order_.clear();
    for (std::size_t s = 0; s < removed_.size(); ++s) {
        if (!removed_[s]) order_.push_back(static_cast<std::uint32_t>(s));
    }
    if (listener_) listener_->blockAppended(block(), first);
}

/// What a species would add while nothing is covered.
void Selection::countAll(std::size_t offset) {
    BlockRow& species = row(offset);
    const std::span<const Word> represented = coverage_.of(species.Species);
    for (const Unit kind : UnitKinds) {
        if (kind != Unit::Threat) requireLevels(kind, species.Species);
        species.Adds[kind] = countOf(coverage_.layout().part(represented, kind).words());
        if (listener_) listener_->adds(offset, kind, species.Adds[kind]);
    }
}

void Selection::requireLevels(Unit kind, std::size_t species) const {
    if (remainder_.numbers(kind, species)) return;
    const bool habitat = kind == Unit::Habitat;
    const std::span<const double> levels =
        (habitat ? landscape_->HabitatLevels : landscape_->ZoneLevels).row(species);
    const auto unit = std::find_if_not(levels.begin(), levels.end(), isNumber) - levels.begin();
    throw Failure(Step::UnitsAdded, Cause::NoNumber, habitat ? Quantity::HabitatLevel : Quantity::ZoneLevel,
                  species, static_cast<std::size_t>(unit));
}

/// What the last pick covers can be added no more, and counts no more for the scores.
void Selection::takeOffCovered() {
    for (const auto& [kind, unit] : newlyCovered_) {
        remainder_.cover(kind, unit);
        coverage_.forEachRepresenting(kind, unit, [&, of = kind](std::size_t s) { --rows_[s].Adds[of]; });
    }
}

void Selection::tellAdditions(std::size_t offset) const {
    if (!listener_) return;
    for (const Unit kind : UnitKinds) listener_->adds(offset, kind, row(offset).Adds[kind]);
}

double Selection::finite(double score, std::size_t offset, std::size_t column) const {
    if (!std::isfinite(score))
        throw Failure(Step::Selection, Cause::TooLarge, Quantity::Score, offset, column);
    return score;
}

/// The scores of a species are the same as in the pass before where nothing that it uses was covered since. Whoever
/// watches is told them all the same.
void Selection::rescore(std::size_t offset) {
    const std::size_t species = order_[offset];
    rescored_[species] = remainder_.refresh(species, covered_);
    if (!rescored_[species] && !listener_) return;
    takeScore(offset, Criterion::Heterogeneity, remainder_.heterogeneity(species),
              left_[species].Heterogeneity, progress_.Highest.Heterogeneity);
    takeScore(offset, Criterion::Vulnerability, remainder_.vulnerability(species, covered_),
              left_[species].Vulnerability, progress_.Highest.Vulnerability);
}

/// The highest is kept rounded, so that the best species comes to 1.
void Selection::takeScore(std::size_t offset, Criterion criterion, double raw, double& score,
                          double& highest) {
    score = finite(shownTo(raw, ScorePlaces), offset, static_cast<std::size_t>(criterion));
    if (raw > highest) highest = roundTo(raw, ScorePlaces);
    if (listener_) listener_->rescored(offset, criterion, score);
}

void Selection::normalise(std::size_t offset) {
    CriterionScores& scores = row(offset).Scores;
    const ScoresLeft& left = left_[order_[offset]];
    const auto scale = [&](Criterion criterion, double score, double highest) {
        scores[criterion] = highest <= 0 ? 0 : shownTo(score / highest, ScorePlaces);
        finite(scores[criterion], offset, static_cast<std::size_t>(criterion));
        if (listener_) listener_->normalised(offset, criterion, scores[criterion]);
    };
    scale(Criterion::Heterogeneity, left.Heterogeneity, progress_.Highest.Heterogeneity);
    scale(Criterion::Vulnerability, left.Vulnerability, progress_.Highest.Vulnerability);
    double sum = 0;
    for (const Criterion criterion : {Criterion::Heterogeneity, Criterion::Vulnerability, Criterion::Area,
                                      Criterion::Functionality, Criterion::SocioEconomics}) {
        if (!isNumber(scores[criterion])) {
            throw Failure(Step::Selection, Cause::NoNumber, Quantity::Score, offset,
                          static_cast<std::size_t>(criterion));
        }
        sum += scores[criterion];
    }
    row(offset).Aggregate = finite(shownTo(sum, ScorePlaces), offset, Criteria);
    if (listener_) listener_->aggregated(offset, row(offset).Aggregate);
}

void Selection::sortBlock() {
    keys_.clear();
    for (const std::uint32_t species : order_) keys_.push_back({rows_[species].Aggregate, species});
    sorter_.sort(keys_);
    for (std::size_t offset = 0; offset < order_.size(); ++offset) order_[offset] = keys_[offset].Species;
    if (listener_) listener_->sorted(block());
}

void Selection::omitRowsThatAddNothing() {
    for (std::size_t offset = 0; offset < order_.size(); ++offset) {
        if (listener_) listener_->ranked(offset, static_cast<int>(offset) + 1);
        if (!addNothing(row(offset).Adds)) continue;
        if (listener_) listener_->omitted(offset);
        remove(order_[offset]);
    }
}

/// With one species left at the most there is no margin to look at.
std::size_t Selection::findPick() {
    const bool alone = progress_.Removals + 1 >= landscape_->species();
    const std::size_t top = alone ? firstInRace() : bestInRace();
    if (!alone) progress_.MarginCount = countMargin(top);
    if (listener_) listener_->withinMargin(top);
    if (progress_.MarginCount == 0) return top;
    const Block rows = block();
    const std::size_t pick = chooser_->choose({rows, top, progress_.MarginCount});
    if (pick >= rows.size()) throw Failure(Step::Selection, Cause::NoRow, Quantity::Candidate, pick);
    return pick;
}

std::size_t Selection::firstInRace() const {
    const auto found =
        std::find_if(order_.begin(), order_.end(), [&](std::uint32_t species) { return !removed_[species]; });
    const auto offset = static_cast<std::size_t>(found - order_.begin());
    if (found == order_.end()) throw Failure(Step::Selection, Cause::NoRow, Quantity::Candidate, offset);
    return offset;
}

void Selection::requireAggregate(std::size_t offset) const {
    if (offset >= order_.size() || !isNumber(row(offset).Aggregate))
        throw Failure(Step::Margin, Cause::NoNumber, Quantity::Aggregate, offset);
}

/// As firstInRace, but every aggregate down to it must be a number.
std::size_t Selection::bestInRace() {
    std::size_t top = 0;
    requireAggregate(top);
    while (removed_[order_[top]]) requireAggregate(++top);
    if (listener_) listener_->withinMargin(top);
    return top;
}

/// How many rows below the top one lie within the margin.
std::size_t Selection::countMargin(std::size_t top) {
    const double best = row(top).Aggregate;
    const double band = levels_.Margin / 100 * best;
    std::size_t count = 0;
    for (std::size_t offset = top + 1; offset < order_.size(); ++offset) {
        requireAggregate(offset);
        if (!(best - row(offset).Aggregate <= band)) continue;
        ++count;
        if (listener_ && !removed_[order_[offset]]) listener_->withinMargin(offset);
    }
    return count;
}

/// Takes the pick out of the race and covers what it represents.
void Selection::takePick(std::size_t species) {
    remove(species);
    newlyCovered_.clear();
    const std::span<const Word> represented = coverage_.of(species);
    const UnitLayout& layout = coverage_.layout();
    for (const Unit kind : UnitKinds) {
        for (std::size_t w = layout.begin(kind); w < layout.end(kind); ++w) {
            forEachBit(represented[w] & ~covered_[w], (w - layout.begin(kind)) * WordBits,
                       [&](std::size_t unit) { cover(kind, unit); });
            covered_[w] |= represented[w];
        }
    }
}

void Selection::cover(Unit kind, std::size_t unit) {
    newlyCovered_.push_back({kind, unit});
    suite_.CoveredBy[kind][unit] = progress_.PickNumber;
    if (listener_) listener_->firstCovered(kind, unit, progress_.PickNumber);
}

void Selection::addToSuite(std::size_t offset) {
    const Additions& adds = row(offset).Adds;
    suite_.Picks.push_back({order_[offset], adds});
    for (const Unit kind : UnitKinds) suite_.Covered[kind] += adds[kind];
    if (listener_) listener_->joined(offset, progress_.PickNumber, adds);
}

}  // namespace method
