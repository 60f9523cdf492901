// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/verb_run.h"

#include <ostream>

#include "batch/command_line.h"
#include "batch/json_table.h"
#include "batch/project_run.h"
#include "batch/usage_fault.h"

namespace {

void sayLine(std::ostream& err, const std::string& line) { err << ProgramName << ": " << line << '\n'; }

ExitCode explain(const Verb& verb, const VerbOptions& options, std::ostream& out, std::ostream& err) {
    ProjectRun project(options, err);
    const ExitCode code = project.select();
    const std::optional<SelectionRun> run = project.form().TakeSelectionRun();
    if (!run) {
        if (code == ExitUnexpectedError) err << withBreaks(project.error(), "\n") << '\n';
        return code == ExitDone ? ExitNothingToScore : code;
    }
    if (run->Outcome.Error) {
        sayLine(err, "the run ended in an error after " + std::to_string(run->Outcome.Suite.Picks.size()) +
                         " species: " + withBreaks(*run->Outcome.Error, " "));
    }
    const Answer answer = verb.Ask(*run, options);
    for (const std::string& note : answer.Notes) sayLine(err, note);
    out << (options.Json ? jsonText({options.Project, run->Levels, code}, answer)
                         : tabSeparated(answer.Table));
    return answer.Code;
}

}  // namespace

int runVerb(const Verb& verb, std::span<const char* const> arguments, std::ostream& out, std::ostream& err) {
    VerbOptions options;
    CLI::App app(verb.Help, std::string(ProgramName) + " " + verb.Name);
    addRunOptions(app, options);
    app.add_flag("--json", options.Json, "print one JSON object in the place of the table");
    verb.AddOptions(app, options);
    if (const auto code = parseArguments(app, arguments, out, err)) return *code;
    try {
        return explain(verb, options, out, err);
    } catch (const UsageFault& fault) {
        sayLine(err, fault.Text);
        return ExitWrongUsage;
    }
}
