// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "walk/walker.h"

/// The deeds of a walk on the page that is on view.
class PageDeeds {
public:
    explicit PageDeeds(Walker& walker) : walker_(walker), form_(walker.form), random_(walker.random_) {}

    /// One of the deeds that the page offers, or a move elsewhere.
    void any() {
        const int kind = random_.below(100);
        if (kind < 9) return selectPage(random_.between(1, 7));
        if (kind < 10) return resize();
        if (kind < 13) return menu();
        switch (form_.CurrentMainTab) {
            case 1: return listPage(speciesPage());
            case 2: return parameterPage();
            case 3: return criteriaPage();
            case 4: return summaryPage();
            case 5: return graphPage();
            case 6: return scorePage();
            default: return resultsPage();
        }
    }

    void selectPage(int page) {
        walker_.randomAnswers();
        act(Deed::SelectPage, std::to_string(page), [&] {
            form_.tabBrenica.UserSelectTab(page);
            walker_.leeway_.StrayPage =
                walker_.leeway_.StrayPage && form_.tabBrenica.SelectedItem() != form_.CurrentMainTab;
        });
    }

    void choose(ui::ComboBox& box, int index) {
        const bool looks = &box == &form_.cbxSpeciesName && form_.HomeRangeType > 0;
        act(Deed::ChooseItem, box.Name() + " " + std::to_string(index), [&] {
            const std::vector<std::string> before = homeRanges();
            box.UserChoose(index);
            if (looks && homeRanges() != before) walker_.defect("a look at a species changed a home range");
        });
    }
    void click(ui::CheckBox& box) {
        act(Deed::ClickCheckBox, box.Name(), [&] { box.UserClick(); });
    }
    void click(ui::OptionButton& button) {
        act(Deed::ClickOption, button.Name(), [&] { button.UserClick(); });
    }
    void push(Deed deed, ui::CommandButton& button) {
        act(deed, button.Name(), [&] { button.UserClick(); });
    }
    void editCell(ui::Grid& grid, int row, int col, const std::string& text) {
        act(Deed::EditCell, grid.Name() + cell(row, col) + " '" + text + "'",
            [&] { grid.UserEditCell(row, col, text); });
    }
    void put(ui::TextBox& box, const std::string& text) {
        act(Deed::Paste, box.Name() + " '" + text + "'", [&] {
            box.UserFocus();
            box.SelStart(0);
            box.SelLength(static_cast<int>(ui::length(box.Text())));
            box.UserPaste(text);
        });
    }
    void selectSpecies() {
        act(Deed::Select, "", [&] {
            const bool enabled = form_.cmdComplement.Enabled();
            bool refused = false;
            form_.SelectionRefused = [&refused](SelectionObstacle) { refused = true; };
            form_.cmdComplement.UserClick();
            form_.SelectionRefused = nullptr;
            const bool reported = !walker_.platform.Transcript.empty() &&
                                  walker_.platform.Transcript.back().Title == "Selection Report";
            if (enabled && walker_.global.ScoresCalculated && !reported && !refused)
                walker_.defect("a selection without its report");
            walker_.Selected = walker_.Selected || reported;
        });
    }

private:
    std::vector<std::string> homeRanges() const {
        const ui::Grid& areas = form_.flxSummary(summary::Area);
        std::vector<std::string> texts;
        for (int row = 1; row < areas.Rows(); ++row)
            texts.emplace_back(areas.TextMatrix(row, area::HomeRange));
        return texts;
    }

    struct ListPage {
        ui::Grid& Grid;
        ui::TextBox& NewRows;
        ui::CommandButton& Update;
        ui::TextBox& RemoveIndex;
        ui::CommandButton& Remove;
        ui::ControlArray<ui::CommandButton>* Move;
    };
    ListPage speciesPage() {
        return {form_.flxCandidateSpecies,   form_.txtTotalSpecies,  form_.cmdUpdateSpecies,
                form_.txtRemoveSpeciesIndex, form_.cmdRemoveSpecies, &form_.cmdSpeciesMove};
    }
    ListPage listOnView() {
        if (form_.CurrentLandChar == 3) {
            return {form_.flxBins,           form_.txtTotalBins, form_.cmdUpdateBins,
                    form_.txtRemoveBinIndex, form_.cmdRemoveBin, nullptr};
        }
        const auto lists = form_.ParameterLists();
        const ParameterList& list =
            lists[static_cast<std::size_t>(form_.CurrentLandChar == 4 ? 3 : form_.CurrentLandChar)];
        return {*list.Grid, *list.NewRows, *list.Update, *list.RemoveIndex, *list.Remove, list.Move};
    }

