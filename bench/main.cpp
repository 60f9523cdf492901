// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "growth_table.h"
#include "measured_run.h"

namespace {

constexpr int DefaultRuns = 7;

struct BenchOptions {
    int Runs = DefaultRuns;
    std::vector<std::string> Projects;
};

int usage() {
    std::cerr
        << "usage: brenica-bench [--runs N] PROJECT.brn...\n"
           "Times each step of a run, the median of N runs, and its memory; projects from small to large.\n";
    return EXIT_FAILURE;
}

/// Gone with all that was exported.
class ExportFolder {
public:
    ExportFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "brenica-bench-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error(name + ": cannot be made");
        path_ = name;
    }
    ~ExportFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ExportFolder(const ExportFolder&) = delete;
    ExportFolder& operator=(const ExportFolder&) = delete;
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

/// One run in a process of its own, since a process's peak never falls. Its peaks come back through a pipe.
std::vector<double> peaksOf(const std::string& project, const std::string& folder) {
    std::vector<double> peaks(steps().size());
    const auto size = static_cast<ssize_t>(peaks.size() * sizeof(double));
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("no process");
    if (child == 0) {
        int code = EXIT_FAILURE;
        try {
            const RunMeasure run = measureRun(project, folder);
            std::transform(run.Steps.begin(), run.Steps.end(), peaks.begin(),
                           [](const StepMeasure& step) { return step.PeakMegabytes; });
            if (write(ends[1], peaks.data(), static_cast<std::size_t>(size)) == size) code = EXIT_SUCCESS;
        } catch (const std::exception& error) {
            std::cerr << "brenica-bench: " << error.what() << '\n';
        }
        _exit(code);
    }
    close(ends[1]);
    const bool whole = read(ends[0], peaks.data(), static_cast<std::size_t>(size)) == size;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    if (!whole) throw std::runtime_error(project + ": the run failed");
    return peaks;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

RunMeasure medianOf(const std::string& project, int count, const std::string& folder) {
    std::vector<RunMeasure> runs;
    for (int i = 0; i < count; ++i) runs.push_back(measureRun(project, folder));
    RunMeasure result = runs.front();
    for (std::size_t s = 0; s < steps().size(); ++s) {
        std::vector<double> times;
        for (const RunMeasure& run : runs) times.push_back(run.Steps[s].Milliseconds);
        result.Steps[s].Milliseconds = median(times);
    }
    return result;
}

int measureAll(const BenchOptions& options) {
    const ExportFolder folder;
    // Memory first: a process that has run before starts its child with all that it still holds.
    std::vector<std::vector<double>> peaks;
    for (const std::string& project : options.Projects) peaks.push_back(peaksOf(project, folder.path()));
    std::vector<RunMeasure> measures;
    for (std::size_t i = 0; i < options.Projects.size(); ++i) {
        measures.push_back(medianOf(options.Projects[i], options.Runs, folder.path()));
        for (std::size_t s = 0; s < steps().size(); ++s) measures[i].Steps[s].PeakMegabytes = peaks[i][s];
    }
    std::cout << "Median of " << options.Runs << " runs, each in a fresh form\n\n";
    printTable(std::cout, measures);
    return std::cout ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
    BenchOptions options;
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]) != "--runs") {
            options.Projects.emplace_back(argv[i]);
            continue;
        }
        options.Runs = ++i < argc ? std::atoi(argv[i]) : 0;
    }
    if (options.Runs < 1 || options.Projects.empty()) return usage();
    try {
        return measureAll(options);
    } catch (const std::exception& error) {
        std::cerr << "brenica-bench: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
