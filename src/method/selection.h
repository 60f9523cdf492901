// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "method/assessment.h"
#include "method/block.h"
#include "method/block_sorter.h"
#include "method/coverage.h"
#include "method/landscape.h"
#include "method/levels.h"
#include "method/margin.h"
#include "method/remainder.h"

/// How a suite comes about: the best species joins, what it represents is covered, the others are scored anew over what
/// is left, and so on until all is covered or no species is left in the race.
namespace method {

/// A member of the suite and what it added.
struct Pick {
    std::size_t Species;
    Additions Adds;
};

/// What a selection comes to, or how far it came where it ended in a failure.
struct Suite {
    std::vector<Pick> Picks;
    Additions Covered;  ///< how many units of each kind are covered
    /// For each unit the number, from 1, of the pick that covered it first; 0 where none did.
    PerKind<std::vector<int>> CoveredBy;
    bool Complete = false;  ///< every unit is covered
};

/// What somebody who watches a selection is told, in this order, pass by pass. An offset is the row's place in the block
/// as it stands: in candidate order up to sorted(), by aggregate after it. What a listener throws ends the selection.
class Listener {
public:
    virtual ~Listener() = default;
    virtual void begun() {}
    /// A pass begins with these species; in the first one those that are missing are excluded.
    virtual void blockAppended(const Block&, bool /*first*/) {}
    /// Row by row: what each species would add, by kind, and in later passes the two scores over what is left.
    virtual void adds(std::size_t /*offset*/, Unit, int /*units*/) {}
    virtual void rescored(std::size_t /*offset*/, Criterion, double /*score*/) {}
    /// Later passes, row by row: the two scores as scaled, and the sum.
    virtual void normalised(std::size_t /*offset*/, Criterion, double /*score*/) {}
    virtual void aggregated(std::size_t /*offset*/, double /*aggregate*/) {}
    virtual void sorted(const Block&) {}
    /// The place in the block, from 1; not the rank in Scores.
    virtual void ranked(std::size_t /*offset*/, int /*rank*/) {}
    /// In a later pass a row that adds nothing leaves the race as it is ranked.
    virtual void omitted(std::size_t /*offset*/) {}
    /// The best species of the pass, and others within the margin of error. May tell the same row twice.
    virtual void withinMargin(std::size_t /*offset*/) {}
    /// The species that was picked covers a unit that nothing covered before.
    virtual void firstCovered(Unit, std::size_t /*unit*/, int /*pick*/) {}
    /// It joins the suite, or, in the first pass alone, is omitted since it adds nothing. A later pick that is dropped
    /// is not told.
    virtual void joined(std::size_t /*offset*/, int /*pick*/, const Additions&) {}
    virtual void pickOmitted(std::size_t /*offset*/) {}
    virtual void ended(const Suite&) {}
};

/// One landscape, ready for any number of selections.
///
///     selection.load(landscape, assessment);
///     selection.start(levels);
///     selection.run(chooser);
///     use(selection.suite());
class Selection {
public:
    /// The landscape and M(s,t) to 2 decimals. The landscape must outlive the selection; all else is copied.
    void load(const Landscape& landscape, Table threatScores);
    /// What the first pass begins with: normalised scores and their sum, to 3 decimals. REQUIRES: load(), and one of each
    /// for every species.
    void loadScores(std::span<const CriterionScores> normalised, std::span<const double> aggregates);
    /// Both, as they have been computed.
    void load(const Landscape& landscape, const Assessment& assessment) {
        load(landscape, assessment.Threats.Scores);
        loadScores(assessment.Species.Normalised, assessment.Species.Aggregate);
    }

    /// Who takes part, and from which level on a unit is covered. Throws Failure (Start): statuses first, then the
    /// thresholds of habitats and of zones. REQUIRES: load()
    void start(const Levels& levels);

    /// The passes. `chooser` is asked where species lie within the margin of error; a listener costs what it does, none
    /// costs nothing. Throws Failure, or what the two throw; suite() then tells how far it came. In particular a pass
    /// in which all are omitted fails (Selection, NoRow), since there is nobody left to pick; so does the first where
    /// all are excluded. REQUIRES: loadScores(), start()
    void run(Chooser& chooser, Listener* listener = nullptr);

    const Suite& suite() const { return suite_; }

private:
    /// H'(s) and V'(s).
    struct ScoresLeft {
        double Heterogeneity = 0;
        double Vulnerability = 0;
        bool operator==(const ScoresLeft&) const = default;
    };

    struct CoveredUnit {
        Unit Kind;
        std::size_t Number;
    };

    /// What passes hand on to the next.
    struct Progress {
        ScoresLeft Highest;           ///< of the later passes so far: these measure those after them
        std::size_t Removals = 0;     ///< not species: picking an omitted row adds a second
        std::size_t MarginCount = 0;  ///< of the last pass that looked for species within the margin
        int PickNumber = 0;
    };

    void prepareRun();
    void firstPass();
    void laterPass();
    void appendBlock(bool first);
    void countAll(std::size_t offset);
    void requireLevels(Unit kind, std::size_t species) const;
    void takeOffCovered();
    void tellAdditions(std::size_t offset) const;
    void rescore(std::size_t offset);
    void takeScore(std::size_t offset, Criterion criterion, double raw, double& score, double& highest);
    void normalise(std::size_t offset);
    double finite(double score, std::size_t offset, std::size_t column) const;
    void sortBlock();
    void omitRowsThatAddNothing();
    std::size_t findPick();
    std::size_t firstInRace() const;
    std::size_t bestInRace();
    std::size_t countMargin(std::size_t top);
    void requireAggregate(std::size_t offset) const;
    void takePick(std::size_t species);
    void cover(Unit kind, std::size_t unit);
    void addToSuite(std::size_t offset);
    void remove(std::size_t species);
    bool allCovered() const;
    Block block() const { return {order_, rows_, removed_}; }
    BlockRow& row(std::size_t offset) { return rows_[order_[offset]]; }
    const BlockRow& row(std::size_t offset) const { return rows_[order_[offset]]; }

    const Landscape* landscape_ = nullptr;
    Table threatScores_;
    std::vector<double> highestThreats_;
    std::vector<BlockRow> firstRows_;  ///< as the first pass begins, by species
    Coverage coverage_;
    bool coverageLoaded_ = false;
    Remainder remainder_;

    Levels levels_;
    std::vector<bool> eligible_;

    // One run.
    Chooser* chooser_ = nullptr;
    Listener* listener_ = nullptr;
    Suite suite_;
    std::vector<BlockRow> rows_;        ///< this pass's numbers, by species
    std::vector<std::uint32_t> order_;  ///< the species of this pass, in the order of the block
    std::vector<SortKey> keys_;
    BlockSorter sorter_;
    std::vector<std::uint8_t> removed_;  ///< by species: out of the race
    std::vector<Word> covered_;
    std::vector<CoveredUnit> newlyCovered_;  ///< by the last pick
    std::vector<ScoresLeft> left_;           ///< by species, before scaling
    std::vector<std::uint8_t> rescored_;     ///< by species: left_ has changed in this pass
    Progress progress_;
};

}  // namespace method
