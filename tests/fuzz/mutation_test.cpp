// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <random>
#include <string>

#include "fuzz_session.h"
#include "support/form_test.h"

namespace {

constexpr int Mutations = 10'000;
/// A walk costs many times an open, so that only each sixteenth damaged file is walked.
constexpr int WalkEvery = 16;

using Random = std::mt19937;

std::size_t below(Random& random, std::size_t count) { return random() % count; }

/// What can happen to a file at one place.
enum class Damage {
    FlipBit,
    FlipByte,
    Comma,
    Equals,
    CarriageReturn,
    Digit,
    FullByte,
    Delete,
    Duplicate,
    Last
};

std::string damaged(std::string text, Random& random) {
    constexpr std::size_t LongestStretch = 64;
    const std::size_t place = below(random, text.size());
    const std::size_t length = std::min(1 + below(random, LongestStretch), text.size() - place);
    const auto bits = [&](unsigned mask) {
        return static_cast<char>(static_cast<unsigned char>(text[place]) ^ mask);
    };
    switch (static_cast<Damage>(below(random, static_cast<std::size_t>(Damage::Last)))) {
        case Damage::FlipBit: text[place] = bits(1U << below(random, 8)); break;
        case Damage::FlipByte: text[place] = bits(0xFF); break;
        case Damage::Comma: text[place] = ','; break;
        case Damage::Equals: text[place] = '='; break;
        case Damage::CarriageReturn: text[place] = '\r'; break;
        case Damage::Digit: text[place] = static_cast<char>('0' + below(random, 10)); break;
        case Damage::FullByte: text[place] = '\xFF'; break;
        case Damage::Delete: text.erase(place, length); break;
        case Damage::Duplicate: text.insert(place, text.substr(place, length)); break;
        case Damage::Last: break;
    }
    return text;
}

/// Each example in turn. How its damaged files ended is counted, so that a test of nothing but one end is noticed.
class DamagedProject : public testing::TestWithParam<const char*> {
protected:
    std::string whole = readFile(std::string(BRENICA_SOURCE_DIR "/examples/") + GetParam() + ".brn");
    std::map<SessionEnd, int> ends;
    int run = 0;

    void SetUp() override { ASSERT_EQ(runSession(whole, SessionDepth::OpenAndWalk), SessionEnd::Selected); }

    /// Every sixteenth file is walked as well. False ends the test: one defect is enough at a time.
    bool take(const std::string& project, const std::string& name) {
        const bool walk = run++ % WalkEvery == 0;
        try {
            ++ends[runSession(project, walk ? SessionDepth::OpenAndWalk : SessionDepth::Open)];
            return true;
        } catch (const std::exception& failure) {
            ADD_FAILURE() << GetParam() << ", " << name << ": " << failure.what();
            return false;
        }
    }
};

/// A cut drops whole lines, and half a line keeps what it has, so that no cut file is unreadable for certain.
TEST_P(DamagedProject, CutOffAtEveryByteEndsAsDescribed) {
    for (std::size_t length = 0; length < whole.size(); ++length) {
        if (!take(whole.substr(0, length), "cut off after " + std::to_string(length) + " bytes")) return;
    }
    EXPECT_GT(ends[SessionEnd::OnlyOpened], 0);
    EXPECT_GT(ends[SessionEnd::NothingToScore], 0);
}

TEST_P(DamagedProject, ChangedInARandomPlaceEndsAsDescribed) {
    for (std::uint32_t seed = 0; seed < Mutations; ++seed) {
        Random random(seed);
        if (!take(damaged(whole, random), "damaged with seed " + std::to_string(seed))) return;
    }
    EXPECT_GT(ends[SessionEnd::OnlyOpened], 0);
    EXPECT_GT(ends[SessionEnd::Unreadable], 0);
    EXPECT_GT(ends[SessionEnd::Selected], 0);
}

INSTANTIATE_TEST_SUITE_P(Examples, DamagedProject,
                         testing::Values("small_landscape", "full_landscape", "version1_landscape"),
                         [](const auto& example) { return std::string(example.param); });

}  // namespace
