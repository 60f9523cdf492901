// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/outputs.h"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <ostream>
#include <system_error>
#include <vector>

#include "batch/batch_run.h"
#include "batch/distinct_outputs.h"
#include "batch/file_identity.h"
#include "batch/usage_fault.h"

namespace fs = std::filesystem;

namespace {

fs::path pathOf(const ExportTable& table, const std::string& folder) {
    return fs::path(folder) / (std::string(table.FileName) + ".txt");
}

std::vector<NamedOutput> allOutputs(const BatchOptions& options, std::span<const ExportTable> tables) {
    std::vector<NamedOutput> outputs;
    if (options.Results) outputs.push_back({"--results", *options.Results});
    if (options.Messages) outputs.push_back({"--messages", *options.Messages});
    if (!options.Tables) return outputs;
    for (const ExportTable& table : tables) outputs.push_back({"--tables", pathOf(table, *options.Tables)});
    return outputs;
}

void makeFolder(const std::string& folder) {
    try {
        fs::create_directories(followLinks(folder));
    } catch (const std::system_error& error) {
        throw UsageFault{folder + ": cannot be made a folder: " + error.code().message()};
    }
    if (::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) != 0) {
        throw UsageFault{folder + ": cannot be written to: " + std::generic_category().message(errno)};
    }
}

}  // namespace

Outputs::Outputs(const BatchOptions& options, std::span<const ExportTable> tables, std::ostream& err)
    : err_(err), tables_(options.Tables) {
    requireDistinct(options.Project, allOutputs(options, tables));
    results_ = begin(options.Results);
    messages_ = begin(options.Messages);
    if (tables_) makeFolder(*tables_);
}

std::optional<Outputs::File> Outputs::begin(const std::optional<std::string>& path) {
    if (!path) return std::nullopt;
    try {
        return File{*path, OutputFile(*path)};
    } catch (const std::system_error& error) {
        throw UsageFault{cannotBeWritten(*path, error)};
    }
}

void Outputs::write(std::optional<File>& file, const Content& content) {
    if (!file) return;
    attempt(file->Path, [&] { content([&](std::string_view text) { file->Target.write(text); }); });
}

void Outputs::writeTable(const ExportTable& table, const Content& content) {
    if (!tables_) return;
    const fs::path path = pathOf(table, *tables_);
    attempt(path.string(), [&] { content([&](std::string_view text) { OutputFile(path).write(text); }); });
}

void Outputs::attempt(const std::string& path, const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception& error) {
        err_ << ProgramName << ": " << cannotBeWritten(path, error) << '\n';
        failed_ = true;
    }
}
