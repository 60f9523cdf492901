// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/project_question.h"
#include "batch/verbs.h"
#include "insight/unit_states.h"

int answerUnits(const VerbCall& call) {
    return explainProject(call, {.Ask = [](const ExplainedProject& project) {
                              return Answer{unitTable(project.Run, insight::Representation(project.Run))};
                          }});
}
