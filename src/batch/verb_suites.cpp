// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/command_line.h"
#include "batch/search_question.h"
#include "batch/verbs.h"
#include "insight/cover/suites.h"

namespace {

struct SuitesOptions {
    std::size_t Limit = 1000;
    std::size_t Within = 0;
};

constexpr std::size_t MostWithin = 1000;

void addOptions(CLI::App& app, SuitesOptions& options) {
    app.add_option("--limit", options.Limit, "how many suites are listed at most")
        ->type_name("N")
        ->check(wholeNumber(1, insight::MostCounted))
        ->capture_default_str();
    app.add_option("--within", options.Within, "how many species more than the minimum a suite may have")
        ->type_name("K")
        ->check(wholeNumber(0, MostWithin))
        ->capture_default_str();
}

std::string noteOn(const SuitesOptions& options, const insight::SuiteList& list,
                   const insight::MinimumAnswer& minimum) {
    if (!minimum.Known.isProven()) return "the minimum is not proven; the best suite known is shown";
    if (!minimum.isProven()) return "the best total is not proven; the best suite known is shown";
    const std::string shown = std::to_string(list.Suites.size());
    if (list.Suites.size() == options.Limit || list.Count >= insight::MostCounted)
        return "more than " + shown + " suites; " + shown + " are shown";
    return "the search ended early; " + shown + " suites are shown, there may be more";
}

Answer ask(const SuitesOptions& options, const SearchedProject& found) {
    const insight::SuiteList list =
        findSuites(found.Index, found.Minimum, options.Within, options.Limit, found.Budget);
    Answer answer{suiteTable(found.Project.Run, found.Index, list)};
    answer.Facts.emplace_back("complete", list.isComplete());
    if (!list.isComplete()) answer.Notes.push_back(noteOn(options, list, found.Minimum));
    return answer;
}

}  // namespace

int answerSuites(const VerbCall& call) {
    SuitesOptions options;
    return answerBySearch(call, {.Ask = [&](const SearchedProject& found) { return ask(options, found); },
                                 .AddOptions = [&](CLI::App& app) { addOptions(app, options); }});
}
