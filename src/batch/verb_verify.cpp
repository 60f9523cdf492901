// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <optional>
#include <string>
#include <system_error>

#include "batch/input_file.h"
#include "batch/project_question.h"
#include "batch/usage_fault.h"
#include "batch/verbs.h"
#include "insight/verify/verification.h"
#include "ui/numbers.h"

namespace {

/// A results file, and the levels that the command line gives beside it.
struct GivenResults {
    std::string Path;
    std::string Text;
    insight::ResultsFile File;
    insight::GivenLevels Levels;
};

std::optional<double> levelIn(const std::optional<std::string>& text) {
    if (!text) return std::nullopt;
    return ui::tryReal(*text, ui::DecimalSeparator::Point);
}

void readResults(GivenResults& results) {
    try {
        results.Text = readWhole(results.Path);
        results.File = insight::readResultsFile(results.Text);
    } catch (const insight::ResultsFault& fault) {
        throw UnreadableFault{results.Path + ":" + std::to_string(fault.Line) + ": " + fault.what()};
    } catch (const std::system_error& error) {
        throw UnreadableFault{results.Path + ": cannot be read: " + error.code().message()};
    }
}

/// The project is run with the levels of the file, since what has to be graded depends on them.
void prepare(GivenResults& results, RunOptions& options) {
    readResults(results);
    results.Levels = {levelIn(options.ErrorMargin), levelIn(options.ThreatRepresentation),
                      levelIn(options.ConservationStatus)};
    const method::Levels levels = insight::levelsOf(results.File);
    options.ErrorMargin = ui::toText(levels.Margin);
    options.ThreatRepresentation = ui::toText(levels.ThreatRepresentation);
    options.ConservationStatus = ui::toText(levels.ConservationStatus);
}

Answer verify(const GivenResults& results, const SelectionRun& run) {
    const auto verification = insight::verifyResults(run, results.File, results.Levels);
    return {verification.Table, {}, {}, verification.Holds ? ExitDone : ExitCheckFailed};
}

}  // namespace

int answerVerify(const VerbCall& call) {
    GivenResults results;
    const auto addResults = [&](CLI::App& app) {
        app.add_option("results", results.Path, "the results text file")->type_name("RESULTS")->required();
    };
    return explainProject(
        call, {.AddOptions = addResults,
               .Prepare = [&](RunOptions& options) { prepare(results, options); },
               .Ask = [&](const ExplainedProject& project) { return verify(results, project.Run); },
               .AboutRun = false});
}
