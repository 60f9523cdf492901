// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "walk/walk_pages.h"

/// Fills by hand what a project lacks for its scores, page by page, and selects.
class ProjectCompletion {
public:
    /// With gaps, some levels of use stay blank.
    ProjectCompletion(Walker& walker, bool gaps)
        : walker_(walker), form_(walker.form), deeds_(walker), gaps_(gaps) {}

    void run() {
        walker_.platform.Answers.clear();
        goTo(1);
        fillList(form_.flxCandidateSpecies, form_.txtTotalSpecies, form_.cmdUpdateSpecies, {"Species"});
        goTo(2);
        fillLists();
        goTo(3);
        for (int species = 0; walker_.running() && species < form_.cbxSpeciesName.ListCount(); ++species) {
            deeds_.choose(form_.cbxSpeciesName, species);
            fillSpecies();
        }
        select();
    }

    void select() {
        goTo(6);
        goTo(7);
        deeds_.put(form_.txtCCSRep, "1");
        walker_.platform.Answers.clear();
        deeds_.selectSpecies();
    }

    void goTo(int page) {
        if (!walker_.running()) return;
        walker_.platform.Transcript.clear();
        walker_.platform.Answers.clear();
        walker_.act(Deed::SelectPage, std::to_string(page), [&] {
            form_.tabBrenica.UserSelectTab(page);
            walker_.noPageLeeway();
        });
    }

private:
    /// Gives the list two rows if it has none, and each blank cell from the name on its text.
    void fillList(ui::Grid& grid, ui::TextBox& newRows, ui::CommandButton& update,
                  const std::vector<std::string>& texts) {
        if (grid.Rows() == 1) {
            deeds_.put(newRows, "2");
            deeds_.push(Deed::AddRows, update);
        }
        for (int row = 1; walker_.running() && row < grid.Rows(); ++row) {
            for (std::size_t i = 0; i < texts.size(); ++i) {
                const int col = static_cast<int>(i) + 1;
                if (!ui::isBlank(grid.TextMatrix(row, col)) || texts[i].empty()) continue;
                deeds_.editCell(grid, row, col, i == 0 ? texts[i] + " " + std::to_string(row) : texts[i]);
            }
        }
    }

    void fillLists() {
        const std::vector<std::string> texts[] = {
            {"Habitat", "", "2"}, {"Zone", "", "2"}, {"Activity", "2", "1"}, {"Function"}};
        const int buttons[] = {0, 1, 2, 4};
        const auto lists = form_.ParameterLists();
        for (std::size_t i = 0; walker_.running() && i < lists.size(); ++i) {
            deeds_.click(form_.optLandChar(buttons[i]));
            fillList(*lists[i].Grid, *lists[i].NewRows, *lists[i].Update, texts[i]);
        }
    }

    void fillSpecies() {
        tab(1);
        const bool blank = gaps_ && form_.CurrentSpeciesIndex > 1;
        if (!blank) fill(form_.flxHabitatHetero, 1, "2");
        if (!blank) fill(form_.flxJurisUnitHetero, 1, "2");
        tab(2);
        if (!walker_.running()) return;
        if (form_.cbxDispersalYN.ListIndex() < 1) deeds_.choose(form_.cbxDispersalYN, 1);
        if (form_.cbxConnectivity.ListIndex() < 1) deeds_.choose(form_.cbxConnectivity, 2);
        fillHomeRange();
        if (form_.txtPropOccupied.Text() == "0") deeds_.put(form_.txtPropOccupied, "0.4");
        tab(3);
        fill(form_.flxLandUsesVulnerability, 3, "1");
        tab(4);
        fill(form_.flxFunctionality, 1, "1");
        tab(5);
        fill(form_.flxSocioEcon, 1, "1");
    }

    void fillHomeRange() {
        switch (form_.HomeRangeType) {
            case 0:
                if (form_.txtContinuousHR.Text() == "0") deeds_.put(form_.txtContinuousHR, "12");
                return;
            case 1: return deeds_.choose(form_.cbxDefaultBinsHR, 2);
            default:
                if (form_.cbxUserDefBinsHR.ListCount() > 0) deeds_.choose(form_.cbxUserDefBinsHR, 0);
        }
    }

    void tab(int index) {
        walker_.act(Deed::SelectCriterion, std::to_string(index),
                    [&] { form_.tabCriteria.UserSelectTab(index); });
    }

    void fill(ui::Grid& grid, int lastCol, const std::string& grade) {
        for (int row = 1; walker_.running() && row < grid.Rows(); ++row) {
            for (int col = 1; col <= lastCol; ++col) {
                if (grid.TextMatrix(row, col).empty()) deeds_.editCell(grid, row, col, grade);
            }
        }
    }

    Walker& walker_;
    frmBrenica& form_;
    PageDeeds deeds_;
    bool gaps_;
};

inline void Walker::completeAndSelect() { ProjectCompletion(*this, random_.chance(10)).run(); }

/// Opens a complete project; then the road of one full run, or a single look at every page on the way.
inline void Walker::openComplete(bool straight) {
    RandomProject project(random_, {random_.between(2, 9), random_.between(1, 6), random_.between(1, 5),
                                    random_.between(1, 5)});
    const ProjectFile file{newPath(".brn"), true};
    writeFile(file.Path, project.text.text());
    randomAnswers();
    platform.Files = {file.Path};
    platform.Answers.clear();
    act(Deed::OpenProject, file.Path, [&] { form.mnuOpenProject.UserClick(); });
    if (straight) ProjectCompletion(*this, false).select();
}

/// Half of the walks begin with a complete project, half of those with a selection; some end by completing by hand what
/// they have come to.
inline void Walker::run(int deeds) {
    const int kind = random_.below(100);
    if (kind < 65) openComplete(kind < 50);
    const bool completes = random_.chance(30);
    while (running() && Total < deeds && !random_.exhausted()) {
        const int before = Total;
        randomDeed();
        if (Total == before) act(Deed::MouseMove, "nowhere", [] {});
    }
    if (completes && running() && !DamagedFile) completeAndSelect();
    if (running()) End = WalkEnd::Tired;
}
