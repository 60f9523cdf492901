// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/search_options.h"

#include <limits>

#include "batch/command_line.h"
#include "batch/interruption.h"
#include "batch/progress_line.h"

namespace {

constexpr double UsualSeconds = 60;
constexpr double MostSeconds = 1e9;

/// With nodes alone no clock decides anything, so that the answer is the same everywhere.
std::optional<double> secondsOf(const SearchOptions& options) {
    if (options.Seconds || options.Nodes) return options.Seconds;
    return UsualSeconds;
}

}  // namespace

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
                     const std::function<Answer(const SearchedProject&)>& ask) {
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
    Answer answer = ask({project, index, suite, minimum, budget});
    if (interruption.wanted()) answer.Notes.push_back("stopped: what is known so far is shown");
    return answer;
}
