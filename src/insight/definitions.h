// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

/// What the words of the tables mean, for whoever reads them.
namespace insight {

struct Definition {
    const char* Term;
    const char* Meaning;
};
std::span<const Definition> definitions();

}  // namespace insight
