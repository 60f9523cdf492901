// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/species_table.h"

#include <algorithm>
#include <array>

#include "insight/names.h"

namespace insight {

namespace {

constexpr std::array ClassNames = {"all", "some", "none"};
constexpr int Places = 4;  // of shares and rarities

Cell classCell(const std::optional<SpeciesClass>& known) {
    return known ? Cell(std::string(ClassNames[static_cast<std::size_t>(*known)])) : Cell();
}

/// "inf", a number, or "A-B" where no more is proven.
Cell costCell(const ReplacementCost& cost) {
    if (!cost.Upper) return std::string("inf");
    if (*cost.Upper == cost.Lower) return numberCell(cost.Lower);
    return std::to_string(cost.Lower) + "-" + std::to_string(*cost.Upper);
}

enum Column : std::size_t {
    Number,
    Name,
    Eligible,
    Rank,
    Pick,
    Class,
    Share,
    Lost,
    LostUnits,
    Cost,
    OnlyFor,
    Substitutes,
    Rarity,
    Columns
};

/// An excluded species has no other cells.
std::vector<Cell> excludedRow(const SelectionRun& run, std::size_t species) {
    std::vector<Cell> row(Columns);
    row[Number] = numberCell(species + 1);
    row[Name] = run.Species[species];
    row[Eligible] = false;
    row[Rank] = std::int64_t{run.Ranks[species]};
    row[Class] = std::string("excluded");
    return row;
}

void addRole(const SelectionRun& run, const CoverIndex& index, const SpeciesRole& role,
             std::vector<Cell>& row) {
    row[Eligible] = true;
    row[Class] = classCell(role.Class);
    if (role.Share) row[Share] = Fixed{*role.Share, Places};
    row[Cost] = costCell(role.Cost);
    row[OnlyFor] = unitNames(run, index, role.OnlyFor);
    row[Rarity] = Fixed{role.Rarity, Places};
}

void addPick(const SelectionRun& run, const CoverIndex& index, const Rows& picks, std::size_t pick,
             std::vector<Cell>& row) {
    const BitSet lost = lostWithout(index, picks, picks[pick]);
    row[Pick] = numberCell(pick + 1);
    row[Lost] = numberCell(count(lost));
    row[LostUnits] = unitNames(run, index, lost);
    row[Substitutes] = speciesNames(run, index, substitutesOf(index, picks, picks[pick]));
}

}  // namespace

ResultTable speciesTable(const SelectionRun& run, const CoverIndex& index, const RunSuite& suite,
                         const std::vector<SpeciesRole>& roles) {
    ResultTable table;
    table.Columns = {"number", "species",    "eligible", "rank",     "pick",        "class", "share",
                     "lost",   "lost_units", "cost",     "only_for", "substitutes", "rarity"};
    for (std::size_t s = 0; s < run.Species.size(); ++s) table.Rows.push_back(excludedRow(run, s));
    const auto rowAt = [&](std::size_t row) -> std::vector<Cell>& {
        return table.Rows[index.problem().Species[row]];
    };
    for (std::size_t row = 0; row < roles.size(); ++row) addRole(run, index, roles[row], rowAt(row));
    for (std::size_t i = 0; i < suite.Picks.size(); ++i)
        addPick(run, index, suite.Picks, i, rowAt(suite.Picks[i]));
    return table;
}

}  // namespace insight
