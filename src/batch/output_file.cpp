// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "batch/file_identity.h"

namespace fs = std::filesystem;

namespace {

/// A new file in a folder, under a name that is short enough wherever its target's is; gone unless it is renamed.
/// REQUIRES: signals are held while it lives.
class TemporaryFile {
public:
    explicit TemporaryFile(const fs::path& folder) {
        const std::string start = ".brenica-" + std::to_string(::getpid()) + "-";
        for (int i = 0;; ++i) {
            path_ = folder / (start + std::to_string(i));
            const int number = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (number < 0 && errno == EEXIST) continue;
            file_ = Descriptor(number);
            return;
        }
    }
    ~TemporaryFile() {
        if (!renamed_) ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Another's file may stay this user's: that is no fault.
    void takeOwnerAndMode(const struct stat& about) const {
        [[maybe_unused]] const int ignored = ::fchown(file_.number(), about.st_uid, about.st_gid);
        if (::fchmod(file_.number(), about.st_mode & ALLPERMS) != 0) throwSystemError();
    }
    void write(std::string_view content) const { writeAll(file_.number(), content); }
    void renameTo(const fs::path& target) {
        file_.close();
        fs::rename(path_, target);
        renamed_ = true;
    }

private:
    fs::path path_;
    Descriptor file_;
    bool renamed_ = false;
};

Descriptor duplicate(int number) {
    const int flags = ::fcntl(number, F_GETFL);
    if (flags >= 0 && (flags & O_ACCMODE) == O_RDONLY)
        throw std::system_error(EBADF, std::generic_category());
    return Descriptor(::fcntl(number, F_DUPFD_CLOEXEC, 0));
}

/// The system's reason, without the names that the library puts around it.
std::string reasonOf(const std::exception& error) {
    const auto* system = dynamic_cast<const std::system_error*>(&error);
    return system != nullptr ? system->code().message() : error.what();
}

}  // namespace

std::string cannotBeWritten(const std::string& path, const std::exception& error) {
    return path + ": cannot be written: " + reasonOf(error);
}

OutputFile::OutputFile(const fs::path& path) {
    if (const auto number = ownDescriptor(path)) {
        direct_ = duplicate(*number);
        return;
    }
    const fs::file_status status = fs::status(path);
    if (fs::is_directory(status)) throw std::system_error(EISDIR, std::generic_category());
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        direct_ = Descriptor(::open(path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC));
        return;
    }
    target_ = followLinks(path);
    if (fs::exists(status) && ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0)
        throwSystemError();
    const SignalsHeld held;
    const TemporaryFile attempt(target_.parent_path());
}

void OutputFile::write(std::string_view content) {
    if (direct_) return writeAll(direct_.number(), content);
    const SignalsHeld held;
    TemporaryFile file(target_.parent_path());
    struct stat about {};
    if (::stat(target_.c_str(), &about) == 0) file.takeOwnerAndMode(about);
    file.write(content);
    file.renameTo(target_);
}
