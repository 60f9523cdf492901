// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/form_watch.h"
#include "support/form_test.h"
#include "support/largest_file.h"

using testing::IsEmpty;
using testing::SizeIs;
using Kind = FailedCommand::Kind;

namespace {

/// Errors that the system itself makes, with nothing in their way.
class RealDisk : public FormTest {
protected:
    FormWatch watch{form, files};
    const ProjectText large_ = ProjectText(60, 20, 20, 20);
    const std::string path_ = folder.file("landscape.brn");

    void saveTo(const std::string& path) {
        platform.Files.push_back(path);
        form.mnuSaveProject.UserClick();
        watch.look();
    }
    std::string fullDisk() const {
        const std::string path = folder.file("full.brn");
        std::filesystem::create_symlink("/dev/full", path);
        return path;
    }
    void expectFailure(Kind what, const std::string& path, const std::string& reason) {
        ASSERT_THAT(watch.failures(), SizeIs(1));
        EXPECT_EQ(watch.failures()[0].What, what);
        EXPECT_EQ(watch.failures()[0].Path, path);
        EXPECT_EQ(watch.failures()[0].Reason, reason);
    }
};

}  // namespace

TEST_F(RealDisk, ThatIsFullBreaksASaveOffAndTheProjectStays) {
    open(large_);
    for (const int species : {1, 60})
        ASSERT_EQ(form.flxCandidateSpecies.TextMatrix(species, 0), std::to_string(species));
    const std::string path = fullDisk();
    saveTo(path);
    expectFailure(Kind::Save, path, "Disk full");
    EXPECT_TRUE(watch.savingIsBlocked());
    EXPECT_EQ(form.TakeCopy().Text, large_.text());
    saveTo(path_);
    EXPECT_FALSE(std::filesystem::exists(path_)) << "nothing can be saved in this run any more";
    EXPECT_EQ(watch.failures().at(0).Reason, "File already open");
}

TEST_F(RealDisk, ThatTakesNoMoreLeavesTheFileAsFarAsItWasWritten) {
    open(large_);
    {
        const LargestFile limit(8192);
        saveTo(path_);
    }
    expectFailure(Kind::Save, path_, "Disk full");
    EXPECT_GT(watch.failures()[0].Line, 0);
    EXPECT_EQ(form.TakeCopy().Text, large_.text());
    EXPECT_TRUE(large_.text().starts_with(readFile(path_)));
}

TEST_F(RealDisk, HasPathsThatNoFileCanHave) {
    open(large_);
    writeFile(folder.file("file"), "");
    std::filesystem::create_directory(folder.file("folder"));
    const std::string loop = folder.file("loop");
    std::filesystem::create_symlink(loop, loop);
    const std::pair<std::string, const char*> paths[] = {
        {folder.file("missing/p.brn"), "Path not found"},
        {folder.file("file/p.brn"), "Path not found"},
        {folder.file("folder"), "Path/File access error"},
        {loop, "Path/File access error"},
        {folder.file(std::string(300, 'n')), "Path/File access error"}};
    for (const auto& [path, reason] : paths) {
        saveTo(path);
        expectFailure(Kind::Save, path, reason);
        EXPECT_FALSE(watch.savingIsBlocked()) << path;
    }
    saveTo(path_);
    EXPECT_THAT(watch.failures(), IsEmpty());
    EXPECT_EQ(readFile(path_), large_.text());
}

TEST_F(RealDisk, ThatIsFullBreaksAnExportOfResultsOff) {
    ProjectText project(2, 2, 1, 1);  // the first species covers everything
    project.set("HeteroHabitat Population", "2,2,1,1").set("HeteroJU Individual", "2,1");
    open(project);
    walkTo(7);
    form.cmdComplement.UserClick();
    ASSERT_TRUE(form.cmdExportResults.Enabled());
    const std::string path = fullDisk();
    platform.Files.push_back(path);
    form.cmdExportResults.UserClick();
    watch.look();
    expectFailure(Kind::ExportResults, path, "Disk full");
    EXPECT_TRUE(watch.readingIsBlocked());
    EXPECT_EQ(form.TakeCopy().Text, project.text());
}

TEST_F(RealDisk, ThatIsFullEndsAnExportOfATableWithTheReport) {
    open(large_);
    platform.Files.push_back(fullDisk());
    EXPECT_THAT(failureOf([&] { form.mnuExportData.UserClick(); }).Description,
                testing::HasSubstr("Internal Error description: \"Disk full\""));
    EXPECT_EQ(form.TakeCopy().Text, large_.text());
}
