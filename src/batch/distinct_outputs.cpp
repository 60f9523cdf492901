// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/distinct_outputs.h"

#include <optional>
#include <system_error>
#include <vector>

#include "batch/file_identity.h"
#include "batch/usage_fault.h"

namespace fs = std::filesystem;

namespace {

enum class Role { Stream, Project, Output };

struct KnownFile {
    std::string Name;
    Role Use;
    FileIdentity Identity;
    fs::file_type Type;
    bool Own;  ///< an open file of this program
};

std::optional<KnownFile> look(const std::string& name, Role use, const fs::path& path) try {
    return KnownFile{name, use, identify(path), fs::status(path).type(), ownDescriptor(path).has_value()};
} catch (const std::system_error&) {
    return std::nullopt;
}

bool keepsContent(const KnownFile& file) {
    return file.Type == fs::file_type::regular || file.Type == fs::file_type::not_found;
}

bool overwrites(const KnownFile& file, const KnownFile& other) {
    if (file.Identity != other.Identity) return false;
    // Reading a pipe and writing into it waits forever.
    if (other.Use == Role::Project) return file.Type != fs::file_type::character;
    if (!keepsContent(file)) return false;
    return other.Use == Role::Output || !file.Own;
}

}  // namespace

void requireDistinct(const fs::path& project, std::span<const NamedOutput> outputs) {
    std::vector<KnownFile> seen;
    const auto add = [&](const std::optional<KnownFile>& file) {
        if (!file) return;
        for (const KnownFile& other : seen) {
            if (overwrites(*file, other))
                throw UsageFault{file->Name + " and " + other.Name + " are one file"};
        }
        seen.push_back(*file);
    };
    add(look("the project " + project.string(), Role::Project, project));
    const auto out = look("standard output", Role::Stream, "/proc/self/fd/1");
    const auto err = look("standard error", Role::Stream, "/proc/self/fd/2");
    add(out);
    if (!out || !err || out->Identity != err->Identity) add(err);
    for (const NamedOutput& output : outputs) {
        add(look(output.Option + " " + output.Path.string(), Role::Output, output.Path));
    }
}
