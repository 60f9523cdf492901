// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <functional>

#include "batch/search_question.h"
#include "batch/verbs.h"
#include "insight/cover/species_table.h"

namespace {

Answer ask(const SearchedProject& found) {
    const auto roles = findRoles(found.Index, found.Minimum, found.Budget);
    Answer answer{speciesTable(found.Project.Run, found.Index, found.Suite, roles)};
    if (!std::all_of(roles.begin(), roles.end(), std::mem_fn(&insight::SpeciesRole::isProven)))
        answer.Notes.emplace_back(
            "not all is proven: where that is so the class is empty or the cost an interval");
    return answer;
}

}  // namespace

int answerSpecies(const VerbCall& call) { return answerBySearch(call, {.Ask = ask}); }
