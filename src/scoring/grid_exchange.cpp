// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "entry/modGeneralUtilities.h"
#include "project/frmBrenica.h"
#include "project/pages.h"
#include "ui/file_numbers.h"
#include "ui/text.h"

namespace {

constexpr int AnyView = -1;
constexpr int BinsView = 3;

}  // namespace

std::vector<ExportTable> frmBrenica::makeExportTables() {
    constexpr auto None = LongHeadings::None;
    return {
        {page::Species, AnyView, &flxCandidateSpecies, "CandidateSpeciesData", None, 1},
        {page::Parameters, 0, &flxHabitatTypes, "HabitatData", None, 2},
        {page::Parameters, 1, &flxJurisUnits, "ManagZonesData", None, 3},
        {page::Parameters, 2, &flxLandUses, "HumanActivityData", None, 4},
        {page::Parameters, BinsView, &flxBins, "BinData", None, 5},
        {page::Parameters, 4, &flxFunctions, "FunctionData", None, 6},
        {page::Summary, 1, &flxSummary(0), "HabitatHeterogeneitySummary", LongHeadings::HabitatNames},
        {page::Summary, 1, &flxSummary(1), "ManagZonesHeterogeneitySummary", LongHeadings::JurisUnitNames},
        {page::Summary, 2, &flxSummary(2), "HabitatHeterogeneityDetailedSummary"},
        {page::Summary, 2, &flxSummary(3), "ManagZonesHeterogeneityDetailedSummary"},
        {page::Summary, 3, &flxSummary(4), "AreaSummary"},
        {page::Summary, 4, &flxSummary(5), "VulnerabilitySummary", LongHeadings::ThreatNames},
        {page::Summary, 5, &flxSummary(6), "VulnerabilityBySpeciesSummary"},
        {page::Summary, 6, &flxSummary(7), "VulnerabilityByThreatSummary"},
        {page::Summary, 7, &flxSummary(8), "FunctionalitySummary"},
        {page::Summary, 8, &flxSummary(9), "SocioEconSummary"},
        {page::Summary, 9, &flxSummary(10), "DataQualitySummaryData"},
        {page::Scores, 0, &flxScoresSort(0), "NormalizedScoresData"},
        {page::Scores, 1, &flxScoresSort(1), "OriginalScoresData"},
        {page::Results, AnyView, &flxBrenicSuite, "BrenicSuiteData"},
        {page::Results, 0, &flxCompResults(0), "OverallComplementarityData"},
        {page::Results, 1, &flxCompResults(1), "HabitatsCoveredData"},
        {page::Results, 2, &flxCompResults(2), "JurisUnitsCoveredData"},
        {page::Results, 3, &flxCompResults(3), "ThreatsCoveredData"},
    };
}

/// Breakpoints are data only where the bins are the user's own.
bool frmBrenica::isExportable(const ExportTable& table) const {
    return table.Grid != &flxBins || HomeRangeType == 2;
}

/// The columns of a table that show the numbers of a list, and that list.
struct frmBrenica::NumberedColumns {
    const ui::Grid* Names = nullptr;
    int Count = 0;
    int Offset = 0;
};

frmBrenica::NumberedColumns frmBrenica::numberedColumns(const ExportTable& table) const {
    switch (table.Headings) {
        case LongHeadings::None: break;
        case LongHeadings::HabitatNames: return {&flxHabitatTypes, global_.TotalHabitatTypes};
        case LongHeadings::JurisUnitNames: return {&flxJurisUnits, global_.TotalJurisUnits};
        case LongHeadings::ThreatNames:
            return {&flxLandUses, global_.TotalLandUses, vulnerability::ThreatOffset};
    }
    return {};
}

void frmBrenica::SaveTable(const ExportTable& table, const std::string& path) {
    const NumberedColumns numbered = numberedColumns(table);
    const auto save = [&] { table.Grid->SaveGrid(files_, path, ui::GridFileFormat::TabDelimited); };
    if (numbered.Names == nullptr) return save();
    const auto writeHeadings = [&](const auto& headingOf) {
        for (int i = 1; i <= numbered.Count; ++i)
            table.Grid->TextMatrix(0, i + numbered.Offset, headingOf(i));
    };
    table.Grid->Redraw(false);
    writeHeadings([&](int i) { return numbered.Names->TextMatrix(i, list::Name); });
    save();
    writeHeadings([](int i) { return ui::toText(i); });
    table.Grid->Redraw(true);
}

