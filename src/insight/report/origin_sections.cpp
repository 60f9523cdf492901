// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <functional>

#include "insight/definitions.h"
#include "insight/report/data_table.h"
#include "insight/report/references.h"
#include "insight/report/sections.h"

namespace insight {

namespace {

struct Fact {
    const char* Name;
    Markup Value;
};

Markup factTable(std::initializer_list<Fact> facts) {
    Markup rows;
    for (const Fact& fact : facts)
        rows += element("tr", element("th", {{"scope", "row"}, {"class", "text"}}, fact.Name) +
                                  element("td", fact.Value));
    return element("table", {{"class", "facts"}}, element("tbody", rows));
}

std::string levelsOf(const method::Levels& levels) {
    return "margin of error " + fieldOf(levels.Margin) + " %, threat representation " +
           fieldOf(levels.ThreatRepresentation) + ", conservation status " +
           fieldOf(levels.ConservationStatus);
}

Markup answersOf(const ReportOrigin& origin) {
    if (origin.Answers.empty()) return escaped("none: the default answers each question");
    Markup list;
    for (const std::string& answer : origin.Answers) {
        if (&answer != &origin.Answers.front()) list += escaped(", ");
        list += escaped("“") + nameMarkup(answer) + escaped("”");
    }
    return list + escaped(", in this order; then the defaults");
}

std::string limitsOf(const ReportOrigin& origin) {
    std::string text;
    if (origin.Limits.Seconds) text = fieldOf(*origin.Limits.Seconds) + " seconds";
    if (origin.Limits.Nodes)
        text += (text.empty() ? "" : ", ") + counted(*origin.Limits.Nodes, "step", "steps");
    return text.empty() ? "none" : "at most " + text;
}

std::string sweepsOf(const ReportFindings& found) {
    const SweepSettings& settings = found.Sweeps.front().Settings;
    return "three, of " + counted(settings.Runs, "run", "runs") + " each; seed " +
           std::to_string(settings.Seed) + "; p " + fieldOf(settings.P);
}

std::string hashOf(const ReportOrigin& origin) {
    if (!origin.IsSaved) return "none: the project was not saved as it is explained here";
    return origin.Hash.empty() ? "none: the project was read from a pipe or device" : origin.Hash;
}

/// As a shell takes it for one word.
std::string quoted(const std::string& text) {
    std::string word = "'";
    for (const char c : text) word += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return word + "'";
}

/// What makes the page again.
Markup commandOf(const ReportFindings& found, const ReportOrigin& origin) {
    if (!origin.IsSaved) return escaped("only from the saved project");
    const method::Levels& levels = found.Run.Levels;
    std::string command = "brenica-batch report --error-margin " + fieldOf(levels.Margin) +
                          " --threat-representation " + fieldOf(levels.ThreatRepresentation) +
                          " --conservation-status " + fieldOf(levels.ConservationStatus);
    for (const std::string& answer : origin.Answers) command += " --answer=" + quoted(shownName(answer));
    if (origin.Limits.Seconds) command += " --time " + fieldOf(*origin.Limits.Seconds);
    if (origin.Limits.Nodes) command += " --nodes " + std::to_string(*origin.Limits.Nodes);
    for (const auto& [option, text] :
         {std::pair(" --title=", origin.Title), std::pair(" --author=", origin.Author),
          std::pair(" --date=", origin.Date)}) {
        if (!text.empty()) command += option + quoted(shownName(text));
    }
    return element("code", command + " --out report.html " + quoted(shownName(origin.Project)));
}

std::string answersInWords(const ReportOrigin& origin) {
    if (origin.Answers.empty()) return "no answers given";
    std::string list = "answers";
    for (const std::string& answer : origin.Answers)
        list += (&answer == &origin.Answers.front() ? " " : ", ") + shownName(answer);
    return list;
}

Sentence citation(const ReportFindings& found, const ReportOrigin& origin) {
    Sentence sentence("The Brenica developers: Brenica, version " + origin.Program + ". Report on ");
    sentence.name(origin.Project);
    if (!origin.IsSaved) sentence.say(" (not saved)");
    if (!origin.Hash.empty()) sentence.say(" (SHA-256 " + origin.Hash + ")");
    sentence.say(" at " + levelsOf(found.Run.Levels) + "; ").name(answersInWords(origin));
    return sentence.say("; limit of the searches: " + limitsOf(origin) + "; sweeps: " + sweepsOf(found) +
                        ".");
}

/// Where the clock ends a search its answer depends on the machine.
std::string whetherTheSame(const ReportFindings& found, const ReportOrigin& origin) {
    const std::string start =
        "The command above gives the same numbers from the same file (its hash tells) and the same version";
    if (!origin.Limits.Seconds) return start + ", on every machine.";
    const bool isSettled =
        found.Minimum.isProven() && found.Smallest.IsExact &&
        std::all_of(found.Roles.begin(), found.Roles.end(), std::mem_fn(&SpeciesRole::isProven));
    return start + " wherever the searches end before their time does; here they " +
           (isSettled ? "did."
                      : "did not, so that another machine may settle more or less. With --nodes in "
                        "the place of --time it would be the same everywhere.");
}

/// Words that the page uses throughout; the others it tells where it uses them.
bool isOnPage(const Definition& definition) {
    static constexpr std::array<std::string_view, 3> Terms = {"Eligible", "Covers", "Coverable"};
    return std::find(Terms.begin(), Terms.end(), definition.Term) != Terms.end();
}

Markup levelWords(const ReportFindings& found) {
    const method::Levels& levels = found.Run.Levels;
    return element("dt", "Margin of error, " + fieldOf(levels.Margin) + " %") +
           element("dd",
                   "species whose aggregate is this close to the best are near ties: the planner decides.") +
           element("dt", "Threat representation, " + fieldOf(levels.ThreatRepresentation)) +
           element(
               "dd",
               "a species covers a threat when its score is at least this share of the highest score that "
               "any species has for it.") +
           element("dt", "Conservation status, " + fieldOf(levels.ConservationStatus)) +
           element(
               "dd",
               "from 0, the most threatened, to 1, secure. Species above the level are excluded: they are "
               "not threatened enough to stand for the landscape. For the bar of a threat they still "
               "count.");
}

Markup assumptions(const ReportOrigin& origin) {
    return paragraph(
        std::string(origin.HasDefaults
                        ? "Grades are taken as they were entered, and default values where the file has none "
                          "(see the top of the page). "
                        : "All grades are taken as they were entered. ") +
        "Nothing here says whether they are right, whether a species indeed stands for the units that it "
        "covers, or that a small suite is a good one: a larger one may hold species that score high or that "
        "the public knows. The page tells what it costs. Searches go by branch and bound and count in whole "
        "numbers; what covers what, and the totals, come from scores rounded as the method rounds them, threat "
        "scores to 2 decimals and aggregates to 3.");
}

}  // namespace

Markup wordSection(const ReportFindings& findings, const ReportOrigin& origin) {
    Markup list = levelWords(findings);
    for (const Definition& definition : definitions()) {
        if (isOnPage(definition)) list += element("dt", definition.Term) + element("dd", definition.Meaning);
    }
    return assumptions(origin) + element("dl", {{"class", "words"}}, list);
}

Markup referenceSection(const ReportFindings&, const ReportOrigin&) {
    Markup list;
    for (const char* reference : references()) list += element("li", reference);
    return paragraph(
               "To find the fewest species is the minimum set problem of reserve selection, with species in the "
               "place of sites (Cocks and Baird 1989; Possingham, Ball and Andelman 2000). The run is a "
               "heuristic for it (Kirkpatrick 1983); that such a one finds larger sets than the smallest is "
               "known (Underhill 1994; Pressey, Possingham and Day 1997). What few species cover at most is "
               "the maximal covering problem (Church and ReVelle 1974; Church, Stoms and Davis 1996). All "
               "smallest suites: Arthur and others 1997. Irreplaceability: Pressey, Johnson and Wilson 1994; "
               "Ferrier, Pressey and Barrett 2000. Replacement cost: Cabeza and Moilanen 2006. Rarity-weighted "
               "richness: Williams and others 1996. Intervals: Wilson 1927.") +
           element("ul", {{"class", "references"}}, list);
}

Markup originSection(const ReportFindings& findings, const ReportOrigin& origin) {
    const Markup facts = factTable({{"Project", nameMarkup(origin.Project)},
                                    {"SHA-256 of the file", element("code", hashOf(origin))},
                                    {"Levels", escaped(levelsOf(findings.Run.Levels))},
                                    {"Answers", answersOf(origin)},
                                    {"Limit of the searches", escaped(limitsOf(origin))},
                                    {"Sweeps", escaped(sweepsOf(findings))},
                                    {"Program", escaped("Brenica " + origin.Program)},
                                    {"The page again", commandOf(findings, origin)}});
    Markup content = scrollBox("Settings and origin", facts);
    if (findings.Stopped)
        content += paragraph("The work was stopped before its end: the page tells what was known by then.");
    return content + element("h3", "How to cite") + paragraph(citation(findings, origin)) +
           paragraph(
               origin.IsSaved
                   ? whetherTheSame(findings, origin)
                   : "No file holds the project as it is explained here. Save it and make the page again before "
                     "others are to rely on it.");
}

}  // namespace insight
