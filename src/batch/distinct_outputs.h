// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <span>
#include <string>

/// A path of an output, and the option that brings it.
struct NamedOutput {
    std::string Option;
    std::filesystem::path Path;
};

/// Throws UsageFault where two outputs, or an output and the project, are one file, by whatever paths. Standard output
/// and standard error count where they were sent to a file. Pipes and devices may take several outputs: they keep
/// nothing that could be overwritten. A path that cannot be followed is passed over: who opens it says why.
void requireDistinct(const std::filesystem::path& project, std::span<const NamedOutput> outputs);
