// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <string>
#include <vector>

#include "support/form_test.h"

/// The controls of one of the lists, as the user meets them on its page.
struct ListControls {
    ui::Grid& Grid;
    ui::TextBox& NewRows;
    ui::CommandButton& Update;
    ui::TextBox& RemoveIndex;
    ui::CommandButton& Remove;
    ui::ControlArray<ui::CommandButton>& Move;
    int& Total;
};

/// What the tests of the entry pages share.
class EntryTest : public FormTest {
protected:
    ListControls species() {
        return {form.flxCandidateSpecies,   form.txtTotalSpecies,  form.cmdUpdateSpecies,
                form.txtRemoveSpeciesIndex, form.cmdRemoveSpecies, form.cmdSpeciesMove,
                global.TotalSpecies};
    }
    ListControls habitats() {
        return {form.flxHabitatTypes,       form.txtTotalHabitatTypes, form.cmdUpdateHabitatTypes,
                form.txtRemoveHabitatIndex, form.cmdRemoveHabitatType, form.cmdHabitatMove,
                global.TotalHabitatTypes};
    }
    ListControls zones() {
        return {form.flxJurisUnits,           form.txtTotalJurisUnits, form.cmdUpdateJurisUnits,
                form.txtRemoveJurisUnitIndex, form.cmdRemoveJurisUnit, form.cmdJurisUnitMove,
                global.TotalJurisUnits};
    }
    ListControls activities() {
        return {form.flxLandUses,           form.txtTotalLandUses, form.cmdUpdateLandUses,
                form.txtRemoveLandUseIndex, form.cmdRemoveLandUse, form.cmdLandUseMove,
                global.TotalLandUses};
    }
    ListControls functions() {
        return {form.flxFunctions,           form.txtTotalFunctions, form.cmdUpdateFunctions,
                form.txtRemoveFunctionIndex, form.cmdRemoveFunction, form.cmdFunctionMove,
                global.TotalFunctions};
    }

    /// Adds rows without naming them.
    void addBlank(const ListControls& list, int count) {
        type(list.NewRows, std::to_string(count));
        list.Update.UserClick();
    }
    void remove(const ListControls& list, int row) {
        type(list.RemoveIndex, std::to_string(row));
        list.Remove.UserClick();
    }
    void moveUp(const ListControls& list) { list.Move(0).UserClick(); }
    void moveDown(const ListControls& list) { list.Move(1).UserClick(); }

    ui::Grid& summary(int member) { return form.flxSummary(member); }

    static std::vector<std::vector<std::string>> cellsOf(const ui::Grid& grid) {
        std::vector<std::vector<std::string>> rows;
        for (int row = 0; row < grid.Rows(); ++row) rows.push_back(rowOf(grid, row));
        return rows;
    }
    /// The cells of every grid of the form but those named.
    std::vector<std::vector<std::vector<std::string>>> allCellsBut(const std::set<std::string>& names) {
        std::vector<std::vector<std::vector<std::string>>> cells;
        for (const ui::Control* control : form.Controls()) {
            const auto* grid = dynamic_cast<const ui::Grid*>(control);
            if (grid != nullptr && names.count(grid->Name()) == 0) cells.push_back(cellsOf(*grid));
        }
        return cells;
    }
    /// The texts from column `firstCol` to `lastCol` of a row.
    static std::vector<std::string> cells(const ui::Grid& grid, int row, int firstCol, int lastCol) {
        std::vector<std::string> texts;
        for (int col = firstCol; col <= lastCol; ++col) texts.emplace_back(grid.TextMatrix(row, col));
        return texts;
    }

    /// Opens a project and shows its first species on the criteria page.
    void openOnCriteriaPage(const ProjectText& project) {
        open(project);
        goTo(2);
        goTo(3);
    }
    void backspaceAll(ui::TextBox& box) {
        box.UserFocus();
        box.SelStart(0);
        box.SelLength(static_cast<int>(box.Text().size()));
        box.UserKey(8);
    }
};
