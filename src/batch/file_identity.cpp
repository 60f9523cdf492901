// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/file_identity.h"

#include <sys/stat.h>

#include <cerrno>
#include <charconv>
#include <string>
#include <system_error>

#include "batch/system_io.h"

namespace fs = std::filesystem;

namespace {

/// The number of the open file that the path itself, without a last link, names.
std::optional<int> descriptorOf(const fs::path& path) {
    const std::string name = path.filename().string();
    int number = 0;
    const auto [end, fault] = std::from_chars(name.data(), name.data() + name.size(), number);
    if (fault != std::errc() || end != name.data() + name.size()) return std::nullopt;
    std::error_code ignored;
    const fs::path folder = fs::canonical(path.parent_path(), ignored);
    if (folder.empty() || folder != fs::canonical("/proc/self/fd", ignored)) return std::nullopt;
    return number;
}

bool isMissing(const fs::path& path, struct stat& about) {
    if (::stat(path.c_str(), &about) == 0) return false;
    if (errno == ENOENT || errno == ENOTDIR) return true;
    throwSystemError();
}

}  // namespace

fs::path followLinks(fs::path path) {
    if (path.empty()) throw std::system_error(ENOENT, std::generic_category());
    constexpr int MostLinks = 40;  // as the system follows
    for (int i = 0; i <= MostLinks; ++i) {
        if (descriptorOf(path) || !fs::is_symlink(fs::symlink_status(path))) return path;
        path = path.parent_path() / fs::read_symlink(path);
    }
    throw std::system_error(ELOOP, std::generic_category());
}

std::optional<int> ownDescriptor(const fs::path& path) { return descriptorOf(followLinks(path)); }

FileIdentity identify(const fs::path& path) {
    fs::path existing = followLinks(fs::absolute(path));
    fs::path missing;
    struct stat about {};
    while (isMissing(existing, about)) {
        missing = existing.filename() / missing;
        existing = followLinks(existing.parent_path());
    }
    return {about.st_dev, about.st_ino, missing.lexically_normal()};
}
