// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/shard_merge.h"

#include <algorithm>
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

/// The sweep that most shards are of; of equally many the first.
const ShardCounts& commonest(const std::vector<ShardCounts>& shards) {
    std::map<SweepIdentity, std::size_t> counts;
    for (const ShardCounts& shard : shards) ++counts[shard.Identity];
    return *std::max_element(shards.begin(), shards.end(), [&](const ShardCounts& a, const ShardCounts& b) {
        return counts[a.Identity] < counts[b.Identity];
    });
}

/// In what the two differ first.
void compare(const ShardCounts& shard, const ShardCounts& common, Faults& faults) {
    for (std::size_t i = 0; i < common.Identity.size(); ++i) {
        const auto& [key, expected] = common.Identity[i];
        const std::string& found = shard.Identity[i].second;
        if (found == expected) continue;
        return faults.add(shard.File + " is of another sweep than " + common.File + ": " + key + " is '" +
                          found + "', not '" + expected + "'");
    }
    if (!(shard.Names == common.Names))
        faults.add(shard.File + " is of another sweep than " + common.File + ": other species or units");
}

void requireOneSweep(const std::vector<ShardCounts>& shards) {
    Faults faults;
    const ShardCounts& common = commonest(shards);
    for (const ShardCounts& shard : shards) compare(shard, common, faults);
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
