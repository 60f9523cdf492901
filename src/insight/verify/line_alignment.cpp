// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verify/line_alignment.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace insight {

namespace {

using Lines = std::span<const std::string_view>;

constexpr std::uint32_t Alone = 2;
/// Pairs of lines that are compared at most: as many bytes are needed.
constexpr std::size_t MostComparisons = std::size_t{1} << 22;

enum class Step : std::uint8_t { Pair, Missing, Foreign };

std::uint32_t costOfPair(std::string_view expected, std::string_view found) {
    if (expected == found) return 0;
    const std::size_t shorter = std::min(expected.size(), found.size());
    const std::size_t longer = std::max(expected.size(), found.size());
    std::size_t shared = 0;
    while (shared < shorter && expected[shared] == found[shared]) ++shared;
    std::size_t atEnd = 0;
    while (shared + atEnd < shorter &&
           expected[expected.size() - 1 - atEnd] == found[found.size() - 1 - atEnd])
        ++atEnd;
    return 2 * (shared + atEnd) > longer ? 1 : 3;
}

std::size_t sharedAtStart(Lines expected, Lines found) {
    return static_cast<std::size_t>(
        std::mismatch(expected.begin(), expected.end(), found.begin(), found.end()).first - expected.begin());
}

std::size_t sharedAtEnd(Lines expected, Lines found) {
    return static_cast<std::size_t>(
        std::mismatch(expected.rbegin(), expected.rend(), found.rbegin(), found.rend()).first -
        expected.rbegin());
}

/// The steps of the cheapest way through both. Costs are those from a place to the end, so that of equal ways the one is
/// taken that pairs its first lines.
std::vector<Step> cheapestSteps(Lines expected, Lines found) {
    const std::size_t width = found.size() + 1;
    std::vector<Step> steps((expected.size() + 1) * width, Step::Foreign);
    std::vector<std::uint32_t> cost(width);
    for (std::size_t f = found.size(); f-- > 0;) cost[f] = cost[f + 1] + Alone;
    for (std::size_t e = expected.size(); e-- > 0;) {
        std::uint32_t diagonal = cost[found.size()];
        cost[found.size()] += Alone;
        steps[e * width + found.size()] = Step::Missing;
        for (std::size_t f = found.size(); f-- > 0;) {
            const std::array costs = {diagonal + costOfPair(expected[e], found[f]), cost[f] + Alone,
                                      cost[f + 1] + Alone};
            const auto best = std::min_element(costs.begin(), costs.end());
            diagonal = cost[f];
            cost[f] = *best;
            steps[e * width + f] = static_cast<Step>(best - costs.begin());
        }
    }
    std::vector<Step> way;
    for (std::size_t e = 0, f = 0; e < expected.size() || f < found.size();) {
        way.push_back(steps[e * width + f]);
        if (way.back() != Step::Foreign) ++e;
        if (way.back() != Step::Missing) ++f;
    }
    return way;
}

std::vector<Step> lineByLine(Lines expected, Lines found) {
    const std::size_t pairs = std::min(expected.size(), found.size());
    std::vector<Step> steps(pairs, Step::Pair);
    steps.insert(steps.end(), expected.size() - pairs, Step::Missing);
    steps.insert(steps.end(), found.size() - pairs, Step::Foreign);
    return steps;
}

}  // namespace

std::vector<LinePair> alignLines(Lines expected, Lines found) {
    const std::size_t start = sharedAtStart(expected, found);
    const Lines restExpected = expected.subspan(start);
    const Lines restFound = found.subspan(start);
    const std::size_t end = sharedAtEnd(restExpected, restFound);
    const Lines expectedGap = restExpected.first(restExpected.size() - end);
    const Lines foundGap = restFound.first(restFound.size() - end);

    std::vector<Step> steps(start, Step::Pair);
    const bool small = (expectedGap.size() + 1) <= MostComparisons / (foundGap.size() + 1);
    const std::vector<Step> gap =
        small ? cheapestSteps(expectedGap, foundGap) : lineByLine(expectedGap, foundGap);
    steps.insert(steps.end(), gap.begin(), gap.end());
    steps.insert(steps.end(), end, Step::Pair);

    std::vector<LinePair> pairs;
    std::size_t e = 0;
    std::size_t f = 0;
    for (const Step step : steps) {
        LinePair pair;
        if (step != Step::Foreign) pair.Expected = e++;
        if (step != Step::Missing) pair.Found = f++;
        pairs.push_back(pair);
    }
    return pairs;
}

}  // namespace insight
