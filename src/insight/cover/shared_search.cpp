// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/shared_search.h"

#include <chrono>
#include <limits>
#include <system_error>

namespace insight {

namespace {

constexpr std::chrono::milliseconds BetweenLooks{10};  // of the thread that waits for the others

/// However a search ends, by failing too: the other threads do not go on.
struct HaltAtEnd {
    SearchNews& News;
    ~HaltAtEnd() { News.Halt = true; }
};

}  // namespace

SharedSearch::SharedSearch(const CoverIndex& index, SearchBudget& budget, std::uint64_t stepsAlone)
    : index_(index), budget_(budget), stepsAlone_(stepsAlone), search_(index, budget, &news_) {}

SearchEnd SharedSearch::run(const CoverQuestion& question, const CoverSearch::Visitor& visit) {
    news_.LeastTotal = question.LeastTotal.value_or(std::numeric_limits<std::int64_t>::min());
    news_.Halt = false;
    const CoverSearch::Visitor visitAlone = [&](const Rows& suite) {
        const std::lock_guard lock(visiting_);
        if (news_.Halt) return false;
        if (question.LeastTotal && totalOf(index_, suite) < news_.LeastTotal) return true;
        if (visit(suite)) return true;
        news_.Halt = true;
        return false;
    };
    shares_.clear();
    next_ = 0;
    const SearchEnd parted = search_.part(question, visitAlone, shares_);
    return parted == SearchEnd::Exhausted ? askAll(visitAlone) : parted;
}

SearchEnd SharedSearch::askAll(const CoverSearch::Visitor& visit) {
    std::vector<std::future<void>> others;
    const HaltAtEnd halt{news_};
    const std::uint64_t start = budget_.steps();
    SearchEnd end = SearchEnd::Exhausted;
    while (end == SearchEnd::Exhausted) {
        const CoverQuestion* share = takeShare();
        if (!share) break;
        if (others.empty() && budget_.steps() - start >= stepsAlone_) startOthers(others, visit);
        end = search_.run(*share, visit);
        budget_.add(stepsOfOthers_.exchange(0));
    }
    if (end == SearchEnd::Cut) news_.Halt = true;
    if (waitFor(others) == SearchEnd::Cut) return SearchEnd::Cut;
    return end == SearchEnd::Exhausted && news_.Halt ? SearchEnd::Stopped : end;
}

/// Where the system has no thread left, those that there are do all.
void SharedSearch::startOthers(std::vector<std::future<void>>& others,
                               const CoverSearch::Visitor& visit) try {
    while (others.size() + 1 < budget_.threads())
        others.push_back(std::async(std::launch::async, [this, &visit] { askShares(visit); }));
} catch (const std::system_error&) {
}

/// A thread that fails (there is no memory) ends the others with it.
void SharedSearch::askShares(const CoverSearch::Visitor& visit) try {
    const SearchEffort unlimited;
    SearchBudget steps(unlimited);
    CoverSearch search(index_, steps, &news_);
    std::uint64_t told = 0;
    while (const CoverQuestion* share = takeShare()) {
        search.run(*share, visit);
        stepsOfOthers_ += steps.steps() - told;
        told = steps.steps();
    }
} catch (...) {
    news_.Halt = true;
    throw;
}

/// Keeps an eye on the budget meanwhile.
SearchEnd SharedSearch::waitFor(std::vector<std::future<void>>& others) {
    SearchEnd end = SearchEnd::Exhausted;
    for (std::future<void>& other : others) {
        while (other.wait_for(BetweenLooks) != std::future_status::ready) {
            budget_.add(stepsOfOthers_.exchange(0));
            if (!budget_.isOver()) continue;
            news_.Halt = true;
            end = SearchEnd::Cut;
            other.wait();
        }
        other.get();
    }
    budget_.add(stepsOfOthers_.exchange(0));
    return end;
}

const CoverQuestion* SharedSearch::takeShare() {
    if (news_.Halt) return nullptr;
    const std::size_t next = next_++;
    return next < shares_.size() ? &shares_[next] : nullptr;
}

}  // namespace insight
