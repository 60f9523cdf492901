// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <optional>
#include <ostream>
#include <string>
#include <system_error>

#include "batch/input_file.h"
#include "batch/project_question.h"
#include "batch/verbs.h"
#include "insight/verification.h"
#include "ui/numbers.h"

namespace {

/// The levels have been looked at when the project was opened.
insight::GivenLevels givenLevels(const RunOptions& options) {
    const auto number = [](const std::optional<std::string>& text) -> std::optional<double> {
        if (!text) return std::nullopt;
        return ui::toReal(*text);
    };
    return {number(options.ErrorMargin), number(options.ThreatRepresentation),
            number(options.ConservationStatus)};
}

Answer unreadable(const std::string& text) { return {{}, {}, {text}, ExitUnreadableProject}; }

Answer ask(const std::string& path, const ExplainedProject& project) {
    try {
        const std::string text = readWhole(path);
        const auto verification =
            insight::verifyResults(project.Run, insight::readResultsFile(text), givenLevels(project.Options));
        return {verification.Table, {}, {}, verification.Holds ? ExitDone : ExitCheckFailed};
    } catch (const insight::ResultsFault& fault) {
        return unreadable(path + ":" + std::to_string(fault.Line) + ": " + fault.what());
    } catch (const std::system_error& error) {
        return unreadable(path + ": cannot be read: " + error.code().message());
    }
}

}  // namespace

int answerVerify(const VerbCall& call) {
    std::string results;
    return explainProject(call,
                          {.AddOptions =
                               [&](CLI::App& app) {
                                   app.add_option("results", results, "the results text file")
                                       ->type_name("RESULTS")
                                       ->required();
                               },
                           .Ask = [&](const ExplainedProject& project) { return ask(results, project); }});
}
