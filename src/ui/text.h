// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Text is UTF-8. A character is a code point. Case is compared by simple Unicode folding.
namespace ui {

/// Without the blanks at both ends. Only the blank itself counts, no tab.
std::string_view trim(std::string_view text);
bool isBlank(std::string_view text);

/// Number of characters.
std::size_t length(std::string_view text);
/// The first `count` characters, or all of them.
std::string_view firstCharacters(std::string_view text, std::size_t count);

/// The parts between the separators, empty ones included; one empty part for an empty text.
std::vector<std::string_view> split(std::string_view text, char separator);
std::string join(const std::vector<std::string>& parts, std::string_view separator);

/// The character folded so that two that differ only in case become equal.
char32_t foldCase(char32_t character);
std::string foldCase(std::string_view text);
bool equalsIgnoringCase(std::string_view left, std::string_view right);
bool containsIgnoringCase(std::string_view text, std::string_view part);

/// The code point that begins at `position`, which moves past it. A byte that is no UTF-8 stands for itself.
char32_t nextCharacter(std::string_view text, std::size_t& position);
void appendCharacter(std::string& text, char32_t character);

/// `bytes` as UTF-8: each byte that is no UTF-8 is read as Windows-1252.
std::string decodeBytes(std::string_view bytes);

}  // namespace ui
