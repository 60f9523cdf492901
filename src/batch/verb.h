// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <span>
#include <string_view>

/// What stands behind a verb on the command line, and where it prints.
struct VerbCall {
    const struct Verb& Verb;
    std::span<const char* const> Arguments;
    std::ostream& Out;  ///< the table
    std::ostream& Err;  ///< all else
};

/// A question about suites that brenica-batch answers.
struct Verb {
    const char* Name;
    const char* Help;
    int (*Run)(const VerbCall& call);  ///< gives the exit code
};

/// The verb of this name, if it is one.
const Verb* findVerb(std::string_view name);

int runVerb(const Verb& verb, std::span<const char* const> arguments, std::ostream& out, std::ostream& err);
