// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verify/verification.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "insight/names.h"
#include "insight/verify/followed_passes.h"
#include "insight/verify/line_alignment.h"
#include "ui/text.h"

namespace insight {

namespace {

constexpr std::array<double, LevelKinds.size()> HighestLevels = {100, 1, 1};

/// In the order of the file.
using OptionalLevels = std::array<std::optional<double>, LevelKinds.size()>;

OptionalLevels inOrder(const GivenLevels& given) {
    return {given.Margin, given.ThreatRepresentation, given.ConservationStatus};
}

/// With a replacement character for each byte that is no UTF-8.
std::string asUtf8(std::string_view bytes) {
    constexpr std::string_view Replacement = "\xEF\xBF\xBD";
    std::string text;
    for (std::size_t position = 0; position < bytes.size();) {
        const std::size_t start = position;
        const char32_t character = ui::nextCharacter(bytes, position);
        const std::string_view read = bytes.substr(start, position - start);
        text += character >= 0x80 && read.size() == 1 ? Replacement : read;
    }
    return text;
}

Cell cellOf(const std::vector<std::string_view>& values) {
    if (values.size() == 1 && values.front().empty()) return {};
    if (values.size() == 1) return asUtf8(values.front());
    std::vector<std::string> texts;
    for (const std::string_view value : values) texts.push_back(asUtf8(value));
    return texts;
}

/// Sets the lines that the run writes beside those of the file: what stands above the passes, each pass, what follows.
class Verifier {
public:
    Verifier(const SelectionRun& project, const ResultsFile& file, const GivenLevels& given)
        : project_(project), file_(file), given_(inOrder(given)), levels_(levelsOf(file, given)) {
        verification_.Table.Columns = {"check", "expected", "found", "ok"};
    }

    Verification verify();

private:
    std::vector<ResultLine> head(const Recomputation& run, const FollowedRun& followed) const;
    std::vector<ResultLine> linesOf(const FollowedPass& pass, bool first) const;
    std::vector<ResultLine> tail(const Recomputation& run) const;

    void checkPass(const FollowedPass& pass, bool first);
    void checkPick(const FollowedPass& pass, std::size_t line);
    /// `afterLine` is called with the index of each line that was checked.
    void checkLines(
        std::vector<ResultLine> expected, std::size_t firstLine, std::size_t endOfLines,
        const std::function<void(std::size_t)>& afterLine = [](std::size_t) {});
    void checkPair(const ResultLine& expected, const FileLine& found);
    void checkEnd();
    void addMissing(const ResultLine& expected, std::size_t nextLine);
    void add(const std::string& place, const std::string& name, Cell expected, Cell found, bool ok);
    std::string lineAt(std::size_t index) const;

