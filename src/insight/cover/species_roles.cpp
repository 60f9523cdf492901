// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/cover/species_roles.h"

#include <algorithm>

#include "insight/cover/local_search.h"

namespace insight {

namespace {

/// Decides class and cost of one species after the other; suites that come up serve all of them.
class RoleSearch {
public:
    RoleSearch(const CoverIndex& index, const MinimumAnswer& minimum, SearchBudget& budget)
        : index_(index),
          minimum_(minimum),
          budget_(budget),
          search_(index, budget),
          inAll_(index.allSpecies()),
          inSome_(inAll_.size()) {
        keep(minimum.Known.Suite);
    }

    void keep(const Rows& suite) {
        BitSet members(inAll_.size());
        for (const std::uint32_t row : suite) insert(members, row);
        add(inSome_, members);
        for (std::size_t w = 0; w < members.size(); ++w) inAll_[w] &= members[w];
    }
    /// From now on what is not in a suite that was kept is in none.
    void haveAll() { haveAll_ = true; }

    void decide(std::uint32_t row, SpeciesRole& role) {
        if (!isEmpty(role.OnlyFor)) {
            role.Class = SpeciesClass::All;
            role.Cost = {1, std::nullopt};
        } else if (!minimum_.Known.isProven()) {
            role.Cost = {0, barredUpper(row) - minimum_.Known.Lower};
        } else {
            role.Class = classOf(row);
            role.Cost = costOf(row, role.Class);
        }
    }

private:
    std::size_t size() const { return minimum_.Known.upper(); }

    /// Whether there is a suite of minimal size with, or without, the species; nothing where that is not proven.
    std::optional<bool> exists(std::uint32_t row, bool with) {
        CoverQuestion question = {.Part = {index_.allSpecies(), index_.allUnits()},
                                  .MostPicks = size(),
                                  .Drop = Domination::SameSize};
        drop(question.Part.Species, row);
        if (with) {
            question.Picked = {row};
            remove(question.Part.Units, index_.unitsOf(row));
        }
        question.Part = reduced(index_, question.Part, Domination::SameSize);
        const SearchEnd end = search_.run(question, [this](const Rows& suite) {
            keep(suite);
            return false;
        });
        if (end == SearchEnd::Cut) return std::nullopt;
        return end == SearchEnd::Stopped;
    }

    std::optional<SpeciesClass> classOf(std::uint32_t row) {
        if (has(inAll_, row)) {
            const std::optional<bool> without = haveAll_ ? false : exists(row, false);
            if (!without) return std::nullopt;
            return *without ? SpeciesClass::Some : SpeciesClass::All;
        }
        const std::optional<bool> with = has(inSome_, row) ? true : haveAll_ ? false : exists(row, true);
        if (!with) return std::nullopt;
        return *with ? SpeciesClass::Some : SpeciesClass::None;
    }

    ReplacementCost costOf(std::uint32_t row, std::optional<SpeciesClass> known) {
        if (!has(inAll_, row)) return {0, 0};  // a suite that was kept does without it
        const CoverPart part = without(row);
        SmallestSuite barred = {size() + (known ? 1 : 0), smallSuite(index_, part, size() + 1, budget_)};
        narrow(search_, part, barred, budget_);
        return {barred.Lower - size(), barred.upper() - size()};
    }

    /// The size of a suite that does without the species.
    std::size_t barredUpper(std::uint32_t row) {
        if (!has(inAll_, row)) return size();
        return smallSuite(index_, without(row), minimum_.Known.Lower, budget_).size();
    }

    CoverPart without(std::uint32_t row) const {
        CoverPart part = {index_.allSpecies(), index_.allUnits()};
        drop(part.Species, row);
        return reduced(index_, part, Domination::SameSize);
    }

    const CoverIndex& index_;
    const MinimumAnswer& minimum_;
    SearchBudget& budget_;
    CoverSearch search_;
    BitSet inAll_;   ///< species in all suites of minimal size that are known
    BitSet inSome_;  ///< in some of them
    bool haveAll_ = false;
};

BitSet onlyFor(const CoverIndex& index, std::size_t row) {
    BitSet units(method::wordsFor(index.units()));
    for (const std::uint32_t u : index.unitList(row)) {
        if (index.speciesList(u).size() == 1) insert(units, u);
    }
    return units;
}

double rarityOf(const CoverIndex& index, std::size_t row) {
    double rarity = 0;
    for (const std::uint32_t u : index.unitList(row))
        rarity += 1.0 / static_cast<double>(index.speciesList(u).size());
    return rarity;
}

void countShares(const SuiteList& list, std::vector<SpeciesRole>& roles) {
    std::vector<std::size_t> times(roles.size());
    for (const Rows& suite : list.Suites) {
        for (const std::uint32_t row : suite) ++times[row];
    }
    for (std::size_t row = 0; row < roles.size(); ++row)
        roles[row].Share = static_cast<double>(times[row]) / static_cast<double>(list.Count);
}

}  // namespace

std::vector<SpeciesRole> findRoles(const CoverIndex& index, const MinimumAnswer& minimum,
                                   SearchBudget& budget) {
    std::vector<SpeciesRole> roles(index.species());
    const SuiteList list = findSuites(index, minimum, 0, MostCounted, budget);
    if (list.isComplete()) countShares(list, roles);
    RoleSearch search(index, minimum, budget);
    for (const Rows& suite : list.Suites) search.keep(suite);
    if (list.isComplete()) search.haveAll();
    for (std::size_t row = 0; row < roles.size(); ++row) {
        roles[row].OnlyFor = onlyFor(index, row);
        roles[row].Rarity = rarityOf(index, row);
        search.decide(static_cast<std::uint32_t>(row), roles[row]);
    }
    return roles;
}

Rows substitutesOf(const CoverIndex& index, const Rows& suite, std::uint32_t row) {
    const BitSet lost = lostWithout(index, suite, row);
    Rows substitutes;
    if (isEmpty(lost)) return substitutes;
    for (std::uint32_t s = 0; s < index.species(); ++s) {
        const bool isOutside = std::find(suite.begin(), suite.end(), s) == suite.end();
        if (isOutside && isSubset(lost, index.unitsOf(s))) substitutes.push_back(s);
    }
    return substitutes;
}

}  // namespace insight
