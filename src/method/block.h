// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "method/failure.h"
#include "method/scores.h"
#include "method/units.h"

namespace method {

/// Units that a species would add to what is covered.
using Additions = PerKind<int>;

/// One species in one pass of the selection.
struct BlockRow {
    std::size_t Species = 0;
    double Aggregate = Blank;
    CriterionScores Scores;
    Additions Adds;
};

/// The species of one pass: those that were in the race when it began. In candidate order at first, then sorted by
/// aggregate, the best on top. Offsets count from 0. Valid while the pass lasts.
class Block {
public:
    Block(std::span<const std::uint32_t> order, std::span<const BlockRow> bySpecies,
          std::span<const std::uint8_t> removed)
        : order_(order), bySpecies_(bySpecies), removed_(removed) {}

    std::size_t size() const { return order_.size(); }
    /// REQUIRES: offset < size()
    const BlockRow& operator[](std::size_t offset) const { return bySpecies_[order_[offset]]; }
    /// Whether the species was omitted in this pass or picked. REQUIRES: offset < size()
    bool removed(std::size_t offset) const { return removed_[order_[offset]] != 0; }

    /// The row for whoever chooses. Throws Failure (Choice, NoRow) past the end of the block.
    const BlockRow& at(std::size_t offset) const {
        if (offset >= size()) throw Failure(Step::Choice, Cause::NoRow, Quantity::Candidate, offset);
        return (*this)[offset];
    }

private:
    std::span<const std::uint32_t> order_;
    std::span<const BlockRow> bySpecies_;
    std::span<const std::uint8_t> removed_;
};

}  // namespace method
