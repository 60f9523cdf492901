// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/margin.h"

namespace method {

namespace {

/// A score of a row. The column counts as Criteria for the aggregate.
double numberOf(double score, std::size_t offset, std::size_t column) {
    if (!isNumber(score)) throw Failure(Step::Choice, Cause::NoNumber, Quantity::Score, offset, column);
    return score;
}

double scoreOf(const MarginBand& band, std::size_t offset, Criterion criterion) {
    return numberOf(band.Species.at(offset).Scores[criterion], offset, static_cast<std::size_t>(criterion));
}

/// The scores of a row that a planner is shown must be numbers.
void requireScores(const MarginBand& band, std::size_t offset) {
    numberOf(band.Species.at(offset).Aggregate, offset, Criteria);
    for (const Criterion criterion :
         {Criterion::Heterogeneity, Criterion::Vulnerability, Criterion::SocioEconomics})
        scoreOf(band, offset, criterion);
}

/// `valueRow` tells from which row the value for an offset is taken.
template <class ValueRow>
Decision compare(const MarginBand& band, Criterion criterion, ValueRow valueRow) {
    Decision decision;
    const double reference = scoreOf(band, 0, criterion);
    for (std::size_t offset = band.Top + 1; offset <= band.Top + band.Count; ++offset) {
        const double value = scoreOf(band, valueRow(offset), criterion);
        if (value > reference) decision.Row = offset;
        if (value == reference) decision.Tie = true;
    }
    return decision;
}

}  // namespace

std::vector<std::size_t> listed(const MarginBand& band) {
    std::vector<std::size_t> offsets;
    const auto list = [&](std::size_t offset) {
        requireScores(band, offset);
        offsets.push_back(offset);
    };
    list(band.Top);
    for (std::size_t offset = band.Top + 1; offset <= band.Top + band.Count; ++offset) {
        band.Species.at(offset);
        if (!band.Species.removed(offset)) list(offset);
    }
    return offsets;
}

Decision decide(const MarginBand& band, Rule rule) {
    const auto ownRow = [](std::size_t offset) { return offset; };
    const auto secondRow = [](std::size_t) { return std::size_t{1}; };
    switch (rule) {
        case Rule::Aggregate: return {band.Top, false};
        case Rule::Heterogeneity: return compare(band, Criterion::Heterogeneity, ownRow);
        case Rule::Threats: return compare(band, Criterion::Vulnerability, ownRow);
        case Rule::SocioEconomics: return compare(band, Criterion::SocioEconomics, secondRow);
        case Rule::Number: return {0, true};
    }
    return {};
}

std::optional<std::size_t> rowOfNumber(const MarginBand& band, std::size_t number) {
    if (number < 1 || number > band.Count + 1) return std::nullopt;
    return band.Top + number - 1;
}

std::size_t AskingChooser::choose(const MarginBand& band) {
    const std::vector<std::size_t> offered = listed(band);
    if (offered.size() < 2) return band.Top;
    const std::optional<Rule> rule = askRule(band, offered);
    const Decision decision = rule ? decide(band, *rule) : Decision{};
    if (!decision.Tie) return decision.Row;
    const std::optional<std::size_t> number = askNumber(band, offered);
    return (number ? rowOfNumber(band, *number) : std::nullopt).value_or(0);
}

Answer ScriptedAnswers::next() {
    return used_ < answers_.size() ? answers_[used_++] : Answer{Rule::Aggregate, 1};
}

std::optional<Rule> ScriptedAnswers::askRule(const MarginBand&, std::span<const std::size_t>) {
    return next().Way;
}

std::optional<std::size_t> ScriptedAnswers::askNumber(const MarginBand&, std::span<const std::size_t>) {
    return next().Number;
}

}  // namespace method
