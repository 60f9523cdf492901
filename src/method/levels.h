// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace method {

/// The three levels that a planner sets before a selection.
struct Levels {
    /// Percent, 0 to 100, of the best aggregate, a tolerance for near ties: between species no farther below it a
    /// Chooser decides.
    double Margin = 5;
    /// Share, 0 to 1, of the highest score for a threat from which on a species represents the threat.
    double ThreatRepresentation = 0.5;
    /// Highest conservation status, 0 to 1, that is admitted.
    double ConservationStatus = 1;
};

}  // namespace method
