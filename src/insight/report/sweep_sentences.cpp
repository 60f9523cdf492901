// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/sweep_sentences.h"

#include <algorithm>
#include <string_view>

#include "insight/names.h"

namespace insight {

namespace {

constexpr std::size_t WeakestNamed = 3;
constexpr std::size_t SizesNamed = 2;

/// Something that was counted, and how often.
struct Counted {
    std::size_t Item;
    Count Times;
};

/// Those most often counted first, or those least often.
void sortByTimes(std::vector<Counted>& counts, bool mostFirst) {
    std::stable_sort(counts.begin(), counts.end(), [&](const Counted& a, const Counted& b) {
        return mostFirst ? a.Times > b.Times : a.Times < b.Times;
    });
}

/// "A (62 %), B (76 %)".
Sentence& nameWithShares(Sentence& sentence, const std::vector<std::string>& names,
                         const std::vector<Counted>& counts, Count runs) {
    for (const Counted& counted : counts) {
        if (&counted != &counts.front()) sentence.say(&counted == &counts.back() ? " and " : ", ");
        sentence.name(names[counted.Item]).say(" (" + percent(counted.Times, runs) + ")");
    }
    return sentence;
}

/// Runs without a suite tell nothing of the species; where they are many they would hide the others.
Sentence runsWithoutSuite(const ReportSweep& sweep) {
    if (sweep.emptyRuns() == 0) return {};
    return Sentence(
        withThousands(sweep.emptyRuns()) + " of " + withThousands(sweep.Counts.Runs) +
        " runs selected no species, as where none is eligible; shares of species are those of the "
        "other " +
        withThousands(sweep.runsWithSuite()) + ", while units and sizes count all runs.");
}

Sentence alwaysSelected(const ReportFindings& found, const ReportSweep& sweep) {
    const std::vector<method::Pick>& picks = found.Run.Outcome.Suite.Picks;
    if (picks.empty()) return Sentence("There is no suite to compare with.");
    std::vector<std::string> always;
    for (const method::Pick& pick : picks) {
        if (sweep.Counts.Species[pick.Species] == sweep.runsWithSuite())
            always.push_back(found.Run.Species[pick.Species]);
    }
    if (always.size() == picks.size()) return Sentence("Each species of the suite is selected in all runs.");
    if (always.empty()) return {};
    return Sentence("In all runs: ").names(always).say(".");
}

Sentence leastSelected(const ReportFindings& found, const ReportSweep& sweep) {
    std::vector<Counted> weak;
    for (const method::Pick& pick : found.Run.Outcome.Suite.Picks) {
        const Count times = sweep.Counts.Species[pick.Species];
        if (times < sweep.runsWithSuite()) weak.push_back({pick.Species, times});
    }
    if (weak.empty()) return {};
    sortByTimes(weak, false);
    const bool isSome = weak.size() > WeakestNamed;
    if (isSome) weak.resize(WeakestNamed);
    Sentence sentence(isSome ? "Of the suite least often: " : "Of the suite less often: ");
    return nameWithShares(sentence, found.Run.Species, weak, sweep.runsWithSuite()).say(".");
}

Sentence othersSelected(const ReportFindings& found, const ReportSweep& sweep) {
    std::vector<Counted> others;
    for (std::size_t s = 0; s < found.Run.Species.size(); ++s) {
        const Count times = sweep.Counts.Species[s];
        if (!found.placeOf(s) && 100 * times >= sweep.runsWithSuite()) others.push_back({s, times});
    }
    if (others.empty()) return {};
    sortByTimes(others, true);
    if (others.size() > WeakestNamed) others.resize(WeakestNamed);
    Sentence sentence("From outside most often: ");
    return nameWithShares(sentence, found.Run.Species, others, sweep.runsWithSuite()).say(".");
}

/// The sizes that occurred most often.
Sentence sizes(const ReportFindings& found, const ReportSweep& sweep) {
    std::vector<Counted> sizes;
    for (std::size_t size = 1; size < sweep.Counts.Sizes.size(); ++size) {
        if (sweep.Counts.Sizes[size] > 0) sizes.push_back({size, sweep.Counts.Sizes[size]});
    }
    if (sizes.empty()) return {};
    sortByTimes(sizes, true);
    const std::string own = " (this one has " + countWord(found.Suite.Picks.size()) + ").";
    if (sizes.size() == 1)
        return Sentence("All of their suites have " + countWord(sizes.front().Item) + " species" + own);
    if (sizes.size() > SizesNamed) sizes.resize(SizesNamed);
    std::string text = "The suite has ";
    for (const Counted& size : sizes)
        text += (&size == &sizes.front() ? "" : ", ") + countWord(size.Item) + " species in " +
                percent(size.Times, sweep.runsWithSuite());
    return Sentence(text + own);
}

Sentence missedMost(const ReportFindings& found, const ReportSweep& sweep) {
    std::vector<std::string> names;
    std::vector<Counted> missed;
    for (std::size_t u = 0; u < found.Units.units(); ++u) {
        const UnitNumber& unit = found.Units.unit(u);
        names.push_back(unitName(found.Run, unit));
        const Count times = sweep.Counts.Missed[unit.Kind][unit.Number];
        if (100 * times >= sweep.Counts.Runs) missed.push_back({u, times});
    }
    if (missed.empty()) return {};
    sortByTimes(missed, true);
    if (missed.size() > WeakestNamed) missed.resize(WeakestNamed);
    Sentence sentence("Missed although an eligible species covers it: ");
    return nameWithShares(sentence, names, missed, sweep.Counts.Runs).say("; there the run stopped short.");
}

/// Those that selected nobody are told by themselves.
Sentence endedEarly(const ReportSweep& sweep) {
    const Count early = sweep.Counts.Errors - std::min(sweep.Counts.Errors, sweep.emptyRuns());
    if (early == 0) return {};
    return Sentence(
        counted(early, "run", "runs") +
        " ended early, as a rule since none of the species left added a unit; each counts with the "
        "suite that it had.");
}

Sentence stopped(const ReportSweep& sweep) {
    if (sweep.isWhole()) return {};
    return Sentence("It was stopped after " + counted(sweep.Counts.Runs, "run", "runs") + ".");
}

/// Only answers are drawn anew, and there was no question.
bool changesNothing(const ReportFindings& found, const ReportSweep& sweep) {
    return sweep.Name == std::string_view("answers") && found.Watched.Decisions.empty();
}

}  // namespace

std::vector<Sentence> sweepSentences(const ReportFindings& findings, const ReportSweep& sweep) {
    if (changesNothing(findings, sweep))
        return {Sentence("No question was asked, so that no answer could be another one.")};
    std::vector<Sentence> sentences = {runsWithoutSuite(sweep)};
    if (sweep.runsWithSuite() > 0) {
        sentences.insert(sentences.end(), {alwaysSelected(findings, sweep), leastSelected(findings, sweep),
                                           othersSelected(findings, sweep), sizes(findings, sweep),
                                           missedMost(findings, sweep), endedEarly(sweep)});
    }
    sentences.push_back(stopped(sweep));
    std::erase_if(sentences, [](const Sentence& sentence) { return sentence.isEmpty(); });
    return sentences;
}

Sentence answersByPosition(const ReportFindings& findings) {
    const auto& decisions = findings.Watched.Decisions;
    const bool isGiven = std::any_of(decisions.begin(), decisions.end(),
                                     [](const Decision& decision) { return !decision.IsDefault; });
    if (!isGiven) return {};
    return Sentence(
        "The given answers are taken by position, first to last, also where a changed run asks about other "
        "species; a difference may come from that alone.");
}

}  // namespace insight
