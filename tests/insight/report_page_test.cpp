// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "cover_project.h"
#include "insight/report/open_units.h"
#include "insight/report/report.h"
#include "selected_run.h"
#include "selection/margin_answers.h"

using namespace insight;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr const char* Hash = "0123456789abcdef";

std::string pageOf(const SelectionRun& run, const ReportOrigin& origin,
                   const ReportWork& work = {.Threads = 2}) {
    return reportPage(ReportFindings(run, marginAnswers(origin.Answers), work), origin);
}
std::string pageOf(const SelectionRun& run) { return pageOf(run, {"p.brn", Hash, "1.2"}); }
std::string pageOf(const ProjectText& project, const RunOptions& options = {}, const ReportWork& work = {}) {
    const TemporaryFolder folder;
    return pageOf(exportedRun(project, options, folder).Run.value(), {"p.brn", Hash, "1.2"}, work);
}

std::size_t count(const std::string& page, const std::string& what) {
    std::size_t found = 0;
    for (std::size_t at = page.find(what); at != std::string::npos; at = page.find(what, at + 1)) ++found;
    return found;
}

}  // namespace

TEST(ReportPage, StandsAlone) {
    const std::string page = pageOf(selected(fullLandscape()));
    EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\n<html lang=\"en\">"));
    EXPECT_THAT(page, HasSubstr("content=\"default-src 'none'; style-src 'unsafe-inline'\""));
    EXPECT_THAT(page, Not(HasSubstr("<script")));
    EXPECT_THAT(page, Not(HasSubstr("url(")));
    EXPECT_EQ(count(page, "://"), count(page, "xmlns=\"http://www.w3.org/2000/svg\""));
    EXPECT_EQ(count(page, "href=\""), count(page, "href=\"#"));
}

TEST(ReportPage, IsTheSameEachTime) {
    const SelectionRun run = selected(fullLandscape());
    const ReportOrigin origin{"p.brn", Hash, "1.2"};
    EXPECT_EQ(pageOf(run, origin, {.Nodes = 500, .Threads = 1}),
              pageOf(run, origin, {.Nodes = 500, .Threads = 3}));
}

TEST(ReportPage, TellsWhereItComesFrom) {
    const SelectionRun run = selected(fullLandscape());
    ReportOrigin origin{"p.brn", Hash, "1.2", {"b", "d", "b", "2"}, {.Nodes = 5000}};
    const std::string page = pageOf(run, origin);
    EXPECT_THAT(page, HasSubstr("<title>p: the suite explained</title>"));
    EXPECT_THAT(
        page,
        HasSubstr(
            "Brenica, version 1.2. Report on <bdi>p.brn</bdi> (SHA-256 0123456789abcdef) at margin of "
            "error 6 %, threat representation 0.4, conservation status 0.8; <bdi>answers b, d, b, "
            "2</bdi>; limit of the searches: at most 5,000 steps; sweeps: three, of 2,500 runs each; seed 1; p 0.1."));
    EXPECT_THAT(page,
                HasSubstr("“<bdi>b</bdi>”, “<bdi>d</bdi>”, “<bdi>b</bdi>”, “<bdi>2</bdi>”, in this order"));
    EXPECT_THAT(page, HasSubstr("at most 5,000 steps"));
    EXPECT_THAT(page, HasSubstr("2,500 runs each; seed 1; p 0.1"));
    origin.Hash = "";
    EXPECT_THAT(pageOf(run, origin), HasSubstr("none: the project was read from a pipe or device"));
}

TEST(ReportPage, OfAProjectThatWasNotSavedSaysSo) {
    const SelectionRun run = selected(smallLandscape());
    ReportOrigin origin{"p.brn", "", "1.2"};
    origin.IsSaved = false;
    const std::string page = pageOf(run, origin);
    EXPECT_THAT(page, HasSubstr("none: the project was not saved as it is explained here"));
    EXPECT_THAT(page, HasSubstr(" (not saved) at margin of error"));
    EXPECT_THAT(page, HasSubstr("Save it and make the page again"));
    EXPECT_THAT(page, Not(HasSubstr("brenica-batch report")));
    EXPECT_THAT(page, Not(HasSubstr("Whoever has the same file")));
}

