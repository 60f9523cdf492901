// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/search_options.h"
#include "batch/verbs.h"
#include "insight/cover/species_table.h"

int answerSpecies(const VerbCall& call) {
    SearchOptions options;
    const auto ask = [](const SearchedProject& found) {
        const auto roles = findRoles(found.Index, found.Minimum, found.Budget);
        return Answer{speciesTable(found.Project.Run, found.Index, found.Suite, roles)};
    };
    return explainProject(
        call, {.AddOptions = [&](CLI::App& app) { addSearchOptions(app, options); },
               .Ask = [&](const ExplainedProject& project) { return searchProject(project, options, ask); }});
}
