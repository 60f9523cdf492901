// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/sentence.h"

#include <array>
#include <cctype>

#include "insight/table.h"
#include "ui/text.h"

namespace insight {

namespace {

constexpr std::size_t LongestName = 120;  // characters
constexpr std::size_t MostNames = 6;

}  // namespace

Sentence& Sentence::say(std::string_view words) {
    phrases_.push_back({std::string(words), false});
    return *this;
}

Sentence& Sentence::name(std::string_view name) {
    phrases_.push_back({shownName(name), true});
    return *this;
}

Sentence& Sentence::names(const std::vector<std::string>& names) {
    // One name more takes no more room than to say so.
    const std::size_t shown = names.size() <= MostNames + 1 ? names.size() : MostNames;
    for (std::size_t i = 0; i < shown; ++i) {
        if (i > 0) say(i + 1 == names.size() ? " and " : ", ");
        name(names[i]);
    }
    if (shown < names.size()) say(" and " + withThousands(names.size() - shown) + " more");
    return *this;
}

std::string Sentence::text() const {
    std::string text;
    for (const Phrase& phrase : phrases_) text += phrase.Text;
    return text;
}

Markup Sentence::markup() const {
    Markup markup;
    for (const Phrase& phrase : phrases_)
        markup += phrase.IsName ? nameMarkup(phrase.Text) : escaped(phrase.Text);
    return markup;
}

std::string shownName(std::string_view name) {
    const std::string_view shown = ui::firstCharacters(name, LongestName);
    return oneLine(std::string(shown)) + (shown.size() < name.size() ? "…" : "");
}

Markup nameMarkup(std::string_view name) { return element("bdi", shownName(name)); }

std::string countWord(std::size_t count) {
    static constexpr std::array Words = {"no",    "one",   "two",  "three", "four",   "five",  "six",
                                         "seven", "eight", "nine", "ten",   "eleven", "twelve"};
    return count < Words.size() ? Words[count] : withThousands(count);
}

std::string capitalCountWord(std::size_t count) { return capitalised(countWord(count)); }

std::string capitalised(std::string words) {
    if (!words.empty()) words[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(words[0])));
    return words;
}

std::string counted(std::size_t count, std::string_view singular, std::string_view plural) {
    return withThousands(count) + " " + std::string(count == 1 ? singular : plural);
}

std::string countedInWords(std::size_t count, std::string_view singular, std::string_view plural) {
    return countWord(count) + " " + std::string(count == 1 ? singular : plural);
}

std::string percent(std::uint64_t count, std::uint64_t of) {
    const double share = 100 * static_cast<double>(count) / static_cast<double>(of);
    if (count > 0 && share < 1) return "< 1 %";
    if (count < of && share > 99) return "> 99 %";
    return fieldOf(Fixed{share, 0}) + " %";
}

std::string withThousands(std::uint64_t number) {
    std::string digits = std::to_string(number);
    for (std::size_t end = digits.size(); end > 3; end -= 3) digits.insert(end - 3, ",");
    return digits;
}

}  // namespace insight
