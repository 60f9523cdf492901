// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"
#include "project/project_file.h"
#include "ui/file_numbers.h"

namespace {

/// One line for each column but the first; its number follows the key.
void takeNumbered(const TakeFileLine& take, const char* key, const ui::Grid& grid, int rows) {
    for (int col = 1; col <= grid.Cols() - 1; ++col) take({key + ui::toText(col), {}, &grid, col, rows});
}

}  // namespace

void frmBrenica::writeLines(const TakeFileLine& take) const {
    const int species = global_.TotalSpecies;
    const int habitats = global_.TotalHabitatTypes;
    const int zones = global_.TotalJurisUnits;
    const int landUses = global_.TotalLandUses;
    take({projectfile::Version, projectfile::CurrentVersion});
    take({projectfile::CommonName, {}, &flxCandidateSpecies, list::Name, species});
    take({projectfile::ScientificName, {}, &flxCandidateSpecies, list::ScientificName, species});
    take({projectfile::HabitatType, {}, &flxHabitatTypes, list::Name, habitats});
    take({projectfile::HabitatArea, {}, &flxHabitatTypes, list::Area, habitats});
    take({projectfile::HabitatUseLevel, {}, &flxHabitatTypes, list::LevelOfUse, habitats});
    take({projectfile::JurisUnit, {}, &flxJurisUnits, list::Name, zones});
    take({projectfile::JurisUnitArea, {}, &flxJurisUnits, list::Area, zones});
    take({projectfile::JurisUnitUseLevel, {}, &flxJurisUnits, list::LevelOfUse, zones});
    take({projectfile::LandUse, {}, &flxLandUses, list::Name, landUses});
    take({projectfile::Urgency, {}, &flxLandUses, list::Urgency, landUses});
    take({projectfile::Probability, {}, &flxLandUses, list::Probability, landUses});
    take(homeRangeLine());
    take({projectfile::Functions, {}, &flxFunctions, list::Name, global_.TotalFunctions});

    take({projectfile::HabitatUse,
          {},
          &flxSummary(summary::HabitatsBySpecies),
          use::Level,
          ui::multiplyLong(habitats, species)});
    take({projectfile::JurisUnitUse,
          {},
          &flxSummary(summary::JurisUnitsBySpecies),
          use::Level,
          ui::multiplyLong(zones, species)});
    const ui::Grid& areas = flxSummary(summary::Area);
    take({projectfile::Dispersal, {}, &areas, area::Dispersal, species});
    take({projectfile::Connectivity, {}, &areas, area::Connectivity, species});
    take({projectfile::HomeRanges, {}, &areas, area::HomeRange, species});
    take({projectfile::Occupied, {}, &areas, area::Occupied, species});
    take({projectfile::ConservationStatus,
          {},
          &flxSummary(summary::Vulnerability),
          vulnerability::ConservationStatus,
          species});
    // Without activities each species has one row all the same, which is no rating.
    const ui::Grid& threats = flxSummary(summary::ThreatsBySpecies);
    const int ratings = ui::multiplyLong(species, landUses);
    take({projectfile::Severity, {}, &threats, threat::Severity, ratings});
    take({projectfile::Recovery, {}, &threats, threat::Recovery, ratings});
    take({projectfile::Proportion, {}, &threats, threat::Proportion, ratings});
    takeNumbered(take, projectfile::Function, flxSummary(summary::Functionality), species);
    takeNumbered(take, projectfile::SocioEcon, flxSummary(summary::SocioEcon), species);
    takeNumbered(take, projectfile::DataQuality, flxSummary(summary::DataQuality), species);
}

/// The breakpoints stand behind the type that they belong to.
FileLine frmBrenica::homeRangeLine() const {
    FileLine line{projectfile::HomeRangeDefinition};
    for (int type = 0; type < optHomeRangeType.Count(); ++type) {
        if (!optHomeRangeType(type).Value()) continue;
        line.First = projectfile::HomeRangeTypes[static_cast<std::size_t>(type)];
        if (type == 2) line = {line.Key, line.First, &flxBins, list::Name, global_.TotalBins};
        break;
    }
    return line;
}

/// An error leaves the file as far as it was written, and open; one that is not the disk's is noted beside it.
void frmBrenica::SaveProject(const std::string& path) try {
    ProjectStepTaken(ProjectStep::Saving, path);
    files_.Open(path, ui::FileMode::Output, ui::filenumber::Save);
    std::string text;
    writeLines([&](const FileLine& line) {
        text.clear();
        appendLine(text, line, [](std::string& to, int, std::string_view cell) { to += cell; });
        files_.Print(ui::filenumber::Save, text);
    });
    files_.Close(ui::filenumber::Save);
    ProjectStepTaken(ProjectStep::Saved, path);
} catch (...) {
    if (files_.IsOpen(ui::filenumber::Save)) {
        const ui::RunTimeError error = CurrentError();
        succeeds([&] {
            if (!files_.LastFault()) files_.NoteFault(ui::filenumber::Save, error);
        });
        ProjectStepTaken(ProjectStep::Broken, path);
    }
    ReportError(9999, "Brenica.SaveProject", "");
}
