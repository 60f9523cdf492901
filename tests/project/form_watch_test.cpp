// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/form_watch.h"

#include <fstream>

#include "support/form_test.h"

using testing::IsEmpty;
using testing::SizeIs;
using Kind = FailedCommand::Kind;
using Operation = ui::Files::Operation;

/// What is kept of commands that fail in silence.
class FormWatching : public FormTest {
protected:
    FormWatch watch{form, files};
    const std::string path_ = folder.file("landscape.brn");

    void fail(Operation operation, ui::ErrorNumber error) {
        files.BeforeOperation = [=](Operation step) {
            if (step == operation) ui::raise(error);
        };
    }
    void mend() { files.BeforeOperation = {}; }
    void saveTo(const std::string& path) {
        platform.Files.push_back(path);
        form.mnuSaveProject.UserClick();
        watch.look();
    }
    void openFrom(const std::string& path) {
        if (form.ProjectChanged) platform.Answers.push_front("no");
        platform.Files.push_back(path);
        form.mnuOpenProject.UserClick();
        watch.look();
    }
    void exportResults(const std::string& path) {
        form.cmdExportResults.Enabled(true);
        platform.Files.push_back(path);
        form.cmdExportResults.UserClick();
        watch.look();
    }
    void removeSpecies(const char* number) {
        type(form.txtRemoveSpeciesIndex, number);
        form.cmdRemoveSpecies.UserClick();
    }
    const FailedCommand& only() const {
        EXPECT_THAT(watch.failures(), SizeIs(1));
        return watch.failures().at(0);
    }
};

TEST_F(FormWatching, NothingIsKeptWhileAllGoesWell) {
    saveTo(path_);
    openFrom(path_);
    exportResults(folder.file("results.txt"));
    EXPECT_THAT(watch.failures(), IsEmpty());
    EXPECT_FALSE(watch.savingIsBlocked());
    EXPECT_FALSE(watch.readingIsBlocked());
    EXPECT_FALSE(watch.selectionObstacle());
}

TEST_F(FormWatching, AFileWithoutLineEndsIsNotTakenForAProject) {
    std::ofstream(path_) << "Project Version = VERSION2\nCommon Name = Newt\n";
    openFrom(path_);
    EXPECT_EQ(only().What, Kind::Open);
    EXPECT_EQ(only().Path, path_);
    EXPECT_EQ(only().Reason, "no line ends in CR, as those of a project do");
    EXPECT_EQ(only().SavesTo, path_);
    EXPECT_FALSE(watch.readingIsBlocked());
    form.mnuNewProject.UserClick();
    watch.look();
    EXPECT_THAT(watch.failures(), IsEmpty());
}

TEST_F(FormWatching, ASaveThatCannotBeginBlocksNothing) {
    saveTo(folder.file("missing/landscape.brn"));
    EXPECT_EQ(only().What, Kind::Save);
    EXPECT_EQ(only().Path, folder.file("missing/landscape.brn"));
    EXPECT_EQ(only().Reason, "Path not found");
    EXPECT_FALSE(watch.savingIsBlocked());
    saveTo(path_);
    EXPECT_THAT(watch.failures(), IsEmpty());
}

TEST_F(FormWatching, ASaveThatFailsHalfWayBlocksSaving) {
    fail(Operation::Write, ui::ErrorNumber::DiskFull);
    saveTo(path_);
    EXPECT_EQ(only().Reason, "Disk full");
    EXPECT_EQ(only().Line, 1);
    EXPECT_TRUE(watch.savingIsBlocked());
    EXPECT_FALSE(watch.readingIsBlocked());
    mend();
    saveTo(folder.file("other.brn"));
    EXPECT_EQ(only().Path, folder.file("other.brn"));
    EXPECT_EQ(only().Reason, "File already open");
}

TEST_F(FormWatching, ASaveThatFailsAtTheCloseBlocksSaving) {
    fail(Operation::Close, ui::ErrorNumber::DiskFull);
    saveTo(path_);
    EXPECT_EQ(only().What, Kind::Save);
    EXPECT_TRUE(watch.savingIsBlocked());
}

