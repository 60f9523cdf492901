// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/verification.h"

#include <algorithm>

#include "insight/exported_run.h"

using exported::ExportedRun;
using exported::RunSettings;
using insight::fieldOf;
using insight::GivenLevels;
using insight::Verification;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::string example(const std::string& name) { return std::string(BRENICA_SOURCE_DIR) + "/examples/" + name; }

Verification verify(const SelectionRun& run, const std::string& text, const GivenLevels& given = {}) {
    return insight::verifyResults(run, insight::readResultsFile(text), given);
}

/// "check|expected|found" of each check that failed.
std::vector<std::string> failures(const Verification& verification) {
    std::vector<std::string> failed;
    for (const auto& row : verification.Table.Rows) {
        if (!std::get<bool>(row[3]))
            failed.push_back(fieldOf(row[0]) + "|" + fieldOf(row[1]) + "|" + fieldOf(row[2]));
    }
    EXPECT_EQ(verification.Holds, failed.empty());
    return failed;
}

class VerificationTest : public testing::Test {
protected:
    TemporaryFolder folder;
    RunSettings full{"6", "0.4", "0.8", {"b", "d", "b", "2"}};

    ExportedRun fullExample() { return exported::runOf(example("full_landscape.brn"), full, folder); }
};

}  // namespace

TEST_F(VerificationTest, EveryExampleFollowsFromItsProject) {
    const ExportedRun runs[] = {fullExample(), exported::runOf(example("small_landscape.brn"), {}, folder),
                                exported::runOf(example("version1_landscape.brn"), {}, folder)};
    for (const ExportedRun& exported : runs) {
        ASSERT_FALSE(exported.Results.empty());
        const Verification verification = verify(*exported.Run, exported.Results);
        EXPECT_THAT(failures(verification), IsEmpty());
    }
}

TEST_F(VerificationTest, RandomProjectsFollow) {
    int files = 0;
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        const exported::RandomCase random = exported::randomCase(seed);
        const ExportedRun exported = exported::runOf(random.Project, random.Settings, folder);
        if (exported.Results.empty()) continue;
        ++files;
        ASSERT_THAT(failures(verify(*exported.Run, exported.Results)), IsEmpty()) << seed << "\n"
                                                                                  << exported.Results;
    }
    std::printf("%d files\n", files);
    EXPECT_GT(files, 200);
}
