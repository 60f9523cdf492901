// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "insight/sweep/sweep_counts.h"
#include "insight/sweep/sweep_settings.h"

/// The counts of one shard as a text file: what it was made of, so that shards of different sweeps are told apart, and
/// what it came to. Lines of fields parted by tabs, each ended by LF; in a field \t, \n, \r and \\ are escaped. The last
/// line holds a checksum of those before it.
namespace insight {

/// Texts that only the caller knows.
struct SweepOrigin {
    std::string Program;  ///< version of the program
    std::string Project;  ///< hash of the project's bytes
};

/// All that shards of one sweep have in common, by name, in the order of the file: program, project, the three levels,
/// answers, vary, runs, seed, p, zeros, quality, shards.
using SweepIdentity = std::vector<std::pair<std::string, std::string>>;
SweepIdentity identityOf(const SweepOrigin& origin, const method::Levels& levels,
                         const SweepSettings& settings);

struct ShardCounts {
    std::string File;  ///< where they come from, for messages
    SweepIdentity Identity;
    method::Levels Levels;   ///< of the identity
    std::uint64_t Runs = 0;  ///< of all shards together
    Shard Part;
    SweepNames Names;
    SweepCounts Counts;
};

/// REQUIRES: counts of `names`
std::string countsText(const SweepIdentity& identity, const Shard& part, const SweepNames& names,
                       const SweepCounts& counts);

/// The lines of a file with the last one, which holds their checksum.
std::string withChecksum(std::string lines);

/// A text that holds no counts; says the file, the line and why.
struct CountsFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What countsText() made. Throws CountsFault for any other text.
ShardCounts readCounts(const std::string& file, std::string_view text);

}  // namespace insight
