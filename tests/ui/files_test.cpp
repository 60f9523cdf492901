// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files.h"

#include <unistd.h>

#include <cerrno>

#include "support/form_test.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ui::ErrorNumber;
using ui::FileMode;
using ui::LineEnds;
using Operation = ui::Files::Operation;

class FilesTest : public testing::Test {
protected:
    TemporaryFolder folder;
    ui::Files files;
    std::string path = folder.file("file.txt");

    std::vector<std::string> linesOf(const std::string& content, LineEnds ends) {
        writeFile(path, content);
        files.Open(path, FileMode::Input, 1);
        std::vector<std::string> lines;
        while (!files.EndOfFile(1)) lines.push_back(files.LineInput(1, ends));
        files.Close(1);
        return lines;
    }

    /// Makes the given call of an operation, counted from 1, end in an error.
    void failAt(Operation operation, int call, ErrorNumber error) {
        files.BeforeOperation = [=, calls = 0](Operation current) mutable {
            if (current == operation && ++calls == call) ui::raise(error);
        };
    }

    void expectLastFault(const std::string& faultPath, int line, int number) {
        ASSERT_TRUE(files.LastFault().has_value());
        EXPECT_EQ(files.LastFault()->Path, faultPath);
        EXPECT_EQ(files.LastFault()->Line, line);
        EXPECT_EQ(files.LastFault()->Error.Number, number);
    }
};

TEST_F(FilesTest, ALineEndsAtCarriageReturnWithOrWithoutLineFeed) {
    for (const LineEnds ends : {LineEnds::CarriageReturn, LineEnds::AnyEnd}) {
        EXPECT_THAT(linesOf("one\r\ntwo\rthree", ends), ElementsAre("one", "two", "three"));
        EXPECT_THAT(linesOf("one\r\n", ends), ElementsAre("one"));
        EXPECT_THAT(linesOf("\r\n\r\n", ends), ElementsAre("", ""));
        EXPECT_THAT(linesOf("a\r\r\nb\r", ends), ElementsAre("a", "", "b"));
    }
}

TEST_F(FilesTest, ALoneLineFeedStaysInALineOfAProjectFile) {
    EXPECT_THAT(linesOf("one\ntwo\r\nthree\n", LineEnds::CarriageReturn), ElementsAre("one\ntwo", "three\n"));
}

TEST_F(FilesTest, ALoneLineFeedEndsALineOfAGridTextFile) {
    EXPECT_THAT(linesOf("one\ntwo\r\nthree\rfour\n", LineEnds::AnyEnd),
                ElementsAre("one", "two", "three", "four"));
    EXPECT_THAT(linesOf("a\n\nb\n\rc", LineEnds::AnyEnd), ElementsAre("a", "", "b", "", "c"));
}

TEST_F(FilesTest, AnEmptyFileHasNoLine) {
    EXPECT_THAT(linesOf("", LineEnds::CarriageReturn), IsEmpty());
    EXPECT_THAT(linesOf("\xEF\xBB\xBF", LineEnds::CarriageReturn), IsEmpty());
}

TEST_F(FilesTest, AByteOrderMarkAtTheStartIsNoText) {
    EXPECT_THAT(linesOf("\xEF\xBB\xBFone\r\n\xEF\xBB\xBFtwo", LineEnds::CarriageReturn),
                ElementsAre("one", "\xEF\xBB\xBFtwo"));
}

TEST_F(FilesTest, BytesThatAreNoUtf8AreReadAsWindows1252) {
    EXPECT_THAT(linesOf("Orme \xE9toil\xE9\r\nH\xC3\xAAtre\r\n\x80", LineEnds::CarriageReturn),
                ElementsAre("Orme étoilé", "Hêtre", "€"));
}

TEST_F(FilesTest, LinesAreWrittenWithCarriageReturnAndLineFeedAndNoByteOrderMark) {
    files.Open(path, FileMode::Output, 1);
    files.Print(1, "Hêtre");
    files.Print(1, "");
    files.Print(1, "end\n");
    files.Close(1);
    EXPECT_EQ(readFile(path), "Hêtre\r\n\r\nend\n\r\n");
}

TEST_F(FilesTest, OpeningForOutputEmptiesTheFile) {
    writeFile(path, "old text that is longer");
    files.Open(path, FileMode::Output, 1);
    files.Close(1);
    EXPECT_EQ(readFile(path), "");
}

