// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "insight/report/markup.h"

/// Sentences with names in them, for a page and for a terminal.
namespace insight {

class Sentence {
public:
    Sentence() = default;
    explicit Sentence(std::string_view words) { say(words); }

    Sentence& say(std::string_view words);
    /// A name as a list has it; a very long one is cut.
    Sentence& name(std::string_view name);
    /// "A, B and C"; of many names the first few, and how many more there are.
    Sentence& names(const std::vector<std::string>& names);

    bool isEmpty() const { return phrases_.empty(); }
    std::string text() const;
    /// Each name is set apart, so that one that runs from right to left does not turn the words around it.
    Markup markup() const;

private:
    struct Phrase {
        std::string Text;
        bool IsName;
    };
    std::vector<Phrase> phrases_;
};

/// As many characters of a name as a page shows, and "…" for what is cut.
std::string shownName(std::string_view name);
/// A name of the lists by itself.
Markup nameMarkup(std::string_view name);

/// "one" to "twelve", then digits with thousands set apart; at the begin of a sentence with a capital.
std::string countWord(std::size_t count);
std::string capitalCountWord(std::size_t count);
/// Words as they begin a sentence.
std::string capitalised(std::string words);
/// "1 unit", "30 units": digits.
std::string counted(std::size_t count, std::string_view singular, std::string_view plural);
/// "one unit", "three units": words.
std::string countedInWords(std::size_t count, std::string_view singular, std::string_view plural);
/// The share of `count` in `of` as "32 %"; "< 1 %" and "> 99 %" where it is not quite none or all. REQUIRES: of > 0
std::string percent(std::uint64_t count, std::uint64_t of);
/// "100,000".
std::string withThousands(std::uint64_t number);

}  // namespace insight
