// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>
#include <optional>

#include "insight/cover/reduction.h"
#include "insight/cover/search_effort.h"
#include "insight/cover/weight_bound.h"

/// The search for suites: branch and bound on bit sets.
namespace insight {

struct CoverQuestion {
    CoverPart Part;           ///< what may be picked, and what is to be covered
    Rows Picked{};            ///< are in each suite; what they cover need not be in Part
    std::size_t MostPicks{};  ///< those in Picked included
    /// None: every suite without a redundant species is found, once. SameSize or NoLessTotal: one is found where there is
    /// one, not all.
    Domination Drop = Domination::None;
    /// Suites of this total or more are looked for. REQUIRES: no suite has fewer than MostPicks species
    std::optional<std::int64_t> LeastTotal{};
};

/// What several searches of one question tell each other.
struct SearchNews {
    std::atomic<std::int64_t> LeastTotal = 0;  ///< that is asked for by now; where totals count
    std::atomic<bool> Halt = false;            ///< nothing more is to be found
};

enum class SearchEnd {
    Exhausted,  ///< there are no other suites
    Stopped,    ///< by the visitor
    Cut,        ///< the budget is spent
};

class CoverSearch {
public:
    /// All must outlive it.
    CoverSearch(const CoverIndex& index, SearchBudget& budget, const SearchNews* news = nullptr);

    /// Is shown a suite, rising; false ends the search.
    using Visitor = std::function<bool(const Rows& suite)>;
    SearchEnd run(const CoverQuestion& question, const Visitor& visit);
    /// Adds questions to `shares` instead of searching below the first picks: where all of them are exhausted it is, too.
    SearchEnd part(const CoverQuestion& question, const Visitor& visit, std::vector<CoverQuestion>& shares);

private:
    struct Level {
        CoverNode Node;
        Rows Branches;
    };
    void search(std::size_t depth);
    bool spend();
    void addShare(const CoverNode& node);
    void searchLast(const CoverNode& node);
    void searchWith(std::size_t depth, std::size_t species);
    bool mayHold(std::size_t depth, int rounds);
    void branch(std::size_t depth);
    void sortBranches(Rows& branches) const;
    /// The bound that was looked at last.
    const WeightBound& bound() const { return leastTotal_ ? total_ : size_; }
    std::size_t tightestUnit(const CoverNode& node);
    std::size_t rarestUnit(const CoverNode& node) const;
    void dropDominated(Level& level);
    bool isRedundant() const;
    void showSuite();

    const CoverIndex& index_;
    SearchBudget& budget_;
    const SearchNews* news_;
    WeightBound size_;
    WeightBound total_;
    std::vector<double> chances_;  ///< by unit

    const CoverQuestion* question_ = nullptr;
    const Visitor* visit_ = nullptr;
    std::vector<CoverQuestion>* shares_ = nullptr;
    std::optional<std::int64_t> leastTotal_;
    std::int64_t pickedTotal_ = 0;
    Rows picked_;
    std::vector<Level> levels_;
    std::optional<SearchEnd> ended_;
};

}  // namespace insight
