// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "project/frmBrenica.h"
#include "ui/numbers.h"
#include "ui/text.h"

/// What the deeds so far have left that the system allows to be out of line.
struct Leeway {
    /// A command that clears the project was told No by a gate: the tab strip stays on the page that refused.
    bool StrayPage = false;
    /// Removing a habitat or zone shifts no cells of its cross table before the next calculation of use.
    bool StrayHabitatCells = false;
    bool StrayZoneCells = false;
    /// A rating edited in the table by activity while there is no activity stands there alone.
    bool StrayRatings = false;
    /// Removal leaves the data quality table's rows as they are: how many there were.
    int DataQualityRows = 1;
    int SpeciesBefore = 0;
};

/// Finds what does not hold of a form whose grids are in step.
class FormInvariants {
public:
    FormInvariants(frmBrenica& form, const Leeway& leeway)
        : form_(form), global_(form.Global()), leeway_(leeway) {}

    std::vector<std::string> problems() {
        counts();
        summaryShapes();
        entryShapes();
        scoreShapes();
        return std::move(problems_);
    }
    std::vector<std::string> problemsOfView() {
        pages();
        criteria();
        homeRange();
        summaryViews();
        scoreViews();
        resultViews();
        titleBar();
        boxes();
        return std::move(problems_);
    }
    std::vector<std::string> problemsOfContent() {
        names();
        if (!leeway_.StrayHabitatCells) copiesOfUse(summary::HabitatUse, global_.TotalHabitatTypes);
        if (!leeway_.StrayZoneCells) copiesOfUse(summary::JurisUnitUse, global_.TotalJurisUnits);
        if (!leeway_.StrayRatings) copiesOfThreats();
        return std::move(problems_);
    }

    bool ratingsDifferWithoutActivities() const {
        if (global_.TotalLandUses > 0) return false;
        for (int s = 1; s <= global_.TotalSpecies; ++s) {
            for (int i = 0; i < 3; ++i) {
                if (form_.flxSummary(6).TextMatrix(s, threat::Severity + i) !=
                    form_.flxSummary(7).TextMatrix(s, 2 + i))
                    return true;
            }
        }
        return false;
    }

    /// What holds even of a project that comes from a damaged file.
    std::vector<std::string> problemsOfADamagedFile() {
        titleBar();
        return std::move(problems_);
    }

private:
    void titleBar() {
        const std::string& path = global_.ProjectFileName;
        require(form_.Caption() == (path.empty() ? "Brenica" : "Brenica - " + path), "the title bar");
    }
    void require(bool holds, const std::string& what) {
        if (!holds) problems_.push_back(what);
    }
    void shape(const ui::Grid& grid, int rows, int cols) {
        require(grid.Rows() == rows && grid.Cols() == cols,
                grid.Name() + " is " + std::to_string(grid.Rows()) + " by " + std::to_string(grid.Cols()) +
                    " and should be " + std::to_string(rows) + " by " + std::to_string(cols));
    }

    void counts() {
        shape(form_.flxCandidateSpecies, global_.TotalSpecies + 1, 3);
        shape(form_.flxHabitatTypes, global_.TotalHabitatTypes + 1, 4);
        shape(form_.flxJurisUnits, global_.TotalJurisUnits + 1, 4);
        shape(form_.flxLandUses, global_.TotalLandUses + 1, 4);
        shape(form_.flxBins, global_.TotalBins + 1, 2);
        shape(form_.flxFunctions, global_.TotalFunctions + 1, 2);
    }

    /// A block a species or unit; one row each while there is none of the other kind.
    static int blocks(int outer, int inner) {
        return outer == 0 && inner == 0 ? 1 : std::max(outer, 1) * std::max(inner, 1) + 1;
    }

