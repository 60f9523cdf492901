// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

/// A file that comes into being whole or not at all: it is written under a temporary name beside its own and renamed
/// by commit. Without a commit nothing stays.
class OutputFile {
public:
    /// Raises ui::RunTimeError when the place cannot be written to.
    explicit OutputFile(std::string path);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    const std::string& path() const { return path_; }
    const std::string& temporaryPath() const { return temporaryPath_; }
    void write(const std::string& content);
    void commit();

private:
    std::string path_;
    std::string temporaryPath_;
    bool committed_ = false;
};
