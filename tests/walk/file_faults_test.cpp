// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <functional>
#include <memory>

#include "entry/modErrorHandling.h"
#include "support/form_test.h"

namespace {

using Operation = ui::Files::Operation;
using testing::HasSubstr;

constexpr int ProjectLines = 40;
constexpr int InputNumber = 1;
constexpr int OutputNumber = 2;

/// A running program whose files fail at a chosen step, once or from then on.
struct Program {
    ScriptedPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};
    bool Struck = false;

    void failAt(Operation kind, int step, ui::ErrorNumber error, bool forever) {
        files.BeforeOperation = [this, kind, step, error, forever, count = 0](Operation operation) mutable {
            if (operation != kind) return;
            ++count;
            if (count != step && !(forever && count > step)) return;
            Struck = true;
            ui::raise(error);
        };
    }
    void mend() {
        files.BeforeOperation = nullptr;
        platform.Transcript.clear();
        platform.Answers.clear();
        platform.Files.clear();
    }

    void open(const std::string& path) {
        if (form.ProjectChanged) platform.Answers.push_front("no");
        platform.Files.push_back(path);
        form.mnuOpenProject.UserClick();
    }
    void save(const std::string& path) {
        platform.Files.push_back(path);
        form.mnuSaveProject.UserClick();
    }
};

/// What struck, for the checks that follow it.
struct Strike {
    int Step;
    ui::ErrorNumber Error;
    bool Forever;
    int number() const { return static_cast<int>(Error); }
};

class FileFaults : public testing::Test {
protected:
    TemporaryFolder folder;
    const std::string first = folder.file("first.brn");
    const std::string second = folder.file("second.brn");
    const std::string target = folder.file("target");

    FileFaults() {
        // Species 1 covers all, so that a selection on it finishes.
        writeFile(first, ProjectText(2, 2, 2, 2)
                             .set("HeteroHabitat Population", "3,3,1,1")
                             .set("HeteroJU Individual", "3,3,1,1")
                             .text());
        writeFile(second, ProjectText(3, 4, 5, 6).text());
    }

    using Act = std::function<void(Program&)>;
    using Check = std::function<void(Program&, const Strike&)>;

    /// Makes the steps of a kind fail one after the other, each in a program of its own, until the command runs
    /// through; returns how many steps there were.
    int sweep(Operation kind, const Act& prepare, const Act& command, const Check& check) {
        int steps = 0;
        for (const auto error :
             {ui::ErrorNumber::FileNotFound, ui::ErrorNumber::PermissionDenied, ui::ErrorNumber::DiskFull}) {
            for (const bool forever : {false, true}) {
                for (int step = 1;; ++step) {
                    SCOPED_TRACE("step " + std::to_string(step) + ", error " +
                                 std::to_string(static_cast<int>(error)) + (forever ? " from then on" : ""));
                    writeFile(target, "old");
                    auto program = std::make_unique<Program>();
                    prepare(*program);
                    program->platform.Transcript.clear();
                    program->platform.FileDialogs.clear();
                    program->failAt(kind, step, error, forever);
                    command(*program);
                    steps = step - 1;
                    if (!program->Struck) break;
                    check(*program, {step, error, forever});
                    if (HasFailure()) return steps;
                }
            }
        }
        return steps;
    }

    Act opened() {
        return [this](Program& program) { program.open(first); };
    }
    Act changed() {
        return [this](Program& program) {
            program.open(first);
            program.form.flxCandidateSpecies.UserEditCell(1, list::Name, "Renamed");
        };
    }
    Act saves() {
        return [this](Program& program) { program.save(target); };
    }
    Act opens() {
        return [this](Program& program) { program.open(second); };
    }

