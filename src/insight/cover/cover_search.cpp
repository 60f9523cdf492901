// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/cover_search.h"

#include <algorithm>
#include <limits>

namespace insight {

namespace {

/// From so few picks on it is quicker to try them than to look for a bound.
constexpr std::size_t FewPicks = 2;

/// Picks that tell one share of a question from another.
constexpr std::size_t SharedPicks = 2;

/// How often the weights are moved at a node: the more, the more there is to be saved below it.
int roundsAt(const CoverNode& node) { return static_cast<int>(node.Picks); }

std::vector<std::int64_t> totalsOf(const CoverIndex& index) {
    std::vector<std::int64_t> totals;
    for (std::size_t s = 0; s < index.species(); ++s) totals.push_back(index.total(s));
    return totals;
}

}  // namespace

CoverSearch::CoverSearch(const CoverIndex& index, SearchBudget& budget, const SearchNews* news)
    : index_(index),
      budget_(budget),
      news_(news),
      size_(index, {}),
      total_(index, totalsOf(index)),
      chances_(index.units()) {}

SearchEnd CoverSearch::run(const CoverQuestion& question, const Visitor& visit) {
    question_ = &question;
    visit_ = &visit;
    leastTotal_ = question.LeastTotal;
    picked_ = question.Picked;
    pickedTotal_ = totalOf(index_, picked_);
    ended_.reset();
    if (picked_.size() > question.MostPicks) return SearchEnd::Exhausted;
    const std::size_t picks = question.MostPicks - picked_.size();
    levels_.resize(std::max(levels_.size(), picks + 1));
    levels_[0].Node = {question.Part.Units, question.Part.Species, picks};
    for (const std::uint32_t row : picked_) {
        remove(levels_[0].Node.Units, index_.unitsOf(row));
        drop(levels_[0].Node.Species, row);
    }
    search(0);
    return ended_.value_or(SearchEnd::Exhausted);
}

SearchEnd CoverSearch::part(const CoverQuestion& question, const Visitor& visit,
                            std::vector<CoverQuestion>& shares) {
    shares_ = &shares;
    const SearchEnd end = run(question, visit);
    shares_ = nullptr;
    return end;
}

void CoverSearch::search(std::size_t depth) {
    CoverNode& node = levels_[depth].Node;
    if (isEmpty(node.Units)) return showSuite();
    if (node.Picks == 0) return;
    if (shares_ && depth == SharedPicks) return addShare(node);
    if (!spend()) return;
    if (question_->Drop == Domination::None && isRedundant()) return;
    if (node.Picks == 1) return searchLast(node);
    if (!mayHold(depth, roundsAt(node))) return;
    branch(depth);
}

/// Takes a step, if there is to be one.
bool CoverSearch::spend() {
    if (!budget_.spend()) {
        ended_ = SearchEnd::Cut;
    } else if (news_ && news_->Halt.load(std::memory_order_relaxed)) {
        ended_ = SearchEnd::Stopped;
    } else if (news_ && leastTotal_) {
        leastTotal_ = news_->LeastTotal.load(std::memory_order_relaxed);
    }
    return !ended_;
}

void CoverSearch::addShare(const CoverNode& node) {
    shares_->push_back({.Part = {node.Species, node.Units},
                        .Picked = picked_,
                        .MostPicks = question_->MostPicks,
                        .Drop = question_->Drop,
                        .LeastTotal = leastTotal_});
}

/// Whether the node is still to be searched. What leaves no choice is searched here.
bool CoverSearch::mayHold(std::size_t depth, int rounds) {
    CoverNode& node = levels_[depth].Node;
    if (node.Picks <= FewPicks) return true;
    const auto allows = [&](WeightBound& bound, std::int64_t least) {
        const WeightBound::Finding finding = bound.look(node, least, rounds);
        if (finding == WeightBound::Finding::Required) searchWith(depth, bound.required());
        return finding == WeightBound::Finding::Open;
    };
    return allows(size_, 0) && (!leastTotal_ || allows(total_, *leastTotal_ - pickedTotal_));
}

void CoverSearch::branch(std::size_t depth) {
    Level& level = levels_[depth];
    const std::size_t unit = tightestUnit(level.Node);
    level.Branches.clear();
    forEachCommon(level.Node.Species, index_.speciesOf(unit),
                  [&](std::size_t s) { level.Branches.push_back(static_cast<std::uint32_t>(s)); });
    dropDominated(level);
    if (level.Node.Picks > FewPicks) sortBranches(level.Branches);
    for (std::size_t i = 0; i < level.Branches.size(); ++i) {
        const std::uint32_t species = level.Branches[i];
        if (!has(level.Node.Species, species)) continue;  // it has been found to be in no suite
        searchWith(depth, species);
        if (ended_) return;
        drop(level.Node.Species, species);
        if (i + 1 < level.Branches.size() && !mayHold(depth, 0)) return;
    }
}

/// The most promising one first, so that a suite is found early.
void CoverSearch::sortBranches(Rows& branches) const {
    std::sort(branches.begin(), branches.end(), [&](std::uint32_t a, std::uint32_t b) {
        return bound().score(a) != bound().score(b) ? bound().score(a) > bound().score(b) : a < b;
    });
}

/// Every suite of the node holds one of the species that cover this unit: few ones, with little room for others.
std::size_t CoverSearch::tightestUnit(const CoverNode& node) {
    if (node.Picks <= FewPicks) return rarestUnit(node);
    std::fill(chances_.begin(), chances_.end(), 0.0);
    forEach(node.Species, [&](std::size_t s) {
        const double chance = bound().chance(s);
        forEachCommon(index_.unitsOf(s), node.Units, [&](std::size_t u) { chances_[u] += chance; });
    });
    std::size_t tightest = 0;
    double least = std::numeric_limits<double>::infinity();
    forEach(node.Units, [&](std::size_t u) {
        if (chances_[u] >= least) return;
        least = chances_[u];
        tightest = u;
    });
    return tightest;
}

std::size_t CoverSearch::rarestUnit(const CoverNode& node) const {
    std::size_t rarest = 0;
    std::size_t fewest = index_.species() + 1;
    forEach(node.Units, [&](std::size_t u) {
        const std::size_t owners = countCommon(index_.speciesOf(u), node.Species);
        if (owners >= fewest) return;
        fewest = owners;
        rarest = u;
    });
    return rarest;
}

void CoverSearch::dropDominated(Level& level) {
    if (question_->Drop == Domination::None) return;
    CoverNode& node = level.Node;
    const auto isDominated = [&](std::uint32_t a) {
        return std::any_of(level.Branches.begin(), level.Branches.end(), [&](std::uint32_t b) {
            if (a == b || !isSubset(index_.unitsOf(a), index_.unitsOf(b), node.Units)) return false;
            return yields(index_, a, b, isSubset(index_.unitsOf(b), index_.unitsOf(a), node.Units),
                          question_->Drop);
        });
    };
    for (const std::uint32_t a : level.Branches) {
        if (isDominated(a)) drop(node.Species, a);
    }
    std::erase_if(level.Branches, [&](std::uint32_t a) { return !has(node.Species, a); });
}

void CoverSearch::searchWith(std::size_t depth, std::size_t species) {
    const CoverNode& node = levels_[depth].Node;
    CoverNode& next = levels_[depth + 1].Node;
    next = node;
    remove(next.Units, index_.unitsOf(species));
    drop(next.Species, species);
    --next.Picks;
    picked_.push_back(static_cast<std::uint32_t>(species));
    pickedTotal_ += index_.total(species);
    search(depth + 1);
    pickedTotal_ -= index_.total(species);
    picked_.pop_back();
}

/// One pick is left: it must cover all that remains.
void CoverSearch::searchLast(const CoverNode& node) {
    BitSet species = node.Species;
    forEach(node.Units, [&](std::size_t u) {
        const Bits owners = index_.speciesOf(u);
        for (std::size_t w = 0; w < species.size(); ++w) species[w] &= owners[w];
    });
    forEach(species, [&](std::size_t s) {
        if (ended_) return;
        picked_.push_back(static_cast<std::uint32_t>(s));
        pickedTotal_ += index_.total(s);
        showSuite();
        pickedTotal_ -= index_.total(s);
        picked_.pop_back();
    });
}

/// Whether a species covers nothing alone: what is picked later does not change that.
bool CoverSearch::isRedundant() const {
    BitSet once(method::wordsFor(index_.units()));
    BitSet twice = once;
    for (const std::uint32_t row : picked_) {
        const Bits units = index_.unitsOf(row);
        for (std::size_t w = 0; w < once.size(); ++w) {
            twice[w] |= once[w] & units[w];
            once[w] |= units[w];
        }
    }
    return std::any_of(picked_.begin(), picked_.end(),
                       [&](std::uint32_t row) { return isSubset(index_.unitsOf(row), twice); });
}

void CoverSearch::showSuite() {
    if (leastTotal_ && pickedTotal_ < *leastTotal_) return;
    if (question_->Drop == Domination::None && isRedundant()) return;
    Rows suite = picked_;
    std::sort(suite.begin(), suite.end());
    if (!(*visit_)(suite)) ended_ = SearchEnd::Stopped;
}

}  // namespace insight