TEST_F(FilesTest, SeveralNumbersAreOpenAtOnce) {
    writeFile(path, "in");
    const std::string other = folder.file("other.txt");
    files.Open(path, FileMode::Input, 1);
    files.Open(other, FileMode::Output, 2);
    files.Print(2, files.LineInput(1, LineEnds::CarriageReturn));
    EXPECT_TRUE(files.IsOpen(1));
    EXPECT_TRUE(files.IsOpen(2));
    files.Close(1);
    EXPECT_FALSE(files.IsOpen(1));
    EXPECT_TRUE(files.IsOpen(2));
    files.Close(2);
    EXPECT_EQ(readFile(other), "in\r\n");
}

TEST_F(FilesTest, ClosingANumberThatIsNotOpenDoesNothing) {
    files.Close(7);
    EXPECT_FALSE(files.LastFault().has_value());
}

TEST_F(FilesTest, WhatCannotBeOpenedRaisesTheErrorOfItsCause) {
    struct Row {
        std::string Path;
        FileMode Mode;
        int Number;
    };
    const std::vector<Row> rows = {
        {folder.file("missing.txt"), FileMode::Input, 53},
        {folder.file("no/such/file.txt"), FileMode::Input, 76},
        {folder.file("no/such/file.txt"), FileMode::Output, 76},
        {path + "/file.txt", FileMode::Input, 76},
        {path + "/file.txt", FileMode::Output, 76},
        {folder.file("dangling"), FileMode::Input, 53},
        {folder.file("dangling"), FileMode::Output, 76},
        {folder.file("loop"), FileMode::Input, 75},
        {folder.file("loop/file.txt"), FileMode::Output, 75},
        {folder.file(std::string(300, 'n')), FileMode::Input, 75},
        {folder.path(), FileMode::Input, 75},
        {folder.path(), FileMode::Output, 75},
        {"", FileMode::Input, 75},
    };
    writeFile(path, "a file is no folder");
    std::filesystem::create_symlink(folder.file("no/such/file.txt"), folder.file("dangling"));
    std::filesystem::create_symlink("loop", folder.file("loop"));
    for (const Row& row : rows) {
        EXPECT_EQ(failureOf([&] { files.Open(row.Path, row.Mode, 1); }).Number, row.Number) << row.Path;
        EXPECT_FALSE(files.IsOpen(1));
        expectLastFault(row.Path, 0, row.Number);
    }
}

TEST_F(FilesTest, EachErrorOfTheSystemHasItsNumber) {
    const std::pair<int, int> rows[] = {{ENOENT, 53}, {ENOTDIR, 76}, {EACCES, 70}, {EPERM, 70},
                                        {EROFS, 70},  {ETXTBSY, 70}, {ENOSPC, 61}, {EDQUOT, 61},
                                        {EFBIG, 61},  {EISDIR, 75},  {ELOOP, 75},  {ENAMETOOLONG, 75},
                                        {EIO, 57},    {ENOMEM, 7},   {EINVAL, 52}};
    for (const auto& [systemError, number] : rows) {
        EXPECT_EQ(static_cast<int>(ui::errorFor(systemError, ErrorNumber::BadFileNumber)), number)
            << systemError;
    }
}

/// Root may look everywhere, so that a child looks as somebody else.
TEST_F(FilesTest, WhatMayNotBeLookedAtIsDeniedAndNotMissing) {
    const std::string locked = folder.file("locked");
    std::filesystem::create_directories(locked + "/inner");
    writeFile(locked + "/inner/file.txt", "text");
    std::filesystem::permissions(locked, std::filesystem::perms::none);
    const auto openAsNobody = [&](FileMode mode) {
        constexpr uid_t Nobody = 65534;
        if (geteuid() == 0 && setuid(Nobody) != 0) std::_Exit(0);
        try {
            files.Open(locked + "/inner/file.txt", mode, 1);
        } catch (const ui::RunTimeError& error) {
            std::_Exit(error.Number);
        }
        std::_Exit(0);
    };
    EXPECT_EXIT(openAsNobody(FileMode::Input), testing::ExitedWithCode(70), "");
    EXPECT_EXIT(openAsNobody(FileMode::Output), testing::ExitedWithCode(70), "");
    std::filesystem::permissions(locked, std::filesystem::perms::owner_all);
}

TEST_F(FilesTest, LinesThatEndAreCountedFromTheLastOpenOn) {
    linesOf("one\r\ntwo\rthree", LineEnds::CarriageReturn);
    EXPECT_EQ(files.LinesEnded(), 2);
    linesOf("one\ntwo\n", LineEnds::CarriageReturn);
    EXPECT_EQ(files.LinesEnded(), 0);
}