    /// The title and the file are those of the project before, and the user has seen nothing.
    void expectSilentEnd(Program& program) {
        EXPECT_EQ(program.form.Caption(), "Brenica - " + first);
        EXPECT_EQ(program.global.ProjectFileName, first);
        for (const ShownBox& box : program.platform.Transcript)
            EXPECT_EQ(box.BoxKind, ShownBox::Kind::Question) << box.Text;
        EXPECT_FALSE(program.form.Unloaded());
    }
    void expectEmptyProject(Program& program) {
        EXPECT_EQ(program.global.TotalSpecies, 0);
        EXPECT_EQ(program.global.TotalHabitatTypes, 0);
        EXPECT_EQ(program.form.flxCandidateSpecies.Rows(), 1);
        EXPECT_EQ(program.form.flxSummary(summary::Area).Rows(), 1);
        EXPECT_EQ(program.global.TotalFunctions, 6);
    }
    /// Number 2 is taken by the file that could not be finished.
    void expectNoMoreSaves(Program& program) {
        EXPECT_TRUE(program.files.IsOpen(OutputNumber));
        program.mend();
        program.save(folder.file("another.brn"));
        expectSilentEnd(program);
        EXPECT_EQ(program.files.LastFault()->Error.Number,
                  static_cast<int>(ui::ErrorNumber::FileAlreadyOpen));
    }
    /// Number 1 is taken: the next Open empties the project and comes no further.
    void expectNoMoreOpens(Program& program) {
        EXPECT_TRUE(program.files.IsOpen(InputNumber));
        program.mend();
        program.open(second);
        expectSilentEnd(program);
        expectEmptyProject(program);
        EXPECT_EQ(program.files.LastFault()->Error.Number,
                  static_cast<int>(ui::ErrorNumber::FileAlreadyOpen));
    }
    void expectSaveWorks(Program& program) {
        program.mend();
        const std::string path = folder.file("rescued.brn");
        program.save(path);
        EXPECT_EQ(program.form.Caption(), "Brenica - " + path);
        EXPECT_FALSE(program.files.IsOpen(OutputNumber));
    }

    static int linesOf(const std::string& path) {
        const std::string content = readFile(path);
        return static_cast<int>(std::count(content.begin(), content.end(), '\n'));
    }
};

/// The text of the report that ends the program, or nothing.
std::string reportFrom(const std::function<void()>& command) {
    try {
        command();
    } catch (const ui::RunTimeError& error) {
        EXPECT_EQ(error.Number, ReportedErrorNumber);
        return error.Description;
    }
    return "";
}

}  // namespace

TEST_F(FileFaults, SaveThatCannotOpenItsFileEndsSilentlyAndTheNextOneWorks) {
    const int steps = sweep(Operation::Open, opened(), saves(), [&](Program& program, const Strike&) {
        expectSilentEnd(program);
        EXPECT_FALSE(program.files.IsOpen(OutputNumber));
        EXPECT_EQ(readFile(target), "old");
        EXPECT_EQ(program.global.TotalSpecies, 2);
        expectSaveWorks(program);
    });
    EXPECT_EQ(steps, 1);
}

TEST_F(FileFaults, SaveThatCannotWriteLeavesItsFileOpenSoThatEveryLaterSaveFails) {
    const int steps = sweep(Operation::Write, opened(), saves(), [&](Program& program, const Strike&) {
        expectSilentEnd(program);
        EXPECT_EQ(program.global.TotalSpecies, 2);
        expectNoMoreSaves(program);
        program.mend();
        program.open(second);
        EXPECT_EQ(program.form.Caption(), "Brenica - " + second);
        EXPECT_EQ(program.global.TotalSpecies, 3);
    });
    EXPECT_EQ(steps, ProjectLines);
}

TEST_F(FileFaults, SaveThatCannotWriteLeavesTheLinesWrittenSoFar) {
    for (const int line : {1, 2, 25, ProjectLines}) {
        {
            Program program;
            program.open(first);
            program.failAt(Operation::Write, line, ui::ErrorNumber::DiskFull, false);
            program.save(target);
        }
        EXPECT_EQ(linesOf(target), line - 1);
    }
}

TEST_F(FileFaults, SaveThatCannotCloseLeavesItsFileOpenSoThatEveryLaterSaveFails) {
    const int steps = sweep(Operation::Close, opened(), saves(), [&](Program& program, const Strike&) {
        expectSilentEnd(program);
        expectNoMoreSaves(program);
    });
    EXPECT_EQ(steps, 1);
}

TEST_F(FileFaults, SaveReadsNothing) {
    EXPECT_EQ(sweep(Operation::Read, opened(), saves(), [](Program&, const Strike&) { FAIL(); }), 0);
}

TEST_F(FileFaults, NewWhoseSaveFailsKeepsTheProject) {
    const Act savesFirst = [this](Program& program) {
        program.platform.Answers = {"yes"};
        program.platform.Files = {target};
        program.form.mnuNewProject.UserClick();
    };
    for (const auto kind : {Operation::Open, Operation::Write, Operation::Close}) {
        const int steps = sweep(kind, changed(), savesFirst, [&](Program& program, const Strike&) {
            expectSilentEnd(program);
            EXPECT_EQ(program.global.TotalSpecies, 2);
            EXPECT_EQ(program.form.flxCandidateSpecies.TextMatrix(1, list::Name), "Renamed");
            EXPECT_TRUE(program.form.ProjectChanged);
            EXPECT_EQ(program.files.IsOpen(OutputNumber), kind != Operation::Open);
            program.mend();
            program.platform.Answers = {"no"};
            program.form.mnuNewProject.UserClick();
            EXPECT_EQ(program.form.Caption(), "Brenica");
            expectEmptyProject(program);
        });
        EXPECT_EQ(steps, kind == Operation::Write ? ProjectLines : 1);
    }
}

