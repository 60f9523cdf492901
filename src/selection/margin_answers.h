// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "method/margin.h"

/// How the answers to the two questions about species within the margin of error are understood. Blanks around them do
/// not count.

/// The rule that an answer from "a" to "e", in any case, stands for.
std::optional<method::Rule> ruleOf(std::string_view answer);
/// A whole number from 1 on, spelled without sign or leading zeros.
std::optional<std::size_t> speciesNumberOf(std::string_view answer);

/// Answers given beforehand as texts, each understood both ways.
std::vector<method::Answer> marginAnswers(const std::vector<std::string>& texts);
