// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/search_question.h"

#include "batch/interruption.h"
#include "batch/progress_line.h"
#include "batch/search_options.h"
#include "insight/cores.h"

namespace {

Answer searchProject(const ExplainedProject& project, const SearchOptions& options,
                     const SearchQuestion& question) {
    const Interruption interruption;
    ProgressLine progress;
    const auto tell = [&](const insight::SearchProgress& now) {
        progress.tell("between " + std::to_string(now.Lower) + " and " + std::to_string(now.Upper) +
                      " species, " + std::to_string(now.Nodes) + " steps");
    };
    const insight::SearchEffort effort{options.limitInSeconds(), options.Nodes, &interruption.wanted(), tell,
                                       insight::coresOfMachine()};
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
