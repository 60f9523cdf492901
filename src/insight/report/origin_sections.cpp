// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/definitions.h"
#include "insight/report/data_table.h"
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
    return element("code", command + " --out report.html " + quoted(shownName(origin.Project)));
}

Sentence citation(const ReportFindings& found, const ReportOrigin& origin) {
    Sentence sentence("The Brenica developers: Brenica, version " + origin.Program + ". Report on ");
    sentence.name(origin.Project);
    if (!origin.IsSaved) sentence.say(" (not saved)");
    if (!origin.Hash.empty()) sentence.say(" (SHA-256 " + origin.Hash + ")");
    return sentence.say(" at " + levelsOf(found.Run.Levels) + ".");
}

}  // namespace

Markup wordSection(const ReportFindings&, const ReportOrigin&) {
    Markup list;
    for (const Definition& definition : definitions())
        list += element("dt", definition.Term) + element("dd", definition.Meaning);
    return paragraph(
               "All grades are taken as they were entered. Nothing here says whether they are right, "
               "whether a species indeed stands for the units that it covers, or that a small suite is a "
               "good one: a larger one may hold species that score high or that the public knows. The page "
               "tells what it costs. Searches go by branch and bound in whole numbers; what is said to be "
               "proven rests on no rounded number.") +
           element("dl", {{"class", "words"}}, list) +
           paragraph(
               "To find the fewest species is the minimum set problem of reserve selection (Kirkpatrick "
               "1983; Possingham, Ball and Andelman 2000), with species in the place of sites; to find "
               "what few of them cover at most is the maximal covering problem (Church and ReVelle 1974). "
               "How often all solutions hold a species: Arponen and others 2005. Replacement cost: Cabeza "
               "and Moilanen 2006. Rarity-weighted richness: Williams and others 1996. Intervals: Wilson "
               "1927.");
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
                   ? "Whoever has the same file (its hash tells) gets the same numbers from the same version."
                   : "No file holds the project as it is explained here. Save it and make the page again before "
                     "others are to rely on it.");
}

}  // namespace insight
