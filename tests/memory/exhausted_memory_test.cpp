// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <set>

#include "entry/modErrorHandling.h"
#include "memory/procedures.h"
#include "memory/shortage.h"
#include "support/form_views.h"
#include "walk/allowed_failures.h"

namespace {

/// A running program with a project open, on one of its pages.
struct Program {
    TemporaryFolder folder;
    ShortPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};

    void open(const ProjectText& project) {
        const std::string path = folder.file("project.brn");
        writeFile(path, project.text());
        platform.Files = {path};
        form.mnuOpenProject.UserClick();
        form.TakeChanged();
    }
    void walkTo(int page) {
        for (int i = 2; i <= page; ++i) form.tabBrenica.UserSelectTab(i);
        form.TakeChanged();
    }
};

/// What a user does in a state of the program.
struct Use {
    std::function<void(Program&)> Prepare;
    std::function<void(Program&)> Do;
    bool MayBeSilent;  ///< goes through a procedure that ignores errors or ends silently
};

/// Each species covers a habitat of its own, so that a selection takes three passes.
ProjectText complete() {
    ProjectText project(3, 3, 1, 1);
    project.set("Home-range definition", "user-defined bins,5,10,20")
        .set("Home ranges", repeated("5 - 10 km2", 3));
    project.set("HeteroHabitat Population", "2,0,0,0,3,0,0,0,2").set("HeteroJU Individual", "2,0,0");
    return project.set("VulnerabilitybySpecies Severity", "1,0,0");
}

/// Every source that was reported while one step after the other of a use failed.
class Reports {
public:
    void collect(const Use& use) {
        // A long use fails at ever wider distances: what it does often it does at many steps.
        for (long steps = 0; attempt(use, steps); steps += 1 + steps / 12) {
        }
    }
    const std::set<std::string>& sources() const { return sources_; }

private:
    bool attempt(const Use& use, long steps) {
        Program program;
        use.Prepare(program);
        const Shortage shortage(steps);
        try {
            use.Do(program);
            EXPECT_TRUE(use.MayBeSilent || !shortage.happened()) << "nobody told of step " << steps;
        } catch (const ui::RunTimeError& error) {
            if (shortage.happened()) note(error);
        } catch (const std::bad_alloc&) {
            // Gone before a procedure of the system began, or after it.
        }
        return shortage.happened();
    }

    void note(const ui::RunTimeError& error) {
        const Report report = readReport(error.Description);
        EXPECT_EQ(error.Number, ReportedErrorNumber) << error.Description;
        EXPECT_EQ(report.Number, 7) << error.Description;
        EXPECT_EQ(error.Source, "Brenica." + report.Source);
        EXPECT_THAT(Procedures, testing::Contains(testing::StrEq(report.Source)));
        sources_.insert(report.Source);
    }

    std::set<std::string> sources_;
};

using Action = std::function<void(frmBrenica&)>;

/// The views of the form beyond the first, each by what leads to it from page 1.
std::vector<Action> views() {
    std::vector<Action> found = {[](frmBrenica&) {}};
    const auto add = [&found](int page, const Action& choose) {
        found.emplace_back([page, choose](frmBrenica& form) {
            for (int i = 2; i <= page; ++i) form.tabBrenica.UserSelectTab(i);
            choose(form);
        });
    };
    for (int i = 0; i <= 4; ++i) add(2, [i](frmBrenica& form) { form.optLandChar(i).UserClick(); });
    for (int i = 1; i <= 5; ++i) add(3, [i](frmBrenica& form) { form.tabCriteria.UserSelectTab(i); });
    for (int i = 1; i <= 9; ++i) {
        add(4, [i](frmBrenica& form) {
            form.tabCriteriaSummary.UserSelectTab(i);
            form.chkAllowSummaryEdit.UserClick();
        });
    }
    for (int i = 1; i <= 8; ++i) add(5, [i](frmBrenica& form) { form.tabGraphSummary.UserSelectTab(i); });
    for (int i = 0; i <= 1; ++i) {
        add(6, [i](frmBrenica& form) { form.optScoreDisplay(i).UserClick(); });
        add(6, [i](frmBrenica& form) {
            form.optScoreDisplay(i).UserClick();
            form.chkShowGraphs.UserClick();
        });
    }
    add(7, [](frmBrenica&) {});
    for (int i = 0; i <= 3; ++i) {
        add(7, [i](frmBrenica& form) {
            form.cmdComplement.UserClick();
            form.optCompResults(i).UserClick();
        });
    }
    return found;
}

