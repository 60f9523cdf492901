// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "method/block.h"

/// Species whose aggregates lie close together are not told apart by a small difference: the planner decides. The
/// margin of error is a tolerance, not a statistic.
namespace method {

/// What the planner decides about.
struct MarginBand {
    const Block& Species;
    std::size_t Top;  ///< offset of the best species that is still in the race
    /// Rows below the top one that lie within the margin, species omitted in this pass included. In the pass where a
    /// single species is left it is the count of an earlier pass, and may reach past the block.
    std::size_t Count;
};

/// Decides which species joins the suite.
class Chooser {
public:
    virtual ~Chooser() = default;
    /// Offset of the species in the block; an omitted one may be returned; it is then dropped. What it throws
    /// ends the selection. Called only where Count is above 0.
    virtual std::size_t choose(const MarginBand& band) = 0;
};

/// The ways to decide that a planner is offered.
enum class Rule {
    Aggregate,       ///< a: the top species
    Heterogeneity,   ///< b: the last one that beats the first row of the block; else that row
    Threats,         ///< c: the same with the vulnerability score
    SocioEconomics,  ///< d: the last one, where the block's second row beats its first; else the first
    Number,          ///< e: the planner names one
};

/// Offset of a row, and whether the rule left it to the planner to name one.
struct Decision {
    std::size_t Row = 0;
    bool Tie = false;
};

/// Offsets of the species that a planner can choose from: the top one and, below it, those of the band that are still in
/// the race. Throws Failure (Choice) where the band reaches past the block, or for a score that is no number.
std::vector<std::size_t> listed(const MarginBand& band);

/// What a rule says. The first row of the block is the measure throughout, also where it was omitted, and the answer
/// where none beats it; rows that were omitted may win. One equal value makes a tie, also where another row beats the
/// first. Throws Failure (Choice) past the block.
Decision decide(const MarginBand& band, Rule rule);

/// Offset of the species with this number in the list that a planner is shown, from 1. Numbers run over all rows from
/// the top one on, omitted ones included; none where the band has no such row.
std::optional<std::size_t> rowOfNumber(const MarginBand& band, std::size_t number);

/// Asks a planner: first for a rule and then, where the rule is to name a species or ends in a tie, for its number.
class AskingChooser : public Chooser {
public:
    /// With a single species listed nobody is asked. No rule and no number each mean the first row of the block.
    std::size_t choose(const MarginBand& band) override;

protected:
    virtual std::optional<Rule> askRule(const MarginBand& band, std::span<const std::size_t> listed) = 0;
    virtual std::optional<std::size_t> askNumber(const MarginBand& band,
                                                 std::span<const std::size_t> listed) = 0;
};

/// A planner who always takes the species with the best aggregate.
class TakeTop : public Chooser {
public:
    std::size_t choose(const MarginBand& band) override { return listed(band).front(); }
};

/// One answer given beforehand: to the first question a rule, to the second a number, either of them none when the
/// answer is not understood.
struct Answer {
    std::optional<Rule> Way{};
    std::optional<std::size_t> Number{};
};

/// Answers given beforehand, in order, whatever the question; when they are used up the top species is taken, or 1.
class ScriptedAnswers : public AskingChooser {
public:
    explicit ScriptedAnswers(std::vector<Answer> answers) : answers_(std::move(answers)) {}

private:
    std::optional<Rule> askRule(const MarginBand& band, std::span<const std::size_t> listed) override;
    std::optional<std::size_t> askNumber(const MarginBand& band,
                                         std::span<const std::size_t> listed) override;
    Answer next();

    std::vector<Answer> answers_;
    std::size_t used_ = 0;
};

}  // namespace method
