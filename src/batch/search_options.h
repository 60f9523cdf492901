// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "batch/project_question.h"
#include "insight/cover/minimum.h"

/// What a search for suites may cost, as the command line says.
struct SearchOptions {
    std::optional<double> Seconds;
    std::optional<std::uint64_t> Nodes;
};

void addSearchOptions(CLI::App& app, SearchOptions& options);

/// A project with its minimum, and what is left of the effort.
struct SearchedProject {
    const ExplainedProject& Project;
    const insight::CoverIndex& Index;
    const insight::RunSuite& Suite;
    const insight::MinimumAnswer& Minimum;
    insight::SearchBudget& Budget;
};

/// Finds the minimum and asks on. Ctrl+C ends the search, and the answer says so.
Answer searchProject(const ExplainedProject& project, const SearchOptions& options,
                     const std::function<Answer(const SearchedProject&)>& ask);
