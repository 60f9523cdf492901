// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/margin_answers.h"

#include <array>
#include <charconv>

#include "ui/text.h"

namespace {

struct RuleAnswer {
    const char* Text;
    method::Rule Way;
};

constexpr std::array RuleAnswers = {
    RuleAnswer{"a", method::Rule::Aggregate}, RuleAnswer{"b", method::Rule::Heterogeneity},
    RuleAnswer{"c", method::Rule::Threats}, RuleAnswer{"d", method::Rule::SocioEconomics},
    RuleAnswer{"e", method::Rule::Number}};

}  // namespace

std::optional<method::Rule> ruleOf(std::string_view answer) {
    const std::string text = ui::foldCase(ui::trim(answer));
    for (const RuleAnswer& rule : RuleAnswers) {
        if (text == rule.Text) return rule.Way;
    }
    return std::nullopt;
}

std::optional<std::size_t> speciesNumberOf(std::string_view answer) {
    const std::string_view text = ui::trim(answer);
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || text != std::to_string(number) || number < 1) return std::nullopt;
    return number;
}

std::vector<method::Answer> marginAnswers(const std::vector<std::string>& texts) {
    std::vector<method::Answer> answers;
    for (const std::string& text : texts) answers.push_back({ruleOf(text), speciesNumberOf(text)});
    return answers;
}
