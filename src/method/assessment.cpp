// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/assessment.h"

namespace method {

void assess(const Landscape& landscape, Assessment& assessment) {
    scoreThreats(landscape.Ratings, assessment.Threats);
    assessment.HomeRanges = scaleHomeRanges(landscape.Ranges);
    scoreSpecies(landscape, assessment.Threats.BySpecies, assessment.HomeRanges, assessment.Species);
}

}  // namespace method
