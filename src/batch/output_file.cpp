// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "ui/files.h"

namespace {

[[noreturn]] void raiseSystemError() { ui::raise(ui::errorFor(errno, ui::ErrorNumber::PathFileAccessError)); }

}  // namespace

OutputFile::OutputFile(std::string path)
    : path_(std::move(path)), temporaryPath_(path_ + "." + std::to_string(getpid()) + ".tmp") {
    std::error_code ignored;
    if (path_.empty() || std::filesystem::is_directory(path_, ignored)) {
        ui::raise(ui::ErrorNumber::PathFileAccessError);
    }
    write("");
}

OutputFile::~OutputFile() {
    if (!committed_) std::remove(temporaryPath_.c_str());
}

void OutputFile::write(const std::string& content) {
    errno = 0;
    std::FILE* stream = std::fopen(temporaryPath_.c_str(), "wb");
    if (stream == nullptr) raiseSystemError();
    const bool written = std::fwrite(content.data(), 1, content.size(), stream) == content.size();
    if (std::fclose(stream) != 0 || !written) raiseSystemError();
}

void OutputFile::commit() {
    errno = 0;
    if (std::rename(temporaryPath_.c_str(), path_.c_str()) != 0) raiseSystemError();
    committed_ = true;
}
