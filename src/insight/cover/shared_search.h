// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <future>
#include <mutex>

#include "insight/cover/cover_search.h"

namespace insight {

/// A search by several threads where it is a long one: the question is parted, and whichever thread is free takes the
/// next share. Whether there is a suite, which total is the highest, and what is proven does not hang on how many threads
/// there are; which of several suites is found first does. An effort of so many steps is spent by one thread.
class SharedSearch {
public:
    /// Steps that one thread takes alone: what is over by then is not worth starting another.
    static constexpr std::uint64_t StepsAlone = 20'000;

    /// Both must outlive it.
    SharedSearch(const CoverIndex& index, SearchBudget& budget, std::uint64_t stepsAlone = StepsAlone);

    /// The visitor is called by one thread at a time. REQUIRES: not all suites are asked for
    SearchEnd run(const CoverQuestion& question, const CoverSearch::Visitor& visit);
    /// For a visitor: from now on a total as high as this is asked for.
    void raiseLeastTotal(std::int64_t total) { news_.LeastTotal = total; }

private:
    SearchEnd askAll(const CoverSearch::Visitor& visit);
    void startOthers(std::vector<std::future<void>>& others, const CoverSearch::Visitor& visit);
    void askShares(const CoverSearch::Visitor& visit);
    SearchEnd waitFor(std::vector<std::future<void>>& others);
    const CoverQuestion* takeShare();

    const CoverIndex& index_;
    SearchBudget& budget_;
    std::uint64_t stepsAlone_;
    SearchNews news_;
    CoverSearch search_;
    std::mutex visiting_;
    std::vector<CoverQuestion> shares_;
    std::atomic<std::size_t> next_ = 0;
    std::atomic<std::uint64_t> stepsOfOthers_ = 0;
};

}  // namespace insight
