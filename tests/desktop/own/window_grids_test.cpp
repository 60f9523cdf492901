// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/window_grids.h"

#include <QClipboard>

#include "desktop/grid_view.h"
#include "desktop/main_window.h"
#include "project/columns.h"
#include "project/pages.h"

namespace {

using Texts = std::vector<std::string>;

/// The main form in its window, with histories. Keys go to the grid that they are meant for.
struct GridsWindow : desktop_test::MainWindow {
    desktop::WindowGrids own{*view, *form};

    GridsWindow() {
        open(ProjectText(3, 4, 2, 2));
        view->activateWindow();
        (void)QTest::qWaitForWindowActive(view.get());
    }

    void run(const std::function<void()>& action) override {
        MainWindow::run(action);
        own.look();
    }

    void key(ui::Grid& grid, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        widgetOf(grid).setFocus();
        QTest::keyClick(&widgetOf(grid), key, modifiers);
    }
    void undo(ui::Grid& grid) { key(grid, Qt::Key_Z, Qt::ControlModifier); }
    void redo(ui::Grid& grid) { key(grid, Qt::Key_Y, Qt::ControlModifier); }
    void enter(ui::Grid& grid, int row, int col, const char* text) {
        run([&] { grid.UserMoveTo(row, col); });
        QTest::keyClicks(&widgetOf(grid), text);
        key(grid, Qt::Key_Return);
    }
    void choose(ui::ComboBox& box, int item) {
        run([&] { box.UserChoose(item); });
    }
    void goToCriterion(int tab) {
        goTo(page::Criteria);
        run([&] { form->tabCriteria.UserSelectTab(tab); });
    }
    void editSummaries(int tab) {
        goTo(page::Summary);
        run([&] {
            form->tabCriteriaSummary.UserSelectTab(tab);
            form->chkAllowSummaryEdit.UserClick();
        });
    }
    static std::string text(const ui::Grid& grid, int row, int col) {
        return std::string(grid.TextMatrix(row, col));
    }
    static Texts row(const ui::Grid& grid, int at) {
        Texts texts;
        for (int col = 1; col < grid.Cols(); ++col) texts.push_back(text(grid, at, col));
        return texts;
    }
};

}  // namespace

class WindowGridsTest : public QObject {
    Q_OBJECT

private slots:
    void aNameThatIsTakenBackGoesWhereItWentWhenItWasTyped() {
        GridsWindow w;
        ui::Grid& species = w.form->flxCandidateSpecies;
        w.enter(species, 2, list::Name, "Otter");
        QCOMPARE(w.text(w.form->flxScores(0), 2, 0), std::string("Otter"));
        w.undo(species);
        QCOMPARE(w.text(species, 2, list::Name), std::string("Species 2"));
        QCOMPARE(w.text(w.form->flxScores(0), 2, 0), std::string("Species 2"));
        w.redo(species);
        QCOMPARE(w.text(species, 2, list::Name), std::string("Otter"));
        QCOMPARE(w.text(w.form->flxScores(0), 2, 0), std::string("Otter"));
    }

    void aLevelThatIsTakenBackLeavesTheTablesToo() {
        GridsWindow w;
        w.goToCriterion(1);
        ui::Grid& levels = w.form->flxHabitatHetero;
        w.enter(levels, 2, 1, "3");
        QCOMPARE(w.text(w.form->flxSummary(summary::HabitatsBySpecies), 2, use::Level), std::string("3"));
        w.undo(levels);
        QCOMPARE(w.text(levels, 2, 1), std::string("1"));
        QCOMPARE(w.text(w.form->flxSummary(summary::HabitatsBySpecies), 2, use::Level), std::string("1"));
        QCOMPARE(w.text(w.form->flxSummary(summary::HabitatUse), 1, 2), std::string("1"));
    }

