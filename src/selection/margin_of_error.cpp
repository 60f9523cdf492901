// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <optional>
#include <span>

#include "entry/modErrorHandling.h"
#include "project/columns.h"
#include "scoring/landscape_reader.h"
#include "selection/margin_answers.h"
#include "selection/selection.h"

/// Two species whose aggregates lie close together are not told apart by a small difference: the user decides.

namespace modBrenicaUtilities {

namespace {

using method::Criterion;
using method::MarginBand;
using method::Unit;

/// One text for each column that the first dialogue shows.
struct BandTexts {
    std::string Names;
    std::string Aggregate;
    method::PerKind<std::string> Adds;
    std::string Heterogeneity;
    std::string Threats;
    std::string SocioEcon;

    void append(std::string_view name, const method::BlockRow& row, const char* before) {
        const auto score = [](double value) {
            return ui::toText(method::roundTo(value, method::ScorePlaces));
        };
        const auto add = [&](std::string& text, std::string_view value) {
            text.append(before).append(value);
        };
        add(Names, name);
        add(Aggregate, score(row.Aggregate));
        add(Heterogeneity, score(row.Scores[Criterion::Heterogeneity]));
        add(Threats, score(row.Scores[Criterion::Vulnerability]));
        add(SocioEcon, score(row.Scores[Criterion::SocioEconomics]));
        for (const Unit kind : method::UnitKinds) add(Adds[kind], ui::toText(row.Adds[kind]));
    }
};

std::string firstPrompt(const BandTexts& texts) {
    const auto line = [](const std::string& text) { return text + "\r"; };
    const auto shown = [](const std::string& text) { return "{" + text + "}"; };
    const std::string indent(6, ' ');
    return line("To select between ") + line(shown(texts.Names)) +
           line("use either (scores for each species shown in brackets):") +
           line("(a)   the aggregate score " + shown(texts.Aggregate)) +
           line("(b)   the heterogeneity score " + shown(texts.Heterogeneity)) +
           line("(c)   the threats score " + shown(texts.Threats)) +
           line("(d)   the socio-economic value or " + shown(texts.SocioEcon)) +
           line("(e)   select the species yourself") + line("") + line("NOTE: Each species covers") +
           line(indent + shown(texts.Adds[Unit::Habitat]) + " additional habitats") +
           line(indent + shown(texts.Adds[Unit::Zone]) + " additional management zones") +
           line(indent + shown(texts.Adds[Unit::Threat]) + " additional threats");
}

/// The user, asked by dialogues.
class MarginDialogues : public method::AskingChooser {
public:
    MarginDialogues(ui::Platform& platform, const ui::Grid& results, int blockStartRow,
                    std::vector<std::string>& answers)
        : platform_(platform), results_(results), blockStartRow_(blockStartRow), answers_(answers) {}

private:
    std::optional<method::Rule> askRule(const MarginBand& band,
                                        std::span<const std::size_t> listed) override {
        BandTexts texts;
        for (const std::size_t offset : listed)
            texts.append(nameAt(offset), band.Species[offset], offset == listed.front() ? "" : "; ");
        const auto rule = ruleOf(
            ask(firstPrompt(texts), "Species with aggregate score within the set margin of error", "a"));
        if (!rule)
            showInvalidAnswer(
                "The option entered was invalid. The first species will be added to the suite.");
        return rule;
    }

    /// The numbers shown skip removed species, the rows that an answer names do not.
    std::optional<std::size_t> askNumber(const MarginBand& band,
                                         std::span<const std::size_t> listed) override {
        std::string prompt = "Enter the number of the candidate species\r";
        int shown = 0;
        for (const std::size_t offset : listed)
            prompt += ui::toText(++shown) + ": " + std::string(nameAt(offset)) + "\r";
        const auto number =
            speciesNumberOf(ask(prompt, "Select the species within the margin or error", "1"));
        if (number && method::rowOfNumber(band, *number)) return number;
        showInvalidAnswer(
            "The species number entered was invalid. The first species will be added to the suite.");
        return std::nullopt;
    }

    const std::string& ask(const std::string& prompt, const char* title, const char* proposed) {
        return answers_.emplace_back(platform_.askText(prompt, title, proposed));
    }
    std::string_view nameAt(std::size_t offset) const {
        return results_.TextMatrix(blockStartRow_ + static_cast<int>(offset), result::Name);
    }
    void showInvalidAnswer(const char* message) {
        platform_.showMessage(message, "Invalid value", ui::MessageIcon::Exclamation);
    }

    ui::Platform& platform_;
    const ui::Grid& results_;
    int blockStartRow_;
    std::vector<std::string>& answers_;
};

}  // namespace

void Check4ErrorMargin(const method::Failure& failure, const CellPlace& cell) try {
    raiseFailure(failure, cell);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.Check4ErrorMargin", "");
}

std::size_t SelectErrorMarginSpecies(ui::Platform& platform, const ui::Grid& results, int blockStartRow,
                                     const MarginBand& band, std::vector<std::string>& answers) try {
    std::size_t pick = 0;
    MarginDialogues dialogues(platform, results, blockStartRow, answers);
    const auto failure = failureOf([&] { pick = dialogues.choose(band); });
    if (failure) raiseFailure(*failure, resultCell(results, blockStartRow, *failure));
    return pick;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.SelectErrorMarginSpecies", "");
}

}  // namespace modBrenicaUtilities
