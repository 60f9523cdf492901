// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "batch/distinct_outputs.h"
#include "batch/input_file.h"
#include "batch/interruption.h"
#include "batch/output_file.h"
#include "batch/progress_line.h"
#include "batch/project_question.h"
#include "batch/search_options.h"
#include "batch/usage_fault.h"
#include "batch/verbs.h"
#include "insight/cores.h"
#include "insight/report/report.h"
#include "insight/report/verdict.h"
#include "selection/margin_answers.h"

namespace {

struct ReportOptions {
    SearchOptions Search;
    std::string Path;
    std::string Title;
    std::string Author;
    std::string Date;
    std::optional<OutputFile> Page;
    std::string ProjectHash;  ///< before it was opened; empty where it is no file
};

void addOptions(CLI::App& app, ReportOptions& options) {
    addSearchOptions(app, options.Search);
    app.add_option("--out", options.Path, "the page")->type_name("X.html")->required();
    app.add_option("--title", options.Title, "title of the page, in the place of the file's name")
        ->type_name("TEXT");
    app.add_option("--author", options.Author, "who made it, below the title")->type_name("TEXT");
    app.add_option("--date", options.Date, "date below the title, as given")->type_name("TEXT");
}

/// A pipe can be read but once.
std::string hashOf(const std::string& project) {
    return std::filesystem::is_regular_file(project) ? sha256(readWhole(project)) : "";
}

/// Whatever can be found wrong before the work, which may be long.
void prepare(ReportOptions& options, const RunOptions& run) {
    requireDistinct(run.Project, std::array{NamedOutput{"--out", options.Path}});
    try {
        options.Page.emplace(options.Path);
    } catch (const std::system_error& error) {
        throw UsageFault{cannotBeWritten(options.Path, error)};
    }
    try {
        options.ProjectHash = hashOf(run.Project);
    } catch (const std::system_error&) {
        // Who opens the project says why it cannot be read.
    }
}

/// What keeps the page from being written, if something does.
std::optional<std::string> writePage(ReportOptions& options, const std::string& project,
                                     const std::string& page) {
    try {
        if (hashOf(project) != options.ProjectHash)
            return project + " was changed meanwhile; no page is written";
    } catch (const std::system_error& error) {
        return project + ": cannot be read again: " + error.code().message() + "; no page is written";
    }
    try {
        options.Page->write(page);
        return std::nullopt;
    } catch (const std::system_error& error) {
        return cannotBeWritten(options.Path, error);
    }
}

/// The verdict, a sentence a row.
insight::ResultTable verdictTable(const insight::ReportFindings& findings) {
    insight::ResultTable table = {{"verdict"}, {}};
    for (const insight::Sentence& sentence : insight::verdict(findings))
        table.Rows.push_back({sentence.text()});
    return table;
}

Answer ask(ReportOptions& options, const ExplainedProject& project) {
    const Interruption interruption;
    ProgressLine progress;
    insight::ReportWork work{options.Search.limitInSeconds(), options.Search.Nodes, insight::coresOfMachine(),
                             &interruption.wanted(), [&](const std::string& text) { progress.tell(text); }};
    const insight::ReportFindings findings(project.Run, marginAnswers(project.AnswersLeft), work);
    const std::string name = std::filesystem::path(project.Options.Project).filename().string();
    insight::ReportOrigin origin{name, options.ProjectHash, BRENICA_VERSION, project.Options.Answers, work};
    origin.HasDefaults = project.HasDefaults;
    origin.Title = options.Title;
    origin.Author = options.Author;
    origin.Date = options.Date;
    Answer answer{verdictTable(findings)};
    if (findings.Stopped) answer.Notes.emplace_back("stopped: what is known so far is on the page");
    if (const auto fault =
            writePage(options, project.Options.Project, insight::reportPage(findings, origin))) {
        answer.Notes.push_back(*fault);
        answer.Code = ExitWrongUsage;
    }
    return answer;
}

}  // namespace

int answerReport(const VerbCall& call) {
    ReportOptions options;
    return explainProject(call,
                          {.AddOptions = [&](CLI::App& app) { addOptions(app, options); },
                           .Prepare = [&](const RunOptions& run) { prepare(options, run); },
                           .Ask = [&](const ExplainedProject& project) { return ask(options, project); }});
}
