// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "batch/batch_run.h"
#include "support/form_test.h"

/// A run of brenica-batch without a process.
class BatchTest : public testing::Test {
protected:
    TemporaryFolder folder;
    BatchOptions options;
    std::ostringstream out;
    std::ostringstream err;

    /// Runs on the project's text, which lies at `projectPath()`.
    ExitCode run(const std::string& text) {
        writeFile(projectPath(), text);
        options.Project = projectPath();
        return runBatch(options, out, err);
    }
    ExitCode run(const ProjectText& project) { return run(project.text()); }
    std::string projectPath() const { return folder.file("project.brn"); }

    /// Names in a folder, sorted.
    static std::vector<std::string> namesIn(const std::string& path) {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    /// Species 1 covers all, so that one pass suffices.
    static ProjectText oneCoversAll() {
        ProjectText project(2, 2, 1, 1);
        return project.set("HeteroHabitat Population", "2,2,1,1").set("HeteroJU Individual", "2,1");
    }
    /// The only pass that is left after the first omits everyone, which ends in an unexpected error.
    static ProjectText failing() {
        ProjectText project = oneCoversAll();
        return project.set("HeteroHabitat Population", "2,1,1,1");
    }
    /// Two species within the margin, and a third far behind. Each of the two covers all.
    static ProjectText withQuestion() {
        ProjectText project(2, 1, 1, 1);
        return project.set("HeteroHabitat Population", "2,2").set("HeteroJU Individual", "2,2");
    }
    static std::string report(const std::string& source) {
        return "Unexpected error in Brenica System.\nSource: Brenica." + source +
               "\nInternal Error number: 13.\nInternal Error description: \"Type mismatch\".\n";
    }
    static constexpr const char* AllCovered =
        "All habitat types, management zones and threats are covered by the current suite of brenic species.";
};
