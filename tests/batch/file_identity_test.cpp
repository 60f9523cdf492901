// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/file_identity.h"

#include <unistd.h>

#include <fstream>

#include "batch/system_io.h"
#include "support/form_test.h"

namespace fs = std::filesystem;

class FileIdentityTest : public testing::Test {
protected:
    TemporaryFolder folder;

    std::string makeFile(const std::string& name) {
        writeFile(folder.file(name), name);
        return folder.file(name);
    }
    void link(const std::string& name, const std::string& target) {
        fs::create_symlink(target, folder.file(name));
    }
    bool same(const std::string& left, const std::string& right) {
        return identify(folder.file(left)) == identify(folder.file(right));
    }
};

TEST_F(FileIdentityTest, AFileIsTheSameByEveryNameItHas) {
    makeFile("a");
    makeFile("b");
    fs::create_hard_link(folder.file("a"), folder.file("hard"));
    link("soft", "a");
    EXPECT_TRUE(same("a", "hard"));
    EXPECT_TRUE(same("soft", "hard"));
    EXPECT_TRUE(same("a", "./../" + fs::path(folder.path()).filename().string() + "/a"));
    EXPECT_FALSE(same("a", "b"));
    EXPECT_FALSE(same("a", "a/below"));
    EXPECT_FALSE(same("a", "missing"));
}

TEST_F(FileIdentityTest, AFileThatIsMissingIsKnownByTheFolderThatIsThere) {
    fs::create_directory(folder.file("real"));
    link("folder", "real");
    link("dangling", "real/new");
    link("nowhere", "no/such");
    EXPECT_TRUE(same("real/new", "folder/new"));
    EXPECT_TRUE(same("dangling", "folder/new"));
    EXPECT_TRUE(same("nowhere/file", "no/./x/../such/file"));
    EXPECT_FALSE(same("real/new", "real/other"));
    EXPECT_FALSE(same("real/new", "new"));
    EXPECT_FALSE(same("nowhere/file", "file"));
}

TEST_F(FileIdentityTest, LinksAreFollowedToTheLast) {
    link("a", "b");
    link("b", folder.file("c"));
    EXPECT_EQ(followLinks(folder.file("a")), folder.file("c"));
    EXPECT_EQ(followLinks("plain"), "plain");
}

TEST_F(FileIdentityTest, WhatCannotBeFollowedIsAFault) {
    link("loop", "loop");
    const auto faultOf = [](const fs::path& path) {
        try {
            followLinks(path);
        } catch (const std::system_error& error) {
            return error.code().value();
        }
        return 0;
    };
    EXPECT_EQ(faultOf(folder.file("loop")), ELOOP);
    EXPECT_EQ(faultOf(folder.file("loop/file")), ELOOP);
    EXPECT_EQ(faultOf(folder.file(std::string(300, 'n'))), ENAMETOOLONG);
    EXPECT_EQ(faultOf(""), ENOENT);
    EXPECT_THROW(identify(folder.file("loop/file")), std::system_error);
}

TEST_F(FileIdentityTest, AnOpenFileOfTheProgramIsKnownByItsNumber) {
    link("out", "/dev/stdout");
    EXPECT_EQ(ownDescriptor("/dev/stdout"), 1);
    EXPECT_EQ(ownDescriptor("/dev/fd/7"), 7);
    EXPECT_EQ(ownDescriptor("/proc/self/fd/2"), 2);
    EXPECT_EQ(ownDescriptor(folder.file("out")), 1);
    EXPECT_EQ(ownDescriptor(makeFile("1")), std::nullopt);
    EXPECT_EQ(ownDescriptor("/dev/null"), std::nullopt);
    EXPECT_EQ(ownDescriptor("/dev/fd/99999999999"), std::nullopt);
}

class SystemIo : public FileIdentityTest {};

TEST_F(SystemIo, WhatAWriterLeavesAtAPathIsGathered) {
    std::string text;
    for (int i = 0; i < 30000; ++i) text += std::to_string(i) + "\n";
    std::vector<std::string> taken;
    const auto take = [&](std::string_view gathered) { taken.emplace_back(gathered); };
    gather([&](const std::string& path) { std::ofstream(path) << text; }, take);
    gather([](const std::string&) {}, take);
    EXPECT_EQ(taken, (std::vector<std::string>{text, ""}));
}

TEST_F(SystemIo, ASignalWaitsWhileItIsHeldAndThenEndsTheProgram) {
    const std::string path = folder.file("finished");
    EXPECT_EXIT(
        {
            {
                const SignalsHeld held;
                std::raise(SIGTERM);
                std::ofstream(path) << "whole";
            }
            std::_Exit(0);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_EQ(readFile(path), "whole");
}

TEST_F(SystemIo, AFileThatCannotBeOpenedIsAFault) {
    errno = EACCES;
    EXPECT_THROW(Descriptor(-1), std::system_error);
    EXPECT_THROW(writeAll(-1, "text"), std::system_error);
}
