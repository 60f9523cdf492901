// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "walk/complete_project.h"

namespace {

struct RunningForm {
    ScriptedPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};

    bool open(const std::string& path) {
        platform.Answers = {"no"};
        form.UserOpenFile(path);
        return global.ProjectFileName == path;
    }
    /// Everything that stands in lists and tables.
    std::vector<std::string> cells() const {
        std::vector<std::string> texts;
        for (ui::Control* control : form.Controls()) {
            if (control->Kind() != ui::ControlKind::Grid || !holdsTheProject(control->Name())) continue;
            const auto& grid = *static_cast<ui::Grid*>(control);
            for (int row = 0; row < grid.Rows(); ++row) {
                for (int col = 0; col < grid.Cols(); ++col) {
                    texts.push_back(grid.Name() + " " + std::to_string(row) + " " + std::to_string(col) +
                                    ": " + std::string(grid.TextMatrix(row, col)));
                }
            }
        }
        return texts;
    }
    static bool holdsTheProject(const std::string& name) {
        static const std::vector<std::string> Lists = {
            "flxCandidateSpecies", "flxHabitatTypes", "flxJurisUnits",
            "flxLandUses",         "flxBins",         "flxFunctions"};
        return name.starts_with("flxSummary") || std::find(Lists.begin(), Lists.end(), name) != Lists.end();
    }
};

std::string anyText(Random& random) {
    static const std::vector<std::string> Texts = {"0,5",   " ",      "  ",  " a",   "a ", ",", ",,",
                                                   "a\rb",  "a\r\nb", "a\n", "a, b", "=",  "?", "\xC3\xB1,",
                                                   "1,000", "",       "\"",  "half", "2.5"};
    return random.chance(20) ? randomName(random) : random.pick(Texts);
}

/// Puts any text into cells of the lists and of the tables, as imports, pastes and edits do.
class AnyTexts {
public:
    AnyTexts(Random& random, frmBrenica& form) : random_(random), form_(form) {}

    void enter(int percent) {
        percent_ = percent;
        column(form_.flxCandidateSpecies, {1, 2});
        for (ui::Grid* list : {&form_.flxHabitatTypes, &form_.flxJurisUnits, &form_.flxLandUses})
            column(*list, {1, 2, 3});
        for (ui::Grid* list : {&form_.flxBins, &form_.flxFunctions}) column(*list, {1});
        levelsOfUse(summary::HabitatsBySpecies, summary::HabitatUse, form_.Global().TotalHabitatTypes);
        levelsOfUse(summary::JurisUnitsBySpecies, summary::JurisUnitUse, form_.Global().TotalJurisUnits);
        column(form_.flxSummary(summary::Area), {1, 2, 3, 4});
        column(form_.flxSummary(summary::Vulnerability), {1});
        ratings();
        column(form_.flxSummary(summary::Functionality), {1, 2, 3, 4, 5, 6});
        column(form_.flxSummary(summary::SocioEcon), {1, 2, 3, 4, 5});
        column(form_.flxSummary(summary::DataQuality), {1, 2, 3, 4, 5});
    }

private:
    void column(ui::Grid& grid, std::initializer_list<int> columns) {
        for (const int col : columns) {
            for (int row = 1; row < grid.Rows() && col < grid.Cols(); ++row) {
                if (random_.chance(percent_)) grid.TextMatrix(row, col, anyText(random_));
            }
        }
    }
    void levelsOfUse(int longMember, int wideMember, int units) {
        for (int row = 1; row <= units * form_.Global().TotalSpecies; ++row) {
            if (!random_.chance(percent_)) continue;
            const std::string text = anyText(random_);
            form_.flxSummary(longMember).TextMatrix(row, use::Level, text);
            form_.flxSummary(wideMember).TextMatrix((row - 1) / units + 1, (row - 1) % units + 1, text);
        }
    }
    void ratings() {
        const int threats = form_.Global().TotalLandUses;
        const int species = form_.Global().TotalSpecies;
        for (int row = 1; row <= threats * species; ++row) {
            for (const int col : {threat::Severity, threat::Recovery, threat::Proportion}) {
                if (!random_.chance(percent_)) continue;
                const std::string text = anyText(random_);
                form_.flxSummary(summary::ThreatsBySpecies).TextMatrix(row, col, text);
                form_.flxSummary(summary::SpeciesByThreat)
                    .TextMatrix((row - 1) % threats * species + (row - 1) / threats + 1, col - 2, text);
            }
        }
    }

    Random& random_;
    frmBrenica& form_;
    int percent_ = 0;
};

std::string lostTexts(const ProjectCopy& copy) {
    std::string texts;
    for (const UncarriedCell& cell : copy.lostBySaving()) {
        texts += cell.Grid + " " + std::to_string(cell.Row) + " " + std::to_string(cell.Column) + " \"" +
                 cell.Text + "\"; ";
    }
    return texts;
}

