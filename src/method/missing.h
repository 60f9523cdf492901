// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "method/landscape.h"
#include "method/levels.h"

/// What is still to be graded before a selection can run.
namespace method {

/// Whether a grade is Blank that a selection at these levels may read: a level of use of a species that takes part, or
/// its severity, recovery or proportion under a threat that some species do not represent. Where the highest M(·,t) or
/// the level of representation is 0, every species represents the threat: the first pick covers it, and its ratings are
/// never read. Urgency and probability, which belong to the threat, are not checked, although a Blank one fails in
/// vulnerabilityLeft. Unreadable values are passed over.
bool lacksGrades(const Landscape& landscape, const Table& threatScores, const Levels& levels);

}  // namespace method
