// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/suites.h"

#include <algorithm>

#include "insight/names.h"

namespace insight {

namespace {

struct Listed {
    std::int64_t Total;
    Rows Suite;
};

bool comesFirst(const Listed& a, const Listed& b) {
    if (a.Suite.size() != b.Suite.size()) return a.Suite.size() < b.Suite.size();
    return a.Total != b.Total ? a.Total > b.Total : a.Suite < b.Suite;
}

/// The best one takes the first place, also where the search has not come to it.
void putFirst(std::vector<Listed>& found, const Rows& best, const CoverIndex& index) {
    std::erase_if(found, [&](const Listed& listed) { return listed.Suite == best; });
    found.insert(found.begin(), {totalOf(index, best), best});
}

}  // namespace

SuiteList findSuites(const CoverIndex& index, const MinimumAnswer& minimum, std::size_t within,
                     std::size_t limit, SearchBudget& budget) {
    const Rows& best = minimum.Known.Suite;
    if (!minimum.Known.isProven()) return {{best}, 1, false};
    const std::size_t mostFound = std::max(limit, MostCounted);
    std::vector<Listed> found;
    CoverSearch search(index, budget);
    const CoverQuestion question = {
        .Part = reduced(index, {index.allSpecies(), index.allUnits()}, Domination::None),
        .MostPicks = best.size() + within};
    bool areMore = false;
    const SearchEnd end = search.run(question, [&](const Rows& suite) {
        areMore = found.size() == mostFound;
        if (!areMore) found.push_back({totalOf(index, suite), suite});
        return !areMore;
    });
    std::sort(found.begin(), found.end(), comesFirst);
    const bool isExact = end == SearchEnd::Exhausted;
    if (!isExact) putFirst(found, best, index);
    SuiteList list = {{}, std::min(found.size(), mostFound), isExact};
    for (std::size_t i = 0; i < std::min(limit, found.size()); ++i) list.Suites.push_back(found[i].Suite);
    return list;
}

ResultTable suiteTable(const SelectionRun& run, const CoverIndex& index, const SuiteList& list) {
    ResultTable table = {{"suite", "size", "total", "species"}, {}};
    for (const Rows& suite : list.Suites) {
        table.Rows.push_back({numberCell(table.Rows.size() + 1), numberCell(suite.size()),
                              totalOf(totalOf(index, suite)), speciesNames(run, index, suite)});
    }
    return table;
}

}  // namespace insight
