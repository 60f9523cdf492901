// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/search_question.h"
#include "batch/verbs.h"
#include "insight/cover/minimum_table.h"

int answerMinimum(const VerbCall& call) {
    return answerBySearch(
        call, {.Ask = [](const SearchedProject& found) {
            return Answer{minimumTable(found.Project.Run, found.Index, found.Suite, found.Minimum)};
        }});
}