    void theZerosBehindASeverityOfZeroBelongToIt() {
        GridsWindow w;
        w.goToCriterion(3);
        ui::Grid& threats = w.form->flxLandUsesVulnerability;
        w.run([&] {
            for (const int col : {1, 2, 3}) threats.TextMatrix(1, col, "");
        });
        w.enter(threats, 1, 1, "0");
        QCOMPARE(w.row(threats, 1), (Texts{"0", "0", "0"}));
        w.undo(threats);
        QCOMPARE(w.row(threats, 1), (Texts{"", "", ""}));
        QCOMPARE(w.text(w.form->flxSummary(summary::ThreatsBySpecies), 1, threat::Recovery), std::string());
        w.redo(threats);
        QCOMPARE(w.row(threats, 1), (Texts{"0", "0", "0"}));
        QCOMPARE(w.text(w.form->flxSummary(summary::ThreatsBySpecies), 1, threat::Recovery),
                 std::string("0"));
    }

    void theProbabilityThatAnUrgencySetsBelongsToIt() {
        GridsWindow w;
        w.goTo(page::Parameters);
        w.run([&] { w.form->optLandChar(2).UserClick(); });
        ui::Grid& activities = w.form->flxLandUses;
        w.enter(activities, 1, list::Probability, "0.5");
        w.enter(activities, 1, list::Urgency, "3");
        QCOMPARE(w.platform.Transcript.size(), std::size_t{1});
        QCOMPARE(w.text(activities, 1, list::Probability), std::string("1"));
        w.undo(activities);
        QCOMPARE(w.text(activities, 1, list::Urgency), std::string("1"));
        QCOMPARE(w.text(activities, 1, list::Probability), std::string("0.5"));
        w.undo(activities);
        QCOMPARE(w.text(activities, 1, list::Probability), std::string("1"));
        w.redo(activities);
        w.redo(activities);
        QCOMPARE(w.text(activities, 1, list::Urgency), std::string("3"));
        QCOMPARE(w.text(activities, 1, list::Probability), std::string("1"));
        QCOMPARE(w.platform.Transcript.size(), std::size_t{1});
    }

    void theTotalsOfATableFollow() {
        GridsWindow w;
        w.editSummaries(1);
        ui::Grid& use = w.form->flxSummary(summary::HabitatUse);
        const int totals = use.Rows() - 2;
        const Texts row = w.row(use, 1), level = w.row(use, totals), count = w.row(use, totals + 1);
        w.enter(use, 1, 2, "3");
        const Texts changed = w.row(use, 1), changedLevel = w.row(use, totals);
        QVERIFY(changed != row);
        QVERIFY(changedLevel != level);
        w.undo(use);
        QCOMPARE(w.row(use, 1), row);
        QCOMPARE(w.row(use, totals), level);
        QCOMPARE(w.row(use, totals + 1), count);
        QCOMPARE(w.text(w.form->flxSummary(summary::HabitatsBySpecies), 2, use::Level), std::string("1"));
        w.redo(use);
        QCOMPARE(w.row(use, 1), changed);
        QCOMPARE(w.row(use, totals), changedLevel);
    }

    void anotherSpeciesOnViewIsNotGivenWhatStoodForTheFirst() {
        GridsWindow w;
        w.goToCriterion(1);
        w.enter(w.form->flxHabitatHetero, 1, 1, "3");
        w.choose(w.form->cbxSpeciesName, 1);
        w.undo(w.form->flxHabitatHetero);
        QCOMPARE(w.text(w.form->flxHabitatHetero, 1, 1), std::string("1"));
        w.choose(w.form->cbxSpeciesName, 0);
        QCOMPARE(w.text(w.form->flxHabitatHetero, 1, 1), std::string("3"));
        w.undo(w.form->flxHabitatHetero);
        QCOMPARE(w.text(w.form->flxHabitatHetero, 1, 1), std::string("3"));
    }

    void aPageMoveEndsWhatCanBeTakenBack() {
        GridsWindow w;
        ui::Grid& species = w.form->flxCandidateSpecies;
        w.enter(species, 2, list::ScientificName, "Lutra");
        w.goTo(page::Parameters);
        w.goTo(page::Species);
        w.undo(species);
        QCOMPARE(w.text(species, 2, list::ScientificName), std::string("Lutra"));
    }

