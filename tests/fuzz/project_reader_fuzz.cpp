// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz_session.h"

namespace {
constexpr std::size_t LongestProject = 4096;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Takes any bytes for a project. What is neither success nor a described failure ends in an uncaught exception.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int KeepNot = -1;
    const std::string_view project(reinterpret_cast<const char*>(data), size);
    if (size > LongestProject || !isSmall(project)) return KeepNot;
    runSession(project, SessionDepth::OpenAndWalk);
    return 0;
}
