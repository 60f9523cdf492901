// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "batch/search_options.h"
#include "batch/verbs.h"
#include "insight/cover/species_table.h"

namespace {

bool isOpen(const insight::SpeciesRole& role) {
    return !role.Class || (role.Cost.Upper && role.Cost.Lower != *role.Cost.Upper);
}

}  // namespace

int answerSpecies(const VerbCall& call) {
    SearchOptions options;
    const auto ask = [](const SearchedProject& found) {
        const auto roles = findRoles(found.Index, found.Minimum, found.Budget);
        Answer answer{speciesTable(found.Project.Run, found.Index, found.Suite, roles)};
        if (std::any_of(roles.begin(), roles.end(), isOpen))
            answer.Notes.emplace_back(
                "not all is proven: where that is so the class is empty or the cost an interval");
        return answer;
    };
    return explainProject(
        call, {.AddOptions = [&](CLI::App& app) { addSearchOptions(app, options); },
               .Ask = [&](const ExplainedProject& project) { return searchProject(project, options, ask); }});
}
