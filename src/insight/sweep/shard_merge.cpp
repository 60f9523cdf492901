// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/shard_merge.h"

#include <map>

namespace insight {

namespace {

/// Missing shards are named up to here.
constexpr std::size_t MostNamed = 20;

std::string nameOf(const Shard& part) { return std::to_string(part.Number) + "/" + std::to_string(part.Of); }

class Faults {
public:
    void add(const std::string& line) { text_ += text_.empty() ? line : "\n" + line; }
    void raise() const {
        if (!text_.empty()) throw MergeFault(text_);
    }

private:
    std::string text_;
};

/// In what the two differ first.
void compare(const ShardCounts& shard, const ShardCounts& first, Faults& faults) {
    for (std::size_t i = 0; i < first.Identity.size(); ++i) {
        const auto& [key, expected] = first.Identity[i];
        const std::string& found = shard.Identity[i].second;
        if (found == expected) continue;
        return faults.add(shard.File + " is of another sweep than " + first.File + ": " + key + " is '" +
                          found + "', not '" + expected + "'");
    }
    if (!(shard.Names == first.Names))
        faults.add(shard.File + " is of another sweep than " + first.File + ": other species or units");
}

void requireOneSweep(const std::vector<ShardCounts>& shards) {
    Faults faults;
    for (const ShardCounts& shard : shards) compare(shard, shards.front(), faults);
    faults.raise();
}

using ByNumber = std::map<std::uint32_t, const ShardCounts*>;

ByNumber sorted(const std::vector<ShardCounts>& shards, Faults& faults) {
    ByNumber found;
    for (const ShardCounts& shard : shards) {
        const auto [place, isNew] = found.emplace(shard.Part.Number, &shard);
        if (!isNew)
            faults.add("shard " + nameOf(shard.Part) + " is there twice: " + place->second->File + " and " +
                       shard.File);
        const std::uint64_t all = runsOf(shard.Runs, shard.Part);
        if (shard.Counts.Runs < all) {
            faults.add("shard " + nameOf(shard.Part) + " was cut short: " + shard.File + " has " +
                       std::to_string(shard.Counts.Runs) + " runs of " + std::to_string(all));
        }
    }
    return found;
}

void requireAll(const ByNumber& found, std::uint32_t of, Faults& faults) {
    std::size_t missing = of - found.size();
    std::size_t named = 0;
    for (std::uint32_t number = 1; named < missing && named < MostNamed; ++number) {
        if (found.contains(number)) continue;
        faults.add("shard " + nameOf({number, of}) + " is missing");
        ++named;
    }
    if (missing > named) faults.add("and " + std::to_string(missing - named) + " more are missing");
}

}  // namespace

SweepCounts mergedCounts(const std::vector<ShardCounts>& shards) {
    requireOneSweep(shards);
    Faults faults;
    const ByNumber found = sorted(shards, faults);
    requireAll(found, shards.front().Part.Of, faults);
    faults.raise();
    SweepCounts sum(shards.front().Names);
    for (const ShardCounts& shard : shards) sum.add(shard.Counts);
    return sum;
}

}  // namespace insight
