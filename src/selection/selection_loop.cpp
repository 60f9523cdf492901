// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/columns.h"
#include "scoring/landscape_reader.h"
#include "selection/result_colours.h"
#include "selection/selection.h"
#include "ui/text.h"

namespace modBrenicaUtilities {

namespace {

using method::Block;
using method::Criterion;
using method::Step;
using method::Unit;

/// Scores stand in the order of the criteria.
int scoreColumn(std::size_t criterion) {
    return criterion == method::Criteria ? result::Aggregate
                                         : result::Heterogeneity + static_cast<int>(criterion);
}

int scoreColumn(Criterion criterion) { return scoreColumn(static_cast<std::size_t>(criterion)); }

int additionsColumn(Unit kind) { return result::AddHabitats + static_cast<int>(kind); }

int ratingColumn(method::Quantity rating) {
    switch (rating) {
        case method::Quantity::Urgency: return threat::Urgency;
        case method::Quantity::Recovery: return threat::Recovery;
        case method::Quantity::Severity: return threat::Severity;
        case method::Quantity::Proportion: return threat::Proportion;
        default: return threat::Probability;
    }
}

/// Fills the tables as a selection tells what it does, and lets the user decide where it asks. What it has told stays
/// when it fails.
class SelectionTables : public method::Listener, public method::Chooser {
public:
    SelectionTables(ui::Platform& platform, modGlobal& global, const SelectionGrids& grids)
        : platform_(platform), global_(global), grids_(grids), results_(grids.Results) {}

    /// Raises what stopped the selection, in the procedure whose step it was.
    [[noreturn]] void raise(const method::Failure& failure) const;

    void begun() override;
    void blockAppended(const Block& block, bool first) override;
    void adds(std::size_t offset, Unit kind, int units) override;
    void rescored(std::size_t offset, Criterion criterion, double score) override;
    void normalised(std::size_t offset, Criterion criterion, double score) override;
    void aggregated(std::size_t offset, double aggregate) override;
    void sorted(const Block& block) override;
    void ranked(std::size_t offset, int rank) override;
    void omitted(std::size_t offset) override;
    void withinMargin(std::size_t offset) override;
    std::size_t choose(const method::MarginBand& band) override;
    void firstCovered(Unit kind, std::size_t unit, int pick) override;
    void joined(std::size_t offset, int pick, const method::Additions& adds) override;
    void pickOmitted(std::size_t offset) override;
    void ended(const method::Suite& suite) override;

private:
    CellPlace cellOf(const method::Failure& failure) const;
    int rowAt(std::size_t offset) const { return blockStartRow_ + static_cast<int>(offset); }
    void paintRow(int row, ui::Colour colour);
    void showOmitted(int row, const char* message);
    void showReport(const std::string& text);

