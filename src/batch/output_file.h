// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

#include "batch/system_io.h"

/// A file that a run writes once. A regular file comes into being whole or not at all: it is written under a temporary
/// name in its folder and renamed. It keeps the mode that it had, and its owner where the system allows that. Links are
/// followed. What is no regular file (a pipe, a device), and what the program has open itself (/dev/stdout), is written
/// to directly.
class OutputFile {
public:
    /// Looks whether the file can be written, which leaves nothing behind; opens a pipe or a device, which waits for a
    /// pipe's reader. Throws std::system_error.
    explicit OutputFile(const std::filesystem::path& path);

    /// Throws std::system_error; a regular file is then as it was.
    void write(std::string_view content);

private:
    std::filesystem::path target_;  // of a regular file
    Descriptor direct_;             // of all else
};

/// The line that says so, with the system's reason.
std::string cannotBeWritten(const std::string& path, const std::exception& error);
