// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>

/// Which file a path leads to, links followed: two paths lead to one file exactly when these are equal. A file that is
/// not there yet is known by the folder that is, and by the path from there.
struct FileIdentity {
    dev_t Device = 0;
    ino_t Node = 0;
    std::filesystem::path Missing{};

    bool operator==(const FileIdentity& other) const = default;
};

/// What a path names in the end, whether that is there or not; the last link that dangles is followed too. Links to
/// open files of this program (/dev/stdout) are kept. Throws std::system_error.
std::filesystem::path followLinks(std::filesystem::path path);

/// The number of this program's open file that a path names, itself or by links (1 for /dev/stdout).
/// Throws std::system_error.
std::optional<int> ownDescriptor(const std::filesystem::path& path);

/// Throws std::system_error where the system does not let the path be followed.
FileIdentity identify(const std::filesystem::path& path);
