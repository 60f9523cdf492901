// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/project_question.h"

#include <ostream>
#include <sstream>

#include "batch/command_line.h"
#include "batch/json_table.h"
#include "batch/project_run.h"
#include "insight/definitions.h"

namespace {

void sayEndOfRun(std::ostream& err, const SelectionOutcome& outcome) {
    if (!outcome.Error) return;
    sayLine(err, "the run ended in an error after " + std::to_string(outcome.Suite.Picks.size()) +
                     " species: " + withBreaks(*outcome.Error, " "));
}

}  // namespace

VerbCommandLine::VerbCommandLine(const Verb& verb)
    : CLI::App(verb.Help, std::string(ProgramName) + " " + verb.Name) {
    add_flag("--json", Json, "print one JSON object in the place of the table");
    std::string words = "Definitions:\n";
    for (const insight::Definition& definition : insight::definitions())
        words += std::string("  ") + definition.Term + ": " + definition.Meaning + "\n";
    footer(
        words +
        "\nExit code: 0 done, 1 wrong usage, 2 a file cannot be read, 3 nothing to score, 4 an error before the "
        "selection, 5 a check failed.");
}

void sayLine(std::ostream& err, const std::string& line) { err << ProgramName << ": " << line << '\n'; }

int explainProject(const VerbCall& call, const ProjectQuestion& question) {
    RunOptions options;
    VerbCommandLine commandLine(call.Verb);
    if (question.AddOptions) question.AddOptions(commandLine);
    addRunOptions(commandLine, options);
    if (const auto code = parseArguments(commandLine, call.Arguments, call.Out, call.Err)) return *code;
    std::ostringstream unheard;
    ProjectRun project(options, question.AboutRun ? call.Err : unheard);
    if (question.Prepare) question.Prepare(options);
    const ExitCode code = project.select();
    const std::optional<SelectionRun> run = project.form().TakeSelectionRun();
    if (!run) {
        call.Err << unheard.str();
        if (code == ExitUnexpectedError) call.Err << withBreaks(project.error(), "\n") << '\n';
        return code == ExitDone ? ExitNothingToScore : code;
    }
    if (question.AboutRun) sayEndOfRun(call.Err, run->Outcome);
    const Answer answer = question.Ask({*run, options, project.answersLeft(), project.hasDefaults()});
    for (const std::string& note : answer.Notes) sayLine(call.Err, note);
    call.Out << (commandLine.Json
                     ? jsonText({options.Project, run->Levels, question.AboutRun ? code : ExitDone}, answer)
                     : insight::tabSeparated(answer.Table));
    return answer.Code;
}
