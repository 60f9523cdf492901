// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace method {

/// What a row of a block is sorted by.
struct SortKey {
    double Aggregate;
    std::uint32_t Species;
};

/// Sorts the rows of a pass: highest aggregate first, equal ones as they stood, those that are no number last.
class BlockSorter {
public:
    void sort(std::vector<SortKey>& rows);

private:
    bool sortThousandths(std::vector<SortKey>& rows);

    struct Digits {
        std::uint32_t Key;
        std::uint32_t Place;
    };
    std::vector<Digits> digits_;
    std::vector<Digits> spare_;
    std::vector<SortKey> sorted_;
};

}  // namespace method
