// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz_session.h"
#include "insight/sweep/shard_merge.h"

namespace {

constexpr std::size_t LongestCounts = 16384;

/// What was read is written and read again, and merged where it is whole.
void use(const insight::ShardCounts& read) {
    const std::string text = insight::countsText(read.Identity, read.Part, read.Names, read.Counts);
    const insight::ShardCounts again = insight::readCounts(read.File, text);
    require(again.Identity == read.Identity && again.Names == read.Names && again.Counts == read.Counts,
            "counts are not read as they were written");
    try {
        tabSeparated(sweepTable(read.Names, insight::mergedCounts({read})));
    } catch (const insight::MergeFault& fault) {
        require(*fault.what() != '\0', "a fault without a word");
    }
}

void read(std::string_view text) {
    constexpr std::string_view File = "fuzzed";
    try {
        use(insight::readCounts(std::string(File), text));
    } catch (const insight::CountsFault& fault) {
        require(std::string_view(fault.what()).starts_with(std::string(File) + ":"), fault.what());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Takes any bytes for the counts of a shard: as they are, and with the checksum that lets them pass for whole.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int KeepNot = -1;
    if (size > LongestCounts) return KeepNot;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    read(text);
    read(insight::withChecksum(std::string(text)));
    return 0;
}
