// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/cover/bit_set.h"
#include "insight/cover/cover_problem.h"

namespace insight {

/// A cover problem seen from both sides; all searches share it. The problem must outlive it. Species are its rows here,
/// units its bits.
class CoverIndex {
public:
    explicit CoverIndex(const CoverProblem& problem);

    const CoverProblem& problem() const { return problem_; }
    std::size_t species() const { return problem_.Species.size(); }
    std::size_t units() const { return problem_.Units.size(); }
    Bits unitsOf(std::size_t species) const { return problem_.Covers.row(species); }
    Bits speciesOf(std::size_t unit) const { return speciesOf_.row(unit); }
    /// The same as unitsOf and speciesOf, as rising numbers.
    const Rows& unitList(std::size_t species) const { return unitLists_[species]; }
    const Rows& speciesList(std::size_t unit) const { return speciesLists_[unit]; }
    std::int64_t total(std::size_t species) const { return problem_.Aggregates[species]; }

    BitSet allSpecies() const { return allOf(species()); }
    BitSet allUnits() const { return allOf(units()); }

private:
    const CoverProblem& problem_;
    method::BitTable speciesOf_;
    std::vector<Rows> unitLists_;
    std::vector<Rows> speciesLists_;
};

/// The units that the rows cover together.
BitSet unitsCovered(const CoverIndex& index, const Rows& rows);
bool coversAll(const CoverIndex& index, const Rows& rows);
/// Sum of aggregates, in thousandths.
std::int64_t totalOf(const CoverIndex& index, const Rows& rows);

}  // namespace insight