    /// The totals block adds three rows and columns; a change of the list takes off those of its own direction.
    void crossTable(int member, int units, int offset) {
        const ui::Grid& grid = form_.flxSummary(member);
        const int rows = global_.TotalSpecies + 1;
        const int cols = units + offset + 1;
        const bool totals = global_.TotalSpecies > 0 && units > 0;
        const bool rightRows = grid.Rows() == rows || (totals && grid.Rows() == rows + 3);
        const bool rightCols = grid.Cols() == cols || (totals && grid.Cols() == cols + 3);
        if (!rightRows || !rightCols) shape(grid, rows, cols);
    }

    void summaryShapes() {
        const int species = global_.TotalSpecies;
        crossTable(summary::HabitatUse, global_.TotalHabitatTypes, 0);
        crossTable(summary::JurisUnitUse, global_.TotalJurisUnits, 0);
        crossTable(summary::Vulnerability, global_.TotalLandUses, vulnerability::ThreatOffset);
        shape(form_.flxSummary(summary::HabitatsBySpecies), blocks(species, global_.TotalHabitatTypes), 3);
        shape(form_.flxSummary(summary::JurisUnitsBySpecies), blocks(species, global_.TotalJurisUnits), 3);
        shape(form_.flxSummary(summary::ThreatsBySpecies), blocks(species, global_.TotalLandUses), 7);
        shape(form_.flxSummary(summary::SpeciesByThreat), blocks(species, global_.TotalLandUses), 5);
        shape(form_.flxSummary(summary::Area), species + 1, 5);
        shape(form_.flxSummary(summary::Functionality), species + 1, global_.TotalFunctions + 1);
        shape(form_.flxSummary(summary::SocioEcon), species + 1, 6);
        const bool kept = species <= leeway_.SpeciesBefore &&
                          form_.flxSummary(summary::DataQuality).Rows() == leeway_.DataQualityRows;
        shape(form_.flxSummary(summary::DataQuality), kept ? leeway_.DataQualityRows : species + 1, 6);
    }

    void entryShapes() {
        shape(form_.flxHabitatHetero, global_.TotalHabitatTypes + 1, 2);
        shape(form_.flxJurisUnitHetero, global_.TotalJurisUnits + 1, 2);
        shape(form_.flxLandUsesVulnerability, global_.TotalLandUses + 1, 4);
        shape(form_.flxFunctionality, global_.TotalFunctions + 1, 2);
        shape(form_.flxSocioEcon, 6, 2);
    }

    void scoreShapes() {
        const int rows = global_.TotalSpecies + 1;
        shape(form_.flxScores(0), rows, 8);
        shape(form_.flxScores(1), rows, 6);
        shape(form_.flxScoresSort(0), rows, 9);
        shape(form_.flxScoresSort(1), rows, 7);
        require(form_.flxCompResults(0).Cols() == 12, "columns of flxCompResults(0)");
        for (int i = 1; i < 4; ++i) require(form_.flxCompResults(i).Cols() == 2, "columns of flxCompResults");
        require(form_.flxBrenicSuite.Cols() == 5, "columns of flxBrenicSuite");
    }

    /// Of these controls one is visible, that of the index.
    template <class Controls>
    void onlyVisible(Controls& controls, int index, const std::string& what) {
        for (int i = 0; i < controls.Count(); ++i) {
            require(controls(i).Visible() == (i == index), what + ": number " + std::to_string(i) +
                                                               " while the current one is " +
                                                               std::to_string(index));
        }
    }

    void pages() {
        onlyVisible(form_.fraTabContents, form_.CurrentMainTab - 1, "page frames");
        onlyVisible(form_.fraLandCharInfo, form_.CurrentLandChar, "list frames");
        require(form_.optLandChar(form_.CurrentLandChar).Value(), "the list's button is off");
        require(leeway_.StrayPage || form_.tabBrenica.SelectedItem() == form_.CurrentMainTab,
                "the tab strip stands on another page");
        const bool visited = form_.CurrentMainTab != 1 && global_.TotalSpecies > 0;
        require(!visited ||
                    (form_.CurrentSpeciesIndex >= 1 && form_.CurrentSpeciesIndex <= global_.TotalSpecies &&
                     form_.cbxSpeciesName.ListCount() == global_.TotalSpecies),
                "the species selector is out of step");
    }

