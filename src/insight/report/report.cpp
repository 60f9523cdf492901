// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/report.h"

#include <array>

#include "insight/report/sections.h"
#include "insight/report/style_sheet.h"
#include "insight/report/verdict.h"

namespace insight {

namespace {

constexpr std::array Sections = {Section{"uncovered", "What stays uncovered", uncoveredSection},
                                 Section{"suite", "The suite", suiteSection},
                                 Section{"decisions", "What was decided", decisionSection},
                                 Section{"candidates", "Why these species", candidateSection},
                                 Section{"coverage", "How far few species go", coverageSection},
                                 Section{"species", "What hangs on each species", speciesSection},
                                 Section{"alternatives", "The smallest suites", alternativesSection},
                                 Section{"frequencies", "How firm the choice is", frequencySection},
                                 Section{"levels", "Other levels", levelSection},
                                 Section{"proof", "Why no suite is smaller", proofSection},
                                 Section{"units", "All units", unitSection},
                                 Section{"words", "What was assumed", wordSection},
                                 Section{"references", "References", referenceSection},
                                 Section{"origin", "Where this comes from", originSection}};

std::string titleOf(const ReportOrigin& origin) {
    if (!origin.Title.empty()) return origin.Title;
    constexpr std::string_view Ending = ".brn";
    const bool ends = origin.Project.size() > Ending.size() && origin.Project.ends_with(Ending);
    return origin.Project.substr(0, origin.Project.size() - (ends ? Ending.size() : 0));
}

/// No script runs and nothing is loaded, whatever a name may hold.
Markup policy() {
    return voidElement("meta", {{"http-equiv", "Content-Security-Policy"},
                                {"content", "default-src 'none'; style-src 'unsafe-inline'"}});
}

Markup head(const ReportOrigin& origin) {
    return element(
        "head",
        voidElement("meta", {{"charset", "utf-8"}}) + policy() +
            voidElement("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}}) +
            voidElement("meta", {{"name", "color-scheme"}, {"content", "light dark"}}) +
            element("title", shownName(titleOf(origin)) + ": the suite explained") + styleSheet(StyleSheet));
}

Markup figuresOf(const ReportFindings& findings) {
    Markup items;
    for (const KeyFigure& figure : keyFigures(findings))
        items += element("div", element("dt", figure.Label) + element("dd", figure.Value));
    return element("dl", {{"class", "figures"}}, items);
}

Markup verdictOf(const ReportFindings& findings) {
    const std::vector<Sentence> sentences = verdict(findings);
    Markup rest;
    for (std::size_t i = 1; i < sentences.size(); ++i) rest += element("li", sentences[i].markup());
    return element("p", {{"class", "verdict"}}, sentences.front().markup()) +
           element("ul", {{"class", "lede"}}, rest);
}

/// Who made it and when, as far as that was told.
Markup byline(const ReportOrigin& origin) {
    Sentence line;
    if (!origin.Author.empty()) line.name(origin.Author);
    if (!origin.Author.empty() && !origin.Date.empty()) line.say(", ");
    if (!origin.Date.empty()) line.name(origin.Date);
    return line.isEmpty() ? Markup() : element("p", {{"class", "byline"}}, line.markup());
}

/// What keeps the page from being shown to anybody.
Markup warning(const ReportOrigin& origin) {
    if (!origin.HasDefaults) return {};
    return element(
        "p", {{"class", "warning"}, {"role", "note"}},
        "This file comes from version 1 and lacks data that the method takes. Default values stand "
        "in their place: a conservation status of 1 for each species, a level of use of 2 wherever a "
        "species uses a habitat or zone and asked for by each of these, and the proportion of the "
        "landscape that the areas give. They were not entered by anybody, and all that follows rests "
        "on them. Enter the true values before this page is shown.");
}

Markup contents() {
    Markup items;
    for (const Section& section : Sections)
        items += element("li", element("a", {{"href", std::string("#") + section.Id}}, section.Heading));
    return element("nav", {{"aria-label", "Contents"}}, element("ol", items));
}

Markup header(const ReportFindings& findings, const ReportOrigin& origin) {
    const Markup kicker = element("p", {{"class", "kicker"}}, "Brenica · The suite explained");
    return element("header", kicker + element("h1", nameMarkup(titleOf(origin))) + byline(origin) +
                                 verdictOf(findings) + warning(origin) + figuresOf(findings) + contents());
}

}  // namespace

std::string reportPage(const ReportFindings& findings, const ReportOrigin& origin) {
    Markup sections;
    for (const Section& section : Sections)
        sections += element("section", {{"id", section.Id}},
                            element("h2", section.Heading) + section.Content(findings, origin));
    const Markup body = element("body", header(findings, origin) + element("main", sections));
    return document(element("html", {{"lang", "en"}}, head(origin) + body)).text();
}

Markup paragraph(const Sentence& sentence) {
    return sentence.isEmpty() ? Markup() : element("p", sentence.markup());
}

Markup paragraph(std::string_view words) { return element("p", words); }

}  // namespace insight
