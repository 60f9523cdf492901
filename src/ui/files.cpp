// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files.h"

#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <filesystem>

#include "ui/text.h"

namespace ui {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// What the system opens, or says only later that it does not.
void refuseFolder(const std::string& path) {
    std::error_code ignored;
    if (path.empty() || std::filesystem::is_directory(path, ignored)) raise(ErrorNumber::PathFileAccessError);
}

/// A file that is missing in its folder is told from a folder that is missing. A file to be written is never missing.
ErrorNumber errorOfOpening(const std::string& path, FileMode mode, int systemError) {
    if (systemError != ENOENT) return errorFor(systemError, ErrorNumber::PathFileAccessError);
    std::error_code ignored;
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    const bool inFolder = folder.empty() || std::filesystem::exists(folder, ignored);
    return mode == FileMode::Input && inFolder ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound;
}

struct Extent {
    std::size_t Expected;
    std::size_t Bound;
};

/// How much is read of a file: all of a regular one, but no more than memory holds of what may never end.
Extent extentOf(std::FILE* stream) {
    constexpr std::size_t Bound = std::size_t{1} << 30;
    struct stat about {};
    const bool regular = fstat(fileno(stream), &about) == 0 && S_ISREG(about.st_mode);
    return regular ? Extent{static_cast<std::size_t>(about.st_size), std::string::npos} : Extent{0, Bound};
}

[[noreturn]] void raiseTooLarge() {
    throw RunTimeError(static_cast<std::int32_t>(ErrorNumber::OutOfMemory), "",
                       "Larger than 1 GiB, and no regular file");
}

}  // namespace

ErrorNumber errorFor(int systemError, ErrorNumber otherwise) {
    switch (systemError) {
        case ENOENT: return ErrorNumber::FileNotFound;
        case ENOTDIR: return ErrorNumber::PathNotFound;
        case EACCES:
        case EPERM:
        case EROFS:
        case ETXTBSY: return ErrorNumber::PermissionDenied;
        case ENOSPC:
        case EDQUOT:
        case EFBIG: return ErrorNumber::DiskFull;
        case EISDIR:
        case ELOOP:
        case ENAMETOOLONG: return ErrorNumber::PathFileAccessError;
        case ENOMEM: return ErrorNumber::OutOfMemory;
        case EIO: return ErrorNumber::DeviceIoError;
        default: return otherwise;
    }
}

/// Runs one step on a file and keeps the failure that it ends in.
template <class Step>
decltype(auto) Files::noting(const OpenFile& file, int line, Step step) {
    try {
        return step();
    } catch (const RunTimeError& error) {
        lastFault_ = FileFault{file.Path, line, error, file.Mode, file.Number};
        throw;
    }
}

void Files::prepare(Operation operation) const {
    if (BeforeOperation) BeforeOperation(operation);
}

Files::OpenFile& Files::find(int number) {
    const auto found = open_.find(number);
    if (found == open_.end()) raise(ErrorNumber::BadFileNumber);
    return found->second;
}

/// Reads an input file whole, at the first look into it.
void Files::load(OpenFile& file) {
    if (file.Mode != FileMode::Input || !file.Stream) return;
    std::FILE* stream = file.Stream.get();
    const Extent extent = extentOf(stream);
    file.Content.reserve(extent.Expected);
    std::array<char, 65536> block{};
    errno = 0;
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), stream)) {
        if (count > extent.Bound - file.Content.size()) raiseTooLarge();
        file.Content.append(block.data(), count);
    }
    if (std::ferror(stream) != 0) raise(errorFor(errno, ErrorNumber::DeviceIoError));
    file.Stream.reset();
    if (std::string_view(file.Content).substr(0, ByteOrderMark.size()) == ByteOrderMark) {
        file.Position = ByteOrderMark.size();
    }
}

void Files::NoteFault(int number, const RunTimeError& error) {
    const OpenFile& file = find(number);
    NoteFault({file.Path, file.Line, error, file.Mode, file.Number});
}

void Files::Open(const std::string& path, FileMode mode, int number) {
    OpenFile file;
    file.Path = path;
    file.Mode = mode;
    file.Number = number;
    noting(file, 0, [&] {
        if (IsOpen(number)) raise(ErrorNumber::FileAlreadyOpen);
        prepare(Operation::Open);
        refuseFolder(path);
        errno = 0;
        file.Stream.reset(std::fopen(path.c_str(), mode == FileMode::Input ? "rb" : "wb"));
        if (!file.Stream) raise(errorOfOpening(path, mode, errno));
    });
    linesEnded_ = 0;
    open_.emplace(number, std::move(file));
}

bool Files::EndOfFile(int number) {
    OpenFile& file = find(number);
    return noting(file, file.Line, [&] {
        load(file);
        return file.Position >= file.Content.size();
    });
}

std::string Files::LineInput(int number, LineEnds ends) {
    OpenFile& file = find(number);
    return noting(file, file.Line + 1, [&] {
        if (file.Mode != FileMode::Input) raise(ErrorNumber::BadFileNumber);
        prepare(Operation::Read);
        if (EndOfFile(number)) raise(ErrorNumber::InputPastEndOfFile);
        const std::string_view rest = std::string_view(file.Content).substr(file.Position);
        const std::size_t end =
            std::min(ends == LineEnds::AnyEnd ? rest.find_first_of("\r\n") : rest.find('\r'), rest.size());
        file.Position += end;
        const bool pair = rest.substr(end, 2) == "\r\n";
        if (rest.substr(end, 1) == "\r") ++linesEnded_;
        file.Position += pair ? 2 : end < rest.size() ? 1 : 0;
        ++file.Line;
        return decodeBytes(rest.substr(0, end));
    });
}

void Files::Print(int number, std::string_view line) {
    OpenFile& file = find(number);
    noting(file, ++file.Line, [&] {
        if (file.Mode != FileMode::Output) raise(ErrorNumber::BadFileNumber);
        prepare(Operation::Write);
        errno = 0;
        std::FILE* stream = file.Stream.get();
        const bool written = std::fwrite(line.data(), 1, line.size(), stream) == line.size() &&
                             std::fputs("\r\n", stream) >= 0;
        if (!written) raise(errorFor(errno, ErrorNumber::DeviceIoError));
    });
}

void Files::Close(int number) {
    const auto found = open_.find(number);
    if (found == open_.end()) return;
    OpenFile& file = found->second;
    noting(file, file.Line, [&] {
        prepare(Operation::Close);
        errno = 0;
        std::FILE* stream = file.Stream.release();
        if (stream != nullptr && std::fclose(stream) != 0) raise(errorFor(errno, ErrorNumber::DeviceIoError));
    });
    const FileMode mode = file.Mode;
    open_.erase(found);
    if (Closed) Closed(mode, number);
}

}  // namespace ui