    void act(Deed deed, const std::string& detail, const std::function<void()>& action) {
        walker_.act(deed, detail, action);
    }
    static std::string cell(int row, int col) {
        return "(" + std::to_string(row) + ", " + std::to_string(col) + ")";
    }

    void listPage(const ListPage& page) {
        walker_.randomAnswers();
        const bool bins = &page.Grid == &form_.flxBins;
        switch (random_.below(12)) {
            case 0:
            case 1: return addRows(page, bins);
            case 2: return numberBox(page.NewRows);
            case 3: return numberBox(page.RemoveIndex);
            case 4:
                put(page.RemoveIndex, std::to_string(random_.below(std::max(page.Grid.Rows(), 1))));
                return push(Deed::RemoveRow, page.Remove);
            case 5:
                if (page.Move == nullptr) return grid(page.Grid);
                moveTo(page.Grid);
                return push(Deed::MoveRow, (*page.Move)(random_.below(2)));
            case 6: return import();
            default: return grid(page.Grid);
        }
    }

    /// Lists stay short, so that a walk stays quick; once in a while many rows come at once, to one list of a walk.
    void addRows(const ListPage& page, bool bins) {
        const int most = page.Grid.Rows() > 12 ? 1 : 4;
        const bool many = random_.chance(1) && !walker_.manyRows_;
        const int count = many ? 60 : random_.below(most + 1);
        walker_.manyRows_ = walker_.manyRows_ || many;
        if (!bins || random_.chance(80)) put(page.NewRows, std::to_string(count));
        if (walker_.running()) push(bins ? Deed::AddBins : Deed::AddRows, page.Update);
        if (random_.chance(75)) nameRows(page.Grid);
    }

    void nameRows(ui::Grid& grid) {
        for (int row = 1; walker_.running() && row < grid.Rows(); ++row) {
            if (grid.TextMatrix(row, list::Name).empty()) {
                editCell(grid, row, list::Name, "Row " + std::to_string(random_.below(1000)));
            }
        }
    }

    void parameterPage() {
        walker_.randomAnswers();
        if (random_.chance(15)) return click(form_.optLandChar(random_.below(5)));
        if (form_.CurrentLandChar == 3 && random_.chance(25)) {
            return click(form_.optHomeRangeType(random_.below(3)));
        }
        listPage(listOnView());
    }

    void criteriaPage() {
        walker_.randomAnswers();
        switch (random_.below(10)) {
            case 0:
            case 1: return chooseAny(form_.cbxSpeciesName);
            case 2:
            case 3: {
                const int tab = random_.between(1, 5);
                return act(Deed::SelectCriterion, std::to_string(tab),
                           [&] { form_.tabCriteria.UserSelectTab(tab); });
            }
            case 4: return chooseAny(form_.cbxDataQuality);
            default: return criterion();
        }
    }

    void criterion() {
        switch (form_.CurrentCriteriaTab) {
            case 1: return grid(random_.chance(50) ? form_.flxHabitatHetero : form_.flxJurisUnitHetero);
            case 2: return areaBox();
            case 3:
                return random_.chance(20) ? numberBox(form_.txtCCS) : grid(form_.flxLandUsesVulnerability);
            case 4: return grid(form_.flxFunctionality);
            default: return grid(form_.flxSocioEcon);
        }
    }

    void areaBox() {
        switch (random_.below(4)) {
            case 0: return chooseAny(form_.cbxDispersalYN);
            case 1: return chooseAny(form_.cbxConnectivity);
            case 2: return numberBox(form_.txtPropOccupied);
            default: break;
        }
        switch (form_.HomeRangeType) {
            case 0: return numberBox(form_.txtContinuousHR);
            case 1: return chooseAny(form_.cbxDefaultBinsHR);
            default: return chooseAny(form_.cbxUserDefBinsHR);
        }
    }

    void summaryPage() {
        walker_.randomAnswers();
        const int kind = random_.below(20);
        if (kind < 3) {
            const int tab = random_.between(1, 9);
            return act(Deed::SelectSummary, std::to_string(tab),
                       [&] { form_.tabCriteriaSummary.UserSelectTab(tab); });
        }
        if (kind < 4) return click(form_.chkAllowSummaryEdit);
        if (kind < 5) return exportTable();
        std::vector<ui::Grid*> onView;
        for (ui::Grid& table : form_.flxSummary) {
            if (table.Visible()) onView.push_back(&table);
        }
        grid(*random_.pick(onView));
    }

