// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "method/landscape.h"
#include "method/levels.h"
#include "method/selection.h"

/// What a selection came to, or how far it came.
struct SelectionOutcome {
    method::Suite Suite;
    std::optional<std::string> Error{};  ///< describes what ended it
    std::vector<std::string> Answers{};  ///< given to its questions, in order
};

/// A selection with all that it was made of, as numbers and names: it can be explained without the form. Species and
/// units count from 0, in the order of their lists.
struct SelectionRun {
    std::vector<std::string> Species;
    method::PerKind<std::vector<std::string>> Units;
    method::Landscape Landscape;
    method::Levels Levels;
    method::Table ThreatScores;      ///< M(s,t) to 2 decimals, species × threats
    std::vector<double> Aggregates;  ///< of the first pass, to 3 decimals
    std::vector<int> Ranks;          ///< of all candidates, from 1
    method::Table DataQuality;       ///< species × criteria, 1 to 6; Blank where none was entered
    SelectionOutcome Outcome;
};
