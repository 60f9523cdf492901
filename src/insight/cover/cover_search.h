// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

enum class SearchEnd {
    Exhausted,  ///< there are no other suites
    Stopped,    ///< by the visitor
    Cut,        ///< the budget is spent
};

class CoverSearch {
public:
    /// Both must outlive it.
    CoverSearch(const CoverIndex& index, SearchBudget& budget);

    /// Is shown a suite, rising; false ends the search.
    using Visitor = std::function<bool(const Rows& suite)>;
    SearchEnd run(const CoverQuestion& question, const Visitor& visit);
    /// For a visitor: from now on a total as high as this is asked for.
    void raiseLeastTotal(std::int64_t total) { leastTotal_ = total; }

private:
    struct Level {
        CoverNode Node;
        Rows Branches;
    };
    void search(std::size_t depth);
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
    WeightBound size_;
    WeightBound total_;
    std::vector<double> chances_;  ///< by unit

    const CoverQuestion* question_ = nullptr;
    const Visitor* visit_ = nullptr;
    std::optional<std::int64_t> leastTotal_;
    std::int64_t pickedTotal_ = 0;
    Rows picked_;
    std::vector<Level> levels_;
    std::optional<SearchEnd> ended_;
};

}  // namespace insight
