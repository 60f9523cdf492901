// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"
#include "selection/result_colours.h"
#include "selection/selection.h"
#include "ui/arrays.h"
#include "ui/file_numbers.h"
#include "ui/text.h"

namespace {

constexpr std::size_t NameWidth = 27;  // of a row's mark and name

/// The fate of a row, read back from its colours.
const char* markOf(ui::Grid& results, int row) {
    results.Select(row, 1);
    if (results.CellBackColor() == resultcolour::Picked) return "S ";
    if (results.CellBackColor() == resultcolour::Omitted) return "X ";
    results.Select(row, 0);
    return results.CellBackColor() == resultcolour::Margin ? "M " : "  ";
}

void putDataLine(std::string& line, ui::Grid& results, int row) {
    line = markOf(results, row);
    line += results.TextMatrix(row, 0);
    const std::size_t width = ui::length(line);
    if (width > NameWidth) {
        line.resize(ui::firstCharacters(line, NameWidth).size());
    } else {
        line.append(NameWidth - width, ' ');
    }
    results.ReadRow(row, 1, results.Cols() - 2, [&](std::string_view text) {
        line += text;
        line += '\t';
    });
}

/// The units that no pick covers, behind the prefix; empty where there are none.
std::string uncoveredLine(const char* prefix, const ui::Grid& view, const ui::Grid& names, int count) {
    std::vector<std::string> uncovered;
    for (int i = 1; i <= count; ++i) {
        if (view.TextMatrix(i, 1).empty()) uncovered.emplace_back(names.TextMatrix(i, list::Name));
    }
    return uncovered.empty() ? std::string() : prefix + ui::join(uncovered, ", ");
}

}  // namespace

/// Writes the outcome of the last selection, all of it read from the grids. Cancel, like any failure, ends the command
/// without a message.
void frmBrenica::cmdExportResults_Click() try {
    cdgFileDialog.FileName = "ResultsData.txt";
    cdgFileDialog.Filter = "Text Files (*.txt)|*.txt";
    cdgFileDialog.DefaultExt = ".txt";
    cdgFileDialog.ShowSave();
    files_.Open(cdgFileDialog.FileName, ui::FileMode::Output, ui::filenumber::Shared);
    printRanking();
    printSuite();
    printPasses();
    printCoverage();
    files_.Close(ui::filenumber::Shared);
    cdgFileDialog.InitDir.clear();
} catch (...) {
    SwallowError();
}

void frmBrenica::printResult(std::string_view line) { files_.Print(ui::filenumber::Shared, line); }

void frmBrenica::printRanking() {
    if (global_.ExcludedSpeciesCount > 0) {
        printResult(modBrenicaUtilities::excludedHeading(global_.ExcludedSpeciesCount));
        printResult(global_.ExcludedSpeciesList);
        printResult("");
    }
    printResult("Brenic Species by Rank with Aggregate Score:");
    for (int rank = 1; rank <= global_.TotalSpecies; ++rank) {
        const int row = ui::elementAt(global_.SpeciesRanks, rank - 1);
        printResult(ui::toText(rank) + ". " + std::string(flxCandidateSpecies.TextMatrix(row, list::Name)) +
                    "  (" + std::string(flxScores(0).TextMatrix(row, score::Aggregate)) + ")");
    }
    printResult("");
    printResult("");
}

void frmBrenica::printSuite() {
    printResult(ui::toText(global_.ErrorMargin) + " % Error margin");
    printResult(ui::toText(global_.ThreatRepresentation) + " Threat representation");
    printResult(ui::toText(global_.ConservationStatusRepresentation) + " Conservation status representation");
    printResult("");
    printResult("The Suite of Brenic Species:");
    for (int row = 1; row <= flxBrenicSuite.Rows() - 1; ++row) {
        printResult(ui::toText(row) + ". " + std::string(flxBrenicSuite.TextMatrix(row, 1)));
    }
    printResult("");
    printResult("");
}

void frmBrenica::printPasses() {
    printResult("The complementarity data:");
    printResult("S = selected species");
    printResult("X = excluded species");
    printResult("M = margin of error species");
    printResult("\t\t\t\t\t\t\t\t\t\tAdditional");
    printResult("Species             \tRank\tScore\tHetero\tArea\tVuln\tFunc\tSE\tHabs\tMZones\tThreats");
    std::string line;
    for (int row = 1; row <= flxCompResults(0).Rows() - 1; ++row) {
        putDataLine(line, flxCompResults(0), row);
        printResult(line);
    }
    printResult("");
    printResult("");
}

void frmBrenica::printCoverage() {
    const std::string uncovered[] = {
        uncoveredLine("Habitat types: ", flxCompResults(1), flxHabitatTypes, global_.TotalHabitatTypes),
        uncoveredLine("Management Zones: ", flxCompResults(2), flxJurisUnits, global_.TotalJurisUnits),
        uncoveredLine("Threats: ", flxCompResults(3), flxLandUses, global_.TotalLandUses)};
    if (uncovered[0].empty() && uncovered[1].empty() && uncovered[2].empty()) {
        return printResult(
            "All habitat types, management zones and threats are covered by the current suite of brenic species.");
    }
    printResult("The following are not covered by the current suite of brenic species:\r");
    for (const std::string& line : uncovered) {
        if (!line.empty()) printResult(line);
    }
}
