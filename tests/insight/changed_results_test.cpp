// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <optional>

#include "insight/verify/verification.h"
#include "random_project.h"
#include "results_lines.h"
#include "selected_run.h"

/// Whatever is changed in a results file is found, and where it was changed.

using insight::fieldOf;
using insight::ResultsFile;
using insight::Verification;

namespace {

/// What was changed: places of lines in the changed file, from 0.
struct Change {
    std::string What;
    Lines Changed;
    std::vector<std::size_t> Places;
};

bool statesLevel(const std::string& line) {
    return std::any_of(insight::LevelKinds.begin(), insight::LevelKinds.end(), [&](insight::LineKind level) {
        return line.ends_with(insight::levelSuffix(level)) && line.find(". ") == std::string::npos;
    });
}

std::optional<Change> changedByte(Draw& draw, Lines lines, bool digit) {
    const std::size_t place = draw.below(lines.size());
    std::string& line = lines[place];
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool isDigit = line[i] >= '0' && line[i] <= '9';
        // Another level is found only by what follows from it.
        if (isDigit == digit && !(isDigit && statesLevel(line))) positions.push_back(i);
    }
    if (positions.empty()) return {};
    char& byte = line[draw.of(positions)];
    const std::string pool = digit ? "0123456789" : "SXM abz0.;,\t()\x80\xC3";
    const char other = pool[draw.below(pool.size())];
    if (other == byte) return {};
    const std::string what =
        std::string("'") + byte + "' became '" + other + "' in line " + std::to_string(place);
    byte = other;
    return Change{what, lines, {place}};
}

std::optional<Change> changedLength(Draw& draw, Lines lines) {
    const std::size_t place = draw.below(lines.size());
    std::string& line = lines[place];
    if (statesLevel(line)) return {};
    const std::size_t at = draw.below(line.size() + 1);
    if (draw.chance(50)) {
        line.insert(at, 1, "x 1"[draw.below(3)]);
    } else if (at < line.size()) {
        line.erase(at, 1);
    } else {
        return {};
    }
    return Change{"a character more or less in line " + std::to_string(place), lines, {place}};
}

std::optional<Change> swapped(Draw& draw, Lines lines) {
    const std::size_t one = draw.below(lines.size());
    const std::size_t other =
        draw.chance(50) ? draw.below(lines.size()) : std::min(one + 1, lines.size() - 1);
    if (lines[one] == lines[other]) return {};
    std::swap(lines[one], lines[other]);
    return Change{
        "lines " + std::to_string(one) + " and " + std::to_string(other) + " swapped", lines, {one, other}};
}

Change removed(Draw& draw, Lines lines) {
    const std::size_t place = draw.below(lines.size());
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(place));
    return {"line " + std::to_string(place) + " removed", lines, {place}};
}

Change doubled(Draw& draw, Lines lines) {
    const std::size_t place = draw.below(lines.size());
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(place), lines[place]);
    return {"line " + std::to_string(place) + " doubled", lines, {place}};
}

Change added(Draw& draw, Lines lines) {
    const std::size_t place = draw.below(lines.size() + 1);
    const std::string text = draw.chance(30)   ? ""
                             : draw.chance(50) ? lines[draw.below(lines.size())]
                                               : "foreign";
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(place), text);
    return {"line " + std::to_string(place) + " added", lines, {place}};
}

std::optional<Change> changed(Draw& draw, const Lines& lines) {
    switch (draw.below(8)) {
        case 0:
        case 1: return changedByte(draw, lines, true);
        case 2: return changedByte(draw, lines, false);
        case 3: return changedLength(draw, lines);
        case 4: return swapped(draw, lines);
        case 5: return removed(draw, lines);
        case 6: return doubled(draw, lines);
        default: return added(draw, lines);
    }
}

/// The number of a line as an editor counts: a name may hold line breaks.
std::size_t numberOf(const Lines& lines, std::size_t place) {
    const std::string before = textOf({lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(place)});
    return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

/// Numbers of the lines that are told to be wrong, as the checks begin with them.
std::vector<std::size_t> placesOf(const Verification& verification) {
    std::vector<std::size_t> places;
    for (const auto& row : verification.Table.Rows) {
        if (std::get<bool>(row[3])) continue;
        const std::string check = fieldOf(row[0]);
        places.push_back(std::stoul(check.substr(check.find("line ") + 5)));
    }
    return places;
}

/// Whether one of the numbers is that of the place or of a line beside it; equal lines cannot be told from each other.
bool tellsPlace(const std::vector<std::size_t>& numbers, const std::vector<insight::FileLine>& lines,
                std::size_t place) {
    std::size_t first = std::min(place, lines.size() - 1);
    std::size_t last = first;
    while (first > 0 && lines[first - 1].Text == lines[first].Text) --first;
    while (last + 1 < lines.size() && lines[last + 1].Text == lines[last].Text) ++last;
    const std::size_t from = lines[first > 0 ? first - 1 : 0].Number;
    const std::size_t to = lines[std::min(last + 1, lines.size() - 1)].Number;
    return std::any_of(numbers.begin(), numbers.end(),
                       [&](std::size_t number) { return number >= from && number <= to; });
}

bool allDiffer(std::vector<std::string> names) {
    std::sort(names.begin(), names.end());
    return std::adjacent_find(names.begin(), names.end()) == names.end();
}

/// Whether a pass has no pick in the suite.
bool dropsAPick(const ExportedRun& exported) {
    const Lines lines = linesOf(exported.Results);
    const auto passes = std::count(lines.begin(), lines.end(), insight::endOfPass().Text);
    return static_cast<std::size_t>(passes) != exported.Run->Outcome.Suite.Picks.size();
}

/// Runs of random projects that wrote a file; made once.
const std::vector<ExportedRun>& runs() {
    static const std::vector<ExportedRun> made = [] {
        constexpr std::size_t Count = 120;
        TemporaryFolder folder;
        std::vector<ExportedRun> files;
        for (std::uint64_t seed = 1000; files.size() < Count; ++seed) {
            const RandomProject random = randomProject(seed);
            ExportedRun exported = exportedRun(random.Text, random.Options, folder);
            if (!exported.Results.empty()) files.push_back(std::move(exported));
        }
        return files;
    }();
    return made;
}

}  // namespace