TEST_F(FormWatching, TheSaveBeforeExitNamesNoFile) {
    form.ProjectChanged = true;
    platform.Answers = {"yes"};
    platform.Files = {path_};
    form.mnuExit.UserClick();
    watch.look();
    EXPECT_EQ(only().What, Kind::Save);
    EXPECT_EQ(only().Path, "");
}

TEST_F(FormWatching, AFileThatCannotBeOpenedLeavesTheNextSaveWhereItWas) {
    saveTo(path_);
    openFrom(folder.file("missing.brn"));
    EXPECT_EQ(only().What, Kind::Open);
    EXPECT_EQ(only().Line, 0);
    EXPECT_EQ(only().Reason, "File not found");
    EXPECT_EQ(only().SavesTo, path_);
    EXPECT_FALSE(watch.readingIsBlocked());
    openFrom(path_);
    EXPECT_THAT(watch.failures(), IsEmpty());
}

TEST_F(FormWatching, AFileThatCannotBeReadToItsEndBlocksReading) {
    writeFile(path_, "Project Version = VERSION2\r\nFunction = 1\r\n");
    openFrom(path_);
    EXPECT_EQ(only().What, Kind::Open);
    EXPECT_EQ(only().Line, 2);
    EXPECT_EQ(only().Reason, "Type mismatch");
    EXPECT_EQ(only().SavesTo, "");
    EXPECT_TRUE(watch.readingIsBlocked());
    EXPECT_FALSE(watch.savingIsBlocked());
    exportResults(folder.file("results.txt"));
    ASSERT_THAT(watch.failures(), SizeIs(2));
    EXPECT_EQ(watch.failures()[0].What, Kind::ExportResults);
    EXPECT_EQ(watch.failures()[0].Reason, "File already open");
}

TEST_F(FormWatching, NewEndsWhatAFailedOpeningHasLeft) {
    saveTo(path_);
    openFrom(folder.file("missing.brn"));
    form.mnuNewProject.UserClick();
    EXPECT_THAT(watch.failures(), IsEmpty());
}

TEST_F(FormWatching, ANewThatIsNotCarriedOutEndsNothing) {
    openFrom(folder.file("missing.brn"));
    addSpecies({"Ant"});
    platform.Answers = {"yes"};  // and Cancel in the dialogue
    form.mnuNewProject.UserClick();
    EXPECT_EQ(only().What, Kind::Open);
}

TEST_F(FormWatching, AnImportSaysNothingOfAFailedOpening) {
    openFrom(folder.file("missing.brn"));
    writeFile(folder.file("species.txt"), "Ant\r\n");
    platform.Files = {folder.file("species.txt")};
    platform.Answers = {"no"};
    form.mnuImportData.UserClick();
    watch.look();
    EXPECT_EQ(global.TotalSpecies, 1);
    EXPECT_EQ(only().What, Kind::Open);
}

TEST_F(FormWatching, AnExportOfResultsThatFailsHalfWayBlocksReading) {
    fail(Operation::Write, ui::ErrorNumber::DiskFull);
    exportResults(folder.file("results.txt"));
    EXPECT_EQ(only().What, Kind::ExportResults);
    EXPECT_TRUE(watch.readingIsBlocked());
}

TEST_F(FormWatching, AnExportOfResultsThatCannotBeginBlocksNothing) {
    exportResults(folder.file("missing/results.txt"));
    EXPECT_EQ(only().What, Kind::ExportResults);
    EXPECT_FALSE(watch.readingIsBlocked());
    exportResults(folder.file("results.txt"));
    EXPECT_THAT(watch.failures(), IsEmpty());
}

TEST_F(FormWatching, AnImportAndATableThatEndTheProgramAreNamed) {
    platform.Files = {folder.file("missing.txt"), folder.file("missing/table.txt")};
    failureOf([&] { form.mnuImportData.UserClick(); });
    watch.look(true);
    EXPECT_EQ(only().What, Kind::Import);
    EXPECT_EQ(only().Path, folder.file("missing.txt"));
    failureOf([&] { form.mnuExportData.UserClick(); });
    watch.look(true);
    EXPECT_EQ(watch.failures().front().What, Kind::ExportTable);
    EXPECT_EQ(watch.failures().front().Path, folder.file("missing/table.txt"));
}

