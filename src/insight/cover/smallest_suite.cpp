// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/smallest_suite.h"

#include <algorithm>

namespace insight {

namespace {

/// More suites of one total than this are not gone through one by one.
constexpr std::size_t MostTies = 1000;

/// Goes through the suites that are as good as `suite` or better; of `ties` with the highest total up to MostTies.
SearchEnd findHighestTotal(SharedSearch& search, const CoverIndex& index, const CoverPart& part, Rows& suite,
                           std::size_t& ties) {
    std::int64_t highest = totalOf(index, suite);
    const CoverQuestion question = {
        .Part = part, .MostPicks = suite.size(), .Drop = Domination::BestThenFirst, .LeastTotal = highest};
    return search.run(question, [&](const Rows& found) {
        const std::int64_t total = totalOf(index, found);
        if (total > highest) ties = 0;
        if (total > highest || found < suite) suite = found;
        highest = total;
        ++ties;
        search.raiseLeastTotal(ties > MostTies ? highest + 1 : highest);
        return true;
    });
}

/// Candidate by candidate: whether a suite as good holds it beside those that are settled.
bool findFirst(SharedSearch& search, const CoverIndex& index, const CoverPart& part, Rows& suite) {
    CoverQuestion question = {.Part = part,
                              .MostPicks = suite.size(),
                              .Drop = Domination::NoLessTotal,
                              .LeastTotal = totalOf(index, suite)};
    bool isCut = false;
    forEach(part.Species, [&](std::size_t s) {
        if (isCut || question.Picked.size() == suite.size()) return;
        const auto row = static_cast<std::uint32_t>(s);
        question.Picked.push_back(row);
        if (!std::binary_search(suite.begin(), suite.end(), row)) {
            const SearchEnd end = search.run(question, [&](const Rows& earlier) {
                suite = earlier;
                return false;
            });
            isCut = end == SearchEnd::Cut;
            if (end != SearchEnd::Stopped) question.Picked.pop_back();
        }
        drop(question.Part.Species, s);
    });
    return !isCut;
}

}  // namespace

void narrow(SharedSearch& search, const CoverPart& part, SmallestSuite& known, SearchBudget& budget) {
    while (!known.isProven()) {
        budget.reached(known.Lower, known.upper());
        const CoverQuestion question = {.Part = part, .MostPicks = known.Lower, .Drop = Domination::SameSize};
        const SearchEnd end = search.run(question, [&](const Rows& suite) {
            known.Suite = suite;
            return false;
        });
        if (end == SearchEnd::Cut) return;
        if (end == SearchEnd::Exhausted) ++known.Lower;
    }
}

bool findBestTotal(SharedSearch& search, const CoverIndex& index, const CoverPart& part, Rows& suite) {
    const CoverPart best = reduced(index, part, Domination::BestThenFirst);
    std::size_t ties = 0;
    if (findHighestTotal(search, index, best, suite, ties) == SearchEnd::Cut) return false;
    return ties <= MostTies || findFirst(search, index, best, suite);
}

}  // namespace insight
