// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <vector>

/// What a woven source asks: which of its mutants the process is to show, named by a number in the environment.
namespace mutation {

inline const int Active = [] {
    const char* number = std::getenv("BRENICA_MUTANT");
    return number != nullptr ? std::atoi(number) : 0;
}();

/// Where a run without a mutant lists the numbers of those that it comes by.
inline std::FILE* const Reached = [] {
    const char* path = std::getenv("BRENICA_MUTANTS_REACHED");
    return path != nullptr ? std::fopen(path, "w") : nullptr;
}();

inline void noteReached(int number) {
    static std::vector<bool> noted;
    const auto index = static_cast<std::size_t>(number);
    if (index >= noted.size()) noted.resize(index + 1);
    if (noted[index]) return;
    noted[index] = true;
    std::fprintf(Reached, "%d\n", number);
    std::fflush(Reached);
}

inline bool on(int number) {
    if (Reached != nullptr) noteReached(number);
    return number == Active;
}

}  // namespace mutation