TEST_F(FormWatching, ASaveThatFailsByItsTablesIsOneThatFailedHalfWay) {
    open(ProjectText(2, 1, 1, 1));
    form.flxSummary(summary::Functionality).Rows(2);
    saveTo(path_);
    EXPECT_EQ(only().What, Kind::Save);
    EXPECT_EQ(only().Path, path_);
    EXPECT_EQ(only().Reason, "Subscript out of range");
    EXPECT_EQ(only().Line, 24) << "lines that stand in the file";
    EXPECT_TRUE(watch.savingIsBlocked());
}

TEST_F(FormWatching, ASaveWithoutANameTakesNothingBackThatABrokenOneHasTold) {
    addSpecies({"Ant"});
    fail(Operation::Write, ui::ErrorNumber::DiskFull);
    saveTo(path_);
    mend();
    platform.Answers = {"yes"};
    platform.Files = {path_};
    form.mnuExit.UserClick();
    watch.look();
    EXPECT_EQ(only().Path, path_);
    EXPECT_EQ(only().Reason, "Disk full");
}

TEST_F(FormWatching, AFileThatWasReadWholeIsToldAsSuch) {
    writeFile(path_, ProjectText(1, 1, 1, 1).set("Data Quality1", "x").text());
    openFrom(path_);
    EXPECT_TRUE(only().ReadWhole);
    EXPECT_FALSE(watch.readingIsBlocked());
}

TEST_F(FormWatching, ACancelledCommandIsNoFailure) {
    form.mnuSaveProject.UserClick();
    watch.look();
    EXPECT_THAT(watch.failures(), IsEmpty());
}

TEST_F(FormWatching, AFailureCanBeForgotten) {
    saveTo(folder.file("missing/landscape.brn"));
    watch.forget(Kind::Open);
    EXPECT_THAT(watch.failures(), SizeIs(1));
    watch.forget(Kind::Save);
    EXPECT_THAT(watch.failures(), IsEmpty());
    watch.look();
    EXPECT_THAT(watch.failures(), IsEmpty());
}

/// A project in which the second species has no dispersal.
class GapInEntries : public FormWatching {
protected:
    void SetUp() override {
        open(ProjectText(3, 1, 1, 1).set("Area Dispersal", "Y,N/A,N/A"));
        walkTo(6);
        watch.look();
        ASSERT_TRUE(watch.gap());
    }
};

TEST_F(GapInEntries, IsNamed) {
    EXPECT_EQ(watch.gap()->Table, "Area");
    EXPECT_EQ(watch.gap()->Row, "Species 2");
    EXPECT_EQ(watch.gap()->Column, "Dispersal > 10 km");
}

TEST_F(GapInEntries, StaysUntilSomethingElseStandsThere) {
    goTo(1);
    watch.look();
    EXPECT_TRUE(watch.gap());
    form.flxSummary(summary::Area).TextMatrix(2, area::Dispersal, "Y");
    watch.look();
    EXPECT_FALSE(watch.gap());
    goTo(6);
    watch.look();
    EXPECT_EQ(watch.gap()->Row, "Species 3");
}

TEST_F(GapInEntries, GoesWhenItIsForgottenOrItsRowIs) {
    form.flxSummary(summary::Area).Rows(2);
    EXPECT_EQ(watch.gap()->Row, "Species 2");  // as by the strip, while a command goes on
    watch.look();
    EXPECT_FALSE(watch.gap());
    goTo(6);
    watch.forgetGap();
    EXPECT_FALSE(watch.gap());
}

TEST_F(GapInEntries, IsNotToldAgainOnceItIsForgotten) {
    watch.forgetGap();
    goTo(1);
    watch.look();
    EXPECT_FALSE(watch.gap());
    goTo(6);
    watch.look();
    EXPECT_TRUE(watch.gap());  // it was found anew
}