TEST(ChangedResults, EveryChangeIsFoundWhereItIs) {
    Draw draw(7);
    int changes = 0;
    for (const ExportedRun& exported : runs()) {
        const Lines lines = linesOf(exported.Results);
        for (int i = 0; i < 60; ++i) {
            const auto change = changed(draw, lines);
            if (!change || change->Changed == lines) continue;
            ++changes;
            const std::string text = textOf(change->Changed);
            std::vector<std::size_t> numbers;
            try {
                const ResultsFile file = insight::readResultsFile(text);
                const Verification verification = insight::verifyResults(*exported.Run, file);
                ASSERT_FALSE(verification.Holds) << change->What << "\n" << text;
                numbers = placesOf(verification);
                for (const std::size_t place : change->Places) {
                    ASSERT_TRUE(tellsPlace(numbers, file.Lines, place))
                        << change->What << "\n"
                        << text << insight::tabSeparated(verification.Table);
                }
            } catch (const insight::ResultsFault& fault) {
                const auto beside = [&](std::size_t place) {
                    const std::size_t number = numberOf(change->Changed, place);
                    return number + 1 >= fault.Line && number <= fault.Line + 1;
                };
                ASSERT_TRUE(std::any_of(change->Places.begin(), change->Places.end(), beside))
                    << change->What << ", " << fault.Line << ": " << fault.what() << "\n"
                    << text;
            }
        }
    }
    EXPECT_GT(changes, 5000);
}

TEST(ChangedResults, ACutFileIsFoundWhereverItIsCut) {
    Draw draw(8);
    for (const ExportedRun& exported : runs()) {
        for (int i = 0; i < 30; ++i) {
            const std::string text = exported.Results.substr(0, draw.below(exported.Results.size()));
            try {
                const ResultsFile file = insight::readResultsFile(text);
                const Verification verification = insight::verifyResults(*exported.Run, file);
                ASSERT_FALSE(verification.Holds) << text;
                // What stands before the cut is right, where the suite alone says how the run went.
                if (!allDiffer(exported.Run->Species) || dropsAPick(exported)) continue;
                for (const std::size_t number : placesOf(verification)) {
                    ASSERT_GE(number + 1, file.Lines.back().Number)
                        << text << insight::tabSeparated(verification.Table);
                }
            } catch (const insight::ResultsFault& fault) {
                // A line that is missing would be the next one.
                EXPECT_LE(fault.Line,
                          2 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')));
            }
        }
    }
}

TEST(ChangedResults, AnyBytesAreReadWithoutHarm) {
    Draw draw(9);
    const std::vector<ExportedRun>& exported = runs();
    int verified = 0;
    for (int i = 0; i < 3000; ++i) {
        const ExportedRun& one = draw.of(exported);
        const std::string& other = draw.of(exported).Results;
        std::string text = one.Results;
        for (std::size_t edits = 1 + draw.below(30); edits > 0; --edits) {
            const std::size_t at = draw.below(text.size() + 1);
            switch (draw.below(4)) {
                case 0: text.erase(at, draw.below(40)); break;
                case 1: text.insert(at, other, draw.below(other.size()), draw.below(200)); break;
                case 2: text.insert(at, draw.below(5), static_cast<char>(draw.below(256))); break;
                default:
                    if (at < text.size()) text[at] = static_cast<char>(draw.below(256));
            }
        }
        if (draw.chance(10)) text = withLineFeeds(text);
        try {
            const Verification verification =
                insight::verifyResults(*one.Run, insight::readResultsFile(text));
            ++verified;
            // Levels alone can be changed without a trace.
            EXPECT_TRUE(!verification.Holds || text.size() == one.Results.size()) << text;
        } catch (const insight::ResultsFault& fault) {
            EXPECT_GE(fault.Line, 1U);
        }
    }
    EXPECT_GT(verified, 1000);
}

TEST(ChangedResults, NoiseIsNoResultsFile) {
    Draw draw(10);
    for (int i = 0; i < 2000; ++i) {
        std::string noise(draw.below(300), ' ');
        for (char& byte : noise)
            byte = draw.chance(20) ? "\r\n\t5 ."[draw.below(6)] : static_cast<char>(draw.below(256));
        EXPECT_THROW(insight::readResultsFile(noise), insight::ResultsFault);
    }
}
