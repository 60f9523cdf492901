// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// Which line of a file stands for which line that is expected.
namespace insight {

/// Indices; one of the two is missing where a line is missing or foreign.
struct LinePair {
    std::optional<std::size_t> Expected;
    std::optional<std::size_t> Found;
};

/// Pairs in the order of both, with as few lines wrong, missing and foreign as can be, by the least sum of: 1 for a pair
/// of lines that share more than half at their ends, 3 for another pair that differs, 2 for a line alone. Where the parts
/// that differ are too long for that, line by line.
std::vector<LinePair> alignLines(std::span<const std::string_view> expected,
                                 std::span<const std::string_view> found);

}  // namespace insight
