// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

/// A fault in the use of the program, found before the run: what it says is printed, and nothing else is done.
struct UsageFault {
    std::string Text;
};

/// A file that a verb is asked about cannot be read.
struct UnreadableFault {
    std::string Text;
};
