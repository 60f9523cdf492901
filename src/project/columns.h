// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/errors.h"

/// Where each value stands in its grid. Entities count from 1 and stand in the row of their number.

/// Row of item `item` of block `block` in a grid of blocks of `size` rows below one heading row.
inline int blockRow(int block, int size, int item) {
    int row = 0;
    if (__builtin_mul_overflow(block - 1, size, &row) || __builtin_add_overflow(row, item, &row)) {
        ui::raise(ui::ErrorNumber::Overflow);
    }
    return row;
}

/// Members of the flxSummary array.
namespace summary {
inline constexpr int HabitatUse = 0;
inline constexpr int JurisUnitUse = 1;
inline constexpr int HabitatsBySpecies = 2;
inline constexpr int JurisUnitsBySpecies = 3;
inline constexpr int Area = 4;
inline constexpr int Vulnerability = 5;
inline constexpr int ThreatsBySpecies = 6;
inline constexpr int SpeciesByThreat = 7;
inline constexpr int Functionality = 8;
inline constexpr int SocioEcon = 9;
inline constexpr int DataQuality = 10;
inline constexpr int Count = 11;
}  // namespace summary

/// The list grids.
namespace list {
inline constexpr int Number = 0;
inline constexpr int Name = 1;
inline constexpr int ScientificName = 2;
inline constexpr int Area = 2;
inline constexpr int LevelOfUse = 3;
inline constexpr int Urgency = 2;
inline constexpr int Probability = 3;
}  // namespace list

/// flxSummary(2) and (3): row (species - 1) × units + unit.
namespace use {
inline constexpr int UnitName = 1;
inline constexpr int Level = 2;
}  // namespace use

/// flxSummary(4).
namespace area {
inline constexpr int Dispersal = 1;
inline constexpr int Connectivity = 2;
inline constexpr int HomeRange = 3;
inline constexpr int Occupied = 4;
}  // namespace area

/// flxSummary(5): threat t stands in column t + ThreatOffset.
namespace vulnerability {
inline constexpr int ConservationStatus = 1;
inline constexpr int ThreatOffset = 2;
}  // namespace vulnerability

/// flxSummary(6): row (species - 1) × threats + threat.
namespace threat {
inline constexpr int Name = 1;
inline constexpr int Urgency = 2;
inline constexpr int Probability = 3;
inline constexpr int Severity = 4;
inline constexpr int Recovery = 5;
inline constexpr int Proportion = 6;
}  // namespace threat

/// flxScores(0) and flxScoresSort(0); (1) has the five scores from column 1 on.
namespace score {
inline constexpr int Rank = 1;
inline constexpr int Aggregate = 2;
inline constexpr int FirstCriterion = 3;
inline constexpr int LastCriterion = 7;
inline constexpr int SortKey = 8;          ///< hidden column of flxScoresSort(0)
inline constexpr int OriginalSortKey = 6;  ///< hidden column of flxScoresSort(1)
}  // namespace score

/// flxCompResults(0). Scores stand in the columns that they have in flxScores(0).
namespace result {
inline constexpr int Name = 0;
inline constexpr int Rank = 1;
inline constexpr int Aggregate = 2;
inline constexpr int Heterogeneity = 3;
inline constexpr int AreaScore = 4;
inline constexpr int Vulnerability = 5;
inline constexpr int Functionality = 6;
inline constexpr int SocioEcon = 7;
inline constexpr int AddHabitats = 8;
inline constexpr int AddJurisUnits = 9;
inline constexpr int AddThreats = 10;
inline constexpr int Candidate = 11;  ///< hidden: the species' row in the candidate list
}  // namespace result
