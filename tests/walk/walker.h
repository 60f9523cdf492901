// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <deque>
#include <exception>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "entry/modErrorHandling.h"
#include "project/pages.h"
#include "support/form_test.h"
#include "walk/allowed_failures.h"
#include "walk/form_invariants.h"
#include "walk/random_projects.h"

/// How a walk ended.
enum class WalkEnd { Running, Tired, Failure, Left, Defect };

/// One run of the program under random hands. Every deed goes through the entry points of a user, on what is on view;
/// after each the form is looked over. A failure that leaves the form ends the walk, as it ends the program.
class Walker {
public:
    explicit Walker(std::uint64_t walkSeed) : Walker(Random(walkSeed), std::to_string(walkSeed)) {}
    /// A walk that bytes decide on.
    explicit Walker(std::string_view bytes) : Walker(Random(bytes), "of bytes") {}

    /// Does up to `deeds` deeds, or until the bytes are used up.
    void run(int deeds);

    // What the report counts.
    WalkEnd End = WalkEnd::Running;
    std::array<int, static_cast<std::size_t>(Deed::Count)> Deeds{};
    int Total = 0;
    std::string Ending;   ///< of a failure: deed, number and source
    std::string Trouble;  ///< of a defect: what, and the last deeds
    bool Selected = false;
    bool DamagedFile = false;  ///< the project on view comes from one

    ScriptedPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};

    /// Saves the project as it stands; the path, or nothing where a save is not possible.
    std::string saveNow();
    /// Whether a file saved now gives grids in step.
    bool savesInStep();
    bool running() const { return End == WalkEnd::Running; }
    void act(Deed deed, const std::string& detail, const std::function<void()>& action);

    // walk_pages.h: deeds on what is on view
    void randomDeed();
    void completeAndSelect();
    void openComplete(bool straight);
    /// A page move that went through has put the tab strip in order.
    void noPageLeeway() {
        leeway_.StrayPage = leeway_.StrayPage && form.tabBrenica.SelectedItem() != form.CurrentMainTab;
    }

private:
    friend class PageDeeds;

    Walker(Random random, std::string name) : random_(std::move(random)), name_(std::move(name)) {
        platform.Folder = folder_.path();
        trackShapes();
    }

    void randomAnswers();
    void judge(Deed deed, const ui::RunTimeError& error);
    void lookOver(Deed deed);
    void defect(const std::string& what);
    void trackShapes();
    void noteRemovals();

    // Commands of the menus.
    struct ProjectFile {
        std::string Path;
        bool InStep = true;  ///< opening it gives grids in step
        bool Whole = false;  ///< and a save then gives the same text
    };
    void closeEditor();
    void projectCommand(Deed deed, ui::MenuItem& item, const ProjectFile* opened);
    void judgeUnfinished(const ProjectFile* opened);
    void requireNewProject();
    void requireSameText(const ProjectFile& opened);
    void noteGateRefusal();
    void newProject();
    void openProject();
    void saveProject();
    ProjectFile randomProjectFile();

    std::string newPath(const char* extension) {
        return folder_.file("f" + std::to_string(++fileNumber_) + extension);
    }

    TemporaryFolder folder_;
    Random random_;
    std::string name_;
    Leeway leeway_;
    int habitatsBefore_ = 0;
    int zonesBefore_ = 0;
    int fileNumber_ = 0;
    bool manyRows_ = false;
    std::vector<ProjectFile> saved_;
    std::deque<std::string> trail_;
};

inline void Walker::randomAnswers() {
    platform.Transcript.clear();
    platform.Answers.clear();
    platform.Files.clear();
    platform.FileDialogs.clear();
    for (int i = 0; i < 12; ++i) {
        platform.Answers.push_back(random_.pick(
            {"yes", "yes", "yes", "no", "a", "b", "c", "d", "e", "1", "2", "3", "", "x", " B "}));
    }
}

inline void Walker::act(Deed deed, const std::string& detail, const std::function<void()>& action) {
    if (!running()) return;
    ++Total;
    ++Deeds[static_cast<std::size_t>(deed)];
    trail_.push_back(std::string(nameOf(deed)) + " " + detail + " (page " +
                     std::to_string(form.CurrentMainTab) + ")");
    if (trail_.size() > 40) trail_.pop_front();
    try {
        action();
    } catch (const ui::RunTimeError& error) {
        return judge(deed, error);
    } catch (const std::exception& error) {
        return defect(std::string("an exception that is no run-time failure: ") + error.what());
    }
    if (form.Unloaded()) {
        End = WalkEnd::Left;
        return;
    }
    if (running()) lookOver(deed);
}

