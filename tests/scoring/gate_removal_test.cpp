// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <ctime>

#include "scoring_test.h"
#include "ui/text.h"

namespace {

using Cells = std::map<std::string, std::vector<std::string>>;

/// A running form of its own.
struct Program {
    ScriptedPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};

    void openFile(const std::string& path) {
        platform.Files.assign(1, path);
        form.mnuOpenProject.UserClick();
    }

    /// The texts of every grid and list of items, by name.
    Cells cells() {
        Cells found;
        int number = 0;
        for (const ui::Control* control : form.Controls()) {
            std::vector<std::string>& texts = found[control->Name() + "#" + std::to_string(++number)];
            if (const auto* grid = dynamic_cast<const ui::Grid*>(control)) {
                texts.push_back(std::to_string(grid->Rows()) + " by " + std::to_string(grid->Cols()));
                for (int row = 0; row < grid->Rows(); ++row) {
                    for (int col = 0; col < grid->Cols(); ++col)
                        texts.emplace_back(grid->TextMatrix(row, col));
                }
            } else if (const auto* box = dynamic_cast<const ui::ComboBox*>(control)) {
                texts.push_back(std::to_string(box->ListIndex()));
                for (int i = 0; i < box->ListCount(); ++i) texts.push_back(box->List(i));
            }
        }
        return found;
    }
};

constexpr int Breakpoints = 3;

/// A list of the form, with the frame that it stands in; -1 for the species page.
struct List {
    int Frame;
    ui::Grid frmBrenica::*Grid;
    ui::TextBox frmBrenica::*RemoveIndex;
    ui::CommandButton frmBrenica::*Remove;
    const char* Key;
    std::vector<const char*> OtherKeys;
};

const List Lists[] = {
    {-1,
     &frmBrenica::flxCandidateSpecies,
     &frmBrenica::txtRemoveSpeciesIndex,
     &frmBrenica::cmdRemoveSpecies,
     "Common Name",
     {}},
    {0,
     &frmBrenica::flxHabitatTypes,
     &frmBrenica::txtRemoveHabitatIndex,
     &frmBrenica::cmdRemoveHabitatType,
     "Habitat Type",
     {}},
    {1,
     &frmBrenica::flxJurisUnits,
     &frmBrenica::txtRemoveJurisUnitIndex,
     &frmBrenica::cmdRemoveJurisUnit,
     "Jurisdictional Unit",
     {}},
    {2,
     &frmBrenica::flxLandUses,
     &frmBrenica::txtRemoveLandUseIndex,
     &frmBrenica::cmdRemoveLandUse,
     "Land Use",
     {"Urgency", "Probability of occurence"}},
    {3,
     &frmBrenica::flxBins,
     &frmBrenica::txtRemoveBinIndex,
     &frmBrenica::cmdRemoveBin,
     "Home-range definition",
     {}},
    {4,
     &frmBrenica::flxFunctions,
     &frmBrenica::txtRemoveFunctionIndex,
     &frmBrenica::cmdRemoveFunction,
     "Functions",
     {}},
};

void show(Program& program, const List& list) {
    if (list.Frame < 0) return;
    program.form.tabBrenica.UserSelectTab(2);
    program.form.optLandChar(list.Frame).UserClick();
}

/// Passes the gate of the list with Yes.
void leave(Program& program, const List& list) {
    program.platform.Transcript.clear();
    program.platform.Answers.assign(3, "yes");
    if (list.Frame < 0) return program.form.tabBrenica.UserSelectTab(2);
    program.form.optLandChar(list.Frame == 0 ? 1 : 0).UserClick();
}

}  // namespace

