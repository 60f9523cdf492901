// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/project_question.h"

/// What a table was made of.
struct TableOrigin {
    std::string Project;
    method::Levels Levels;
    ExitCode Exit;  ///< of the run
};

/// One JSON object on one line: the origin, the facts, and the rows with the headings as keys. Numbers are numbers, lists
/// arrays, yes and no booleans; an empty cell is null. Bytes that are no UTF-8 are replaced.
std::string jsonText(const TableOrigin& origin, const Answer& answer);
/// The same of a table that is not of one run.
std::string jsonText(const method::Levels& levels, const Answer& answer);
