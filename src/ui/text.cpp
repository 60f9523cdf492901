// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "ui/case_folding.h"

namespace ui {

namespace {

/// Length of the well-formed UTF-8 sequence at `position`, 0 where there is none.
std::size_t sequenceLength(std::string_view text, std::size_t position) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(position);
    if (lead < 0x80) return 1;
    const std::size_t count = lead >= 0xC2 && lead <= 0xDF   ? 2
                              : lead >= 0xE0 && lead <= 0xEF ? 3
                              : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                             : 0;
    if (count == 0 || position + count > text.size()) return 0;
    for (std::size_t i = 1; i < count; ++i) {
        if ((byte(position + i) & 0xC0) != 0x80) return 0;
    }
    const unsigned char second = byte(position + 1);
    const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool outside = (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
    return overlong || outside ? 0 : count;
}

/// Eight bytes at a time: whole files go through here.
bool isAscii(std::string_view text) {
    constexpr std::uint64_t HighBits = 0x8080808080808080;
    std::uint64_t bytes = 0;
    for (; text.size() >= sizeof(bytes); text.remove_prefix(sizeof(bytes))) {
        std::memcpy(&bytes, text.data(), sizeof(bytes));
        if ((bytes & HighBits) != 0) return false;
    }
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char foldAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Windows-1252 from 0x80 to 0x9F; its five empty places keep their own number.
constexpr std::array<char32_t, 32> Windows1252 = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

}  // namespace

std::string_view trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool isBlank(std::string_view text) { return text.find_first_not_of(' ') == std::string_view::npos; }

std::size_t length(std::string_view text) {
    if (isAscii(text)) return text.size();
    std::size_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count) nextCharacter(text, position);
    return count;
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
    if (text.size() <= count) return text;
    if (isAscii(text)) return text.substr(0, count);
    std::size_t position = 0;
    for (; count > 0 && position < text.size(); --count) nextCharacter(text, position);
    return text.substr(0, position);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    parts.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), separator)) + 1);
    // Parts are short: to look at each character takes less than to search for the next separator.
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != separator) continue;
        parts.push_back(text.substr(start, i - start));
        start = i + 1;
    }
    parts.push_back(text.substr(start));
    return parts;
}

std::string join(const std::vector<std::string>& parts, std::string_view separator) {
    std::string joined;
    for (const std::string& part : parts) {
        if (&part != &parts.front()) joined += separator;
        joined += part;
    }
    return joined;
}

char32_t foldCase(char32_t character) {
    if (character < 0x80) return static_cast<char32_t>(foldAscii(static_cast<char>(character)));
    const auto after = std::upper_bound(CaseFoldings.begin(), CaseFoldings.end(), character,
                                        [](char32_t c, const CaseFolding& run) { return c < run.First; });
    if (after == CaseFoldings.begin()) return character;
    const CaseFolding& run = *std::prev(after);
    if (character > run.Last || (character - run.First) % run.Step != 0) return character;
    return static_cast<char32_t>(static_cast<std::int32_t>(character) + run.Offset);
}

std::string foldCase(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    if (isAscii(text)) {
        std::transform(text.begin(), text.end(), std::back_inserter(folded), foldAscii);
        return folded;
    }
    for (std::size_t position = 0; position < text.size();)
        appendCharacter(folded, foldCase(nextCharacter(text, position)));
    return folded;
}

bool equalsIgnoringCase(std::string_view left, std::string_view right) {
    if (left == right) return true;
    if (isAscii(left) && isAscii(right)) {
        return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                          [](char a, char b) { return foldAscii(a) == foldAscii(b); });
    }
    return foldCase(left) == foldCase(right);
}

bool containsIgnoringCase(std::string_view text, std::string_view part) {
    return foldCase(text).find(foldCase(part)) != std::string::npos;
}

char32_t nextCharacter(std::string_view text, std::size_t& position) {
    const std::size_t count = sequenceLength(text, position);
    const auto lead = static_cast<unsigned char>(text[position++]);
    if (count <= 1) return lead;
    char32_t character = lead & (0xFFU >> (count + 1));
    for (std::size_t i = 1; i < count; ++i)
        character = (character << 6U) | (static_cast<unsigned char>(text[position++]) & 0x3FU);
    return character;
}

void appendCharacter(std::string& text, char32_t character) {
    const auto put = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6U));
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | (character >> 12U));
        put(0x80 | ((character >> 6U) & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | (character >> 18U));
        put(0x80 | ((character >> 12U) & 0x3F));
        put(0x80 | ((character >> 6U) & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

std::string decodeBytes(std::string_view bytes) {
    if (isAscii(bytes)) return std::string(bytes);
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t position = 0; position < bytes.size();) {
        const std::size_t count = sequenceLength(bytes, position);
        if (count > 0) {
            text += bytes.substr(position, count);
            position += count;
            continue;
        }
        const auto byte = static_cast<unsigned char>(bytes[position++]);
        appendCharacter(text, byte < 0xA0 ? Windows1252[byte - 0x80U] : byte);
    }
    return text;
}

}  // namespace ui