inline void Walker::judge(Deed deed, const ui::RunTimeError& error) {
    End = WalkEnd::Failure;
    const Report report = readReport(error.Description);
    if (error.Number != ReportedErrorNumber || report.Source.empty()) {
        return defect("a failure without its report: " + std::to_string(error.Number) + " " +
                      error.Description);
    }
    if (error.Source != "Brenica." + report.Source) {
        return defect("a report that names " + report.Source + " of a failure from " + error.Source);
    }
    Ending = std::string(nameOf(deed)) + ": " + std::to_string(report.Number) + " in " + report.Source;
    if (DamagedFile) Ending = "of a damaged file, " + Ending;
    if (!isAllowed(deed, report.Number, report.Source, DamagedFile)) defect("no rule allows " + Ending);
}

inline void Walker::defect(const std::string& what) {
    End = WalkEnd::Defect;
    Trouble = "walk " + name_ + ", deed " + std::to_string(Total) + ": " + what + "\n";
    for (const std::string& deed : trail_) Trouble += "    " + deed + "\n";
}

/// Between the deeds all must fit, unless the file was damaged.
inline void Walker::lookOver(Deed deed) {
    const auto report = [&](const std::vector<std::string>& problems) {
        if (!problems.empty()) defect(std::string("after ") + nameOf(deed) + ": " + problems.front());
    };
    FormInvariants invariants(form, leeway_);
    if (DamagedFile) return report(invariants.problemsOfADamagedFile());
    noteRemovals();
    report(invariants.problems());
    if (running()) report(invariants.problemsOfView());
    if (running() && invariants.ratingsDifferWithoutActivities()) leeway_.StrayRatings = true;
    if (running() && deed != Deed::MouseMove) report(invariants.problemsOfContent());
    trackShapes();
}

inline void Walker::noteRemovals() {
    if (global.TotalHabitatTypes < habitatsBefore_) leeway_.StrayHabitatCells = true;
    if (global.TotalJurisUnits < zonesBefore_) leeway_.StrayZoneCells = true;
    // From the pages before, each of these is entered with a calculation of use.
    if (form.CurrentMainTab < page::Summary) return;
    leeway_.StrayHabitatCells = false;
    leeway_.StrayZoneCells = false;
}

inline void Walker::trackShapes() {
    leeway_.DataQualityRows = form.flxSummary(summary::DataQuality).Rows();
    leeway_.SpeciesBefore = global.TotalSpecies;
    habitatsBefore_ = global.TotalHabitatTypes;
    zonesBefore_ = global.TotalJurisUnits;
}

/// A command of a menu closes an open cell editor first; done apart, so that the walk knows what the command will ask.
inline void Walker::closeEditor() {
    ui::Grid* grid = form.EditingGrid();
    if (grid == nullptr) return;
    randomAnswers();
    act(Deed::EditCell, "of " + grid->Name() + ", closed", [&] {
        if (!grid->UserCommitEdit()) grid->UserCancelEdit();
    });
}

/// Runs New or Open. The dialogue's folder, which all commands that run through clear, tells whether one did.
inline void Walker::projectCommand(Deed deed, ui::MenuItem& item, const ProjectFile* opened) {
    closeEditor();
    if (!running()) return;
    randomAnswers();
    const bool asked = form.ProjectChanged;
    const bool saves = asked && random_.chance(20);
    if (asked) platform.Answers.push_front(saves ? "yes" : "no");
    ProjectFile saving{newPath(".brn"), savesInStep()};
    if (saves) {
        random_.chance(20) ? platform.Files.emplace_back() : platform.Files.emplace_back(saving.Path);
    }
    if (opened != nullptr) {
        random_.chance(5) ? platform.Files.emplace_back() : platform.Files.emplace_back(opened->Path);
    }
    const std::string title = form.Caption();
    const bool savePossible = !files.IsOpen(2);
    bool reached = false;
    act(deed, opened != nullptr ? opened->Path : "", [&] {
        files.ClearLastFault();
        form.cdgFileDialog.InitDir = "not finished";
        const auto planned = platform.Files;
        item.UserClick();
        const bool finished = form.cdgFileDialog.InitDir.empty();
        const std::size_t shown = std::min(platform.FileDialogs.size(), planned.size());
        const bool cancelled = shown > 0 && !planned[shown - 1];
        const std::size_t dialogs = (saves ? 1u : 0u) + (opened != nullptr ? 1u : 0u);
        const bool saveFailed = saves && !cancelled && platform.FileDialogs.size() < dialogs;
        reached = !cancelled && !saveFailed && (!saves || savePossible);
        if (!finished && form.Caption() != title) defect("a command that did not finish changed the title");
        if (!reached) return;
        leeway_ = Leeway();
        noteGateRefusal();
        DamagedFile = opened != nullptr && finished && !opened->InStep;
        if (!finished) judgeUnfinished(opened);
        if (finished && opened == nullptr) requireNewProject();
        if (finished && opened != nullptr && opened->Whole && savePossible) requireSameText(*opened);
        trackShapes();
    });
    if (saves && running() && files.LastFault() == std::nullopt && savePossible && reached)
        saved_.push_back(saving);
}