TEST_F(FilesTest, ADeviceThatNeverEndsIsReadUpToABound) {
    files.Open("/dev/zero", FileMode::Input, 1);
    const auto failure = failureOf([&] { files.EndOfFile(1); });
    EXPECT_EQ(failure.Number, 7);
    EXPECT_EQ(failure.Description, "Larger than 1 GiB, and no regular file");
    expectLastFault("/dev/zero", 0, 7);
}

TEST_F(FilesTest, ANumberInUseCannotBeOpenedAgain) {
    writeFile(path, "text");
    files.Open(path, FileMode::Input, 1);
    EXPECT_EQ(failureOf([&] { files.Open(path, FileMode::Input, 1); }).Number, 55);
    EXPECT_EQ(files.LineInput(1, LineEnds::CarriageReturn), "text");
}

TEST_F(FilesTest, ANumberThatIsNotOpenIsABadFileNumber) {
    EXPECT_EQ(failureOf([&] { files.LineInput(3, LineEnds::AnyEnd); }).Number, 52);
    EXPECT_EQ(failureOf([&] { files.Print(3, "x"); }).Number, 52);
    EXPECT_EQ(failureOf([&] { files.EndOfFile(3); }).Number, 52);
}

TEST_F(FilesTest, ReadingPastTheEndIsAnErrorInTheLineBehindTheLast) {
    writeFile(path, "one\r\ntwo");
    files.Open(path, FileMode::Input, 1);
    files.LineInput(1, LineEnds::CarriageReturn);
    files.LineInput(1, LineEnds::CarriageReturn);
    const auto failure = failureOf([&] { files.LineInput(1, LineEnds::CarriageReturn); });
    EXPECT_EQ(failure.Number, 62);
    EXPECT_EQ(failure.Description, "Input past end of file");
    expectLastFault(path, 3, 62);
}

TEST_F(FilesTest, AFullDiskIsReportedAsSuch) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
    files.Open("/dev/full", FileMode::Output, 1);
    const auto failure = failureOf([&] {
        for (int i = 0; i < 100000; ++i) files.Print(1, "some text that has no room");
        files.Close(1);
    });
    EXPECT_EQ(failure.Number, 61);
    EXPECT_EQ(failure.Description, "Disk full");
}

TEST_F(FilesTest, AnOpenFailsAtTheChosenCall) {
    failAt(Operation::Open, 2, ErrorNumber::PermissionDenied);
    files.Open(path, FileMode::Output, 1);
    const std::string other = folder.file("other.txt");
    EXPECT_EQ(failureOf([&] { files.Open(other, FileMode::Output, 2); }).Number, 70);
    expectLastFault(other, 0, 70);
    EXPECT_FALSE(files.IsOpen(2));
    EXPECT_FALSE(std::filesystem::exists(other));
}

TEST_F(FilesTest, AReadFailsAtTheChosenCall) {
    writeFile(path, "one\r\ntwo\r\nthree\r\n");
    failAt(Operation::Read, 2, ErrorNumber::DeviceIoError);
    files.Open(path, FileMode::Input, 1);
    EXPECT_EQ(files.LineInput(1, LineEnds::CarriageReturn), "one");
    EXPECT_EQ(failureOf([&] { files.LineInput(1, LineEnds::CarriageReturn); }).Number, 57);
    expectLastFault(path, 2, 57);
}

TEST_F(FilesTest, AWriteFailsAtTheChosenCall) {
    failAt(Operation::Write, 3, ErrorNumber::DiskFull);
    files.Open(path, FileMode::Output, 1);
    files.Print(1, "one");
    files.Print(1, "two");
    EXPECT_EQ(failureOf([&] { files.Print(1, "three"); }).Number, 61);
    expectLastFault(path, 3, 61);
    files.Close(1);
    EXPECT_EQ(readFile(path), "one\r\ntwo\r\n");
}

TEST_F(FilesTest, ACloseFailsAtTheChosenCall) {
    failAt(Operation::Close, 1, ErrorNumber::DiskFull);
    files.Open(path, FileMode::Output, 1);
    files.Print(1, "one");
    EXPECT_EQ(failureOf([&] { files.Close(1); }).Number, 61);
    expectLastFault(path, 1, 61);
}

TEST_F(FilesTest, TheLastFaultStaysUntilItIsCleared) {
    failureOf([&] { files.Open(folder.file("missing.txt"), FileMode::Input, 1); });
    writeFile(path, "text");
    files.Open(path, FileMode::Input, 1);
    files.Close(1);
    expectLastFault(folder.file("missing.txt"), 0, 53);
    files.ClearLastFault();
    EXPECT_FALSE(files.LastFault().has_value());
    files.NoteFault({"x.brn", 4, ui::RunTimeError(13, "", "Type mismatch")});
    expectLastFault("x.brn", 4, 13);
}
