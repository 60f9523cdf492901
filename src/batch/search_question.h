// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "batch/project_question.h"
#include "insight/cover/minimum.h"

/// A project with its minimum, and what is left of the effort.
struct SearchedProject {
    const ExplainedProject& Project;
    const insight::CoverIndex& Index;
    const insight::RunSuite& Suite;
    const insight::MinimumAnswer& Minimum;
    insight::SearchBudget& Budget;
};

/// What a verb asks of a project whose suites are searched for.
struct SearchQuestion {
    std::function<Answer(const SearchedProject&)> Ask;
    std::function<void(CLI::App&)> AddOptions{};
};

/// As explainProject, with --time and --nodes, after the minimum was searched for. Ctrl+C ends the search, and the answer
/// says so.
int answerBySearch(const VerbCall& call, const SearchQuestion& question);