class CopyRoundTrip : public testing::Test {
protected:
    TemporaryFolder folder;

    void expectRestored(const RunningForm& original) {
        const ProjectCopy copy = original.form.TakeCopy();
        const std::string path = folder.file("copy.brn");
        writeFile(path, copy.Text);
        RunningForm again;
        ASSERT_TRUE(again.open(path)) << copy.Text;
        again.form.RestoreCopy(copy, "landscape.brn");
        ASSERT_EQ(again.cells(), original.cells());
        const ProjectCopy second = again.form.TakeCopy();
        ASSERT_EQ(second.Text, copy.Text);
        ASSERT_EQ(second.Uncarried, copy.Uncarried);
        EXPECT_EQ(again.global.ProjectFileName, "landscape.brn");
        EXPECT_TRUE(again.form.ProjectChanged);
        EXPECT_FALSE(again.form.ProjectLoading);
    }

    /// Whether a saved file has given back all but what opening changes. A comma in a name makes tables that are out of
    /// step, which is not the same.
    static bool holdsTheSame(RunningForm& again, const RunningForm& original, const ProjectCopy& copy) {
        try {
            again.form.RestoreCopy(withoutLost(copy), "");
            return again.form.TakeCopy().Text == copy.Text && again.cells() == original.cells();
        } catch (const ui::RunTimeError&) {
            return false;
        }
    }

    /// The copy with those texts only that opening changes, not saving.
    static ProjectCopy withoutLost(ProjectCopy copy) {
        const std::vector<UncarriedCell> lost = copy.lostBySaving();
        std::erase_if(copy.Uncarried, [&](const UncarriedCell& cell) {
            return std::any_of(lost.begin(), lost.end(), [&](const UncarriedCell& other) {
                return other.Grid == cell.Grid && other.Row == cell.Row && other.Column == cell.Column;
            });
        });
        return copy;
    }
};

}  // namespace

TEST_F(CopyRoundTrip, GivesBackProjectsWithAnyTexts) {
    Random random(11);
    for (int i = 0; i < 400; ++i) {
        const ProjectSizes sizes{random.below(5), random.below(4), random.below(4), random.below(4)};
        const std::string path = folder.file("project.brn");
        writeFile(path, RandomProject(random, sizes).text.text());
        RunningForm original;
        original.open(path);
        AnyTexts(random, original.form).enter(random.pick({0, 5, 30, 100}));
        if (random.chance(20)) {
            original.form.txtRemoveFunctionIndex.Text("1");
            while (original.global.TotalFunctions > 0) original.form.cmdRemoveFunction.UserClick();
        }
        expectRestored(original);
        if (HasFatalFailure()) FAIL() << "project " << i;
    }
}

TEST_F(CopyRoundTrip, GivesBackProjectsEnteredByHand) {
    Random seeds(12);
    int compared = 0;
    for (int i = 0; i < 60; ++i) {
        Walker walker(seeds.next());
        walker.run(120);
        if (walker.End != WalkEnd::Tired || walker.DamagedFile) continue;
        const ProjectCopy copy = walker.form.TakeCopy();
        const std::string path = folder.file("walked.brn");
        writeFile(path, copy.Text);
        RunningForm again;
        ASSERT_TRUE(again.open(path));
        again.form.RestoreCopy(copy, "");
        const ProjectCopy second = again.form.TakeCopy();
        ASSERT_EQ(second.Text, copy.Text) << "walk " << i;
        ASSERT_EQ(second.lostBySaving(), copy.lostBySaving()) << "walk " << i;
        ++compared;
    }
    EXPECT_GE(compared, 10);
}

// What is told to be lost is lost, and nothing else: a file that the form saves gives back all other cells.
TEST_F(CopyRoundTrip, NamesNothingWhereASavedFileGivesAllBack) {
    Random random(13);
    for (int i = 0; i < 200; ++i) {
        const ProjectSizes sizes{random.between(2, 5), random.below(4), random.below(4), random.below(4)};
        const std::string path = folder.file("project.brn");
        const std::string saved = folder.file("saved.brn");
        writeFile(path, RandomProject(random, sizes).text.text());
        RunningForm original;
        original.open(path);
        AnyTexts(random, original.form).enter(2);
        const ProjectCopy copy = original.form.TakeCopy();
        original.platform.Files = {saved};
        original.form.mnuSaveProject.UserClick();
        RunningForm again;
        const bool same = again.open(saved) && holdsTheSame(again, original, copy);
        ASSERT_EQ(same, copy.lostBySaving().empty()) << "project " << i << ": " << lostTexts(copy);
    }
}
