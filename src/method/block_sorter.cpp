// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/block_sorter.h"

#include <algorithm>
#include <array>

#include "method/numbers.h"

namespace method {

namespace {

constexpr double Thousand = 1000;
constexpr std::uint32_t DigitBits = 7;
constexpr std::uint32_t DigitMask = (1U << DigitBits) - 1;
constexpr std::uint32_t Largest = (1U << (2 * DigitBits)) - 1;
/// Below so many rows comparing is as fast.
constexpr std::size_t Few = 100;

bool comesFirst(const SortKey& left, const SortKey& right) {
    return isNumber(left.Aggregate) && (left.Aggregate > right.Aggregate || !isNumber(right.Aggregate));
}

/// Moves the rows to `to` by one digit of their keys, rising, equal ones as they stood.
template <class Row>
void distribute(const std::vector<Row>& from, std::vector<Row>& to, std::uint32_t shift) {
    std::array<std::uint32_t, DigitMask + 2> begin{};
    for (const Row& row : from) ++begin[(row.Key >> shift & DigitMask) + 1];
    for (std::size_t digit = 1; digit < begin.size(); ++digit) begin[digit] += begin[digit - 1];
    to.resize(from.size());
    for (const Row& row : from) to[begin[row.Key >> shift & DigitMask]++] = row;
}

}  // namespace

void BlockSorter::sort(std::vector<SortKey>& rows) {
    if (rows.size() >= Few && sortThousandths(rows)) return;
    std::stable_sort(rows.begin(), rows.end(), comesFirst);
}

/// Aggregates are thousandths and seldom above 5, so that two rounds of counting sort them. False where they are not.
bool BlockSorter::sortThousandths(std::vector<SortKey>& rows) {
    digits_.clear();
    for (const SortKey& row : rows) {
        const double thousandths = nearestWhole(row.Aggregate * Thousand);
        if (!(thousandths >= 0 && thousandths <= Largest) || thousandths / Thousand != row.Aggregate)
            return false;
        const auto place = static_cast<std::uint32_t>(digits_.size());
        digits_.push_back({Largest - static_cast<std::uint32_t>(thousandths), place});
    }
    distribute(digits_, spare_, 0);
    distribute(spare_, digits_, DigitBits);
    sorted_.clear();
    for (const auto& row : digits_) sorted_.push_back(rows[row.Place]);
    rows.swap(sorted_);
    return true;
}

}  // namespace method
