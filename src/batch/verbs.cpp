// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "batch/verb.h"
#include "insight/unit_states.h"

namespace {

void noOptions(CLI::App&, VerbOptions&) {}

Answer askUnits(const SelectionRun& run, const VerbOptions&) {
    return {insight::unitTable(run, insight::Representation(run))};
}

constexpr std::array Verbs = {
    Verb{"units", "Tells which units the suite covers and why others stay uncovered.", noOptions, askUnits}};

}  // namespace

const Verb* findVerb(std::string_view name) {
    const auto found =
        std::find_if(Verbs.begin(), Verbs.end(), [&](const Verb& verb) { return name == verb.Name; });
    return found == Verbs.end() ? nullptr : &*found;
}
