// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace ui {
class Grid;
}

/// Why no selection can run, although scores were calculated.
enum class SelectionObstacle {
    NoSpecies,  ///< all were removed since
    NoStatus,   ///< a species has no conservation status
    OldScores,  ///< entries were added to the lists since, which are not graded or have no scores
};

/// A cell that still has to be filled before there are scores or a suite.
struct MissingCell {
    const ui::Grid* Grid;
    int Row;
    int Column;
    int Finding;  ///< numbers the cells that were found one after the other

    bool operator==(const MissingCell&) const = default;
};
