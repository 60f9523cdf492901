// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/shard_merge.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "insight/sweep/sweep.h"
#include "selected_run.h"
#include "selection/margin_answers.h"

using insight::CountsFault;
using insight::ShardCounts;
using insight::SweepSettings;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

const SelectionRun& small() {
    static const SelectionRun run = [] {
        SelectionRun selectedRun = selected(smallLandscape());
        selectedRun.Species[0] = "An odd\tname \\ of\r\ntwo lines";
        return selectedRun;
    }();
    return run;
}

SweepSettings settings() {
    SweepSettings given;
    given.Vary = {.Levels = true, .Answers = false, .Grades = true};
    given.Runs = 50;
    given.Seed = 7;
    given.Answers = marginAnswers({"b", "2", "what"});
    return given;
}

const insight::SweepOrigin Origin{"2.0.0", "c0ffee"};

/// The file of one shard of three.
std::string shardText(std::uint32_t number, SweepSettings given = settings(),
                      const insight::SweepOrigin& origin = Origin) {
    given.Part = {number, 3};
    return countsText(identityOf(origin, small().Levels, given), given.Part, insight::sweepNames(small()),
                      insight::sweep(small(), given));
}

ShardCounts shard(std::uint32_t number) {
    return insight::readCounts("s" + std::to_string(number), shardText(number));
}

template <class Action>
std::string faultOf(Action action) {
    try {
        action();
    } catch (const std::runtime_error& fault) {
        return fault.what();
    }
    return "no fault";
}

std::string readFault(const std::string& text) {
    return faultOf([&] { insight::readCounts("x", text); });
}
std::string mergeFault(const std::vector<ShardCounts>& shards) {
    return faultOf([&] { insight::mergedCounts(shards); });
}

/// `text` with one part replaced.
std::string with(std::string text, const std::string& part, const std::string& other) {
    const std::size_t place = text.find(part);
    EXPECT_NE(place, std::string::npos) << part;
    return text.replace(place, part.size(), other);
}

/// A shard whose settings were changed by `change`.
template <class Change>
ShardCounts changed(std::uint32_t number, Change change) {
    SweepSettings given = settings();
    change(given);
    return insight::readCounts("s" + std::to_string(number), shardText(number, given));
}

}  // namespace

TEST(ACountsFile, SaysWhatItWasMadeOf) {
    EXPECT_THAT(shardText(2), StartsWith("brenica sweep counts\t1\n"
                                         "program\t2.0.0\n"
                                         "project\tc0ffee\n"
                                         "margin\t5\n"
                                         "threat_representation\t0.5\n"
                                         "conservation_status\t1\n"
                                         "answers\tb 2 ?\n"
                                         "vary\tlevels grades\n"
                                         "runs\t50\n"
                                         "seed\t7\n"
                                         "p\t0.1\n"
                                         "zeros\tno\n"
                                         "quality\tno\n"
                                         "shards\t3\n"
                                         "shard\t2\n"
                                         "done\t17\n"
                                         "errors\t"));
    EXPECT_THAT(shardText(2), HasSubstr("\nspecies\tAn odd\\tname \\\\ of\\r\\ntwo lines\t"));
}

TEST(ACountsFile, IsReadBack) {
    SweepSettings given = settings();
    given.Part = {2, 3};
    const ShardCounts read = shard(2);
    EXPECT_EQ(read.File, "s2");
    EXPECT_EQ(read.Runs, 50u);
    EXPECT_EQ(read.Part.Number, 2u);
    EXPECT_EQ(read.Part.Of, 3u);
    EXPECT_EQ(read.Identity, identityOf(Origin, small().Levels, given));
    EXPECT_EQ(read.Names, insight::sweepNames(small()));
    EXPECT_EQ(read.Counts, insight::sweep(small(), given));
}

TEST(ACountsFile, ThatIsNoneIsRefused) {
    for (const char* text : {"", "\n", "hello\n", "brenica sweep\t1\n"})
        EXPECT_EQ(readFault(text), "x:1: no file of the counts of a sweep") << text;
    EXPECT_EQ(readFault("brenica sweep counts\t2\n"), "x:1: the file is of version 2, not 1");
}

TEST(ACountsFile, ThatIsCutAnywhereIsRefused) {
    const std::string text = shardText(1);
    for (std::size_t length = 0; length < text.size(); ++length)
        ASSERT_THROW(insight::readCounts("x", text.substr(0, length)), CountsFault) << length;
    EXPECT_EQ(readFault(text.substr(0, text.size() - 1)),
              "x:" + std::to_string(std::count(text.begin(), text.end(), '\n')) +
                  ": the file ends here, before it is complete");
}

TEST(ACountsFile, WithAnyByteChangedIsRefused) {
    const std::string text = shardText(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        for (const char other : {'0', '9', '\t', '\n', '\\', 'x', '\0'}) {
            std::string damaged = text;
            damaged[i] = other;
            if (damaged == text) continue;
            ASSERT_THROW(insight::readCounts("x", damaged), CountsFault) << i << ' ' << int{other};
        }
    }
}

