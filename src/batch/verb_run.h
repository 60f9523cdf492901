// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <span>

#include "batch/verb.h"

/// Runs a verb with the arguments behind its name; gives the exit code. The project is opened, walked through and
/// selected from as without a verb. The table goes to `out`, all else to `err`.
int runVerb(const Verb& verb, std::span<const char* const> arguments, std::ostream& out, std::ostream& err);
