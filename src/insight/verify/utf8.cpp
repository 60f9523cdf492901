// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verify/utf8.h"

#include <algorithm>
#include <array>

namespace insight {

namespace {

/// What may follow a first byte: how many bytes, and the bounds of the first of them, which rule out surrogates, values
/// beyond Unicode and what has a shorter form.
struct Sequence {
    unsigned char First;
    unsigned char Last;
    std::size_t Following;
    unsigned char Lowest;
    unsigned char Highest;
};

constexpr std::array Sequences = {Sequence{0x00, 0x7F, 0, 0, 0},       Sequence{0xC2, 0xDF, 1, 0x80, 0xBF},
                                  Sequence{0xE0, 0xE0, 2, 0xA0, 0xBF}, Sequence{0xE1, 0xEC, 2, 0x80, 0xBF},
                                  Sequence{0xED, 0xED, 2, 0x80, 0x9F}, Sequence{0xEE, 0xEF, 2, 0x80, 0xBF},
                                  Sequence{0xF0, 0xF0, 3, 0x90, 0xBF}, Sequence{0xF1, 0xF3, 3, 0x80, 0xBF},
                                  Sequence{0xF4, 0xF4, 3, 0x80, 0x8F}};

bool follows(std::string_view text, const Sequence& sequence) {
    if (text.size() <= sequence.Following) return false;
    for (std::size_t i = 1; i <= sequence.Following; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool inside =
            i > 1 ? byte >= 0x80 && byte <= 0xBF : byte >= sequence.Lowest && byte <= sequence.Highest;
        if (!inside) return false;
    }
    return true;
}

/// Bytes of the character that begins the text; 0 where its first byte is no UTF-8. REQUIRES: a text
std::size_t lengthOfFirst(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    for (const Sequence& sequence : Sequences) {
        if (first >= sequence.First && first <= sequence.Last)
            return follows(text, sequence) ? sequence.Following + 1 : 0;
    }
    return 0;
}

std::size_t step(std::string_view text) { return std::max<std::size_t>(lengthOfFirst(text), 1); }

}  // namespace

std::string_view firstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count) end += step(text.substr(end));
    return text.substr(0, end);
}

std::size_t characters(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); text.remove_prefix(step(text))) ++count;
    return count;
}

std::string asUtf8(std::string_view bytes) {
    constexpr std::string_view Replacement = "\xEF\xBF\xBD";
    std::string text;
    for (; !bytes.empty(); bytes.remove_prefix(step(bytes)))
        text += lengthOfFirst(bytes) == 0 ? Replacement : bytes.substr(0, step(bytes));
    return text;
}

}  // namespace insight
