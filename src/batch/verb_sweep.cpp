// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <charconv>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>

#include "batch/command_line.h"
#include "batch/distinct_outputs.h"
#include "batch/input_file.h"
#include "batch/interruption.h"
#include "batch/output_file.h"
#include "batch/progress_line.h"
#include "batch/project_question.h"
#include "batch/usage_fault.h"
#include "batch/verbs.h"
#include "insight/cores.h"
#include "insight/sweep/counts_file.h"
#include "insight/sweep/sweep.h"
#include "selection/margin_answers.h"

namespace {

struct SweepOptions {
    insight::SweepSettings Settings;
    std::vector<std::string> Vary;
    unsigned Threads = insight::coresOfMachine();
    std::string Shard = "1/1";
    std::optional<std::string> Counts;
    std::optional<OutputFile> CountsFile;  ///< of that name, from before the work on
    std::string ProjectHash;               ///< before it was opened; empty without counts
};

constexpr unsigned MostThreads = 1024;

void addOptions(CLI::App& app, SweepOptions& options) {
    insight::SweepSettings& settings = options.Settings;
    app.add_option("--vary", options.Vary, "what is drawn anew for each run: levels, answers, grades")
        ->type_name("WHAT,...")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(CLI::IsMember({"levels", "answers", "grades"}))
        ->required();
    app.add_option("--runs", settings.Runs, "how many runs, of all shards together")
        ->type_name("N")
        ->check(wholeNumber(1, insight::MostRuns))
        ->capture_default_str();
    app.add_option("--seed", settings.Seed, "the same seed draws the same")
        ->type_name("N")
        ->check(wholeNumber(0, std::numeric_limits<std::uint64_t>::max()))
        ->capture_default_str();
    app.add_option("--p", settings.P, "probability that a grade is off by one step")
        ->type_name("P")
        ->check(realNumber(0, 1))
        ->capture_default_str();
    app.add_flag("--zeros", settings.Zeros, "grades of 0 are varied, too");
    app.add_flag("--quality", settings.Quality, "p is multiplied by a third of the quality of the data");
    app.add_option("--threads", options.Threads, "how many threads; they change no count")
        ->type_name("N")
        ->check(wholeNumber(1, MostThreads));
    app.add_option("--shard", options.Shard, "do the I-th of N parts only")->type_name("I/N");
    app.add_option("--counts", options.Counts, "write the counts, for merge")->type_name("FILE");
}

insight::Shard shardOf(const std::string& text) {
    insight::Shard shard{0, 0};
    const char* end = text.data() + text.size();
    const auto first = std::from_chars(text.data(), end, shard.Number);
    if (first.ec == std::errc() && first.ptr != end && *first.ptr == '/') {
        const auto second = std::from_chars(first.ptr + 1, end, shard.Of);
        if (second.ec == std::errc() && second.ptr == end && shard.Number >= 1 && shard.Number <= shard.Of)
            return shard;
    }
    throw UsageFault{"--shard: '" + text + "' is no part of a whole, such as 2/3"};
}

insight::Varied variedOf(const std::vector<std::string>& names) {
    insight::Varied varied;
    for (const std::string& name : names) {
        if (name == "levels") varied.Levels = true;
        if (name == "answers") varied.Answers = true;
        if (name == "grades") varied.Grades = true;
    }
    return varied;
}

std::string hashOf(const std::string& project) { return sha256(readWhole(project)); }

/// Whatever can be found wrong before the work, which may be long.
void prepare(SweepOptions& options, const RunOptions& run) {
    options.Settings.Part = shardOf(options.Shard);
    options.Settings.Vary = variedOf(options.Vary);
    if (!options.Counts) return;
    if (!std::filesystem::is_regular_file(run.Project))
        throw UsageFault{"--counts: " + run.Project + " is no file, which could be read again"};
    requireDistinct(run.Project, std::array{NamedOutput{"--counts", *options.Counts}});
    try {
        options.CountsFile.emplace(*options.Counts);
    } catch (const std::system_error& error) {
        throw UsageFault{cannotBeWritten(*options.Counts, error)};
    }
    options.ProjectHash = hashOf(run.Project);
}

/// What keeps the counts from being written, if something does.
std::optional<std::string> writeCounts(SweepOptions& options, const ExplainedProject& project,
                                       const insight::SweepNames& names, const insight::SweepCounts& counts) {
    const insight::SweepSettings& settings = options.Settings;
    try {
        if (hashOf(project.Options.Project) != options.ProjectHash)
            return project.Options.Project + " was changed during the sweep; no counts are written";
    } catch (const std::system_error& error) {
        return project.Options.Project + ": cannot be read again: " + error.code().message() +
               "; no counts are written";
    }
    try {
        const auto identity =
            insight::identityOf({BRENICA_VERSION, options.ProjectHash}, project.Run.Levels, settings);
        options.CountsFile->write(insight::countsText(identity, settings.Part, names, counts));
        return std::nullopt;
    } catch (const std::system_error& error) {
        return cannotBeWritten(*options.Counts, error);
    }
}

Answer ask(SweepOptions& options, const ExplainedProject& project) {
    insight::SweepSettings& settings = options.Settings;
    if (!settings.Vary.Answers) settings.Answers = marginAnswers(project.AnswersLeft);
    const Interruption interruption;
    ProgressLine progress;
    const auto tell = [&](std::uint64_t done, std::uint64_t of) {
        progress.tell(std::to_string(done) + " of " + std::to_string(of) + " runs");
    };
    const insight::SweepCounts counts =
        insight::sweep(project.Run, settings, {options.Threads, &interruption.wanted(), tell});
    const insight::SweepNames names = insight::sweepNames(project.Run);
    Answer answer{sweepTable(names, counts)};
    const std::uint64_t wanted = insight::runsOf(settings.Runs, settings.Part);
    if (counts.Runs < wanted) {
        answer.Notes.push_back("stopped after " + std::to_string(counts.Runs) + " of " +
                               std::to_string(wanted) + " runs" +
                               (options.Counts ? "; no counts are written" : ""));
    } else if (options.Counts) {
        if (const auto fault = writeCounts(options, project, names, counts)) {
            answer.Notes.push_back(*fault);
            answer.Code = ExitWrongUsage;
        }
    }
    return answer;
}

}  // namespace

int answerSweep(const VerbCall& call) {
    SweepOptions options;
    return explainProject(call,
                          {.AddOptions = [&](CLI::App& app) { addOptions(app, options); },
                           .Prepare = [&](const RunOptions& run) { prepare(options, run); },
                           .Ask = [&](const ExplainedProject& project) { return ask(options, project); }});
}
