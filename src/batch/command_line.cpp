// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/command_line.h"

#include <algorithm>
#include <charconv>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "batch/batch_run.h"

namespace {

/// The arguments, last first, as the parser takes them. Behind an "=" with nothing it would take the next one.
std::vector<std::string> lastFirst(std::span<const char* const> given) {
    std::vector<std::string> arguments;
    bool options = true;
    for (const std::string& argument : std::vector<std::string>(given.begin(), given.end())) {
        options = options && argument != "--";
        if (options && argument.starts_with("--") && argument.find('=') == argument.size() - 1) {
            arguments.insert(arguments.end(), {argument.substr(0, argument.size() - 1), ""});
        } else {
            arguments.push_back(argument);
        }
    }
    std::reverse(arguments.begin(), arguments.end());
    return arguments;
}

template <class Number>
CLI::Validator numberWithin(Number least, Number most, const std::string& kind) {
    std::ostringstream bounds;
    bounds << kind << " from " << least << " to " << most;
    return CLI::Validator(
        [least, most, wanted = bounds.str()](const std::string& text) -> std::string {
            Number number{};
            const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
            const bool whole = error == std::errc() && end == text.data() + text.size();
            if (whole && number >= least && number <= most) return "";
            return "'" + text + "' is no " + wanted;
        },
        "");
}

}  // namespace

CLI::Validator wholeNumber(std::uint64_t least, std::uint64_t most) {
    return numberWithin(least, most, "whole number");
}

CLI::Validator realNumber(double least, double most) { return numberWithin(least, most, "number"); }

void addRunOptions(CLI::App& app, RunOptions& options) {
    app.add_option("project", options.Project, "the project file")->type_name("PROJECT.brn")->required();
    app.add_option("--error-margin", options.ErrorMargin, "margin of error in percent, 0 to 100")
        ->type_name("P");
    app.add_option("--threat-representation", options.ThreatRepresentation,
                   "fraction of a threat's highest score that represents it, 0 to 1")
        ->type_name("R");
    app.add_option("--conservation-status", options.ConservationStatus,
                   "highest conservation status admitted, 0 to 1")
        ->type_name("R");
    app.add_option("--answer", options.Answers,
                   "answer for the next input box or question, in order; repeatable")
        ->type_name("TEXT")
        ->allow_extra_args(false)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

std::optional<int> parseArguments(CLI::App& app, std::span<const char* const> arguments, std::ostream& out,
                                  std::ostream& err) {
    try {
        app.parse(lastFirst(arguments));
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        return app.exit(error, out, err) != 0 ? ExitWrongUsage : ExitDone;
    }
}
