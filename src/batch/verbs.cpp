// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/verbs.h"

#include <algorithm>
#include <array>
#include <ostream>

#include "batch/batch_run.h"
#include "batch/usage_fault.h"

namespace {

constexpr std::array Verbs = {
    Verb{"units", "Tells which units the suite covers and why others stay uncovered.", answerUnits},
    Verb{"minimum", "Tells whether the suite is the smallest, and how that is known.", answerMinimum},
    Verb{"suites", "Lists all suites of the minimal size.", answerSuites},
    Verb{"species", "Tells what hangs on each species and who could stand in for it.", answerSpecies},
    Verb{"sweep", "Selects many times with other levels, answers and grades and counts the suites.",
         answerSweep},
    Verb{"merge", "Puts the shards of a sweep together.", answerMerge},
    Verb{"verify", "Checks whether an exported results file follows from a project.", answerVerify},
    Verb{"report", "Explains a suite on one page to read, print and pass on.", answerReport}};

}  // namespace

const Verb* findVerb(std::string_view name) {
    const auto found =
        std::find_if(Verbs.begin(), Verbs.end(), [&](const Verb& verb) { return name == verb.Name; });
    return found == Verbs.end() ? nullptr : &*found;
}

int runVerb(const Verb& verb, std::span<const char* const> arguments, std::ostream& out, std::ostream& err) {
    try {
        return verb.Run({verb, arguments, out, err});
    } catch (const UsageFault& fault) {
        err << ProgramName << ": " << fault.Text << '\n';
        return ExitWrongUsage;
    } catch (const UnreadableFault& fault) {
        err << ProgramName << ": " << fault.Text << '\n';
        return ExitUnreadableProject;
    }
}