/// Yes at a gate removes the blank rows of a list together.
class GateRemoval : public ScoringTest {
protected:
    std::string fileOf(const ProjectText& project) {
        writeFile(folder.file("blank.brn"), project.text());
        return folder.file("blank.brn");
    }
    /// Levels and ratings that tell every row from the others.
    static ProjectText distinct(int species, int habitats, int zones, int activities) {
        const auto counted = [](int count) {
            std::string values;
            for (int i = 0; i < count; ++i) values += (i > 0 ? "," : "") + std::to_string(i);
            return values;
        };
        ProjectText project(species, habitats, zones, activities);
        name(project, Lists[Breakpoints + 1], "1,2,3,4,5");
        project.set("Functions", "a,b,c,d,e").remove("Function6");
        project.set("HeteroHabitat Population", counted(species * habitats))
            .set("HeteroJU Individual", counted(species * zones));
        for (const char* rating : {"Severity", "Recovery", "Proportion"})
            project.set(std::string("VulnerabilitybySpecies ") + rating, counted(species * activities));
        for (int i = 1; i <= 5; ++i) project.set("Function" + std::to_string(i), counted(species));
        return project;
    }
    /// `names` in the list's line of the file; breakpoints stand behind their type.
    static void name(ProjectText& project, const List& list, const std::string& names) {
        project.set(list.Key, list.Frame == Breakpoints ? "user-defined bins," + names : names);
    }
    /// Both programs blank the same names; one removes them by the button, the last first, the other at the gate.
    void expectSameAsOneByOne(const List& list, const ProjectText& project,
                              const std::vector<std::string>& names, bool visited) {
        SCOPED_TRACE(list.Key + (": " + testing::PrintToString(names)));
        Program together;
        Program oneByOne;
        for (Program* program : {&together, &oneByOne}) {
            program->openFile(fileOf(project));
            program->form.tabBrenica.UserSelectTab(visited ? 4 : 1);  // where the totals blocks are added
            program->form.tabBrenica.UserSelectTab(1);
            show(*program, list);
            for (std::size_t i = 0; i < names.size(); ++i)
                (program->form.*list.Grid).UserEditCell(static_cast<int>(i) + 1, list::Name, names[i]);
            program->form.ProjectChanged = false;
        }
        for (int row = static_cast<int>(names.size()); row >= 1; --row) {
            if (!ui::isBlank(names[static_cast<std::size_t>(row) - 1])) continue;
            put(oneByOne.form.*list.RemoveIndex, row);
            (oneByOne.form.*list.Remove).UserClick();
        }
        leave(oneByOne, list);
        EXPECT_TRUE(oneByOne.platform.Transcript.empty());
        leave(together, list);
        EXPECT_EQ(together.platform.Transcript.size(), 1U);
        EXPECT_EQ(together.form.ProjectChanged, oneByOne.form.ProjectChanged);
        const Cells expected = oneByOne.cells();
        for (const auto& [control, texts] : together.cells())
            EXPECT_EQ(texts, expected.at(control)) << control;
    }
    static void put(ui::TextBox& box, int number) {
        box.SelStart(0);
        box.SelLength(static_cast<int>(box.Text().size()));
        box.UserPaste(std::to_string(number));
    }
};

TEST_F(GateRemoval, LeavesWhatTheRemovalOfOneRowAfterTheOtherLeaves) {
    const std::vector<std::string> patterns[] = {
        {"a", "", "c", "", "e"},  {"", "", "c", "d", "e"}, {"", "b", "", "", "e"}, {"a", " ", "c", "d", "e"},
        {"a", "b", "c", "d", ""}, {"", "", "c", "d", ""},  {"", "", "", "", ""}};
    for (const List& list : Lists) {
        for (const std::vector<std::string>& names : patterns) {
            // The last breakpoint cannot be removed while the labels are there.
            if (list.Frame == Breakpoints && names.back().empty()) continue;
            for (const bool visited : {false, true})
                expectSameAsOneByOne(list, distinct(5, 5, 5, 5), names, visited);
            if (list.Frame >= 0) expectSameAsOneByOne(list, distinct(0, 5, 5, 5), names, false);
            if (list.Frame < 0) expectSameAsOneByOne(list, distinct(5, 0, 0, 0), names, false);
        }
    }
}

TEST_F(GateRemoval, OfManyRowsTakesTimeInProportionToThem) {
    constexpr int Rows = 40000;
    constexpr double MostSeconds = 5;
    std::string names = "first";
    for (int row = 2; row <= Rows; ++row) names += row % 4 == 0 ? ",row" : ",";
    for (const List& list : Lists) {
        ProjectText project = list.Frame < 0 ? ProjectText(Rows, 2, 2, 2) : ProjectText(2, 1, 1, 1);
        name(project, list, names);
        for (const char* key : list.OtherKeys) project.set(key, repeated("1", Rows));
        Program program;
        program.openFile(fileOf(project));
        show(program, list);
        ASSERT_EQ((program.form.*list.Grid).Rows(), Rows + 1);
        const std::clock_t start = std::clock();
        leave(program, list);
        const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
        EXPECT_LT(seconds, MostSeconds) << list.Key;
        EXPECT_EQ((program.form.*list.Grid).Rows(), Rows / 4 + 2) << list.Key;
        std::cout << list.Key << ": " << seconds << " s\n";
    }
}