TEST(ReportPage, EscapesNames) {
    SelectionRun run = selected(smallLandscape());
    run.Species[1] = "<script>alert(\"1\")</script> & co";
    run.Units[method::Unit::Habitat][0] = "\u05D9\u05E2\u05E8 <b>";
    const std::string page = pageOf(run);
    EXPECT_THAT(page, HasSubstr("<bdi>&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt; &amp; co</bdi>"));
    EXPECT_THAT(page, HasSubstr("<bdi>\u05D9\u05E2\u05E8 &lt;b&gt;</bdi>"));
    EXPECT_THAT(page, Not(HasSubstr("<script")));
}

TEST(ReportPage, StaysSmallWhereANameIsNot) {
    SelectionRun run = selected(smallLandscape());
    for (std::string& name : run.Species) name += std::string(2'000'000, 'x');
    EXPECT_LT(pageOf(run).size(), 300'000U);
}

TEST(ReportPage, IsMadeForProjectsWhereNothingCanBeSaid) {
    RunOptions options;
    options.ConservationStatus = "0.1";
    EXPECT_THAT(pageOf(twoSpecies().set("Conservation Status", "0.5,0.6"), options),
                HasSubstr("The run selected no species."));
    options.ConservationStatus = "0.8";
    EXPECT_THAT(pageOf(nothingToCover(), options),
                HasSubstr("Nothing can be covered: the empty suite is the smallest."));
    EXPECT_THAT(pageOf(twoSpecies().set("HeteroHabitat Population", "2,1,1,1")),
                HasSubstr("ended in an error"));
    EXPECT_THAT(pageOf(ProjectText(1, 1, 1, 1)), HasSubstr("at these levels"));
    EXPECT_THAT(pageOf(coverProject({{1, 1}, {1, 1}})), HasSubstr("no fewer cover as much"));
    EXPECT_THAT(pageOf(twoSpecies().set("Habitat UseLevel", "0,0").set("MZone UseLevel", "0")),
                HasSubstr("no fewer cover as much"));
}

TEST(ReportPage, ProvesWhatItSays) {
    EXPECT_THAT(pageOf(selected(fullLandscape())), HasSubstr("Together they weigh 41, "));
    EXPECT_THAT(pageOf(selected(smallLandscape())),
                HasSubstr("No eligible species covers two of the units below"));
    EXPECT_THAT(pageOf(twoRings()),
                HasSubstr("Every suite of fewer than six species was ruled out, in groups"));
}

TEST(ReportPage, NamesTheNearestLevelsThatLeaveNothing) {
    EXPECT_THAT(pageOf(selected(fullLandscape()), {"p.brn", Hash, "1.2", fullLandscape().Answers}),
                HasSubstr("Nearest to the levels of this report: threat representation 0.4, conservation "
                          "status 1, where the run has nine species and the smallest suite eight."));
    EXPECT_THAT(pageOf(twoSpecies().set("HeteroHabitat Population", "2,1,1,1")),
                HasSubstr("At no pair of these levels is every unit covered"));
}

TEST(ReportPage, SaysThatDefaultsWereFilledIn) {
    const SelectionRun run = selected(example("version1_landscape.brn"));
    ReportOrigin origin{"p.brn", Hash, "1.2"};
    EXPECT_THAT(pageOf(run, origin), HasSubstr("All grades are taken as they were entered."));
    origin.HasDefaults = true;
    const std::string page = pageOf(run, origin);
    EXPECT_THAT(page, HasSubstr("class=\"warning\""));
    EXPECT_THAT(page, Not(HasSubstr("All grades are taken as they were entered.")));
    EXPECT_THAT(page, HasSubstr("runs selected no species, as where none is eligible; shares of species"));
}

TEST(ReportPage, BearsTheGivenTitleAuthorAndDate) {
    const SelectionRun run = selected(smallLandscape());
    ReportOrigin origin{"p.brn", Hash, "1.2"};
    EXPECT_THAT(pageOf(run, origin), Not(HasSubstr("class=\"byline\"")));
    origin.Title = "Aldermere";
    origin.Author = "A. Planner";
    origin.Date = "2026-11-22";
    const std::string page = pageOf(run, origin);
    EXPECT_THAT(page, HasSubstr("<h1><bdi>Aldermere</bdi></h1>"));
    EXPECT_THAT(page, HasSubstr("<bdi>A. Planner</bdi>, <bdi>2026-11-22</bdi>"));
    EXPECT_THAT(page, HasSubstr("--title='Aldermere' --author='A. Planner' --date='2026-11-22' --out"));
}

TEST(ReportPage, SaysWhereTheSameNumbersAreSure) {
    const SelectionRun run = selected(fullLandscape());
    EXPECT_THAT(pageOf(run, {"p.brn", Hash, "1.2", {}, {.Nodes = 5000}}), HasSubstr(", on every machine."));
    EXPECT_THAT(pageOf(run, {"p.brn", Hash, "1.2", {}, {.Seconds = 60}}), HasSubstr("; here they did."));
}

TEST(ReportPage, ClaimsNothingOfSuitesThatALimitedSearchDidNotLookFor) {
    const SelectionRun run = selected(fullLandscape());
    const std::string page = pageOf(run, {"p.brn", Hash, "1.2", {}, {.Nodes = 1}}, {.Nodes = 1});
    EXPECT_THAT(page, Not(HasSubstr("There are more suites")));
    EXPECT_THAT(page,
                HasSubstr("whether there are more, and whether another has a higher total, is not settled"));
}

TEST(ReportPage, TellsOfWorkThatWasStopped) {
    const std::atomic<bool> stop = true;
    const std::string page = pageOf(twoRings(), {}, {.Stop = &stop});
    EXPECT_THAT(page, HasSubstr("The work was stopped before its end"));
    EXPECT_THAT(page, HasSubstr("It was stopped after 0 runs."));
    EXPECT_THAT(page, HasSubstr("Not all is proven"));
    EXPECT_THAT(page, HasSubstr("The search ended before the size was settled: it lies between "));
    EXPECT_THAT(page, Not(HasSubstr("no fewer cover as much")));
}

TEST(ReportFindings, TellHowFarTheyCame) {
    const SelectionRun run = selected(fullLandscape());
    std::vector<std::string> told;
    const ReportFindings findings(run, {},
                                  {.Progress = [&](const std::string& text) { told.push_back(text); }});
    EXPECT_THAT(told, testing::Contains(HasSubstr(" of 2500 runs with other grades")));
    EXPECT_FALSE(findings.Stopped);
}

TEST(OpenUnits, SayWhyAndWhichChangeHelps) {
    const SelectionRun run = selected(fullLandscape());
    const std::string table =
        tabSeparated(openUnitTable(ReportFindings(run, marginAnswers(fullLandscape().Answers), {})));
    EXPECT_THAT(table, HasSubstr("Farm mosaic\tuncoverable\t0\t3\t2\tOnly excluded species reach it: "
                                 "Crab-eating Fox.\t\tChange 1 or 2, below.\n"));
    EXPECT_THAT(table,
                HasSubstr("It counts all the same for what is needed: 12.96 is 0.4 × 32.4, the score of "
                          "Crab-eating Fox; by the eligible species alone it would be 4.32.\t\tChange 1 "
                          "or 3, below.\n"));
}

TEST(OpenUnits, TellWhichAnswersMadeTheRunMiss) {
    RunOptions options = example("missed_unit.brn");
    options.ErrorMargin = "30";
    options.Answers = {"c", "c", "c"};
    const SelectionRun run = selected(options);
    const ReportFindings findings(run, marginAnswers(options.Answers), {});
    EXPECT_THAT(
        tabSeparated(openUnitTable(findings)),
        HasSubstr("The run ended while Wood Sandpiper and Silver-spotted Skipper could still have covered "
                  "it: answers took what had been omitted before (Golden Plover and Purple Heron)"));
}

TEST(Remedies, FindTheHighestRepresentationThatIsReached) {
    EXPECT_EQ(representationFor(10.8, 32.4), 0.33);
    EXPECT_EQ(representationFor(16.2, 32.4), 0.5);
    EXPECT_EQ(representationFor(0.1, 32.4), std::nullopt) << "less than a hundredth";
    EXPECT_EQ(representationFor(0, 32.4), std::nullopt);
    EXPECT_EQ(representationFor(0, 0), std::nullopt);
}