TEST(ACountsFile, SaysWhereItIsDamaged) {
    const std::string text = shardText(2);
    EXPECT_EQ(readFault(with(text, "seed\t7\n", "")), "x:10: 'seed' is expected here");
    EXPECT_EQ(readFault(with(text, "seed\t7", "seed\t7\t8")), "x:10: 'seed' has 2 values, not 1");
    EXPECT_EQ(readFault(with(text, "seed\t7", "seed")), "x:10: 'seed' has 0 values, not 1");
    EXPECT_EQ(readFault(with(text, "margin\t5", "margin\t5 %")), "x:4: '5 %' is no number");
    EXPECT_EQ(readFault(with(text, "done\t17", "done\t18")), "x:16: '18' is no whole number from 0 to 17");
    EXPECT_EQ(readFault(with(text, "done\t17", "done\t1.5")), "x:16: '1.5' is no whole number from 0 to 17");
    EXPECT_EQ(readFault(with(text, "shard\t2", "shard\t4")), "x:15: '4' is no whole number from 1 to 3");
    const std::string second = "\nspecies\t" + small().Species[1] + "\t";
    EXPECT_EQ(readFault(with(text, second, second + "9")).substr(0, 6), "x:19: ");  // more suites than runs
    EXPECT_EQ(readFault(with(text, "odd\\t", "odd\\q")),
              "x:18: a backslash stands before no t, n, r or backslash");
    EXPECT_EQ(readFault(text + "more\n"),
              "x:" + std::to_string(std::count(text.begin(), text.end(), '\n') + 1) +
                  ": the file goes on after its end");
    EXPECT_EQ(readFault(with(text, "seed\t7", "seed\t8")),
              "x:" + std::to_string(std::count(text.begin(), text.end(), '\n')) +
                  ": the file has changed since it was written");
}

TEST(Shards, InAnyOrderGiveTheTableOfTheWhole) {
    const std::string whole =
        tabSeparated(sweepTable(insight::sweepNames(small()), insight::sweep(small(), settings())));
    std::vector<std::uint32_t> order = {1, 2, 3};
    do {
        std::vector<ShardCounts> shards;
        for (const std::uint32_t number : order) shards.push_back(shard(number));
        EXPECT_EQ(tabSeparated(sweepTable(shards.front().Names, insight::mergedCounts(shards))), whole);
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(Shards, ThatAreMissingAreNamed) {
    EXPECT_EQ(mergeFault({shard(1), shard(2)}), "shard 3/3 is missing");
    EXPECT_EQ(mergeFault({shard(2)}), "shard 1/3 is missing\nshard 3/3 is missing");
}

TEST(Shards, AreNamedUpTo20OfThoseThatAreMissing) {
    ShardCounts one = shard(1);
    one.Part = {1000, 4'000'000'000};
    one.Runs = 0;
    const std::string fault = mergeFault({one});
    EXPECT_EQ(std::count(fault.begin(), fault.end(), '\n'), 20);
    EXPECT_THAT(fault, HasSubstr("\nshard 20/4000000000 is missing\nand 3999999979 more are missing"));
}

TEST(Shards, ThatAreThereTwiceAreNamed) {
    ShardCounts again = shard(2);
    again.File = "copy";
    EXPECT_EQ(mergeFault({shard(1), shard(2), again, shard(3)}), "shard 2/3 is there twice: s2 and copy");
}

TEST(Shards, ThatWereCutShortAreNamed) {
    ShardCounts stopped = shard(2);
    for (const int runs : {0, 5, 16}) {
        stopped.Counts.Runs = static_cast<insight::Count>(runs);
        EXPECT_EQ(mergeFault({shard(1), stopped, shard(3)}),
                  "shard 2/3 was cut short: s2 has " + std::to_string(runs) + " runs of 17");
    }
}

TEST(Shards, OfAnotherSweepAreNamed) {
    const auto fault = [](const ShardCounts& foreign) { return mergeFault({shard(1), foreign, shard(3)}); };
    const std::string start = "s2 is of another sweep than s1: ";
    EXPECT_EQ(fault(changed(2, [](auto& given) { given.Seed = 8; })), start + "seed is '8', not '7'");
    EXPECT_EQ(fault(changed(2, [](auto& given) { given.Runs = 51; })), start + "runs is '51', not '50'");
    EXPECT_EQ(fault(changed(2, [](auto& given) { given.P = 0.2; })), start + "p is '0.2', not '0.1'");
    EXPECT_EQ(fault(changed(2, [](auto& given) { given.Zeros = true; })), start + "zeros is 'yes', not 'no'");
    EXPECT_EQ(fault(changed(2, [](auto& given) { given.Quality = true; })),
              start + "quality is 'yes', not 'no'");
    EXPECT_EQ(fault(changed(2, [](auto& given) { given.Vary.Answers = true; })),
              start + "vary is 'levels answers grades', not 'levels grades'");
    EXPECT_EQ(fault(changed(2, [](auto& given) { given.Answers.pop_back(); })),
              start + "answers is 'b 2', not 'b 2 ?'");
    EXPECT_EQ(fault(insight::readCounts("s2", shardText(2, settings(), {"2.0.1", "c0ffee"}))),
              start + "program is '2.0.1', not '2.0.0'");
    EXPECT_EQ(fault(insight::readCounts("s2", shardText(2, settings(), {"2.0.0", "decaf"}))),
              start + "project is 'decaf', not 'c0ffee'");
    ShardCounts named = shard(2);
    named.Names.Species[1] = "Somebody";
    EXPECT_EQ(fault(named), start + "other species or units");
}

TEST(Shards, OfAnotherNumberOfShardsAreNamed) {
    SweepSettings given = settings();
    given.Part = {2, 4};
    const ShardCounts foreign =
        insight::readCounts("s2", countsText(identityOf(Origin, small().Levels, given), given.Part,
                                             insight::sweepNames(small()), insight::sweep(small(), given)));
    EXPECT_EQ(mergeFault({shard(1), foreign, shard(3)}),
              "s2 is of another sweep than s1: shards is '4', not '3'");
}
