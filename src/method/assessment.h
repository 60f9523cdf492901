// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "method/landscape.h"
#include "method/scores.h"
#include "method/vulnerability.h"

namespace method {

/// All that is computed of a landscape before a selection.
struct Assessment {
    ThreatScores Threats;
    std::vector<double> HomeRanges;  ///< R(s), 0 to 3
    Scores Species;
};

/// Threat scores, home ranges and criterion scores, in this order. Throws Failure; `assessment` then holds what came
/// before.
void assess(const Landscape& landscape, Assessment& assessment);

}  // namespace method