/// What a user can do with a control, and whether its procedures may keep a failure to themselves.
struct Way {
    std::function<void(ui::Control&)> Do;
    bool MayBeSilent = false;
};

std::vector<Way> waysToUse(const ui::Control& control) {
    switch (control.Kind()) {
        case ui::ControlKind::TextBox:
            return {
                {[](ui::Control& box) { static_cast<ui::TextBox&>(box).UserFocus(); }},
                {[](ui::Control& box) { static_cast<ui::TextBox&>(box).UserKey('x'); }},
                // A text that cannot be read is put right like one that is no number.
                {[](ui::Control& box) { static_cast<ui::TextBox&>(box).UserPaste("00000000000000000001"); },
                 true}};
        case ui::ControlKind::ComboBox:
            return {{[](ui::Control& box) { static_cast<ui::ComboBox&>(box).UserChoose(0); }},
                    {[](ui::Control& box) { static_cast<ui::ComboBox&>(box).UserChoose(1); }}};
        case ui::ControlKind::CheckBox:
            return {{[](ui::Control& box) { static_cast<ui::CheckBox&>(box).UserClick(); }}};
        case ui::ControlKind::OptionButton:
            return {{[](ui::Control& button) { static_cast<ui::OptionButton&>(button).UserClick(); }}};
        case ui::ControlKind::CommandButton:
            return {{[](ui::Control& button) { static_cast<ui::CommandButton&>(button).UserClick(); }}};
        case ui::ControlKind::Grid:
            return {{[](ui::Control& grid) { static_cast<ui::Grid&>(grid).UserMouseMove(0, 1); }},
                    {[](ui::Control& grid) { static_cast<ui::Grid&>(grid).UserMouseDown(0, 1); }}};
        case ui::ControlKind::TabStrip:
            return {{[](ui::Control& strip) { static_cast<ui::TabStrip&>(strip).UserSelectTab(2); }},
                    {[](ui::Control& strip) { static_cast<ui::TabStrip&>(strip).UserSelectTab(3); }}};
        default: return {};
    }
}

/// Each cell of the first row: another text by keys and by a paste, and the way out of it.
std::vector<Way> waysToEdit(const ui::Grid& sample) {
    std::vector<Way> found;
    for (int col = 1; col < sample.Cols() && sample.Rows() > 1; ++col) {
        for (const char* text : {"1", "x", "2.00000000000000000"}) {
            found.push_back({[col, text](ui::Control& control) {
                auto& grid = static_cast<ui::Grid&>(control);
                if (!grid.UserMoveTo(1, col) || !grid.UserBeginEdit()) return;
                for (const char key : std::string(text)) grid.UserEditKey(static_cast<unsigned char>(key));
                grid.UserEditPaste(text);
                grid.UserEditKey(ui::DownKey);
            }});
        }
    }
    return found;
}

/// Layouts of the lists end silently; hints, levels of use and vulnerabilities are calculated with errors ignored.
bool mayBeSilent(const ui::Control& control) {
    for (const char* name : {"cmdUpdate", "cbxSpeciesName", "tabBrenica", "flxSummary"}) {
        if (control.Name().starts_with(name)) return true;
    }
    return false;
}

/// Every list has a row to add, to remove and to move.
void makeReady(frmBrenica& form) {
    for (const NumberBox& box : form.NumberBoxes()) {
        if (form_views::onView(*box.Box) && box.Normalises) box.Box->UserPaste("1");
    }
    for (ui::Control* control : form.Controls()) {
        if (control->Kind() == ui::ControlKind::Grid && form_views::onView(*control))
            static_cast<ui::Grid*>(control)->UserMoveTo(2, 1);
    }
    form.TakeChanged();
}

