// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>
#include <vector>

#include "batch/batch_run.h"

namespace {

/// The arguments without the program, last first, as the parser takes them. An option whose "=" has nothing behind it
/// has an empty value; the parser would take the next argument instead.
std::vector<std::string> argumentsOf(int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    bool options = true;
    for (const std::string& argument : std::vector<std::string>(argv + 1, argv + argc)) {
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

}  // namespace

ParsedOptions parseOptions(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    BatchOptions options;
    std::vector<std::string> answers;
    CLI::App app("Selects the suite of brenic species of a project, without a window.", "brenica-batch");
    app.set_version_flag("--version", "brenica-batch " BRENICA_VERSION);
    app.add_option("project", options.Project, "the project file")->type_name("PROJECT.brn")->required();
    app.add_option("--error-margin", options.ErrorMargin, "margin of error in percent, 0 to 100")
        ->type_name("P");
    app.add_option("--threat-representation", options.ThreatRepresentation,
                   "fraction of a threat's highest score that represents it, 0 to 1")
        ->type_name("R");
    app.add_option("--conservation-status", options.ConservationStatus,
                   "highest conservation status admitted, 0 to 1")
        ->type_name("R");
    app.add_option("--answer", answers, "answer for the next input box or question, in order; repeatable")
        ->type_name("TEXT")
        ->allow_extra_args(false)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    app.add_option("--results", options.Results, "write the results text file")->type_name("FILE");
    app.add_option("--tables", options.Tables, "write every table as a grid text file")->type_name("DIR");
    app.add_option("--messages", options.Messages, "write every box shown, in order, as JSON lines")
        ->type_name("FILE");
    app.footer(
        "Exit code: 0 done, 1 wrong usage, 2 the project cannot be read, 3 nothing to score, 4 unexpected error.");
    try {
        app.parse(argumentsOf(argc, argv));
    } catch (const CLI::ParseError& error) {
        const bool wrong = app.exit(error, out, err) != 0;
        return {std::nullopt, wrong ? ExitWrongUsage : ExitDone};
    }
    options.Answers.assign(answers.begin(), answers.end());
    return {options, ExitDone};
}
