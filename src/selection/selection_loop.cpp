// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "entry/modErrorHandling.h"
#include "project/columns.h"
#include "selection/result_colours.h"
#include "selection/selection.h"
#include "ui/arrays.h"
#include "ui/text.h"

namespace modBrenicaUtilities {

namespace {

constexpr int Places = 3;

/// What a row's species would add.
struct Additions {
    int Habitats = 0;
    int JurisUnits = 0;
    int Threats = 0;

    bool none() const { return Habitats <= 0 && JurisUnits <= 0 && Threats <= 0; }
};

/// One run of the selection. Its working state lives for one press of the command; results go to the grids.
class SelectionRun {
public:
    SelectionRun(ui::Platform& platform, modGlobal& global, SelectionInput input, const SelectionGrids& grids)
        : platform_(platform),
          global_(global),
          grids_(grids),
          results_(grids.Results),
          SpeciesRemoved(std::move(input.SpeciesRemoved)),
          HabitatThresholds(std::move(input.HabitatThresholds)),
          JurisUnitThresholds(std::move(input.JurisUnitThresholds)),
          HabitatCovered(static_cast<std::size_t>(global.TotalHabitatTypes)),
          JurisUnitCovered(static_cast<std::size_t>(global.TotalJurisUnits)),
          LandUseCovered(static_cast<std::size_t>(global.TotalLandUses)),
          ThreatMaxScores(static_cast<std::size_t>(global.TotalLandUses)),
          habitatLevels_(grids.HabitatLevels, use::Level, 1),
          jurisUnitLevels_(grids.JurisUnitLevels, use::Level, 1),
          ratings_(grids.Threats, threat::Urgency, threat::Proportion - threat::Urgency + 1),
          threatScores_(grids.ThreatScores, vulnerability::ThreatOffset + 1, global.TotalLandUses) {}

    void run() {
        findThreatMaxScores();
        results_.Redraw(false);
        listUnits();
        firstPass();
        while (!AllCovered() && RemovedCount < global_.TotalSpecies) laterPass();
        report();
        results_.AutoSize(0, results_.Cols() - 1);
        results_.Redraw(true);
    }

private:
    void findThreatMaxScores();
    void listUnits();
    void firstPass();
    void laterPass();
    void startBlock(bool first);
    void writeAdditions(int species, int row);
    void writeRecalculatedScores(int species, int row);
    void normaliseRow(int row);
    void omitRowsWithoutAdditions();
    void findPick();
    void takePick();
    void omitFirstPick(const char* message);
    void addToSuite(const Additions& added);
    void count(const Additions& added);
    void report();

    Additions additionsOf(int row) const {
        return {results_.Long(row, result::AddHabitats), results_.Long(row, result::AddJurisUnits),
                results_.Long(row, result::AddThreats)};
    }
    int candidateOf(int row) const { return results_.Long(row, result::Candidate); }
    bool isRemoved(int species) const { return ui::elementAt(SpeciesRemoved, species - 1); }
    void remove(int species) {
        ui::elementAt(SpeciesRemoved, species - 1) = true;
        ++RemovedCount;
    }
    bool AllCovered() const {
        return HabitatsCovered == global_.TotalHabitatTypes && JurisUnitsCovered == global_.TotalJurisUnits &&
               ThreatsCovered == global_.TotalLandUses;
    }
    void paintRow(int row, ui::Colour colour) {
        results_.Select(row, 1, row, results_.Cols() - 1);
        results_.CellBackColor(colour);
    }
    void showOmitted(int row, const char* message) {
        platform_.showMessage(std::string(results_.TextMatrix(row, result::Name)) + message,
                              "Species Omitted", ui::MessageIcon::Exclamation);
    }

    ui::Platform& platform_;
    modGlobal& global_;
    const SelectionGrids& grids_;
    ui::Grid& results_;

    Flags SpeciesRemoved;
    Levels HabitatThresholds;
    Levels JurisUnitThresholds;
    Flags HabitatCovered;
    Flags JurisUnitCovered;
    Flags LandUseCovered;
    std::vector<double> ThreatMaxScores;
    NumberTable habitatLevels_;
    NumberTable jurisUnitLevels_;
    NumberTable ratings_;
    NumberTable threatScores_;
    /// Highest recalculated heterogeneity and vulnerability of the whole run: later passes are measured by early ones.
    std::array<double, 2> RecalcMaxScores{};

