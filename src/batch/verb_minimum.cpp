// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/search_options.h"
#include "batch/verbs.h"
#include "insight/cover/minimum_table.h"

int answerMinimum(const VerbCall& call) {
    SearchOptions options;
    const auto ask = [](const SearchedProject& found) {
        return Answer{minimumTable(found.Project.Run, found.Index, found.Suite, found.Minimum)};
    };
    return explainProject(
        call, {.AddOptions = [&](CLI::App& app) { addSearchOptions(app, options); },
               .Ask = [&](const ExplainedProject& project) { return searchProject(project, options, ask); }});
}