    void criteria() {
        onlyVisible(form_.fraCriteria, form_.CurrentCriteriaTab - 1, "criteria frames");
        require(form_.tabCriteria.SelectedItem() == form_.CurrentCriteriaTab, "the criteria tab");
        const bool vulnerabilityTab = form_.CurrentCriteriaTab == 3;
        require(form_.txtCCS.Visible() == vulnerabilityTab && form_.lblCCS.Visible() == vulnerabilityTab,
                "the conservation status is shown on its tab only");
    }

    void homeRange() {
        const int type = form_.HomeRangeType;
        require(form_.txtContinuousHR.Visible() == (type == 0) &&
                    form_.cbxDefaultBinsHR.Visible() == (type == 1) &&
                    form_.cbxUserDefBinsHR.Visible() == (type == 2),
                "the home range box of the type");
        require(form_.txtTotalBins.Enabled() == (type == 2) && form_.cmdUpdateBins.Enabled() == (type == 2) &&
                    form_.cmdRemoveBin.Enabled() == (type == 2) &&
                    form_.txtRemoveBinIndex.Enabled() == (type == 2),
                "the breakpoints' controls are enabled for user-defined bins only");
        require(form_.optHomeRangeType(type).Value(), "the button of the home range type is off");
    }

    void summaryViews() {
        const int tab = form_.CurrentSummaryTab;
        for (int member = 0; member < summary::Count; ++member) {
            const int itsTab = member < 2 ? 1 : member < 4 ? 2 : member - 1;
            require(form_.flxSummary(member).Visible() == (itsTab == tab),
                    "summary table " + std::to_string(member) + " on tab " + std::to_string(tab));
        }
        require(form_.tabCriteriaSummary.SelectedItem() == tab, "the summary tab");
        onlyVisible(form_.chtSummary, form_.CurrentGraphTab - 1, "summary graphs");
        require(form_.tabGraphSummary.SelectedItem() == form_.CurrentGraphTab, "the graph tab");
    }

    void scoreViews() {
        const bool views[] = {form_.flxScoresSort(0).Visible(), form_.flxScoresSort(1).Visible(),
                              form_.chtScores(0).Visible(), form_.chtScores(1).Visible(),
                              form_.chtScores(2).Visible()};
        require(form_.ScoreDisplayMode == (form_.optScoreDisplay(1).Value() ? 1 : 0), "the score display");
        const bool original = form_.optScoreDisplay(1).Value();
        const bool graphs = form_.chkShowGraphs.Value();
        const int table = original ? 1 : 0;
        const int chart = original ? 3 : form_.chkShowAggregateScore.Value() ? 2 : 4;
        for (int i = 0; i < 5; ++i) {
            require(views[i] == (i == (graphs ? chart : table)), "score view " + std::to_string(i));
        }
        require(form_.chkShowAggregateScore.Enabled() == graphs, "the aggregate's box is for charts only");
    }

    void resultViews() {
        int chosen = 0;
        for (int i = 0; i < 4; ++i) chosen = form_.optCompResults(i).Value() ? i : chosen;
        onlyVisible(form_.flxCompResults, chosen, "result views");
        require(form_.flxBrenicSuite.Visible(), "the suite is hidden");
    }

    void within(const ui::TextBox& box, double maximum) {
        const auto value = ui::tryReal(box.Text());
        require(value && *value >= 0 && *value <= maximum, box.Name() + " holds '" + box.Text() + "'");
    }