/// One use for each way to use each control, in the first view that shows it.
std::vector<Use> usesOfControls() {
    std::vector<Use> uses;
    std::set<std::string> seen;
    for (const Action& view : views()) {
        const auto prepare = [view](Program& program) {
            program.open(complete());
            view(program.form);
            makeReady(program.form);
        };
        Program sample;
        prepare(sample);
        const auto controls = sample.form.Controls();
        for (std::size_t i = 0; i < controls.size(); ++i) {
            if (!form_views::onView(*controls[i]) ||
                !seen.insert(controls[i]->Name() + std::to_string(i)).second)
                continue;
            auto ways = waysToUse(*controls[i]);
            if (controls[i]->Kind() == ui::ControlKind::Grid) {
                const auto edits = waysToEdit(static_cast<const ui::Grid&>(*controls[i]));
                ways.insert(ways.end(), edits.begin(), edits.end());
            }
            const bool silent = mayBeSilent(*controls[i]);
            for (const Way& way : ways) {
                uses.push_back({prepare, [way, i](Program& program) { way.Do(*program.form.Controls()[i]); },
                                silent || way.MayBeSilent});
            }
        }
    }
    return uses;
}

/// Leaves blank rows behind, which the gates between the pages ask about.
void addBlankRows(frmBrenica& form) {
    makeReady(form);
    for (ui::CommandButton* button :
         {&form.cmdUpdateSpecies, &form.cmdUpdateHabitatTypes, &form.cmdUpdateJurisUnits,
          &form.cmdUpdateLandUses, &form.cmdUpdateFunctions, &form.cmdUpdateBins}) {
        if (form_views::onView(*button)) button->UserClick();
    }
    form.TakeChanged();
}

/// The commands of the menus and the ways between the pages, from every view.
std::vector<Use> usesOfCommands() {
    std::vector<Use> uses;
    uses.push_back({[](Program&) {},
                    [](Program& program) { frmBrenica(program.platform, program.files, program.global); },
                    true});
    const auto add = [&uses](const Action& view, const Action& before, const Action& action) {
        uses.push_back({[view, before](Program& program) {
                            program.open(complete());
                            view(program.form);
                            before(program.form);
                            writeFile(program.folder.file("rows.txt"), "Otter\tLutra lutra\r\n1\t2\t3\r\n");
                        },
                        [action](Program& program) {
                            program.platform.Files.assign(4, program.folder.file("rows.txt"));
                            action(program.form);
                        },
                        true});
    };
    // The first view of a page stands for all.
    std::set<int> pages;
    for (const Action& view : views()) {
        Program sample;
        sample.open(complete());
        view(sample.form);
        if (!pages.insert(10 * sample.form.CurrentMainTab + sample.form.CurrentLandChar).second) continue;
        for (const auto menu :
             {&frmBrenica::mnuNewProject, &frmBrenica::mnuOpenProject, &frmBrenica::mnuSaveProject,
              &frmBrenica::mnuExit, &frmBrenica::mnuImportData, &frmBrenica::mnuExportData,
              &frmBrenica::mnuSaveGraph, &frmBrenica::mnuCopyGraph, &frmBrenica::mnuPrintGraph}) {
            add(view, makeReady, [menu](frmBrenica& form) { (form.*menu).UserClick(); });
        }
        for (int page = 1; page <= 7; ++page)
            add(view, addBlankRows, [page](frmBrenica& form) { form.tabBrenica.UserSelectTab(page); });
        for (int list = 0; list < 5; ++list)
            add(view, addBlankRows, [list](frmBrenica& form) { form.optLandChar(list).UserClick(); });
        add(view, makeReady,
            [](frmBrenica& form) { form.UserResize(ui::WindowState::Normal, 0, 0, 20000, 12000); });
    }
    return uses;
}

}  // namespace

/// Wherever the memory runs out, the program ends with the report of the procedure that it ran out in.
TEST(ExhaustedMemory, IsReportedByTheProcedureThatItHappensIn) {
    constexpr std::size_t Reachable = 90;
    Reports reports;
    for (const Use& use : usesOfControls()) reports.collect(use);
    for (const Use& use : usesOfCommands()) reports.collect(use);
    EXPECT_GT(reports.sources().size(), Reachable);
}