TEST_F(FileFaults, OpenWhoseSaveFailsShowsNoOpenDialogueAndKeepsTheProject) {
    const Act savesFirst = [this](Program& program) {
        program.platform.Answers = {"yes"};
        program.platform.Files = {target, second};
        program.form.mnuOpenProject.UserClick();
    };
    // The save comes first; steps behind it belong to the open and are looked at on their own.
    for (const auto kind : {Operation::Open, Operation::Write, Operation::Close}) {
        sweep(kind, changed(), savesFirst, [&](Program& program, const Strike& strike) {
            if (kind != Operation::Write && strike.Step > 1) return;
            expectSilentEnd(program);
            ASSERT_EQ(program.platform.FileDialogs.size(), 1u);
            EXPECT_EQ(program.platform.FileDialogs[0].Kind, ui::FileDialogKind::Save);
            EXPECT_EQ(program.global.TotalSpecies, 2);
            EXPECT_TRUE(program.form.ProjectChanged);
            EXPECT_EQ(program.files.IsOpen(OutputNumber), kind != Operation::Open);
        });
    }
}

TEST_F(FileFaults, ExitWithASaveEndsSilentlyWhateverFails) {
    const Act exits = [this](Program& program) {
        program.platform.Answers = {"yes"};
        program.platform.Files = {target};
        program.form.mnuExit.UserClick();
        EXPECT_FALSE(program.form.Unloaded());
    };
    const int steps = sweep(Operation::Open, changed(), exits, [&](Program& program, const Strike&) {
        expectSilentEnd(program);
        EXPECT_EQ(readFile(target), "old");
        EXPECT_EQ(program.global.TotalSpecies, 2);
    });
    EXPECT_EQ(steps, 1);
}

TEST_F(FileFaults, OpenThatCannotOpenItsFileLeavesAnEmptyProjectUnderTheOldTitle) {
    const int steps = sweep(Operation::Open, opened(), opens(), [&](Program& program, const Strike&) {
        expectSilentEnd(program);
        expectEmptyProject(program);
        EXPECT_FALSE(program.form.ProjectLoading);
        EXPECT_FALSE(program.files.IsOpen(InputNumber));
        program.mend();
        program.open(second);
        EXPECT_EQ(program.form.Caption(), "Brenica - " + second);
        EXPECT_EQ(program.global.TotalSpecies, 3);
    });
    EXPECT_EQ(steps, 1);
}

TEST_F(FileFaults, OpenThatCannotReadOnKeepsTheGridsAsFarAsTheyCame) {
    // Lines of the file that bring each list.
    struct Brought {
        int Line;
        int modGlobal::*Total;
        int Count;
    };
    constexpr Brought Lists[] = {{2, &modGlobal::TotalSpecies, 3},
                                 {4, &modGlobal::TotalHabitatTypes, 4},
                                 {7, &modGlobal::TotalJurisUnits, 5},
                                 {10, &modGlobal::TotalLandUses, 6}};
    const int steps = sweep(Operation::Read, opened(), opens(), [&](Program& program, const Strike& strike) {
        expectSilentEnd(program);
        EXPECT_TRUE(program.form.ProjectLoading);
        EXPECT_EQ(program.form.CurrentMainTab, 1);
        const int read = strike.Step - 1;
        for (const Brought& list : Lists)
            EXPECT_EQ(program.global.*list.Total, read >= list.Line ? list.Count : 0);
        const ui::Grid& areas = program.form.flxSummary(summary::Area);
        if (read >= 2) {
            EXPECT_EQ(areas.TextMatrix(1, area::Connectivity), read >= 18 ? "Y" : "");
        }
        EXPECT_EQ(program.form.cbxSpeciesName.ListCount(), 0);
        expectNoMoreOpens(program);
        EXPECT_TRUE(program.form.ProjectLoading);
        expectSaveWorks(program);
    });
    EXPECT_EQ(steps, ProjectLines);
}

