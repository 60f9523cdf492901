// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/minimum_table.h"

#include <array>

#include "insight/names.h"

namespace insight {

namespace {

constexpr std::array ProofNames = {"witness", "weights", "search"};

std::vector<std::string> evidence(const SelectionRun& run, const CoverIndex& index,
                                  const MinimumAnswer& minimum) {
    if (minimum.By == Proof::Witness) return unitNames(run, index, minimum.Witness);
    std::vector<std::string> weights;
    if (minimum.By == Proof::Search) return weights;
    for (std::size_t u = 0; u < index.units(); ++u) {
        const std::int64_t weight = minimum.Weights.Weights[u];
        if (weight > 0) weights.push_back(std::to_string(weight) + " " + unitName(run, index, u));
    }
    return weights;
}

}  // namespace

ResultTable minimumTable(const SelectionRun& run, const CoverIndex& index, const RunSuite& suite,
                         const MinimumAnswer& minimum) {
    const SmallestSuite& known = minimum.Known;
    const std::size_t greedy = suite.Picks.size();
    const auto gap = static_cast<std::int64_t>(greedy) - static_cast<std::int64_t>(known.Lower);
    ResultTable table = {{"measure", "value"}, {}};
    const auto add = [&table](const char* measure, Cell value) {
        table.Rows.push_back({std::string(measure), std::move(value)});
    };
    add("greedy_size", numberCell(greedy));
    add("greedy_complete", suite.Complete);
    add("redundant", speciesNames(run, index, suite.Redundant));
    add("pruned_size", numberCell(suite.Pruned.size()));
    add("lower", numberCell(known.Lower));
    add("upper", numberCell(known.upper()));
    add("proven", minimum.isProven());
    add("gap", suite.Complete ? Cell(gap) : Cell());
    add("greedy_total", totalOf(totalOf(index, suite.Picks)));
    add("minimum_total", totalOf(totalOf(index, known.Suite)));
    add("suite", speciesNames(run, index, known.Suite));
    add("proof", std::string(ProofNames[static_cast<std::size_t>(minimum.By)]));
    add("witness", evidence(run, index, minimum));
    return table;
}

}  // namespace insight
