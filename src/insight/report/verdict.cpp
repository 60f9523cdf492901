// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/verdict.h"

#include <algorithm>

#include "insight/names.h"
#include "insight/table.h"

namespace insight {

namespace {

/// "nine species".
std::string speciesInWords(std::size_t count) { return countedInWords(count, "species", "species"); }

std::string capitalSpecies(std::size_t count) { return capitalCountWord(count) + " species"; }

std::size_t unitsOf(const ReportFindings& found) { return found.States.size(); }

std::size_t coveredBy(const ReportFindings& found) {
    return static_cast<std::size_t>(
        std::count_if(found.States.begin(), found.States.end(),
                      [](const UnitState& state) { return state.Fate == UnitFate::Covered; }));
}

/// What the smallest suite has: "nine", "between eight and ten".
std::string sizeInWords(const SmallestSuite& known) {
    if (known.isProven()) return countWord(known.Lower);
    return "between " + countWord(known.Lower) + " and " + countWord(known.upper());
}

/// What is known of smaller suites, as the end of a sentence.
std::string leastInWords(const SmallestSuite& known) {
    return known.isProven() ? "." : "; fewer than " + countWord(known.Lower) + " would not do.";
}

/// Of a suite that covers all that can be covered.
Sentence sizeOfCompleteSuite(std::size_t size, const SmallestSuite& known) {
    const std::string have = capitalSpecies(size) + "; ";
    if (size > known.upper())
        return Sentence(have + countWord(known.upper()) + " would be enough" + leastInWords(known));
    return Sentence(have + (known.isProven() ? "no smaller suite exists" : "no smaller suite is known") +
                    leastInWords(known));
}

Sentence sizeOfSuite(const ReportFindings& found) {
    const std::size_t size = found.Suite.Picks.size();
    if (found.Index.species() == 0) return Sentence("No suite: every candidate is excluded.");
    if (found.Index.units() == 0) return Sentence("No suite: no eligible species covers any unit.");
    if (found.Suite.Complete) return sizeOfCompleteSuite(size, found.Minimum.Known);
    const std::size_t missed = unitsWith(found, UnitFate::Missed).size();
    return Sentence(capitalSpecies(size) + (size == 1 ? ", which misses " : ", which miss ") +
                    countedInWords(missed, "unit", "units") + " that could be covered; " +
                    countWord(found.Minimum.Known.upper()) + " would be enough for all that can be covered" +
                    leastInWords(found.Minimum.Known));
}

Sentence endOfRun(const ReportFindings& found) {
    const SelectionOutcome& outcome = found.Run.Outcome;
    if (!outcome.Error) return {};
    return Sentence("The run ended in an error after " + speciesInWords(outcome.Suite.Picks.size()) + " (")
        .name(*outcome.Error)
        .say("); what is told of it goes as far as it came.");
}

Sentence coverage(const ReportFindings& found) {
    const std::size_t covered = coveredBy(found);
    const std::string units = withThousands(unitsOf(found)) + " units (habitats, zones and threats)";
    if (covered == unitsOf(found)) return Sentence("All " + units + " are covered.");
    return Sentence(withThousands(covered) + " of the " + units + (covered == 1 ? " is" : " are") +
                    " covered.");
}

Sentence missed(const ReportFindings& found) {
    const std::vector<std::string> names = unitsWith(found, UnitFate::Missed);
    if (names.empty()) return {};
    return Sentence(capitalCountWord(names.size()) +
                    (names.size() == 1 ? " unit was missed although an eligible species covers it: "
                                       : " units were missed although eligible species cover them: "))
        .names(names)
        .say(".");
}

/// Units that no eligible species covers: those for which there is an excluded one, or those for which there is none.
Sentence uncoverable(const ReportFindings& found, bool forExclusion) {
    std::vector<std::string> units;
    std::vector<std::size_t> excluded;
    for (std::size_t u = 0; u < found.States.size(); ++u) {
        const UnitState& state = found.States[u];
        if (state.Fate != UnitFate::Uncoverable || state.Excluded.empty() == forExclusion) continue;
        units.push_back(unitName(found.Run, found.Units.unit(u)));
        excluded.insert(excluded.end(), state.Excluded.begin(), state.Excluded.end());
    }
    if (units.empty()) return {};
    std::sort(excluded.begin(), excluded.end());
    excluded.erase(std::unique(excluded.begin(), excluded.end()), excluded.end());
    Sentence sentence(capitalCountWord(units.size()) + (units.size() == 1 ? " unit" : " units") +
                      " cannot be covered: ");
    sentence.names(units);
    if (!forExclusion) return sentence.say("; no candidate reaches the level.");
    return sentence.say(", since ")
        .names(speciesNames(found.Run, excluded))
        .say(excluded.size() == 1 ? " is excluded." : " are excluded.");
}

Sentence redundant(const ReportFindings& found) {
    const std::vector<std::string> names = speciesNames(found.Run, found.Index, found.Suite.Redundant);
    if (names.empty()) return {};
    if (names.size() == 1) return Sentence().names(names).say(" could go without a loss.");
    return Sentence("Each of ").names(names).say(" could go alone without a loss.");
}

/// Whether the suite of the run covers all that can be covered with as few species as are known to.
bool isSmallestKnown(const ReportFindings& found) {
    return found.Suite.Complete && found.Suite.Picks.size() == found.Minimum.Known.upper();
}

Sentence alternatives(const ReportFindings& found) {
    if (!found.Minimum.Known.isProven() || found.Index.units() == 0) return {};
    const SuiteList& smallest = found.Smallest;
    const bool isOne = isSmallestKnown(found);
    const std::size_t others = smallest.Count - (isOne ? 1 : 0);
    if (others == 0)
        return Sentence(smallest.IsExact ? "It is the only suite of that size."
                                         : "Whether other suites are as small is not settled.");
    const std::string count = smallest.IsExact ? capitalCountWord(others) : "At least " + countWord(others);
    const std::string size = speciesInWords(found.Minimum.Known.upper());
    if (isOne)
        return Sentence(count + (others == 1 ? " other suite has " : " other suites have ") + size +
                        ", too.");
    return Sentence(count + (others == 1 ? " suite covers" : " suites cover") +
                    " as much as can be covered with " + size + ".");
}

Sentence bestInstead(const ReportFindings& found) {
    if (isSmallestKnown(found) || found.Index.units() == 0) return {};
    const char* what = found.Minimum.isProven()         ? "With the highest total: "
                       : found.Minimum.Known.isProven() ? "One of that size: "
                                                        : "The smallest known: ";
    return Sentence(what).names(speciesNames(found.Run, found.Index, found.Minimum.Known.Suite)).say(".");
}

Sentence inAll(const ReportFindings& found) {
    const std::vector<std::string> names = speciesInAll(found);
    if (names.empty() || (found.Smallest.IsExact && found.Smallest.Count == 1)) return {};
    return Sentence().names(names).say(names.size() == 1 ? " is in every one of the smallest suites."
                                                         : " are in every one of the smallest suites.");
}

std::string percent(Count count, Count runs) {
    return fieldOf(Fixed{100 * static_cast<double>(count) / static_cast<double>(runs), 0}) + " %";
}

/// How often the species of the suite are selected in the runs of a sweep.
Sentence selectedAgain(const ReportFindings& found, const SweepCounts& counts) {
    const std::vector<method::Pick>& picks = found.Run.Outcome.Suite.Picks;
    std::size_t always = 0;
    std::vector<std::string> rarely;
    for (const method::Pick& pick : picks) {
        const Count held = counts.Species[pick.Species];
        if (held == counts.Runs) ++always;
        if (2 * held < counts.Runs) rarely.push_back(found.Run.Species[pick.Species]);
    }
    if (picks.empty()) return Sentence("there is no suite to compare with.");
    if (always == picks.size()) return Sentence("every species of the suite is in all of the runs.");
    Sentence sentence((always == 0 ? "none" : countWord(always)) + " of the suite's species" +
                      (always <= 1 ? " is" : " are") + " in all of the runs");
    if (rarely.empty())
        return sentence.say(always == 0 ? ", but each in at least half of them."
                                        : ", the others in at least half of them.");
    return sentence.say("; in fewer than half of them ")
        .say(rarely.size() == 1 ? "is " : "are ")
        .names(rarely)
        .say(".");
}

/// The species from outside the suite that is selected most often; none where each is in fewer than 1 % of the runs.
std::optional<std::size_t> mostFrequentOther(const ReportFindings& found, const SweepCounts& counts) {
    std::optional<std::size_t> other;
    for (std::size_t s = 0; s < counts.Species.size(); ++s) {
        if (found.placeOf(s) || 100 * counts.Species[s] < counts.Runs) continue;
        if (!other || counts.Species[s] > counts.Species[*other]) other = s;
    }
    return other;
}

}  // namespace

std::vector<std::string> unitsWith(const ReportFindings& findings, UnitFate fate) {
    std::vector<std::string> names;
    for (std::size_t u = 0; u < findings.States.size(); ++u) {
        if (findings.States[u].Fate == fate) names.push_back(unitName(findings.Run, findings.Units.unit(u)));
    }
    return names;
}

std::vector<std::string> speciesInAll(const ReportFindings& findings) {
    Rows rows;
    for (std::uint32_t row = 0; row < findings.Roles.size(); ++row) {
        if (findings.Roles[row].Class == SpeciesClass::All) rows.push_back(row);
    }
    return speciesNames(findings.Run, findings.Index, rows);
}

std::vector<Sentence> verdict(const ReportFindings& findings) {
    std::vector<Sentence> sentences = {sizeOfSuite(findings),       endOfRun(findings),
                                       coverage(findings),          missed(findings),
                                       uncoverable(findings, true), uncoverable(findings, false),
                                       redundant(findings),         alternatives(findings),
                                       bestInstead(findings),       inAll(findings)};
    std::erase_if(sentences, [](const Sentence& sentence) { return sentence.isEmpty(); });
    return sentences;
}

std::vector<KeyFigure> keyFigures(const ReportFindings& findings) {
    const SmallestSuite& known = findings.Minimum.Known;
    const std::string lower = withThousands(known.Lower);
    const std::string bounds = known.isProven() ? lower : lower + "–" + withThousands(known.upper());
    const SuiteList& suites = findings.Smallest;
    std::vector<KeyFigure> figures = {
        {withThousands(findings.Suite.Picks.size()), "species selected"},
        {bounds, known.isProven() ? "fewest that do, proven" : "fewest that do, not settled"},
        {withThousands(coveredBy(findings)) + " / " + withThousands(unitsOf(findings)), "units covered"}};
    if (known.isProven())
        figures.push_back({(suites.IsExact ? "" : "≥ ") + withThousands(suites.Count),
                           suites.Count == 1 ? "smallest suite" : "smallest suites"});
    return figures;
}

Sentence coverageSentence(const ReportFindings& findings) {
    const std::size_t size = findings.Minimum.Known.upper();
    if (size < 2 || findings.Suite.Picks.empty()) return {};
    const std::size_t half = (size + 1) / 2;
    const BestCoverage& best = findings.Best[half];
    return Sentence(capitalSpecies(half) + " can cover " + withThousands(best.Units) + " of the " +
                    counted(findings.Index.units(), "unit", "units") + " that can be covered at all" +
                    (best.isProven() ? "" : ", as far as known") + "; to cover them all takes " +
                    sizeInWords(findings.Minimum.Known) + ".");
}

Sentence sweepSentence(const ReportFindings& findings, const ReportSweep& sweep) {
    const SweepCounts& counts = sweep.Counts;
    if (counts.Runs == 0) return Sentence("no run was made.");
    Sentence sentence = selectedAgain(findings, counts);
    if (const auto other = mostFrequentOther(findings, counts)) {
        sentence.say(" Of the others ").name(findings.Run.Species[*other]);
        sentence.say(" comes in most often, in " + percent(counts.Species[*other], counts.Runs) +
                     " of them.");
    }
    return sentence;
}

}  // namespace insight
