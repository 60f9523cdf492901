// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/unit_states.h"

#include <array>

#include "insight/names.h"
#include "method/numbers.h"

namespace insight {

namespace {

constexpr std::array FateNames = {"covered", "missed", "uncoverable"};

std::optional<double> bestValue(const Representation& representation, std::size_t unit) {
    std::optional<double> best;
    for (std::size_t s = 0; s < representation.species(); ++s) {
        const double value = representation.value(s, unit);
        if (representation.eligible(s) && method::isNumber(value) && !(best >= value)) best = value;
    }
    return best;
}

UnitState stateOf(const SelectionRun& run, const Representation& representation, std::size_t unit) {
    const auto [kind, number] = representation.unit(unit);
    UnitState state;
    state.CoveredBy = run.Outcome.Suite.CoveredBy[kind][number];
    state.Covering = representation.covering(unit, true).size();
    state.Best = bestValue(representation, unit);
    state.Fate = state.CoveredBy > 0              ? UnitFate::Covered
                 : representation.coverable(unit) ? UnitFate::Missed
                                                  : UnitFate::Uncoverable;
    if (state.Fate == UnitFate::Uncoverable) state.Excluded = representation.covering(unit, false);
    return state;
}

/// Why no suite can cover the unit, for who would change that; nothing where one can.
std::string reasonOf(const SelectionRun& run, const UnitState& state) {
    if (state.Fate != UnitFate::Uncoverable) return "";
    if (state.Excluded.empty()) return "level";
    return "excluded: " + fieldOf(speciesNames(run, state.Excluded));
}

template <class Number>
Cell cellOf(const std::optional<Number>& number) {
    return number ? Cell(*number) : Cell();
}

}  // namespace

std::vector<UnitState> unitStates(const SelectionRun& run, const Representation& representation) {
    std::vector<UnitState> states;
    for (std::size_t unit = 0; unit < representation.units(); ++unit)
        states.push_back(stateOf(run, representation, unit));
    return states;
}

ResultTable unitTable(const SelectionRun& run, const Representation& representation) {
    ResultTable table;
    table.Columns = {"kind", "number", "unit", "state", "species", "needed", "best", "reason", "covered_by"};
    const std::vector<UnitState> states = unitStates(run, representation);
    for (std::size_t u = 0; u < states.size(); ++u) {
        const UnitState& state = states[u];
        const UnitNumber& unit = representation.unit(u);
        const std::string reason = reasonOf(run, state);
        table.Rows.push_back({std::string(nameOf(unit.Kind)), numberCell(unit.Number + 1),
                              unitName(run, unit), FateNames[static_cast<std::size_t>(state.Fate)],
                              numberCell(state.Covering), method::asWritten(representation.needed(u)),
                              cellOf(state.Best), reason.empty() ? Cell() : Cell(reason),
                              state.CoveredBy > 0 ? Cell(std::int64_t{state.CoveredBy}) : Cell()});
    }
    return table;
}

}  // namespace insight
