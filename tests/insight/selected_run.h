// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <sstream>
#include <string>

#include "batch/project_run.h"
#include "support/form_test.h"

/// Runs of projects, for the tests of what is said about them.

inline RunOptions example(const std::string& name) { return {BRENICA_SOURCE_DIR "/examples/" + name}; }
inline RunOptions smallLandscape() { return example("small_landscape.brn"); }
inline RunOptions fullLandscape() {
    return {example("full_landscape.brn").Project, "6", "0.4", "0.8", {"b", "d", "b", "2"}};
}

struct ExportedRun {
    std::optional<SelectionRun> Run{};
    std::string Results{};  ///< empty where the run did not come to its end
};

inline ExportedRun exportedRun(const RunOptions& options, const TemporaryFolder& folder) {
    std::ostringstream unheard;
    ProjectRun project(options, unheard);
    ExportedRun exported;
    if (project.select() == ExitDone) {
        const std::string results = folder.file("results.txt");
        std::filesystem::remove(results);
        project.platform().Files.push_back(results);
        project.form().cmdExportResults.UserClick();
        if (std::filesystem::exists(results)) exported.Results = readFile(results);
    }
    exported.Run = project.form().TakeSelectionRun();
    return exported;
}

inline ExportedRun exportedRun(const ProjectText& project, RunOptions options,
                               const TemporaryFolder& folder) {
    options.Project = folder.file("project.brn");
    writeFile(options.Project, project.text());
    return exportedRun(options, folder);
}

/// One that ends in an error is a run, too.
inline SelectionRun selected(const RunOptions& options) {
    std::ostringstream unheard;
    ProjectRun project(options, unheard);
    project.select();
    return project.form().TakeSelectionRun().value();
}