    void graphPage() {
        if (random_.chance(20)) return graphCommand();
        if (random_.chance(40)) return selectPage(random_.between(1, 7));
        const int tab = random_.between(1, 8);
        act(Deed::SelectGraph, std::to_string(tab), [&] { form_.tabGraphSummary.UserSelectTab(tab); });
    }

    void scorePage() {
        walker_.randomAnswers();
        switch (random_.below(7)) {
            case 0: return click(form_.optScoreDisplay(random_.below(2)));
            case 1: return click(form_.chkShowGraphs);
            case 2: return click(form_.chkShowAggregateScore);
            case 3: return random_.chance(50) ? graphCommand() : exportTable();
            default: return grid(form_.flxScoresSort(form_.flxScoresSort(1).Visible() ? 1 : 0));
        }
    }

    void resultsPage() {
        walker_.randomAnswers();
        switch (random_.below(9)) {
            case 0:
            case 1: return selectSpecies();
            case 2: return numberBox(form_.txtErrorMargin);
            case 3: return numberBox(form_.txtThreatRep);
            case 4: return numberBox(form_.txtCCSRep);
            case 5: return click(form_.optCompResults(random_.below(4)));
            case 6: return exportResults();
            case 7: return exportTable();
            default: {
                const int view = random_.below(5);
                if (view == 4) return grid(form_.flxBrenicSuite);
                return form_.flxCompResults(view).Visible() ? grid(form_.flxCompResults(view))
                                                            : selectSpecies();
            }
        }
    }

    void chooseAny(ui::ComboBox& box) {
        if (box.ListCount() > 0) choose(box, random_.below(box.ListCount()));
    }

    void focus(ui::TextBox& box) {
        act(Deed::Focus, box.Name(), [&] { box.UserFocus(); });
    }

    /// Types or pastes into a box, at the caret or over a part of its text.
    void numberBox(ui::TextBox& box) {
        if (random_.chance(40)) focus(box);
        const std::string text = randomNumberText(random_);
        if (random_.chance(50)) return put(box, text);
        act(Deed::TypeKeys, box.Name() + " '" + text + "'", [&] {
            box.SelStart(random_.below(4));
            box.SelLength(random_.below(4));
            for (const char key : text) box.UserKey(static_cast<unsigned char>(key));
            box.UserKey(random_.pick({ui::BackspaceKey, ui::EnterKey, ui::EscapeKey, int('7'), int('.')}));
        });
    }

    int anyRow(const ui::Grid& table) {
        return random_.below(table.Rows() + 1) - (random_.chance(5) ? 1 : 0);
    }
    int anyCol(const ui::Grid& table) {
        return random_.below(table.Cols() + 1) - (random_.chance(5) ? 1 : 0);
    }

    void moveTo(ui::Grid& table) {
        const int row = anyRow(table);
        const int col = anyCol(table);
        act(Deed::MoveCell, table.Name() + cell(row, col), [&] { table.UserMoveTo(row, col); });
    }

    /// Something on a table: the mouse, the keys or an edit.
    void grid(ui::Grid& table) {
        if (!walker_.running()) return;
        const int row = anyRow(table);
        const int col = anyCol(table);
        const std::string where = table.Name() + cell(row, col);
        switch (random_.below(9)) {
            case 0: return mouse(Deed::MouseMove, table, row, col);
            case 1: return mouse(Deed::MouseDown, table, row, col);
            case 2: return moveTo(table);
            case 3:
                return act(Deed::EditCell, where + " deleted", [&] {
                    if (table.UserMoveTo(row, col)) table.UserDelete();
                });
            case 4:
            case 5: return editByKeys(table, row, col);
            default: return editCell(table, row, col, cellText(col));
        }
    }

    /// The mouse is over a cell in sight, or over none.
    void mouse(Deed deed, ui::Grid& table, int row, int col) {
        const bool over =
            row >= 0 && row < table.Rows() && col >= 0 && col < table.Cols() && !table.ColHidden(col);
        const int mouseRow = over ? row : -1;
        const int mouseCol = over ? col : -1;
        act(deed, table.Name() + cell(mouseRow, mouseCol), [&] {
            deed == Deed::MouseMove ? table.UserMouseMove(mouseRow, mouseCol)
                                    : table.UserMouseDown(mouseRow, mouseCol);
        });
    }

    std::string cellText(int col) {
        if (random_.chance(2)) return "one, two";
        const bool name = col == list::Name && form_.CurrentMainTab <= 2;
        if (name && random_.chance(85)) return randomName(random_);
        return random_.chance(60) ? std::to_string(random_.below(4)) : randomNumberText(random_);
    }

