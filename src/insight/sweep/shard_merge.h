// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "insight/sweep/counts_file.h"

namespace insight {

/// Why shards cannot be put together, as lines that each name a file or a shard.
struct MergeFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What the whole sweep came to, whatever the order of its shards. Throws MergeFault where a shard is of another sweep
/// than most of them, was cut short, is there twice or is missing. REQUIRES: at least one shard
SweepCounts mergedCounts(const std::vector<ShardCounts>& shards);

}  // namespace insight