    void aPageMoveThatIsRefusedEndsNothing() {
        GridsWindow w;
        w.goTo(page::Parameters);
        w.run([&] { w.form->optLandChar(2).UserClick(); });
        ui::Grid& activities = w.form->flxLandUses;
        w.run([&] { activities.UserMoveTo(1, list::Probability); });
        w.key(activities, Qt::Key_Delete);
        QCOMPARE(w.text(activities, 1, list::Probability), std::string());
        w.platform.Answers = {"no"};
        w.goTo(page::Species);
        QCOMPARE(w.form->CurrentMainTab, page::Parameters);
        w.undo(activities);
        QCOMPARE(w.text(activities, 1, list::Probability), std::string("1"));
    }

    void tabsOfThePageEndNothing() {
        GridsWindow w;
        w.goToCriterion(1);
        w.enter(w.form->flxHabitatHetero, 1, 1, "3");
        w.goToCriterion(4);
        w.goToCriterion(1);
        w.undo(w.form->flxHabitatHetero);
        QCOMPARE(w.text(w.form->flxHabitatHetero, 1, 1), std::string("1"));
    }

    void addedAndRemovedRowsEndWhatCanBeTakenBack() {
        GridsWindow w;
        ui::Grid& species = w.form->flxCandidateSpecies;
        w.enter(species, 2, list::Name, "Otter");
        w.run([&] {
            w.form->txtTotalSpecies.Text("1");
            w.form->cmdUpdateSpecies.UserClick();
        });
        w.undo(species);
        QCOMPARE(w.text(species, 2, list::Name), std::string("Otter"));
        w.enter(species, 3, list::Name, "Heron");
        w.run([&] {
            w.form->txtRemoveSpeciesIndex.Text("2");
            w.form->cmdRemoveSpecies.UserClick();
        });
        w.undo(species);
        QCOMPARE(w.text(species, 2, list::Name), std::string("Heron"));
    }

    void movedRowsEndWhatCanBeTakenBack() {
        GridsWindow w;
        ui::Grid& species = w.form->flxCandidateSpecies;
        w.enter(species, 2, list::Name, "Otter");
        w.run([&] { species.UserMoveTo(2, list::Name); });
        w.run([&] { w.form->cmdSpeciesMove(0).UserClick(); });
        QCOMPARE(w.text(species, 1, list::Name), std::string("Otter"));
        w.undo(species);
        QCOMPARE(w.text(species, 1, list::Name), std::string("Otter"));
        QCOMPARE(w.text(species, 2, list::Name), std::string("Species 1"));
    }

    void newEndsWhatCanBeTakenBack() {
        GridsWindow w;
        w.goToCriterion(5);
        ui::Grid& grades = w.form->flxSocioEcon;
        w.enter(grades, 1, 1, "2");
        w.platform.Answers = {"no"};
        w.run([&] { w.form->mnuNewProject.UserClick(); });
        const Texts fresh = w.row(grades, 1);
        w.undo(grades);
        QCOMPARE(w.row(grades, 1), fresh);
    }

    void openingEndsWhatCanBeTakenBack() {
        GridsWindow w;
        ui::Grid& species = w.form->flxCandidateSpecies;
        w.enter(species, 2, list::Name, "Otter");
        w.platform.Answers = {"no"};
        w.open(ProjectText(3, 4, 2, 2));
        w.undo(species);
        QCOMPARE(w.text(species, 2, list::Name), std::string("Species 2"));
    }

    void unitsAreCopiedByTheirNames() {
        GridsWindow w;
        w.goTo(page::Summary);
        ui::Grid& use = w.form->flxSummary(summary::HabitatUse);
        w.run([&] {
            use.UserMoveTo(1, 2);
            use.UserSelectTo(2, 3);
        });
        QCOMPARE(w.text(use, 0, 2), std::string("2"));
        w.key(use, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QApplication::clipboard()->text(),
                 QString("Common Name\tHabitat 2\tHabitat 3\nSpecies 1\t1\t1\nSpecies 2\t1\t1"));
        QCOMPARE(w.text(use, 0, 2), std::string("2"));
    }
};

static const desktop_test::Registered<WindowGridsTest> registered;

#include "window_grids_test.moc"
