// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/options.h"

#include "batch/batch_run.h"
#include "batch/command_line.h"

ParsedOptions parseOptions(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    BatchOptions options;
    CLI::App app("Selects the suite of brenic species of a project, without a window.", ProgramName);
    app.set_version_flag("--version", "brenica-batch " BRENICA_VERSION);
    addRunOptions(app, options);
    app.add_option("--results", options.Results, "write the results text file")->type_name("FILE");
    app.add_option("--tables", options.Tables, "write every table as a grid text file")->type_name("DIR");
    app.add_option("--messages", options.Messages, "write every box shown, in order, as JSON lines")
        ->type_name("FILE");
    app.footer(
        "brenica-batch VERB explains a suite: report (all of it, on one page), units, minimum, suites, species, "
        "sweep, merge, verify. brenica-batch VERB --help tells more.\n\n"
        "Exit code: 0 done, 1 wrong usage, 2 the project cannot be read, 3 nothing to score, 4 unexpected error.");
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    if (const auto code = parseArguments(app, arguments.subspan(1), out, err)) return {std::nullopt, *code};
    return {options, ExitDone};
}
