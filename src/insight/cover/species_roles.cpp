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
          inSome_(inAll_.size()),
          surelyCovered_(method::wordsFor(index.units())) {
        for (std::size_t u = 0; u < index.units(); ++u) {
            if (index.speciesList(u).size() == 1) add(surelyCovered_, index.unitsOf(index.speciesList(u)[0]));
        }
        keep(minimum.Known.Suite);
        keepWithSubstitutes(minimum.Known.Suite);
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
        } else if (isSubset(index_.unitsOf(row), surelyCovered_)) {
            role.Class = SpeciesClass::None;
        } else if (!minimum_.Known.isProven()) {
            role.Cost.Upper = isReplaceable(row) ? 0 : barredUpper(row) - minimum_.Known.Lower;
        } else if (has(inAll_, row)) {
            decideByBarring(row, role);
        } else {
            role.Class = classByForcing(row);
        }
    }

private:
    std::size_t size() const { return minimum_.Known.upper(); }

    void keepWithSubstitutes(const Rows& suite) {
        for (std::size_t i = 0; i < suite.size(); ++i) {
            Rows other = suite;
            for (const std::uint32_t substitute : substitutesOf(index_, suite, suite[i])) {
                other[i] = substitute;
                keep(other);
            }
        }
    }

    /// Whether another one covers all that it covers, so that no suite needs it.
    bool isReplaceable(std::uint32_t row) const {
        for (std::size_t s = 0; s < index_.species(); ++s) {
            if (s != row && isSubset(index_.unitsOf(row), index_.unitsOf(s))) return true;
        }
        return false;
    }

    /// Of a species that is in every suite that is known.
    void decideByBarring(std::uint32_t row, SpeciesRole& role) {
        const CoverPart part = without(row);
        const std::size_t lower = size() + (haveAll_ ? 1 : 0);
        SmallestSuite barred = {lower, smallSuite(index_, part, lower, budget_)};
        narrow(search_, part, barred, budget_);
        role.Cost = {barred.Lower - size(), barred.upper() - size()};
        if (barred.Lower > size()) {
            role.Class = SpeciesClass::All;
        } else if (barred.isProven()) {
            role.Class = SpeciesClass::Some;
            keep(barred.Suite);
        }
    }

    /// Of a species that some suite does without; none where it is not proven.
    std::optional<SpeciesClass> classByForcing(std::uint32_t row) {
        if (has(inSome_, row)) return SpeciesClass::Some;
        if (haveAll_) return SpeciesClass::None;
        CoverQuestion question = {.Part = {index_.allSpecies(), index_.allUnits()},
                                  .Picked = {row},
                                  .MostPicks = size(),
                                  .Drop = Domination::SameSize};
        drop(question.Part.Species, row);
        remove(question.Part.Units, index_.unitsOf(row));
        question.Part = reduced(index_, question.Part, Domination::SameSize);
        const SearchEnd end = search_.run(question, [this](const Rows& suite) {
            keep(suite);
            return false;
        });
        if (end == SearchEnd::Cut) return std::nullopt;
        return end == SearchEnd::Stopped ? SpeciesClass::Some : SpeciesClass::None;
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
    SharedSearch search_;
    BitSet inAll_;          ///< species in all suites of minimal size that are known
    BitSet inSome_;         ///< in some of them
    BitSet surelyCovered_;  ///< units of the species that every suite needs
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
