// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Why no selection can run, although scores were calculated.
enum class SelectionObstacle {
    NoSpecies,  ///< all were removed since
    NoStatus,   ///< a species has no conservation status
    OldScores,  ///< entries were added to the lists since, which are not graded or have no scores
};