    int BlockStartRow = 0;  ///< first row of the current pass
    int BlockSize = 0;      ///< species in it
    int RemovedCount = 0;
    int PickOffset = 0;
    int PickRow = 0;
    int PickSpecies = 0;
    int PickNumber = 0;
    int MarginCount = 0;  ///< of the last pass that looked for species within the margin
    int HabitatsCovered = 0;
    int JurisUnitsCovered = 0;
    int ThreatsCovered = 0;
};

void SelectionRun::findThreatMaxScores() {
    for (int t = 1; t <= global_.TotalLandUses; ++t) {
        double& maximum = ThreatMaxScores[at(t)];
        for (int species = 1; species <= global_.TotalSpecies; ++species) {
            const double score = threatScores_.at(species, t + vulnerability::ThreatOffset);
            if (score > maximum) maximum = score;
        }
    }
}

void SelectionRun::listUnits() {
    const auto list = [](ui::Grid& view, const ui::Grid& names, int count) {
        view.Rows(count + 1);
        for (int i = 1; i <= count; ++i) view.TextMatrix(i, 0, names.TextMatrix(i, list::Name));
        view.AutoSize(0, 1);
    };
    list(grids_.HabitatsCovered, grids_.HabitatTypes, global_.TotalHabitatTypes);
    list(grids_.JurisUnitsCovered, grids_.JurisUnits, global_.TotalJurisUnits);
    // The first species' block of the threat table names the threats in their order.
    list(grids_.ThreatsCovered, grids_.Threats, global_.TotalLandUses);
}

void SelectionRun::startBlock(bool first) {
    BlockStartRow = results_.Rows();
    const int placed =
        SetupSelectionSpecies(platform_, global_, results_, grids_.Scores, SpeciesRemoved, first);
    if (first) RemovedCount = global_.TotalSpecies - placed;
    BlockSize = 0;
    for (int species = 1; species <= global_.TotalSpecies; ++species) {
        if (isRemoved(species)) continue;
        const int row = BlockStartRow + BlockSize++;
        writeAdditions(species, row);
        if (!first) writeRecalculatedScores(species, row);
    }
}

void SelectionRun::writeAdditions(int species, int row) {
    const int habitats = GetUnitsUsed(habitatLevels_, global_.TotalHabitatTypes, HabitatThresholds, species,
                                      use::Level, HabitatCovered);
    results_.TextMatrix(row, result::AddHabitats, ui::toText(habitats));
    const int zones = GetUnitsUsed(jurisUnitLevels_, global_.TotalJurisUnits, JurisUnitThresholds, species,
                                   use::Level, JurisUnitCovered);
    results_.TextMatrix(row, result::AddJurisUnits, ui::toText(zones));
    const int threats = GetThreatImpact(threatScores_, global_.ThreatRepresentation, ThreatMaxScores, species,
                                        LandUseCovered);
    results_.TextMatrix(row, result::AddThreats, ui::toText(threats));
}

void SelectionRun::writeRecalculatedScores(int species, int row) {
    const auto write = [&](int col, double& maximum, double raw) {
        const double rounded = ui::roundTo(raw, Places);
        if (raw > maximum) maximum = rounded;
        results_.TextMatrix(row, col, ui::toText(rounded));
    };
    write(result::Heterogeneity, RecalcMaxScores[0],
          RecalcHeteroScore(species, habitatLevels_, jurisUnitLevels_, HabitatCovered, JurisUnitCovered));
    const double status = grids_.ThreatScores.Real(species, vulnerability::ConservationStatus);
    write(result::Vulnerability, RecalcMaxScores[1],
          RecalcVulnerabilityScore(species, ratings_, status, LandUseCovered));
}

void SelectionRun::normaliseRow(int row) {
    const auto normalise = [&](int col, double maximum) {
        const double score = maximum <= 0 ? 0 : ui::roundTo(results_.Real(row, col) / maximum, Places);
        results_.TextMatrix(row, col, ui::toText(score));
    };
    normalise(result::Heterogeneity, RecalcMaxScores[0]);
    normalise(result::Vulnerability, RecalcMaxScores[1]);
    double aggregate = 0;
    for (const int col : {result::Heterogeneity, result::Vulnerability, result::AreaScore,
                          result::Functionality, result::SocioEcon}) {
        aggregate += results_.Real(row, col);
    }
    results_.TextMatrix(row, result::Aggregate, ui::toText(ui::roundTo(aggregate, Places)));
}

/// The first pass works on the scores as they stand.
void SelectionRun::firstPass() {
    startBlock(true);
    results_.Select(0, result::Aggregate);
    results_.Sort(ui::SortOrder::GenericDescending);
    for (int i = 1; i <= BlockSize; ++i) results_.TextMatrix(i, result::Rank, ui::toText(i));
    findPick();
    PickNumber = 1;
    takePick();
    const Additions added = additionsOf(PickRow);
    if (added.none()) {
        PickNumber = 0;
        omitFirstPick(
            " with the highest aggregate score has been removed as it covers no additional habitats, management zones "
            "or threats.");
    } else {
        addToSuite(added);
    }
    count(added);
}

void SelectionRun::laterPass() {
    startBlock(false);
    for (int i = 0; i < BlockSize; ++i) normaliseRow(BlockStartRow + i);
    // The range takes in the block's blank row, which stays last.
    results_.Select(BlockStartRow, result::Aggregate, BlockStartRow + BlockSize, result::Aggregate);
    results_.Sort(ui::SortOrder::GenericDescending);
    omitRowsWithoutAdditions();
    findPick();
    ++PickNumber;
    takePick();
    const Additions added = additionsOf(PickRow);
    if (added.none()) {
        --PickNumber;
        PickSpecies = candidateOf(PickRow);
        // The pick was removed when it was taken, so that it is dropped here without a word.
        if (!isRemoved(PickSpecies)) {
            omitFirstPick(
                " with the highest aggregate score has bee removed as it covers no additional habitats, management "
                "zones or threats.");
            remove(PickSpecies);
        }
    } else {
        addToSuite(added);
    }
    count(added);
}

void SelectionRun::omitRowsWithoutAdditions() {
    for (int r = 1; r <= BlockSize; ++r) {
        const int row = BlockStartRow + r - 1;
        results_.TextMatrix(row, result::Rank, ui::toText(r));
        const Additions added = additionsOf(row);
        if (added.Habitats != 0 || added.JurisUnits != 0 || added.Threats != 0) continue;
        showOmitted(row,
                    " has been removed as it covers no additional habitats, management zones or threats.");
        paintRow(row, resultcolour::Omitted);
        remove(candidateOf(row));
    }
}

/// With one survivor at the most there is no margin to look at. The scan for it has no stop: past the last species it
/// meets the blank row, which names no candidate, and fails.
void SelectionRun::findPick() {
    if (RemovedCount >= global_.TotalSpecies - 1) {
        PickOffset = 0;
        while (isRemoved(candidateOf(BlockStartRow + PickOffset))) ++PickOffset;
    } else {
        MarginCount = Check4ErrorMargin(global_.ErrorMargin, results_, BlockStartRow, BlockSize,
                                        SpeciesRemoved, PickOffset);
    }
    PickRow = BlockStartRow + PickOffset;
    PickSpecies = candidateOf(PickRow);
    results_.Select(PickRow, 0, PickRow, 0);
    results_.CellBackColor(resultcolour::Margin);
    if (MarginCount <= 0) return;
    PickRow =
        SelectErrorMarginSpecies(platform_, results_, BlockStartRow, PickOffset, MarginCount, SpeciesRemoved);
    PickSpecies = candidateOf(PickRow);
}

/// Takes the pick out of the race and marks what it represents as covered.
void SelectionRun::takePick() {
    remove(PickSpecies);
    HighlightCoverUnitsUsed(habitatLevels_, grids_.HabitatsCovered, global_.TotalHabitatTypes, PickSpecies,
                            HabitatThresholds, HabitatCovered, use::Level, PickNumber);
    HighlightCoverUnitsUsed(jurisUnitLevels_, grids_.JurisUnitsCovered, global_.TotalJurisUnits, PickSpecies,
                            JurisUnitThresholds, JurisUnitCovered, use::Level, PickNumber);
    HighlightThreatsEncountered(threatScores_, grids_.ThreatsCovered, global_.ThreatRepresentation,
                                ThreatMaxScores, PickSpecies, LandUseCovered, PickNumber);
}

void SelectionRun::omitFirstPick(const char* message) {
    showOmitted(PickRow, message);
    paintRow(PickRow, resultcolour::Omitted);
}

void SelectionRun::addToSuite(const Additions& added) {
    ui::Grid& suite = grids_.Suite;
    suite.Rows(PickNumber + 1);
    suite.TextMatrix(PickNumber, 0, ui::toText(PickNumber));
    suite.TextMatrix(PickNumber, 1, results_.TextMatrix(PickRow, result::Name));
    suite.TextMatrix(PickNumber, 2, ui::toText(added.Habitats));
    suite.TextMatrix(PickNumber, 3, ui::toText(added.JurisUnits));
    suite.TextMatrix(PickNumber, 4, ui::toText(added.Threats));
    suite.Select(PickNumber, 2, PickNumber, 4);
    suite.CellBackColor(GetCellColor(PickNumber));
    paintRow(PickRow, resultcolour::Picked);
}

void SelectionRun::count(const Additions& added) {
    HabitatsCovered += added.Habitats;
    JurisUnitsCovered += added.JurisUnits;
    ThreatsCovered += added.Threats;
}

void SelectionRun::report() {
    const auto show = [&](const std::string& text) {
        platform_.showMessage(text, "Selection Report", ui::MessageIcon::Exclamation);
    };
    if (AllCovered()) {
        return show(
            "All habitat types, management zones and threats are covered by the current suite of brenic species.");
    }
    std::string text = "The following are not covered by the current suite of brenic species:\r";
    const auto add = [&](const char* prefix, const ui::Grid& names, const Flags& covered, int count) {
        if (count >= static_cast<int>(covered.size())) return;
        std::vector<std::string> uncovered;
        for (int i = 1; i <= static_cast<int>(covered.size()); ++i) {
            if (!covered[at(i)]) uncovered.emplace_back(names.TextMatrix(i, list::Name));
        }
        text += prefix + ui::join(uncovered, ", ") + "\r";
    };
    add("Habitat types: ", grids_.HabitatTypes, HabitatCovered, HabitatsCovered);
    add("Management Zones: ", grids_.JurisUnits, JurisUnitCovered, JurisUnitsCovered);
    add("Threats: ", grids_.Threats, LandUseCovered, ThreatsCovered);
    show(text);
}

void reportExcluded(ui::Platform& platform, modGlobal& global) {
    std::string& list = global.ExcludedSpeciesList;
    list.resize(list.size() - 2);
    platform.showMessage(excludedHeading(global.ExcludedSpeciesCount) + "\r" + list, "Excluded species",
                         ui::MessageIcon::Exclamation);
}

}  // namespace

std::string excludedHeading(int count) {
    if (count == 1)
        return "The following species was excluded due to its high Current Conservation Status value:";
    return "The following " + ui::toText(count) +
           " species was excluded due to their high Current Conservation Status value:";
}

int SetupSelectionSpecies(ui::Platform& platform, modGlobal& global, ui::Grid& grid,
                          const ui::Grid& scoresGrid, const Flags& speciesRemoved, bool firstPass) try {
    const int startRow = grid.Rows();
    int count = 0;
    for (int species = 1; species <= global.TotalSpecies; ++species) {
        if (!speciesRemoved[at(species)]) {
            const int row = startRow + count++;
            grid.Rows(row + 1);
            const auto copy = [&](int col) {
                grid.TextMatrix(row, col, scoresGrid.TextMatrix(species, col));
            };
            copy(result::Name);
            if (firstPass) {
                for (const int col : {result::Aggregate, result::Heterogeneity, result::Vulnerability})
                    copy(col);
            }
            for (const int col : {result::AreaScore, result::Functionality, result::SocioEcon}) copy(col);
            grid.TextMatrix(row, result::Candidate, ui::toText(species));
        } else if (global.SelectionStarting) {
            ++global.ExcludedSpeciesCount;
            global.ExcludedSpeciesList += std::string(ui::trim(scoresGrid.TextMatrix(species, 0))) + "; ";
        }
    }
    grid.Rows(grid.Rows() + 1);
    if (global.ExcludedSpeciesCount > 0 && global.SelectionStarting) reportExcluded(platform, global);
    global.SelectionStarting = false;
    return count;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.SetupSelectionSpecies", "");
}

void cmdComplement_Click(ui::Platform& platform, modGlobal& global, SelectionInput input,
                         const SelectionGrids& grids) try {
    SelectionRun(platform, global, std::move(input), grids).run();
} catch (...) {
    ReportError(9999, "BrenicaUtilities.cmdComplement_Click", "");
}

}  // namespace modBrenicaUtilities