std::string frmBrenica::HeadingInWords(const ui::Grid& grid, int col) const {
    for (const ExportTable& table : exportTables_) {
        if (table.Grid != &grid) continue;
        const NumberedColumns numbered = numberedColumns(table);
        const int unit = col - numbered.Offset;
        if (unit < 1 || unit > numbered.Count) continue;
        const std::string_view name = numbered.Names->TextMatrix(unit, list::Name);
        if (!ui::isBlank(name)) return std::string(name);
    }
    return std::string(grid.TextMatrix(0, col));
}

/// The table on view. Where a view holds two tables the user chooses; all but the lists are for export only.
const ExportTable* frmBrenica::GetCurrentGrid(std::string_view command) try {
    if (CurrentMainTab > page::Parameters && !ui::equalsIgnoringCase(command, "Export")) return nullptr;
    std::vector<const ExportTable*> onView;
    for (const ExportTable& table : exportTables_) {
        const bool here =
            table.Page == CurrentMainTab && (table.View == AnyView || table.View == currentView());
        if (here && isExportable(table)) onView.push_back(&table);
    }
    if (onView.empty()) return nullptr;
    if (onView.size() == 1) return onView.front();
    return userWantsFirst() ? onView[0] : onView[1];
} catch (...) {
    ReportError(9999, "Brenica.GetCurrentGrid", "");
}

int frmBrenica::currentView() const {
    switch (CurrentMainTab) {
        case page::Parameters: return CurrentLandChar;
        case page::Summary: return CurrentSummaryTab;
        case page::Scores: return ScoreDisplayMode;
        case page::Results: return modGeneralUtilities::GetOptionIndex(optCompResults);
        default: return AnyView;
    }
}

/// Asks which of the two tables of the view is meant.
bool frmBrenica::userWantsFirst() {
    static constexpr const char* ResultLabels[] = {"overall", "habitats covered", "Management zones covered",
                                                   "threats covered"};
    const bool results = CurrentMainTab == page::Results;
    const std::string prompt =
        results ? std::string("Enter 1 to save the brenic species suite data and 2 to save the ") +
                      ResultLabels[currentView()] + " data."
                : "Enter:\r\n1 to save the habitat heterogeneity data \r\n"
                  "2 to save the management zone heterogeneity data.";
    const std::string answer(ui::trim(platform().askText(prompt, ui::ApplicationTitle, "1")));
    if (answer == "2") return false;
    if (answer == "1") return true;
    showInvalidValue(
        results ? "The value entered was invalid. The brenic species suite data will be saved by default."
                : "The value entered was invalid. The habitat heterogeneity data will be saved by default.");
    return true;
}

/// Up to the moment when the file work starts a failure, Cancel above all, ends the command silently.
void frmBrenica::MenuSelectionDataGrid(std::string_view command) {
    const bool import = ui::equalsIgnoringCase(command, "Import");
    const ExportTable* table = nullptr;
    bool heading = false;
    try {
        table = GetCurrentGrid(command);
        if (table == nullptr) return showNoGrid(command);
        cdgFileDialog.Filter = "Grid Data Files (*.txt)|*.txt";
        cdgFileDialog.DefaultExt = ".txt";
        if (import) {
            cdgFileDialog.FileName.clear();
            cdgFileDialog.ShowOpen();
            heading = modGeneralUtilities::AskYesNo(
                platform(), "Does the first row in the data file contain header information?", "Header Data");
        } else {
            cdgFileDialog.FileName = table->FileName;
            cdgFileDialog.ShowSave();
        }
    } catch (...) {
        return SwallowError();
    }
    try {
        if (import) {
            ImportData(table->ImportCase, cdgFileDialog.FileName, heading);
        } else {
            SaveTable(*table, cdgFileDialog.FileName);
        }
        cdgFileDialog.InitDir.clear();
    } catch (...) {
        succeeds([&] { files_.Close(ui::filenumber::Shared); });
        ReportError(9999, "Brenica.MenuSelectionDataGrid", "");
    }
}

void frmBrenica::showNoGrid(std::string_view command) {
    const auto show = [&](const char* text) {
        platform().showMessage(text, "Grid error", ui::MessageIcon::Exclamation);
    };
    if (ui::equalsIgnoringCase(command, "Export")) {
        show("Cannot export current data grid.");
    } else if (CurrentMainTab >= page::Criteria) {
        show("Cannot import data into current grid.");
    }
}
