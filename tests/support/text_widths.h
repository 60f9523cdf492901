// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "ui/platform.h"

/// Widths of texts in a real font, so that a test sees what a user would. The table is the advance widths of Liberation
/// Sans Regular 1.07.4, from blank to tilde, in units of which an em has 2048; the unit and the table come from the
/// font's own head and hmtx tables.
namespace liberation_sans {

inline constexpr int UnitsPerEm = 2048;
inline constexpr std::array<int, 95> Advances = {
    569,  569,  727,  1139, 1139, 1821, 1366, 391,  682,  682,  797,  1196, 569,  682,  569,  569,
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 1139, 569,  569,  1196, 1196, 1196, 1139,
    2079, 1366, 1366, 1479, 1479, 1366, 1251, 1593, 1479, 569,  1024, 1366, 1139, 1706, 1479, 1593,
    1366, 1593, 1479, 1366, 1251, 1479, 1366, 1933, 1366, 1366, 1251, 569,  569,  569,  961,  1139,
    682,  1139, 1139, 1024, 1139, 1139, 569,  1139, 1139, 455,  455,  1024, 455,  1706, 1139, 1139,
    1139, 1139, 682,  1024, 569,  1139, 1024, 1479, 1024, 1024, 1024, 684,  532,  684,  1196,
};
inline constexpr int Triangle = 2027;  ///< of the signs on the buttons that move a row
inline constexpr int Letter = 1139;    ///< of most letters; stands for what the table lacks

inline int advanceOf(char32_t character) {
    if (character >= U' ' && character <= U'~') return Advances[character - U' '];
    return character == U'▲' || character == U'▼' ? Triangle : Letter;
}

/// In twips, rounded up to a whole pixel of 15, as a desktop that draws on pixels does.
inline int textWidth(std::string_view text, const ui::Font& font) {
    constexpr int TwipsAPoint = 20;
    constexpr int TwipsAPixel = 15;
    long long units = 0;
    for (std::size_t i = 0; i < text.size();) {
        const auto first = static_cast<unsigned char>(text[i]);
        const std::size_t size = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        char32_t character = size == 1 ? first : first & (0xFFu >> (size + 1));
        for (std::size_t k = 1; k < size && i + k < text.size(); ++k)
            character = (character << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3Fu);
        units += advanceOf(character);
        i += size;
    }
    const long long pixel = static_cast<long long>(UnitsPerEm) * TwipsAPixel;
    return static_cast<int>((units * font.Size * TwipsAPoint + pixel - 1) / pixel) * TwipsAPixel;
}

/// How many lines a text takes when it is wrapped at blanks to a width; a longer word counts its whole lines.
inline int linesOf(std::string_view text, int width, const ui::Font& font) {
    int lines = 0;
    while (true) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string line;
        ++lines;
        for (std::size_t from = 0; from < end;) {
            const std::size_t to = std::min(text.find(' ', from), end);
            const std::string word(text.substr(from, to - from));
            const std::string longer = line.empty() ? word : line + ' ' + word;
            if (!line.empty() && textWidth(longer, font) > width) {
                ++lines;
                line = word;
            } else {
                line = longer;
            }
            lines += std::max(0, (textWidth(line, font) - 1) / std::max(width, 1));
            from = to + 1;
        }
        if (end == text.size()) return lines;
        text.remove_prefix(end + 1);
    }
}

}  // namespace liberation_sans