    void boxes() {
        for (const ui::TextBox* box :
             {&form_.txtPropOccupied, &form_.txtCCS, &form_.txtCCSRep, &form_.txtThreatRep})
            within(*box, 1);
        within(form_.txtErrorMargin, 100);
        within(form_.txtContinuousHR, 10000000);
        for (const ui::TextBox* box :
             {&form_.txtTotalSpecies, &form_.txtTotalHabitatTypes, &form_.txtTotalJurisUnits,
              &form_.txtTotalLandUses, &form_.txtTotalFunctions}) {
            within(*box, 1000);
            require(box->Text() == ui::toText(box->Long()), box->Name() + " is not in its plain form");
        }
    }

    void sameText(const ui::Grid& grid, int row, int col, std::string_view text) {
        require(grid.TextMatrix(row, col) == text,
                grid.Name() + " has '" + std::string(grid.TextMatrix(row, col)) + "' in row " +
                    std::to_string(row) + ", column " + std::to_string(col) + " and should have '" +
                    std::string(text) + "'");
    }

    /// A name that was typed stands in all tables. New rows have none until then.
    void names() {
        for (int s = 1; s <= global_.TotalSpecies; ++s) {
            const std::string name(form_.flxCandidateSpecies.TextMatrix(s, list::Name));
            if (name.empty()) continue;
            const std::string_view shortName = ui::firstCharacters(name, 20);
            sameText(form_.flxSummary(0), s, 0, shortName);
            sameText(form_.flxSummary(1), s, 0, shortName);
            for (const int member : {4, 5, 8, 9}) sameText(form_.flxSummary(member), s, 0, name);
            for (ui::Grid& grid : form_.flxScores) sameText(grid, s, 0, name);
            const auto first = [&](int units) { return (s - 1) * std::max(units, 1) + 1; };
            sameText(form_.flxSummary(2), first(global_.TotalHabitatTypes), 0, shortName);
            sameText(form_.flxSummary(3), first(global_.TotalJurisUnits), 0, shortName);
            sameText(form_.flxSummary(6), first(global_.TotalLandUses), 0, name);
        }
        entryNames(form_.flxHabitatTypes, form_.flxHabitatHetero);
        entryNames(form_.flxLandUses, form_.flxLandUsesVulnerability);
        entryNames(form_.flxFunctions, form_.flxFunctionality);
        for (int f = 1; f <= global_.TotalFunctions; ++f) {
            const std::string name(form_.flxFunctions.TextMatrix(f, list::Name));
            if (!name.empty()) sameText(form_.flxSummary(8), 0, f, name);
        }
    }
    void entryNames(const ui::Grid& list, const ui::Grid& entry) {
        for (int row = 1; row < list.Rows(); ++row) {
            const std::string name(list.TextMatrix(row, list::Name));
            if (!name.empty()) sameText(entry, row, 0, name);
        }
    }

    /// A level of use stands in the cross table and in the long table.
    void copiesOfUse(int member, int units) {
        const ui::Grid& levels = form_.flxSummary(member + 2);
        for (int s = 1; s <= global_.TotalSpecies; ++s) {
            for (int unit = 1; unit <= units; ++unit) {
                sameText(form_.flxSummary(member), s, unit,
                         levels.TextMatrix((s - 1) * units + unit, use::Level));
            }
        }
    }

    /// Severity, recovery and proportion stand in both orders.
    void copiesOfThreats() {
        const int threats = global_.TotalLandUses;
        const int species = global_.TotalSpecies;
        for (int s = 1; s <= species; ++s) {
            for (int t = 1; t <= threats; ++t) {
                for (int i = 0; i < 3; ++i) {
                    sameText(form_.flxSummary(7), (t - 1) * species + s, 2 + i,
                             form_.flxSummary(6).TextMatrix((s - 1) * threats + t, threat::Severity + i));
                }
            }
        }
    }

    frmBrenica& form_;
    const modGlobal& global_;
    const Leeway& leeway_;
    std::vector<std::string> problems_;
};
