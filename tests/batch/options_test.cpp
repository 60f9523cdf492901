// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/options.h"

#include "batch_test.h"

using testing::ElementsAre;
using testing::HasSubstr;

class Options : public testing::Test {
protected:
    ParsedOptions parse(std::vector<const char*> arguments) {
        arguments.insert(arguments.begin(), "brenica-batch");
        std::ostringstream outStream;
        std::ostringstream errStream;
        ParsedOptions parsed =
            parseOptions(static_cast<int>(arguments.size()), arguments.data(), outStream, errStream);
        out = outStream.str();
        err = errStream.str();
        return parsed;
    }
    std::string out;
    std::string err;
};

TEST_F(Options, OfAProjectAlone) {
    const ParsedOptions parsed = parse({"a.brn"});
    ASSERT_TRUE(parsed.Options);
    EXPECT_EQ(parsed.Options->Project, "a.brn");
    EXPECT_FALSE(parsed.Options->ErrorMargin || parsed.Options->ThreatRepresentation ||
                 parsed.Options->ConservationStatus || parsed.Options->Results || parsed.Options->Tables ||
                 parsed.Options->Messages);
    EXPECT_TRUE(parsed.Options->Answers.empty());
    EXPECT_EQ(out + err, "");
}

TEST_F(Options, AllTogether) {
    const ParsedOptions parsed = parse(
        {"--error-margin", "6", "--threat-representation", "0.4", "--conservation-status", "0.8", "--answer",
         "b", "--answer", "d", "--results", "r.txt", "--tables", "t", "--messages", "m.json", "a.brn"});
    ASSERT_TRUE(parsed.Options);
    EXPECT_EQ(parsed.Options->ErrorMargin, "6");
    EXPECT_EQ(parsed.Options->ThreatRepresentation, "0.4");
    EXPECT_EQ(parsed.Options->ConservationStatus, "0.8");
    EXPECT_THAT(parsed.Options->Answers, ElementsAre("b", "d"));
    EXPECT_EQ(parsed.Options->Results, "r.txt");
    EXPECT_EQ(parsed.Options->Tables, "t");
    EXPECT_EQ(parsed.Options->Messages, "m.json");
    EXPECT_EQ(parsed.Options->Project, "a.brn");
}

TEST_F(Options, AnAnswerMayBeEmpty) {
    const ParsedOptions parsed = parse({"--answer", "", "--answer", "2", "--answer", "", "a.brn"});
    ASSERT_TRUE(parsed.Options) << err;
    EXPECT_THAT(parsed.Options->Answers, ElementsAre("", "2", ""));
    EXPECT_EQ(parsed.Options->Project, "a.brn");
}

TEST_F(Options, NothingBehindAnEqualsSignIsAnEmptyValue) {
    const ParsedOptions parsed = parse({"--answer=", "--answer", "2", "--answer=", "--results=", "a.brn"});
    ASSERT_TRUE(parsed.Options) << err;
    EXPECT_THAT(parsed.Options->Answers, ElementsAre("", "2", ""));
    EXPECT_EQ(parsed.Options->Results, "");
    EXPECT_EQ(parsed.Options->Project, "a.brn");
}

TEST_F(Options, AfterTwoDashesAnArgumentIsAFile) {
    const ParsedOptions parsed = parse({"--", "--answer="});
    ASSERT_TRUE(parsed.Options) << err;
    EXPECT_EQ(parsed.Options->Project, "--answer=");
}

TEST_F(Options, ADashIsAFile) {
    const ParsedOptions parsed = parse({"--results", "-", "--tables=-", "-"});
    ASSERT_TRUE(parsed.Options) << err;
    EXPECT_EQ(parsed.Options->Results, "-");
    EXPECT_EQ(parsed.Options->Tables, "-");
    EXPECT_EQ(parsed.Options->Project, "-");
}

TEST_F(Options, AnAnswerTakesOneValueAndKeepsItAsItIs) {
    const ParsedOptions parsed = parse({"--answer", " b, c ", "a.brn"});
    ASSERT_TRUE(parsed.Options) << err;
    EXPECT_THAT(parsed.Options->Answers, ElementsAre(" b, c "));
}

TEST_F(Options, AnAnswerMayStandBehindAnEqualsSign) {
    const ParsedOptions parsed = parse({"--answer=b", "a.brn"});
    ASSERT_TRUE(parsed.Options) << err;
    EXPECT_THAT(parsed.Options->Answers, ElementsAre("b"));
}

TEST_F(Options, AnAnswerInBracketsIsNoList) {
    const ParsedOptions parsed = parse({"--answer", "[b,c]", "a.brn"});
    ASSERT_TRUE(parsed.Options) << err;
    EXPECT_THAT(parsed.Options->Answers, ElementsAre("[b,c]"));
}

TEST_F(Options, WrongUsageIsToldOnStandardError) {
    const std::vector<std::vector<const char*>> wrong = {
        {}, {"--colour", "a.brn"}, {"a.brn", "b.brn"}, {"a.brn", "--results"}, {"a.brn", "--answer"}};
    for (const auto& arguments : wrong) {
        const ParsedOptions parsed = parse(arguments);
        EXPECT_FALSE(parsed.Options);
        EXPECT_EQ(parsed.ExitCode, ExitWrongUsage);
        EXPECT_NE(err, "");
        EXPECT_EQ(out, "");
    }
}

TEST_F(Options, HelpNamesEveryOption) {
    const ParsedOptions parsed = parse({"--help"});
    EXPECT_FALSE(parsed.Options);
    EXPECT_EQ(parsed.ExitCode, ExitDone);
    for (const char* name : {"--error-margin", "--threat-representation", "--conservation-status", "--answer",
                             "--results", "--tables", "--messages", "--help", "--version"}) {
        EXPECT_THAT(out, HasSubstr(name));
    }
    EXPECT_EQ(err, "");
}

TEST_F(Options, VersionNamesTheProgram) {
    const ParsedOptions parsed = parse({"--version"});
    EXPECT_FALSE(parsed.Options);
    EXPECT_EQ(parsed.ExitCode, ExitDone);
    EXPECT_EQ(out, "brenica-batch 2.0.0\n");
}