    const SelectionRun& project_;
    const ResultsFile& file_;
    const OptionalLevels given_;
    const method::Levels levels_;
    Verification verification_;
};

Verification Verifier::verify() {
    try {
        Recomputation run(project_.Landscape, levels_);
        const FollowedRun followed = followPicks(run, file_, project_.Species);
        checkLines(head(run, followed), 0, file_.FirstRow);
        for (const FollowedPass& pass : followed.Passes) checkPass(pass, &pass == &followed.Passes.front());
        const std::size_t next = followed.Passes.empty() ? file_.FirstRow : followed.Passes.back().EndOfLines;
        // A run that ends in an error writes no file at all.
        if (followed.Error) add(lineAt(next), "run", *followed.Error, std::monostate(), false);
        checkLines(tail(run), next, file_.Lines.size());
    } catch (const RunFailure& failure) {
        add(lineAt(0), "run", std::string(failure.what()), std::monostate(), false);
    }
    checkEnd();
    return std::move(verification_);
}

/// From the excluded species to the headings of the passes.
std::vector<ResultLine> Verifier::head(const Recomputation& run, const FollowedRun& followed) const {
    const RecomputedScores& scores = run.scores();
    std::vector<ResultLine> lines = excludedLines(speciesNames(project_, run.excluded()));
    const auto add = [&](LineKind kind, std::string_view text) {
        lines.push_back({kind, std::string(text)});
    };
    add(LineKind::Heading, heading::Ranking);
    for (std::size_t rank = 0; rank < scores.ByRank.size(); ++rank) {
        const std::size_t species = scores.ByRank[rank];
        lines.push_back(rankedLine(rank + 1, project_.Species[species], scores.Aggregates[species]));
    }
    add(LineKind::Empty, "");
    add(LineKind::Empty, "");
    const std::array stated = {levels_.Margin, levels_.ThreatRepresentation, levels_.ConservationStatus};
    for (std::size_t level = 0; level < stated.size(); ++level)
        lines.push_back(levelLine(LevelKinds[level], given_[level].value_or(stated[level])));
    add(LineKind::Empty, "");
    add(LineKind::Heading, heading::Suite);
    std::size_t number = 0;
    for (const std::string& name : speciesNames(project_, followed.Suite))
        lines.push_back(chosenLine(++number, name));
    // The list of an empty suite has its first number all the same.
    if (number == 0) lines.push_back(chosenLine(1, ""));
    for (ResultLine& line : legend()) lines.push_back(std::move(line));
    return lines;
}

std::vector<ResultLine> Verifier::linesOf(const FollowedPass& pass, bool first) const {
    std::vector<ResultLine> lines;
    const std::vector<PassRow>& rows = pass.Expected.Rows;
    for (std::size_t row = 0; row < rows.size(); ++row)
        lines.push_back(
            rowLine(markOf(pass, row, first), project_.Species[rows[row].Species], row + 1, rows[row]));
    lines.push_back(endOfPass());
    return lines;
}

std::vector<ResultLine> Verifier::tail(const Recomputation& run) const {
    std::array<std::vector<std::string>, UnitKindCount> uncovered;
    for (std::size_t kind = 0; kind < UnitKindCount; ++kind) {
        const std::vector<std::string>& names = project_.Units[method::UnitKinds[kind]];
        for (const std::size_t unit : run.uncovered(kind)) uncovered[kind].push_back(names[unit]);
    }
    return coverageLines(uncovered);
}

void Verifier::checkPass(const FollowedPass& pass, bool first) {
    const std::size_t pickLine = pass.MarkedLine.value_or(pass.EndOfLines - 1);
    const bool shown = pass.MarkedLine || (!pass.Pick && pass.FirstLine < pass.EndOfLines);
    checkLines(linesOf(pass, first), pass.FirstLine, pass.EndOfLines, [&](std::size_t line) {
        if (shown && line == pickLine) checkPick(pass, line);
    });
}

/// A pass without a pick dropped one that adds nothing.
void Verifier::checkPick(const FollowedPass& pass, std::size_t line) {
    const std::vector<PassRow>& rows = pass.Expected.Rows;
    std::vector<std::string> permitted;
    for (const PassRow& row : rows) {
        if (row.Permitted) permitted.push_back(project_.Species[row.Species]);
    }
    const Cell found = pass.Pick ? Cell(project_.Species[rows[*pass.Pick].Species]) : Cell();
    add(lineAt(line), "pick", permitted, found, !pass.Pick || rows[*pass.Pick].Permitted);
}

void Verifier::checkLines(std::vector<ResultLine> expected, std::size_t firstLine, std::size_t endOfLines,
                          const std::function<void(std::size_t)>& afterLine) {
    std::vector<std::string_view> expectedTexts;
    for (ResultLine& line : expected) {
        if (!file_.CarriageReturns && line.Text.ends_with('\r')) line.Text.pop_back();
        expectedTexts.push_back(line.Text);
    }
    std::vector<std::string_view> foundTexts;
    for (std::size_t line = firstLine; line < endOfLines; ++line)
        foundTexts.push_back(file_.Lines[line].Text);

    std::size_t next = firstLine;
    for (const LinePair& pair : alignLines(expectedTexts, foundTexts)) {
        if (!pair.Found) {
            addMissing(expected[*pair.Expected], next);
            continue;
        }
        const FileLine& found = file_.Lines[next];
        if (pair.Expected) {
            checkPair(expected[*pair.Expected], found);
        } else {
            add(lineAt(next), "foreign", std::monostate(), asUtf8(found.Text), false);
        }
        afterLine(next++);
    }
}

/// Part by part; where all parts agree and the line does not, as a whole.
void Verifier::checkPair(const ResultLine& expected, const FileLine& found) {
    const std::string place = "line " + std::to_string(found.Number);
    const auto expectedFields = fieldsOf(expected.Kind, expected.Text);
    const auto foundFields = fieldsOf(expected.Kind, found.Text);
    if (foundFields) {
        for (std::size_t i = 0; i < expectedFields->size(); ++i) {
            const LineField& field = expectedFields->at(i);
            const std::vector<std::string_view>& values = foundFields->at(i).Values;
            add(place, field.Name, cellOf(field.Values), cellOf(values), field.Values == values);
        }
    }
    if (expected.Text != found.Text && foundFields == expectedFields)
        add(place, "layout", asUtf8(expected.Text), asUtf8(found.Text), false);
    if (!foundFields) add(place, "line", asUtf8(expected.Text), asUtf8(found.Text), false);
}

/// The end of the last line; the others could not be told from each other without.
void Verifier::checkEnd() {
    if (file_.Lines.empty()) return;
    const std::string end = file_.CarriageReturns ? "CR LF" : "LF";
    add(lineAt(file_.Lines.size() - 1), "end of line", end, file_.EndsLine ? Cell(end) : Cell(),
        file_.EndsLine);
}

std::string Verifier::lineAt(std::size_t index) const {
    return "line " + std::to_string(file_.Lines[std::min(index, file_.Lines.size() - 1)].Number);
}

void Verifier::addMissing(const ResultLine& expected, std::size_t nextLine) {
    const std::string place =
        nextLine == 0 ? "missing before line 1" : "missing after " + lineAt(nextLine - 1);
    add(place, "", asUtf8(expected.Text), std::monostate(), false);
}

void Verifier::add(const std::string& place, const std::string& name, Cell expected, Cell found, bool ok) {
    verification_.Table.Rows.push_back(
        {name.empty() ? place : place + ": " + name, std::move(expected), std::move(found), ok});
    verification_.Holds = verification_.Holds && ok;
}

}  // namespace

method::Levels levelsOf(const ResultsFile& file, const GivenLevels& given) {
    const OptionalLevels wanted = inOrder(given);
    std::array<double, LevelKinds.size()> levels{};
    for (std::size_t level = 0; level < levels.size(); ++level) {
        const double stated = file.Levels[level];
        const bool agrees = wanted[level] && plainNumber(*wanted[level]) == plainNumber(stated);
        levels[level] = agrees ? *wanted[level] : std::min(stated, HighestLevels[level]);
    }
    return {levels[0], levels[1], levels[2]};
}

Verification verifyResults(const SelectionRun& project, const ResultsFile& file, const GivenLevels& given) {
    return Verifier(project, file, given).verify();
}

}  // namespace insight