    /// An edit key by key; it may stay open, so that the next deed closes it.
    void editByKeys(ui::Grid& table, int row, int col) {
        const std::string text = cellText(col);
        act(Deed::EditCell, table.Name() + cell(row, col) + " keys '" + text + "'", [&] {
            if (!table.UserMoveTo(row, col) || !table.UserBeginEdit()) return;
            for (const char key : text) table.UserEditKey(static_cast<unsigned char>(key));
            if (random_.chance(20)) table.UserEditPaste(randomNumberText(random_));
            if (random_.chance(20)) table.UserEditKey(ui::BackspaceKey);
            if (random_.chance(20)) return;
            table.UserEditKey(random_.pick({ui::EnterKey, ui::TabKey, ui::UpKey, ui::DownKey, ui::LeftKey,
                                            ui::RightKey, ui::EscapeKey}));
        });
    }

    void resize() {
        const auto state = random_.pick({ui::WindowState::Normal, ui::WindowState::Normal,
                                         ui::WindowState::Maximized, ui::WindowState::Minimized});
        act(Deed::Resize, "", [&] {
            form_.UserResize(state, random_.below(3000), random_.below(3000), random_.below(30000),
                             random_.below(20000));
        });
    }

    void menu() {
        switch (random_.below(12)) {
            case 0: return walker_.newProject();
            case 1:
            case 2:
            case 3: return walker_.openProject();
            case 4:
            case 5:
            case 6: return walker_.saveProject();
            case 7: return random_.chance(20) ? exitProgram() : import();
            case 8: return import();
            case 9: return exportTable();
            case 10: return graphCommand();
            default: return act(Deed::Export, "printed", [&] { form_.mnuPrintGrid.UserClick(); });
        }
    }

    void exitProgram() {
        walker_.closeEditor();
        walker_.randomAnswers();
        walker_.platform.Files.emplace_back(walker_.newPath(".brn"));
        const bool stays = form_.ProjectChanged && random_.chance(70);
        if (form_.ProjectChanged) walker_.platform.Answers.push_front(stays ? "yes" : "no");
        act(Deed::Exit, stays ? "with a save" : "", [&] {
            form_.mnuExit.UserClick();
            if (form_.Unloaded() == stays) walker_.defect("only the answer No leaves the program");
        });
    }

    void import() {
        walker_.closeEditor();
        walker_.randomAnswers();
        static const std::vector<std::string> Fields = {"Otter", "1",  "2",   "Birch forest", "",  "0.5",
                                                        "3",     "17", "abc", "2.6",          " ", "x,y"};
        std::string content;
        for (int lines = random_.below(5); lines > 0; --lines) {
            for (int fields = random_.between(1, 5); fields > 0; --fields)
                content += random_.pick(Fields) + (fields > 1 ? "\t" : "");
            content += random_.pick({"\r\n", "\r\n", "\n", "\r"});
        }
        const bool missing = random_.chance(2);
        const std::string path = missing ? walker_.folder_.file("missing.txt") : walker_.newPath(".txt");
        if (!missing) writeFile(path, content);
        random_.chance(10) ? walker_.platform.Files.emplace_back()
                           : walker_.platform.Files.emplace_back(path);
        act(Deed::Import, path, [&] { form_.mnuImportData.UserClick(); });
    }

    void exportTable() {
        walker_.randomAnswers();
        const int how = random_.below(100);
        if (how < 10) walker_.platform.Files.emplace_back();
        if (how == 10) walker_.platform.Files.emplace_back(walker_.folder_.file("no such folder/t.txt"));
        if (how > 10) walker_.platform.Files.emplace_back(walker_.folder_.file("table.txt"));
        act(Deed::Export, "", [&] { form_.mnuExportData.UserClick(); });
    }

    void exportResults() {
        const int how = random_.below(10);
        walker_.platform.Files.clear();
        if (how == 1) walker_.platform.Files.emplace_back(walker_.folder_.file("no such folder/r.txt"));
        if (how > 1) walker_.platform.Files.emplace_back(walker_.folder_.file("results.txt"));
        push(Deed::ExportResults, form_.cmdExportResults);
    }

    void graphCommand() {
        walker_.randomAnswers();
        if (random_.chance(80)) walker_.platform.Files.emplace_back(walker_.folder_.file("graph.bmp"));
        const int command = random_.below(3);
        act(Deed::GraphCommand, std::to_string(command), [&] {
            (command == 0   ? form_.mnuSaveGraph
             : command == 1 ? form_.mnuCopyGraph
                            : form_.mnuPrintGraph)
                .UserClick();
        });
    }

    Walker& walker_;
    frmBrenica& form_;
    Random& random_;
};

inline void Walker::randomDeed() { PageDeeds(*this).any(); }