    ui::Platform& platform_;
    modGlobal& global_;
    const SelectionGrids& grids_;
    ui::Grid& results_;
    int blockStartRow_ = 0;
    bool firstPass_ = false;
    std::vector<int> rowOfSpecies_;  ///< in the last block as it was sorted; empty before
};

void SelectionTables::raise(const method::Failure& failure) const {
    const CellPlace cell = cellOf(failure);
    switch (failure.At) {
        case Step::UnitsAdded: GetUnitsUsed(failure, cell);
        case Step::HeterogeneityLeft: RecalcHeteroScore(failure, cell);
        case Step::VulnerabilityLeft: RecalcVulnerabilityScore(failure, cell);
        case Step::Margin: Check4ErrorMargin(failure, cell);
        default: raiseFailure(failure, cell);
    }
}

CellPlace SelectionTables::cellOf(const method::Failure& failure) const {
    using enum method::Quantity;
    const int species = tableIndex(failure.Row);
    const int column = tableIndex(failure.Column);
    switch (failure.What) {
        case HabitatLevel:
            return {grids_.HabitatLevels, blockRow(species, global_.TotalHabitatTypes, column), use::Level};
        case ZoneLevel:
            return {grids_.JurisUnitLevels, blockRow(species, global_.TotalJurisUnits, column), use::Level};
        case ThreatScore: return {grids_.ThreatScores, species, vulnerability::ThreatOffset + column};
        case Urgency:
        case Recovery:
        case Severity:
        case Proportion:
        case Probability:
            return {grids_.Threats, blockRow(species, global_.TotalLandUses, column),
                    ratingColumn(failure.What)};
        default: return resultCell(results_, blockStartRow_, failure);
    }
}

void SelectionTables::begun() {
    const auto list = [](ui::Grid& view, const ui::Grid& names, int count) {
        view.Rows(count + 1);
        for (int i = 1; i <= count; ++i) view.TextMatrix(i, 0, names.TextMatrix(i, list::Name));
        view.AutoSize(0, 1);
    };
    results_.Redraw(false);
    list(grids_.HabitatsCovered, grids_.HabitatTypes, global_.TotalHabitatTypes);
    list(grids_.JurisUnitsCovered, grids_.JurisUnits, global_.TotalJurisUnits);
    // The first species' block of the threat table names the threats in their order.
    list(grids_.ThreatsCovered, grids_.Threats, global_.TotalLandUses);
}

void SelectionTables::blockAppended(const Block& block, bool first) {
    blockStartRow_ = results_.Rows();
    firstPass_ = first;
    SetupSelectionSpecies(platform_, global_, results_, grids_.Scores, block, rowOfSpecies_);
}

void SelectionTables::adds(std::size_t offset, Unit kind, int units) {
    results_.TextMatrix(rowAt(offset), additionsColumn(kind), ui::toText(units));
}

void SelectionTables::rescored(std::size_t offset, Criterion criterion, double score) {
    results_.TextMatrix(rowAt(offset), scoreColumn(criterion), ui::toText(score));
}

void SelectionTables::normalised(std::size_t offset, Criterion criterion, double score) {
    results_.TextMatrix(rowAt(offset), scoreColumn(criterion), ui::toText(score));
}

void SelectionTables::aggregated(std::size_t offset, double aggregate) {
    results_.TextMatrix(rowAt(offset), result::Aggregate, ui::toText(aggregate));
}

/// The range of a later pass takes in the block's blank row, which stays last.
void SelectionTables::sorted(const Block& block) {
    if (firstPass_) {
        results_.Select(0, result::Aggregate);
    } else {
        results_.Select(blockStartRow_, result::Aggregate, rowAt(block.size()), result::Aggregate);
    }
    results_.Sort(ui::SortOrder::GenericDescending);
    rowOfSpecies_.resize(static_cast<std::size_t>(global_.TotalSpecies));
    for (std::size_t offset = 0; offset < block.size(); ++offset)
        rowOfSpecies_[block[offset].Species] = rowAt(offset);
}

void SelectionTables::ranked(std::size_t offset, int rank) {
    results_.TextMatrix(rowAt(offset), result::Rank, ui::toText(rank));
}

void SelectionTables::omitted(std::size_t offset) {
    showOmitted(rowAt(offset),
                " has been removed as it covers no additional habitats, management zones or threats.");
    paintRow(rowAt(offset), resultcolour::Omitted);
}

void SelectionTables::withinMargin(std::size_t offset) {
    results_.Select(rowAt(offset), 0, rowAt(offset), 0);
    results_.CellBackColor(resultcolour::Margin);
}

std::size_t SelectionTables::choose(const method::MarginBand& band) {
    return SelectErrorMarginSpecies(platform_, results_, blockStartRow_, band, global_.MarginAnswers);
}

void SelectionTables::firstCovered(Unit kind, std::size_t unit, int pick) {
    switch (kind) {
        case Unit::Habitat: return HighlightCoverUnitsUsed(grids_.HabitatsCovered, tableIndex(unit), pick);
        case Unit::Zone: return HighlightCoverUnitsUsed(grids_.JurisUnitsCovered, tableIndex(unit), pick);
        case Unit::Threat: return HighlightThreatsEncountered(grids_.ThreatsCovered, tableIndex(unit), pick);
    }
}

void SelectionTables::joined(std::size_t offset, int pick, const method::Additions& adds) {
    ui::Grid& suite = grids_.Suite;
    suite.Rows(pick + 1);
    suite.TextMatrix(pick, 0, ui::toText(pick));
    suite.TextMatrix(pick, 1, results_.TextMatrix(rowAt(offset), result::Name));
    suite.TextMatrix(pick, 2, ui::toText(adds[Unit::Habitat]));
    suite.TextMatrix(pick, 3, ui::toText(adds[Unit::Zone]));
    suite.TextMatrix(pick, 4, ui::toText(adds[Unit::Threat]));
    suite.Select(pick, 2, pick, 4);
    suite.CellBackColor(GetCellColor(pick));
    paintRow(rowAt(offset), resultcolour::Picked);
}

void SelectionTables::pickOmitted(std::size_t offset) {
    showOmitted(
        rowAt(offset),
        firstPass_
            ? " with the highest aggregate score has been removed as it covers no additional habitats, management "
              "zones or threats."
            : " with the highest aggregate score has bee removed as it covers no additional habitats, management "
              "zones or threats.");
    paintRow(rowAt(offset), resultcolour::Omitted);
}

void SelectionTables::ended(const method::Suite& suite) {
    if (suite.Complete) {
        return showReport(
            "All habitat types, management zones and threats are covered by the current suite of brenic species.");
    }
    std::string text = "The following are not covered by the current suite of brenic species:\r";
    const auto add = [&](const char* prefix, const ui::Grid& names, Unit kind) {
        const std::vector<int>& coveredBy = suite.CoveredBy[kind];
        if (suite.Covered[kind] >= static_cast<int>(coveredBy.size())) return;
        std::vector<std::string> uncovered;
        for (std::size_t unit = 0; unit < coveredBy.size(); ++unit) {
            if (coveredBy[unit] == 0) uncovered.emplace_back(names.TextMatrix(tableIndex(unit), list::Name));
        }
        text += prefix + ui::join(uncovered, ", ") + "\r";
    };
    add("Habitat types: ", grids_.HabitatTypes, Unit::Habitat);
    add("Management Zones: ", grids_.JurisUnits, Unit::Zone);
    add("Threats: ", grids_.Threats, Unit::Threat);
    showReport(text);
}

void SelectionTables::paintRow(int row, ui::Colour colour) {
    results_.Select(row, 1, row, results_.Cols() - 1);
    results_.CellBackColor(colour);
}

void SelectionTables::showOmitted(int row, const char* message) {
    platform_.showMessage(std::string(results_.TextMatrix(row, result::Name)) + message, "Species Omitted",
                          ui::MessageIcon::Exclamation);
}

void SelectionTables::showReport(const std::string& text) {
    platform_.showMessage(text, "Selection Report", ui::MessageIcon::Exclamation);
}

/// The scores of the first pass, in candidate order.
void loadScores(method::Selection& selection, const ui::Grid& scores, int species) {
    const method::Table table =
        tableOf(scores, score::FirstCriterion, species, static_cast<int>(method::Criteria));
    std::vector<method::CriterionScores> normalised(table.rows());
    for (std::size_t s = 0; s < table.rows(); ++s) {
        for (std::size_t i = 0; i < method::Criteria; ++i) normalised[s][i] = table.at(s, i);
    }
    selection.loadScores(normalised, columnOf(scores, score::Aggregate, species));
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

CellPlace resultCell(const ui::Grid& results, int blockStartRow, const method::Failure& failure) {
    const int row = blockStartRow + static_cast<int>(failure.Row);
    switch (failure.What) {
        case method::Quantity::Score: return {results, row, scoreColumn(failure.Column)};
        case method::Quantity::Aggregate: return {results, row, result::Aggregate};
        default: return {results, row, result::Candidate};
    }
}

void SetupSelectionSpecies(ui::Platform& platform, modGlobal& global, ui::Grid& grid,
                           const ui::Grid& scoresGrid, const Block& block,
                           std::span<const int> rowsBefore) try {
    const int startRow = grid.Rows();
    grid.Rows(startRow + static_cast<int>(block.size()) + 1);
    std::size_t count = 0;
    for (int species = 1; species <= global.TotalSpecies; ++species) {
        if (count < block.size() && block[count].Species == landscapeIndex(species)) {
            const int row = startRow + static_cast<int>(count++);
            const auto copy = [&](int col) {
                grid.TextMatrix(row, col, scoresGrid.TextMatrix(species, col));
            };
            if (rowsBefore.empty()) {
                for (const int col :
                     {result::Name, result::Aggregate, result::Heterogeneity, result::Vulnerability})
                    copy(col);
            } else {
                grid.CopyTexts(result::Name, row, rowsBefore[landscapeIndex(species)]);
            }
            for (const int col : {result::AreaScore, result::Functionality, result::SocioEcon}) copy(col);
            grid.TextMatrix(row, result::Candidate, ui::toText(species));
        } else if (global.SelectionStarting) {
            ++global.ExcludedSpeciesCount;
            global.ExcludedSpeciesList += std::string(ui::trim(scoresGrid.TextMatrix(species, 0))) + "; ";
        }
    }
    if (global.ExcludedSpeciesCount > 0 && global.SelectionStarting) reportExcluded(platform, global);
    global.SelectionStarting = false;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.SetupSelectionSpecies", "");
}

void cmdComplement_Click(ui::Platform& platform, modGlobal& global, method::Selection& selection,
                         const SelectionGrids& grids) try {
    loadScores(selection, grids.Scores, global.TotalSpecies);
    SelectionTables tables(platform, global, grids);
    const auto failure = failureOf([&] { selection.run(tables, &tables); });
    if (failure) tables.raise(*failure);
    grids.Results.AutoSize(0, grids.Results.Cols() - 1);
    grids.Results.Redraw(true);
} catch (...) {
    ReportError(9999, "BrenicaUtilities.cmdComplement_Click", "");
}

}  // namespace modBrenicaUtilities
