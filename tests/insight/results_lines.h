// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

/// The lines of a results file, to be changed by tests.
using Lines = std::vector<std::string>;

/// Without their ends in CR LF.
inline Lines linesOf(const std::string& text) {
    Lines lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find("\r\n", begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 2;
    }
    return lines;
}

inline std::string textOf(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

inline std::string withLineFeeds(std::string text) {
    for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;) text.erase(at, 1);
    return text;
}
