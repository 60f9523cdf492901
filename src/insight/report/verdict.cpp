// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/verdict.h"

#include <algorithm>

#include "insight/names.h"
#include "insight/report/open_units.h"
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
    const std::string have = capitalSpecies(size);
    if (size > known.upper())
        return Sentence(have + "; " + countWord(known.upper()) + " would be enough" + leastInWords(known));
    if (!known.isProven()) return Sentence(have + "; no smaller suite is known" + leastInWords(known));
    return Sentence(have + "; at these levels no fewer cover as much.");
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

/// How many covered units only one species of the suite covers.
std::size_t hangingUnits(const ReportFindings& found) {
    std::size_t units = 0;
    for (std::size_t u = 0; u < found.States.size(); ++u) units += found.coveringInSuite(u) == 1 ? 1 : 0;
    return units;
}

Sentence hanging(const ReportFindings& found) {
    const std::size_t covered = coveredBy(found);
    const std::size_t units = hangingUnits(found);
    if (covered == 0) return {};
    if (units == 0) return Sentence("Each is covered by two or more species of the suite.");
    if (units == covered) return Sentence("Each hangs on one species of the suite alone.");
    return Sentence(withThousands(units) + " of these " + withThousands(covered) +
                    (units == 1 ? " hangs" : " hang") + " on one species of the suite alone.");
}

Sentence leftOut(const ReportFindings& found) {
    std::vector<std::string> excluded;
    for (std::size_t s = 0; s < found.Run.Species.size(); ++s) {
        if (found.Units.eligible(s)) continue;
        excluded.push_back(shownName(found.Run.Species[s]) + " (" + fieldOf(found.Run.Landscape.Status[s]) +
                           ")");
    }
    if (excluded.empty()) return {};
    const bool isOne = excluded.size() == 1;
    return Sentence(capitalCountWord(excluded.size()) + " of " +
                    countedInWords(found.Run.Species.size(), "candidate", "candidates") +
                    (isOne ? " is left out, since its" : " are left out, since their") +
                    " conservation status is above " + fieldOf(found.Run.Levels.ConservationStatus) +
                    " (the higher, the safer): ")
        .names(excluded)
        .say(".");
}

/// The change that leaves fewest units, where one leaves fewer than the run.
Sentence bestRemedy(const ReportFindings& found) {
    const auto best = std::min_element(
        found.Remedies.begin(), found.Remedies.end(),
        [](const Remedy& a, const Remedy& b) { return a.Run.Open.size() < b.Run.Open.size(); });
    if (best == found.Remedies.end()) return {};
    const std::size_t open = best->Run.Open.size();
    if (open >= unitsOf(found) - coveredBy(found)) return {};
    Sentence sentence("With " + changeInWords(found, best->Made) + " a run has " +
                      speciesInWords(best->Run.Species.size()) + " and leaves " +
                      countedInWords(open, "unit", open == 0 ? "unit" : "units") + " uncovered");
    if (best->Run.Smallest && best->Run.Smallest->isProven())
        sentence.say("; the smallest suite then has " + sizeInWords(*best->Run.Smallest));
    return sentence.say(".");
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
                      " cannot be covered at these levels: ");
    sentence.names(units);
    if (!forExclusion) return sentence.say("; no candidate reaches what is needed.");
    return sentence
        .say(units.size() == 1 ? ". Only excluded species would cover it: "
                               : ". Only excluded species would cover them: ")
        .names(speciesNames(found.Run, excluded))
        .say(".");
}

Sentence redundant(const ReportFindings& found) {
    const Rows& rows = found.Suite.Redundant;
    if (rows.empty()) return {};
    const std::vector<std::string> names = speciesNames(found.Run, found.Index, rows);
    if (names.size() > 1)
        return Sentence("Each of ")
            .names(names)
            .say(" could go alone: others of the suite cover all that it covers.");
    const int rank = found.Run.Ranks[found.Problem.Species[rows.front()]];
    return Sentence("All that ")
        .names(names)
        .say(" covers is covered by others of the suite, too; it has rank " + std::to_string(rank) + " of " +
             std::to_string(found.Run.Species.size()) + " by score.");
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
        return Sentence(smallest.IsExact ? "It is the only suite of that size that does."
                                         : "Whether other suites are as small is not settled.");
    const std::string count = smallest.IsExact ? capitalCountWord(others) : "At least " + countWord(others);
    const std::string suites =
        (isOne ? " other" : "") + std::string(others == 1 ? " suite of " : " suites of ") +
        speciesInWords(found.Minimum.Known.upper()) + (others == 1 ? " covers " : " cover ");
    return Sentence(count + suites + (isOne ? "the same units." : "all that can be covered."));
}

/// Whether the suite of the run is one of the smallest once its redundant species are gone.
Sentence prunedInstead(const ReportFindings& found) {
    const RunSuite& suite = found.Suite;
    const bool isSmallest = suite.Complete && suite.Pruned.size() == found.Minimum.Known.upper();
    if (suite.Redundant.empty() || !isSmallest || !found.Minimum.Known.isProven()) return {};
    Rows gone;
    for (const std::uint32_t row : suite.Picks) {
        if (!std::binary_search(suite.Pruned.begin(), suite.Pruned.end(), row)) gone.push_back(row);
    }
    return Sentence("The suite of the run without ")
        .names(speciesNames(found.Run, found.Index, gone))
        .say(" is such a one.");
}

Sentence bestInstead(const ReportFindings& found) {
    if (isSmallestKnown(found) || found.Index.units() == 0) return {};
    const char* what = found.Smallest.isOneOnly()       ? "It is "
                       : found.Minimum.isProven()       ? "Of these the one with the highest total: "
                       : found.Minimum.Known.isProven() ? "One of that size: "
                                                        : "The smallest known: ";
    return Sentence(what).names(speciesNames(found.Run, found.Index, found.Minimum.Known.Suite)).say(".");
}

Sentence inAll(const ReportFindings& found) {
    const std::vector<std::string> names = speciesInAll(found);
    if (names.empty() || found.Smallest.isOneOnly()) return {};
    return Sentence("At these levels ")
        .names(names)
        .say(names.size() == 1 ? " is in every one of the smallest suites."
                               : " are in every one of the smallest suites.");
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
    std::vector<Sentence> sentences = {sizeOfSuite(findings),
                                       endOfRun(findings),
                                       coverage(findings),
                                       hanging(findings),
                                       missed(findings),
                                       uncoverable(findings, true),
                                       uncoverable(findings, false),
                                       bestRemedy(findings),
                                       leftOut(findings),
                                       redundant(findings),
                                       alternatives(findings),
                                       prunedInstead(findings),
                                       bestInstead(findings),
                                       inAll(findings)};
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
        {bounds, known.isProven() ? "fewest possible, proven" : "fewest possible, not settled"},
        {withThousands(coveredBy(findings)) + " / " + withThousands(unitsOf(findings)), "units covered"},
        {withThousands(hangingUnits(findings)), "covered by one species alone"}};
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

}  // namespace insight