/// Once the project is cleared only the file can end a command: it cannot be opened, and the project is a new one, or it
/// holds a line that cannot be read, as no saved one does.
inline void Walker::judgeUnfinished(const ProjectFile* opened) {
    if (opened == nullptr) return defect("New did not finish");
    if (!files.LastFault()) return defect("Open did not come to the reading of its file");
    if (files.LastFault()->Line == 0) {
        if (global.TotalSpecies != 0 || form.flxCandidateSpecies.Rows() != 1)
            defect("a file that cannot be opened leaves no empty project");
    } else {
        if (opened->InStep) defect("a sound file cannot be read");
        DamagedFile = true;
    }
}

inline void Walker::requireNewProject() {
    const bool empty = global.TotalSpecies == 0 && global.TotalHabitatTypes == 0 &&
                       global.TotalJurisUnits == 0 && global.TotalLandUses == 0 && global.TotalBins == 0 &&
                       global.TotalFunctions == 6 && form.cbxSpeciesName.ListCount() == 0 &&
                       form.cbxUserDefBinsHR.ListCount() == 0;
    if (!empty || form.CurrentMainTab != 1 || form.CurrentSpeciesIndex != 0 || form.HomeRangeType != 0 ||
        form.ScoreDisplayMode != 0 || form.ProjectChanged || global.ScoresCalculated)
        defect("New does not give a new project");
}

/// Whatever was open before, a complete project is the one of its file.
inline void Walker::requireSameText(const ProjectFile& opened) {
    const bool version2 = readFile(opened.Path).starts_with("Project Version");
    const std::string path = newPath(".brn");
    form.SaveProject(path);
    if (version2 && readFile(path) != readFile(opened.Path))
        defect("what was opened is not what stands in " + opened.Path);
}

/// A gate that is told No while the project is cleared leaves the tab strip where it was.
inline void Walker::noteGateRefusal() {
    for (const ShownBox& box : platform.Transcript) {
        const bool refused = box.BoxKind == ShownBox::Kind::Question && box.Answer == "no";
        if (refused && box.Title == "Invalid value") leeway_.StrayPage = true;
    }
}

inline void Walker::newProject() { projectCommand(Deed::NewProject, form.mnuNewProject, nullptr); }

inline void Walker::openProject() {
    const ProjectFile file = randomProjectFile();
    projectCommand(Deed::OpenProject, form.mnuOpenProject, &file);
}

inline void Walker::saveProject() {
    closeEditor();
    ProjectFile saving{newPath(".brn"), savesInStep()};
    randomAnswers();
    const int how = random_.below(10);
    if (how == 0) platform.Files.emplace_back();
    if (how == 1) platform.Files.emplace_back(folder_.file("no such folder/p.brn"));
    if (how > 1) platform.Files.emplace_back(saving.Path);
    act(Deed::SaveProject, saving.Path, [&] {
        files.ClearLastFault();
        form.cdgFileDialog.InitDir = "not finished";
        form.mnuSaveProject.UserClick();
        const bool finished = form.cdgFileDialog.InitDir.empty();
        if (!DamagedFile && how > 1 && !files.LastFault() && !finished) defect("a save did not finish");
        if (finished) saved_.push_back(saving);
    });
}

inline std::string Walker::saveNow() {
    closeEditor();
    const std::string path = newPath(".brn");
    platform.Files = {path};
    form.cdgFileDialog.InitDir = "not finished";
    act(Deed::SaveProject, path, [&] { form.mnuSaveProject.UserClick(); });
    return running() && form.cdgFileDialog.InitDir.empty() ? path : "";
}

/// A comma or a line end in a cell moves the values behind it to other rows, and a list of one blank name reads as no
/// list at all: then what is opened again may not fit.
inline bool Walker::savesInStep() {
    if (DamagedFile) return false;
    for (const ui::Control* control : form.Controls()) {
        const auto* grid = dynamic_cast<const ui::Grid*>(control);
        if (grid == nullptr) continue;
        for (int row = 1; row < grid->Rows(); ++row) {
            for (int col = 1; col < grid->Cols(); ++col) {
                if (grid->TextMatrix(row, col).find_first_of(",\r") != std::string::npos) return false;
            }
        }
    }
    return true;
}

inline Walker::ProjectFile Walker::randomProjectFile() {
    const int kind = random_.below(100);
    if (kind < 25 && !saved_.empty()) return random_.pick(saved_);
    if (kind < 28) return {folder_.file("missing.brn"), true};
    const bool complete = kind < 70;
    const ProjectSizes sizes =
        complete ? ProjectSizes{random_.between(1, 8), random_.between(1, 6), random_.between(1, 5),
                                random_.between(1, 5)}
                 : ProjectSizes{random_.below(4), random_.below(4), random_.below(4), random_.below(4)};
    RandomProject project(random_, sizes);
    if (random_.chance(15)) project.turnIntoVersion1();
    const bool broken = random_.chance(12);
    const std::string path = newPath(".brn");
    writeFile(path, broken ? damaged(random_, project.text.text()) : project.text.text());
    return {path, !broken, !broken};
}
