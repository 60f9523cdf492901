// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <vector>

#include "measured_run.h"

/// Prints the measures of one or more projects, from small to large, as a plain text table.
///
/// Growth is the ratio of the times over the ratio of the work, from one size to the next: 1 keeps pace, less is
/// mostly fixed cost, more grows faster than its work. A step that clearly does, past noise, is marked with "!".
void printTable(std::ostream& out, const std::vector<RunMeasure>& measures);