TEST_F(FileFaults, OpenThatCannotCloseHasReadAllButFillsNoSpeciesSelector) {
    const int steps = sweep(Operation::Close, opened(), opens(), [&](Program& program, const Strike&) {
        expectSilentEnd(program);
        EXPECT_TRUE(program.form.ProjectLoading);
        EXPECT_EQ(program.global.TotalSpecies, 3);
        EXPECT_EQ(program.form.flxSummary(summary::DataQuality).TextMatrix(3, 5), "1");
        EXPECT_EQ(program.form.cbxSpeciesName.ListCount(), 0);
        expectNoMoreOpens(program);
    });
    EXPECT_EQ(steps, 1);
}

TEST_F(FileFaults, ImportAfterAFailedOpenEndsTheProgramSinceTheNumberIsTaken) {
    writeFile(folder.file("list.txt"), "Otter\r\n");
    Program program;
    program.open(first);
    program.failAt(Operation::Read, 5, ui::ErrorNumber::PermissionDenied, false);
    program.open(second);
    program.mend();
    program.platform.Answers = {"no"};
    program.platform.Files = {folder.file("list.txt")};
    const std::string report = reportFrom([&] { program.form.mnuImportData.UserClick(); });
    EXPECT_EQ(report, reportOf("Brenica.ImportData", 55, "File already open"));
}

namespace {

/// Imports a file into the list of species, and keeps the report.
class ImportFaults : public FileFaults {
protected:
    std::string report;

    Act imports(const std::string& content, const std::string& heading) {
        return [this, content, heading](Program& program) {
            writeFile(target, content);
            program.platform.Answers = {heading};
            program.platform.Files = {target};
            report = reportFrom([&] { program.form.mnuImportData.UserClick(); });
        };
    }
    static void nothing(Program&) {}
    static std::string described(const Strike& strike) { return ui::describe(strike.Error); }
};

}  // namespace

TEST_F(ImportFaults, FileThatCannotBeOpenedEndsTheProgram) {
    const int steps = sweep(
        Operation::Open, nothing, imports("a\r\nb\r\n", "no"), [&](Program& program, const Strike& strike) {
            EXPECT_EQ(report, reportOf("Brenica.ImportData", strike.number(), described(strike)));
            EXPECT_EQ(program.global.TotalSpecies, 0);
            EXPECT_FALSE(program.files.IsOpen(InputNumber));
        });
    EXPECT_EQ(steps, 1);
    EXPECT_EQ(report, "");
}

TEST_F(ImportFaults, LineThatCannotBeReadEndsTheProgramBehindTheRowsBeforeIt) {
    const int steps =
        sweep(Operation::Read, nothing, imports("a\r\nb\r\nc\r\n", "no"),
              [&](Program& program, const Strike& strike) {
                  EXPECT_EQ(report, reportOf("Brenica.GetCheckData", strike.number(), described(strike)));
                  EXPECT_EQ(program.global.TotalSpecies, strike.Step - 1);
                  EXPECT_EQ(program.form.flxCandidateSpecies.Rows(), strike.Step);
                  EXPECT_FALSE(program.files.IsOpen(InputNumber));
              });
    EXPECT_EQ(steps, 3);
}

TEST_F(ImportFaults, HeadingLineThatCannotBeReadEndsTheProgram) {
    const int steps =
        sweep(Operation::Read, nothing, imports("Common Name\r\nb\r\n", "yes"),
              [&](Program& program, const Strike& strike) {
                  EXPECT_EQ(report, reportOf("Brenica.GetCheckData", strike.number(), described(strike)));
                  EXPECT_EQ(program.global.TotalSpecies, 0);
              });
    EXPECT_EQ(steps, 2);
}

TEST_F(ImportFaults, FileThatCannotBeClosedEndsTheProgramBehindAllRows) {
    const int steps = sweep(
        Operation::Close, nothing, imports("a\r\nb\r\n", "no"), [&](Program& program, const Strike& strike) {
            EXPECT_EQ(report, reportOf("Brenica.ImportData", strike.number(), described(strike)));
            EXPECT_EQ(program.global.TotalSpecies, 2);
            // The trap closes it once more.
            EXPECT_EQ(program.files.IsOpen(InputNumber), strike.Forever);
        });
    EXPECT_EQ(steps, 1);
}

TEST_F(ImportFaults, FileThatCannotBeClosedAtItsEmptyLineEndsTheProgram) {
    const int steps =
        sweep(Operation::Close, nothing, imports("a\r\n\r\nb\r\n", "no"),
              [&](Program& program, const Strike& strike) {
                  EXPECT_EQ(report, reportOf("Brenica.GetCheckData", strike.number(), described(strike)));
                  EXPECT_EQ(program.global.TotalSpecies, 1);
              });
    EXPECT_EQ(steps, 1);
}

namespace {

/// Exports the table of the page on view, and keeps the report.
class ExportFaults : public FileFaults {
protected:
    std::string report;

