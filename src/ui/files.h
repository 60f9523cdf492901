// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ui/errors.h"

namespace ui {

enum class FileMode { Input, Output };

/// What ends a line that is read: a CR or CR LF always, a lone LF only in some formats.
enum class LineEnds { CarriageReturn, AnyEnd };

/// A failure with the place in the file where it happened; line 0 before the first line was read.
struct FileFault {
    std::string Path;
    int Line = 0;
    RunTimeError Error;
    FileMode Mode = FileMode::Input;
    int Number = 0;
    bool ReadWhole = false;  ///< the file was read to its end and closed; what it holds is at fault
};

/// Files opened under a number, as long as they are used. Reading gives UTF-8 without a byte order mark, whatever the
/// file holds; of what is no regular file (a pipe, a device) at most 1 GiB is read, and more is a failure. Writing ends
/// each line with CR LF. Every failure raises the run-time error of its cause and is kept as
/// the last fault, for whoever must report it after the command has swallowed it.
class Files {
public:
    /// A step that a test can make fail, each counted on its own kind.
    enum class Operation { Open, Read, Write, Close };
    /// Called before each step; it may raise the error that the step is to end in.
    std::function<void(Operation)> BeforeOperation;
    /// Called when a file was closed without a fault; told how it was open and under which number.
    std::function<void(FileMode, int number)> Closed;

    Files() = default;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    void Open(const std::string& path, FileMode mode, int number);
    bool IsOpen(int number) const { return open_.count(number) > 0; }
    bool EndOfFile(int number);
    std::string LineInput(int number, LineEnds ends);
    void Print(int number, std::string_view line);
    /// Closing a number that is not open does nothing; one that fails to close stays open.
    void Close(int number);
    /// Gives the number up, whatever becomes of the file.
    void Abandon(int number) { open_.erase(number); }

    const std::optional<FileFault>& LastFault() const { return lastFault_; }
    void ClearLastFault() { lastFault_.reset(); }
    /// How many lines that were read since the last Open ended in CR; none of a file of another kind.
    int LinesEnded() const { return linesEnded_; }
    /// Keeps a failure that whoever reads the file found in what it holds.
    void NoteFault(FileFault fault) { lastFault_ = std::move(fault); }
    /// The same at the place that an open file has reached.
    void NoteFault(int number, const RunTimeError& error);

private:
    struct CloseStream {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };
    struct OpenFile {
        std::string Path;
        FileMode Mode = FileMode::Input;
        int Number = 0;
        std::unique_ptr<std::FILE, CloseStream> Stream;  // of an input file until it is first read
        std::string Content;                             // input only, as read from the disk
        std::size_t Position = 0;
        int Line = 0;
    };

    OpenFile& find(int number);
    static void load(OpenFile& file);
    void prepare(Operation operation) const;
    template <class Step>
    decltype(auto) noting(const OpenFile& file, int line, Step step);

    std::map<int, OpenFile> open_;
    std::optional<FileFault> lastFault_;
    int linesEnded_ = 0;
};

/// The run-time error for the system's error number, or the one given where the system's means none.
ErrorNumber errorFor(int systemError, ErrorNumber otherwise);

}  // namespace ui
