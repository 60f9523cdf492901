// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verify/results_file.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

namespace insight {

namespace {

constexpr std::array LevelNames = {"margin of error", "threat representation", "conservation status"};

void splitLines(std::string_view text, ResultsFile& file) {
    constexpr std::string_view Written = "\r\n";
    // One may be left of the carriage return that the text itself has.
    const std::size_t first = text.find(Written);
    file.CarriageReturns =
        first != std::string_view::npos && text.find(Written, first + 1) != std::string_view::npos;
    const std::string_view end = file.CarriageReturns ? Written : "\n";
    std::size_t number = 1;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find(end), text.size());
        file.Lines.push_back({number, text.substr(0, length)});
        file.EndsLine = length < text.size();
        text.remove_prefix(std::min(length + end.size(), text.size()));
        const std::string_view line = file.Lines.back().Text;
        number += 1 + static_cast<std::size_t>(std::count(line.begin(), line.end(), '\n'));
    }
    if (file.CarriageReturns) return;
    for (FileLine& line : file.Lines) line.Text = line.Text.substr(0, line.Text.find_last_not_of('\r') + 1);
}

/// Digits with a point among them or none.
std::optional<double> plainNumber(std::string_view text) {
    double value = 0;
    if (text.find_first_not_of("0123456789.") != std::string_view::npos) return {};
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    if (error != std::errc() || end != text.data() + text.size()) return {};
    return value;
}

std::optional<double> statedLevel(const FileLine& line, LineKind level) {
    const std::string_view suffix = levelSuffix(level);
    if (!line.Text.ends_with(suffix)) return {};
    return plainNumber(line.Text.substr(0, line.Text.size() - suffix.size()));
}

/// Each level stands below the one before. A name may look like a level, so that three lines in a row count first.
using LevelPlaces = std::array<std::optional<std::size_t>, LevelKinds.size()>;
LevelPlaces findLevels(const std::vector<FileLine>& lines) {
    for (std::size_t i = 0; i + LevelKinds.size() <= lines.size(); ++i) {
        if (statedLevel(lines[i], LevelKinds[0]) && statedLevel(lines[i + 1], LevelKinds[1]) &&
            statedLevel(lines[i + 2], LevelKinds[2]))
            return {i, i + 1, i + 2};
    }
    LevelPlaces places;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        for (std::size_t level = 0; level < places.size(); ++level) {
            if (!places[level] && statedLevel(lines[i], LevelKinds[level])) places[level] = i;
        }
    }
    return places;
}

bool isHeading(const FileLine& line) {
    return line.Text == heading::Ranking || line.Text == heading::Suite || line.Text == heading::Passes;
}

[[noreturn]] void failWithout(std::size_t level, const LevelPlaces& places, const ResultsFile& file) {
    const std::vector<FileLine>& lines = file.Lines;
    if (lines.empty()) throw ResultsFault(1, "the file is empty");
    if (std::none_of(lines.begin(), lines.end(), isHeading))
        throw ResultsFault(1, "none of the headings of a results file follows");
    std::size_t number = lines.back().Number;
    if (level + 1 < places.size() && places[level + 1]) {
        const std::size_t next = *places[level + 1];
        number = lines[next].Number;
        if (next > 0 && !lines[next - 1].Text.empty()) --number;
    }
    if (level > 0) number = lines[*places[level - 1]].Number + 1;
    throw ResultsFault(number, std::string("the ") + LevelNames[level] + " is missing or no number");
}

/// Returns the index of the line after the first level.
std::size_t readLevels(ResultsFile& file) {
    const LevelPlaces places = findLevels(file.Lines);
    std::size_t first = file.Lines.size();
    for (std::size_t level = 0; level < places.size(); ++level) {
        if (!places[level]) failWithout(level, places, file);
        file.Levels[level] = *statedLevel(file.Lines[*places[level]], LevelKinds[level]);
        first = std::min(first, *places[level]);
    }
    return first + 1;
}

/// Rows follow their headings. Where those are gone, two rows, or a row and the end of its pass, stand together; a line
/// elsewhere may look like one row.
void findRows(ResultsFile& file, std::size_t from) {
    const auto isRow = [](const FileLine& line) { return rowCells(line.Text).has_value(); };
    const auto begin = file.Lines.begin();
    const auto start = begin + static_cast<std::ptrdiff_t>(from);
    auto first = start;
    while (first != file.Lines.end() &&
           !(isRow(*first) && (first + 1 == file.Lines.end() || isRow(first[1]))))
        ++first;
    const auto above = std::find_if(std::make_reverse_iterator(first), std::make_reverse_iterator(start),
                                    [](const FileLine& line) { return line.Text == heading::Columns; });
    if (above.base() != start) first = above.base();
    const auto last = std::find_if(file.Lines.rbegin(), std::make_reverse_iterator(first), isRow);
    file.FirstRow = static_cast<std::size_t>(first - begin);
    file.EndOfRows = static_cast<std::size_t>(last.base() - begin);
    // The last row of a file that was cut.
    if (!file.EndsLine && file.EndOfRows + 1 == file.Lines.size()) ++file.EndOfRows;
}

void readSuite(ResultsFile& file, std::size_t from) {
    for (std::size_t i = from; i < file.FirstRow; ++i) {
        const auto fields = fieldsOf(LineKind::Chosen, file.Lines[i].Text);
        if (!fields) continue;
        const std::string_view digits = fields->at(0).Values[0];
        std::size_t number = 0;
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
        // No suite has more species than the file has lines.
        if (read.ec != std::errc() || number < 1 || number > file.Lines.size()) continue;
        if (file.Suite.size() < number) file.Suite.resize(number);
        if (file.Suite[number - 1].empty()) file.Suite[number - 1] = fields->at(1).Values[0];
    }
}

}  // namespace

ResultsFile readResultsFile(std::string_view text) {
    ResultsFile file;
    splitLines(text, file);
    const std::size_t afterLevel = readLevels(file);
    findRows(file, afterLevel);
    readSuite(file, afterLevel);
    return file;
}

}  // namespace insight
