// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "batch/options.h"
#include "batch/output_file.h"
#include "scoring/export_tables.h"

/// The files that a run was asked for. What is wrong with them is found before the run, as far as it can be. One that
/// cannot be written afterwards is named on standard error and keeps none of the others from being written.
class Outputs {
public:
    using Take = std::function<void(std::string_view text)>;
    /// Hands the text over that a file is to hold.
    using Content = std::function<void(const Take& take)>;

    /// Throws UsageFault. The folder of the tables is made, no file is.
    Outputs(const BatchOptions& options, std::span<const ExportTable> tables, std::ostream& err);

    /// Each asks for the content only where the file was asked for; a std::exception from it is a file that cannot be
    /// written.
    void writeMessages(const Content& content) { write(messages_, content); }
    void writeResults(const Content& content) { write(results_, content); }
    void writeTable(const ExportTable& table, const Content& content);

    /// Whether one could not be written.
    bool failed() const { return failed_; }

private:
    struct File {
        std::string Path;
        OutputFile Target;
    };
    static std::optional<File> begin(const std::optional<std::string>& path);
    void write(std::optional<File>& file, const Content& content);
    void attempt(const std::string& path, const std::function<void()>& step);

    std::ostream& err_;
    std::optional<std::string> tables_;
    std::optional<File> results_;
    std::optional<File> messages_;
    bool failed_ = false;
};
