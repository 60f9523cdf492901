// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"
#include "project/project_file.h"
#include "ui/text.h"

namespace {

constexpr int SaveFileNumber = 2;

/// A line of the file: its key, "=" and the values, each with a comma that the last one loses again. The trim at the
/// end takes the blanks of the last value along.
class LineBuilder {
public:
    explicit LineBuilder(const std::string& key) : line_(key + " = ") {}

    void add(std::string_view value) {
        line_ += value;
        line_ += ',';
    }
    void addColumn(const ui::Grid& grid, int col, int rows) {
        for (int row = 1; row <= rows; ++row) add(grid.TextMatrix(row, col));
    }
    std::string text() const {
        return std::string(ui::trim(std::string_view(line_).substr(0, line_.size() - 1)));
    }

private:
    std::string line_;
};

}  // namespace

/// An error leaves the file as far as it was written, and open.
void frmBrenica::SaveProject(const std::string& path) try {
    files_.Open(path, ui::FileMode::Output, SaveFileNumber);
    const auto print = [&](const LineBuilder& line) { files_.Print(SaveFileNumber, line.text()); };
    const auto printColumn = [&](const std::string& key, const ui::Grid& grid, int col, int rows) {
        LineBuilder line(key);
        line.addColumn(grid, col, rows);
        print(line);
    };
    const auto printNumbered = [&](const char* key, const ui::Grid& grid) {
        for (int col = 1; col <= grid.Cols() - 1; ++col) {
            printColumn(key + ui::toText(col), grid, col, global_.TotalSpecies);
        }
    };

    LineBuilder version(projectfile::Version);
    version.add(projectfile::CurrentVersion);
    print(version);
    printColumn(projectfile::CommonName, flxCandidateSpecies, list::Name, global_.TotalSpecies);
    printColumn(projectfile::ScientificName, flxCandidateSpecies, list::ScientificName, global_.TotalSpecies);
    printColumn(projectfile::HabitatType, flxHabitatTypes, list::Name, global_.TotalHabitatTypes);
    printColumn(projectfile::HabitatArea, flxHabitatTypes, list::Area, global_.TotalHabitatTypes);
    printColumn(projectfile::HabitatUseLevel, flxHabitatTypes, list::LevelOfUse, global_.TotalHabitatTypes);
    printColumn(projectfile::JurisUnit, flxJurisUnits, list::Name, global_.TotalJurisUnits);
    printColumn(projectfile::JurisUnitArea, flxJurisUnits, list::Area, global_.TotalJurisUnits);
    printColumn(projectfile::JurisUnitUseLevel, flxJurisUnits, list::LevelOfUse, global_.TotalJurisUnits);
    printColumn(projectfile::LandUse, flxLandUses, list::Name, global_.TotalLandUses);
    printColumn(projectfile::Urgency, flxLandUses, list::Urgency, global_.TotalLandUses);
    printColumn(projectfile::Probability, flxLandUses, list::Probability, global_.TotalLandUses);

    LineBuilder homeRange(projectfile::HomeRangeDefinition);
    for (int type = 0; type < optHomeRangeType.Count(); ++type) {
        if (!optHomeRangeType(type).Value()) continue;
        homeRange.add(projectfile::HomeRangeTypes[static_cast<std::size_t>(type)]);
        if (type == 2) homeRange.addColumn(flxBins, 1, global_.TotalBins);
        break;
    }
    print(homeRange);
    printColumn(projectfile::Functions, flxFunctions, list::Name, global_.TotalFunctions);

    const int species = global_.TotalSpecies;
    printColumn(projectfile::HabitatUse, flxSummary(summary::HabitatsBySpecies), use::Level,
                ui::multiplyLong(global_.TotalHabitatTypes, species));
    printColumn(projectfile::JurisUnitUse, flxSummary(summary::JurisUnitsBySpecies), use::Level,
                ui::multiplyLong(global_.TotalJurisUnits, species));
    printColumn(projectfile::Dispersal, flxSummary(summary::Area), area::Dispersal, species);
    printColumn(projectfile::Connectivity, flxSummary(summary::Area), area::Connectivity, species);
    printColumn(projectfile::HomeRanges, flxSummary(summary::Area), area::HomeRange, species);
    printColumn(projectfile::Occupied, flxSummary(summary::Area), area::Occupied, species);
    printColumn(projectfile::ConservationStatus, flxSummary(summary::Vulnerability),
                vulnerability::ConservationStatus, species);
    // Without activities each species has one row all the same, which is no rating.
    const ui::Grid& threats = flxSummary(summary::ThreatsBySpecies);
    const int ratings = ui::multiplyLong(species, global_.TotalLandUses);
    printColumn(projectfile::Severity, threats, threat::Severity, ratings);
    printColumn(projectfile::Recovery, threats, threat::Recovery, ratings);
    printColumn(projectfile::Proportion, threats, threat::Proportion, ratings);
    printNumbered(projectfile::Function, flxSummary(summary::Functionality));
    printNumbered(projectfile::SocioEcon, flxSummary(summary::SocioEcon));
    printNumbered(projectfile::DataQuality, flxSummary(summary::DataQuality));
    files_.Close(SaveFileNumber);
} catch (...) {
    ReportError(9999, "Brenica.SaveProject", "");
}
