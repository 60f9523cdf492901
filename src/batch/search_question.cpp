// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/search_question.h"

#include <cstdint>
#include <limits>
#include <optional>

#include "batch/command_line.h"
#include "batch/interruption.h"
#include "batch/progress_line.h"

namespace {

constexpr double UsualSeconds = 60;
constexpr double MostSeconds = 1e9;

/// What a search for suites may cost, as the command line says.
struct SearchOptions {
    std::optional<double> Seconds;
    std::optional<std::uint64_t> Nodes;
};

/// With nodes alone no clock decides anything, so that the answer is the same everywhere.
std::optional<double> secondsOf(const SearchOptions& options) {
    if (options.Seconds || options.Nodes) return options.Seconds;
    return UsualSeconds;
}

void addSearchOptions(CLI::App& app, SearchOptions& options) {
    app.add_option("--time", options.Seconds, "seconds that the search may take, 60 where no nodes are given")
        ->type_name("S")
        ->check(realNumber(0, MostSeconds));
    app.add_option("--nodes", options.Nodes,
                   "steps that it may take; alone they give the same answer everywhere")
        ->type_name("N")
        ->check(wholeNumber(0, std::numeric_limits<std::uint64_t>::max()));
}

Answer searchProject(const ExplainedProject& project, const SearchOptions& options,
                     const SearchQuestion& question) {
    const Interruption interruption;
    ProgressLine progress;
    const auto tell = [&](const insight::SearchProgress& now) {
        progress.tell("between " + std::to_string(now.Lower) + " and " + std::to_string(now.Upper) +
                      " species, " + std::to_string(now.Nodes) + " steps");
    };
    const insight::SearchEffort effort{secondsOf(options), options.Nodes, &interruption.wanted(), tell};
    insight::SearchBudget budget(effort);
    const insight::Representation representation(project.Run);
    const insight::CoverProblem problem = coverProblem(project.Run, representation);
    const insight::CoverIndex index(problem);
    const insight::RunSuite suite = runSuite(project.Run, index);
    const insight::MinimumAnswer minimum = findMinimum(index, suite, budget);
    Answer answer = question.Ask({project, index, suite, minimum, budget});
    if (interruption.wanted()) answer.Notes.push_back("stopped: what is known so far is shown");
    return answer;
}

}  // namespace

int answerBySearch(const VerbCall& call, const SearchQuestion& question) {
    SearchOptions options;
    const auto addOptions = [&](CLI::App& app) {
        addSearchOptions(app, options);
        if (question.AddOptions) question.AddOptions(app);
    };
    return explainProject(call, {.AddOptions = addOptions, .Ask = [&](const ExplainedProject& project) {
                                     return searchProject(project, options, question);
                                 }});
}
