// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

/// Text from files that may be anything.
namespace insight {

/// The first `count` characters, or all. A byte that is no UTF-8 counts as one.
std::string_view firstCharacters(std::string_view text, std::size_t count);
/// Number of characters.
std::size_t characters(std::string_view text);
/// With a replacement character for each byte that is no UTF-8.
std::string asUtf8(std::string_view bytes);

}  // namespace insight