    Act exports() {
        return [this](Program& program) {
            program.platform.Files = {target};
            report = reportFrom([&] { program.form.mnuExportData.UserClick(); });
        };
    }
    Act onPage(int page) {
        return [this, page](Program& program) {
            program.open(second);
            for (int i = 2; i <= page; ++i) program.form.tabBrenica.UserSelectTab(i);
        };
    }
};

}  // namespace

TEST_F(ExportFaults, EveryFaultOfATableEndsTheProgramWithItsReport) {
    const std::pair<Operation, int> kinds[] = {
        {Operation::Open, 1}, {Operation::Write, 4}, {Operation::Close, 1}, {Operation::Read, 0}};
    for (const auto& [kind, steps] : kinds) {
        EXPECT_EQ(sweep(kind, onPage(1), exports(),
                        [&](Program& program, const Strike& strike) {
                            EXPECT_EQ(report, reportOf("Brenica.MenuSelectionDataGrid", strike.number(),
                                                       ui::describe(strike.Error)));
                            EXPECT_EQ(program.form.flxCandidateSpecies.TextMatrix(3, list::Name),
                                      "Species 3");
                        }),
                  steps);
        EXPECT_EQ(report, "") << "of the export that ran through";
    }
}

TEST_F(ExportFaults, TableThatFailsKeepsTheLongHeadings) {
    const Act vulnerability = [this](Program& program) {
        onPage(4)(program);
        program.form.tabCriteriaSummary.UserSelectTab(4);
    };
    const int steps = sweep(Operation::Write, vulnerability, exports(), [&](Program& program, const Strike&) {
        const ui::Grid& grid = program.form.flxSummary(summary::Vulnerability);
        EXPECT_THAT(report, HasSubstr("Source: Brenica.Brenica.MenuSelectionDataGrid\r\n"));
        EXPECT_EQ(grid.TextMatrix(0, 3), "Activity 1");
        EXPECT_EQ(grid.TextMatrix(0, 8), "Activity 6");
        EXPECT_FALSE(grid.Redraw());
    });
    EXPECT_EQ(steps, 7);
}

// The grid writes its file itself, by its path; the number that a failed save keeps is none of its concern.
TEST_F(ExportFaults, TableIsExportedAfterAFailedSave) {
    Program program;
    program.open(first);
    program.failAt(Operation::Write, 3, ui::ErrorNumber::DiskFull, false);
    program.save(folder.file("full.brn"));
    program.mend();
    exports()(program);
    EXPECT_EQ(report, "");
    EXPECT_EQ(linesOf(target), 3);
}

namespace {

/// Exports the results of a selection.
class ResultsFaults : public FileFaults {
protected:
    Act selected() {
        return [this](Program& program) {
            program.open(first);
            for (int page = 2; page <= 7; ++page) program.form.tabBrenica.UserSelectTab(page);
            program.form.cmdComplement.UserClick();
            ASSERT_TRUE(program.form.cmdExportResults.Enabled());
        };
    }
    Act exports() {
        return [this](Program& program) {
            program.platform.Files = {target};
            program.form.cmdExportResults.UserClick();
        };
    }
};

}  // namespace

TEST_F(ResultsFaults, FileThatCannotBeOpenedEndsTheCommandSilentlyAndTheNextOneWorks) {
    const int steps = sweep(Operation::Open, selected(), exports(), [&](Program& program, const Strike&) {
        expectSilentEnd(program);
        EXPECT_EQ(readFile(target), "old");
        EXPECT_FALSE(program.files.IsOpen(InputNumber));
        program.mend();
        exports()(program);
        EXPECT_THAT(readFile(target), HasSubstr("The Suite of Brenic Species:"));
    });
    EXPECT_EQ(steps, 1);
}

TEST_F(ResultsFaults, FileThatCannotBeFinishedStaysOpenSoThatTheNextExportAndOpenFail) {
    for (const auto kind : {Operation::Write, Operation::Close}) {
        const int steps = sweep(kind, selected(), exports(), [&](Program& program, const Strike&) {
            expectSilentEnd(program);
            EXPECT_TRUE(program.files.IsOpen(InputNumber));
            const std::string again = folder.file("again.txt");
            program.mend();
            program.platform.Files = {again};
            program.form.cmdExportResults.UserClick();
            EXPECT_TRUE(program.platform.Transcript.empty());
            EXPECT_FALSE(std::filesystem::exists(again));
            expectNoMoreOpens(program);
            expectSaveWorks(program);
        });
        EXPECT_EQ(steps, kind == Operation::Close ? 1 : linesOf(target));
    }
}