TEST_F(GapInEntries, IsNotTakenForTheOneBelowWhenItsRowIsRemoved) {
    goTo(1);
    removeSpecies("2");
    watch.look();
    EXPECT_FALSE(watch.gap());
}

TEST_F(GapInEntries, GoesWhenSomethingElseKeepsTheScores) {
    goTo(2);
    type(form.txtTotalHabitatTypes, "1");
    form.cmdUpdateHabitatTypes.UserClick();
    form.flxHabitatTypes.UserEditCell(2, list::Name, "Moor");
    goTo(6);
    watch.look();
    EXPECT_FALSE(watch.gap());
}

TEST_F(GapInEntries, GoesWithItsProject) {
    form.ProjectChanged = false;
    form.mnuNewProject.UserClick();
    watch.look();
    EXPECT_FALSE(watch.gap());
}

TEST_F(FormWatching, AGapInAGradeIsNamedByItsSpeciesAndActivity) {
    open(ProjectText(2, 1, 1, 2).set("VulnerabilitybySpecies Recovery", "1,1,1,"));
    walkTo(6);
    watch.look();
    ASSERT_TRUE(watch.gap());
    EXPECT_EQ(watch.gap()->Row, "Species 2, Activity 2");
    EXPECT_EQ(watch.gap()->Column, "Recovery");
}

TEST_F(FormWatching, AGapIsLookedForInListsThatAreShorterThanTheTables) {
    open(ProjectText(2, 1, 1, 2).set("VulnerabilitybySpecies Recovery", "1,1,1,"));
    walkTo(6);
    watch.look();
    form.flxLandUses.Rows(2);
    form.flxCandidateSpecies.Rows(1);
    watch.look();
    EXPECT_FALSE(watch.gap());
}

TEST_F(FormWatching, ASpeciesWithoutAStatusIsAGap) {
    open(ProjectText(2, 1, 1, 1).set("Conservation Status", "0.5,0.5"));
    walkTo(7);
    form.flxSummary(summary::Vulnerability).TextMatrix(2, vulnerability::ConservationStatus, "");
    form.cmdComplement.UserClick();
    watch.look();
    EXPECT_EQ(watch.selectionObstacle(), SelectionObstacle::NoStatus);
    ASSERT_TRUE(watch.gap());
    EXPECT_EQ(watch.gap()->Row, "Species 2");
    watch.forgetGap();
    watch.look();
    EXPECT_FALSE(watch.gap());
}

/// A selection that was refused since a species was added after the scores.
class RefusedSelection : public FormWatching {
protected:
    void SetUp() override {
        open(ProjectText(2, 2, 2, 2));
        walkTo(7);
        goTo(1);
        addSpecies({"Newt"});
        goTo(4);
        goTo(7);
        form.cmdComplement.UserClick();
        watch.look();
        ASSERT_EQ(watch.selectionObstacle(), SelectionObstacle::OldScores);
    }
};

TEST_F(RefusedSelection, IsNamedUntilTheScoresPageIsShown) {
    goTo(4);
    watch.look();
    EXPECT_TRUE(watch.selectionObstacle());
    goTo(1);
    removeSpecies("3");
    goTo(6);
    watch.look();
    EXPECT_FALSE(watch.selectionObstacle());
}

TEST_F(RefusedSelection, IsNamedUntilTheResultsPageFindsNothingInItsWay) {
    goTo(1);
    removeSpecies("3");
    watch.look();
    EXPECT_TRUE(watch.selectionObstacle());
    goTo(4);
    goTo(7);
    watch.look();
    EXPECT_FALSE(watch.selectionObstacle());
}

TEST_F(RefusedSelection, TellsTheReasonThatThereIsNow) {
    goTo(1);
    for (int i = 0; i < 3; ++i) {
        removeSpecies("1");
    }
    goTo(4);
    goTo(7);
    watch.look();
    EXPECT_EQ(watch.selectionObstacle(), SelectionObstacle::NoSpecies);
}

TEST_F(RefusedSelection, GoesWithItsProject) {
    form.ProjectChanged = false;
    form.mnuNewProject.UserClick();
    watch.look();
    EXPECT_FALSE(watch.selectionObstacle());
}
