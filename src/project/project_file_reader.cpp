// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/project_file_reader.h"

#include "entry/modErrorHandling.h"
#include "entry/modFlexGridUtilities.h"
#include "entry/modGeneralUtilities.h"
#include "project/constant_tables.h"
#include "project/project_file.h"
#include "ui/file_numbers.h"
#include "ui/text.h"

namespace {

/// Drops the values that the grid has no row for.
template <class Values>
void clip(Values& values, const ui::Grid& grid) {
    const auto rows = static_cast<std::size_t>(std::max(grid.Rows() - 1, 0));
    if (values.size() > rows) values.resize(rows);
}

using Block = std::span<const std::string_view>;

/// Values in blocks of `size`, of which the last may be shorter.
template <class Visit>
void forEachBlock(Block values, int size, Visit visit) {
    while (!values.empty()) {
        const std::size_t count = std::min(values.size(), static_cast<std::size_t>(size));
        visit(values.first(count));
        values = values.subspan(count);
    }
}

/// A key such as "Function3" is the name and a column; `exception` is a key of its own that holds the name too.
struct NumberedKey {
    const char* Name;
    const char* Exception;
};

constexpr NumberedKey NumberedKeys[] = {
    {projectfile::Function, projectfile::Functions},
    {projectfile::SocioEcon, "Socio-economic"},
    {projectfile::DataQuality, nullptr},
};

}  // namespace

/// What a key's values do; the target is for the rows whose action asks for one.
struct ProjectFileReader::Row {
    const char* Key;
    void (ProjectFileReader::*Act)(const Row&, Values);
    ui::Grid frmBrenica::*List = nullptr;  ///< target list grid
    int Column = 0;
    int Member = 0;        ///< target member of flxSummary, where there is no list
    int SecondMember = 0;  ///< cross table that holds the same values
    int SecondColumn = 0;
    int modGlobal::*Units = nullptr;
};

std::span<const ProjectFileReader::Row> ProjectFileReader::rows() {
    using Reader = ProjectFileReader;
    using Form = frmBrenica;
    static constexpr Row Rows[] = {
        {projectfile::Version, &Reader::readVersion},
        {projectfile::CommonName, &Reader::readSpecies},
        {projectfile::ScientificName, &Reader::readListColumn, &Form::flxCandidateSpecies,
         list::ScientificName},
        {projectfile::HabitatType, &Reader::readHabitatTypes},
        {projectfile::HabitatArea, &Reader::readAreas, &Form::flxHabitatTypes, list::Area},
        {projectfile::HabitatUseLevel, &Reader::readListColumn, &Form::flxHabitatTypes, list::LevelOfUse},
        {projectfile::JurisUnit, &Reader::readJurisUnits},
        {projectfile::JurisUnitArea, &Reader::readAreas, &Form::flxJurisUnits, list::Area},
        {projectfile::JurisUnitUseLevel, &Reader::readListColumn, &Form::flxJurisUnits, list::LevelOfUse},
        {projectfile::LandUse, &Reader::readLandUses},
        {projectfile::Urgency, &Reader::readListColumn, &Form::flxLandUses, list::Urgency},
        {projectfile::Probability, &Reader::readListColumn, &Form::flxLandUses, list::Probability},
        {projectfile::HomeRangeDefinition, &Reader::readHomeRangeDefinition},
        {projectfile::Functions, &Reader::readFunctions},
        {projectfile::HabitatUse, &Reader::readLevelsOfUse, nullptr, use::Level, summary::HabitatsBySpecies,
         summary::HabitatUse, 0, &modGlobal::TotalHabitatTypes},
        {projectfile::JurisUnitUse, &Reader::readLevelsOfUse, nullptr, use::Level,
         summary::JurisUnitsBySpecies, summary::JurisUnitUse, 0, &modGlobal::TotalJurisUnits},
        {projectfile::Dispersal, &Reader::readSummaryColumn, nullptr, area::Dispersal, summary::Area},
        {projectfile::Connectivity, &Reader::readSummaryColumn, nullptr, area::Connectivity, summary::Area},
        {projectfile::HomeRanges, &Reader::readSummaryColumn, nullptr, area::HomeRange, summary::Area},
        {projectfile::Occupied, &Reader::readSummaryColumn, nullptr, area::Occupied, summary::Area},
        {projectfile::ConservationStatus, &Reader::readSummaryColumn, nullptr,
         vulnerability::ConservationStatus, summary::Vulnerability},
        {projectfile::Severity, &Reader::readThreatRatings, nullptr, threat::Severity,
         summary::ThreatsBySpecies, summary::SpeciesByThreat, 2},
        {projectfile::Recovery, &Reader::readThreatRatings, nullptr, threat::Recovery,
         summary::ThreatsBySpecies, summary::SpeciesByThreat, 3},
        {projectfile::Proportion, &Reader::readThreatRatings, nullptr, threat::Proportion,
         summary::ThreatsBySpecies, summary::SpeciesByThreat, 4},
        {projectfile::Function, &Reader::readNumberedColumn, nullptr, 0, summary::Functionality},
        {projectfile::SocioEcon, &Reader::readNumberedColumn, nullptr, 0, summary::SocioEcon},
        {projectfile::DataQuality, &Reader::readNumberedColumn, nullptr, 0, summary::DataQuality},
    };
    return Rows;
}

void ProjectFileReader::readLine(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return;
    std::string_view key = ui::trim(line.substr(0, equals));
    const std::string_view value = ui::trim(line.substr(equals + 1));
    for (const NumberedKey& numbered : NumberedKeys) {
        if (!ui::containsIgnoringCase(key, numbered.Name)) continue;
        if (numbered.Exception != nullptr && ui::equalsIgnoringCase(key, numbered.Exception)) continue;
        const std::string_view start = ui::firstCharacters(key, std::string_view(numbered.Name).size());
        column_ = ui::toLong(ui::trim(key.substr(start.size())), form_.Separator());
        key = numbered.Name;
    }
    if (value.empty()) return;
    for (const Row& row : rows()) {
        if (ui::equalsIgnoringCase(key, row.Key)) return (this->*row.Act)(row, ui::split(value, ','));
    }
}

void ProjectFileReader::readVersion(const Row&, Values values) { global_.ProjectVersion = values.front(); }

void ProjectFileReader::fillNames(ui::Grid& grid, const Values& values) {
    for (int row = 1; row <= static_cast<int>(values.size()); ++row)
        grid.TextMatrix(row, list::Number, ui::toText(row));
    grid.WriteColumn(list::Name, 1, 1, values);
}

void ProjectFileReader::readSpecies(const Row&, Values values) {
    // The second argument is the old number of species; what is handed over is True, which as a whole number is -1.
    // So the blanking of new cells begins at the headings.
    constexpr int True = -1;
    const int count = static_cast<int>(values.size());
    form_.flxCandidateSpecies.Rows(count + 1);
    global_.TotalSpecies = count;
    form_.UpdateOtherSpeciesFlexGrids(count, True);
    fillNames(form_.flxCandidateSpecies, values);
}

void ProjectFileReader::readHabitatTypes(const Row&, Values values) {
    const int count = static_cast<int>(values.size());
    form_.flxHabitatTypes.Rows(count + 1);
    global_.TotalHabitatTypes = count;
    form_.UpdateOtherHabitatFlexGrids(count);
    fillNames(form_.flxHabitatTypes, values);
}

void ProjectFileReader::readJurisUnits(const Row&, Values values) {
    const int count = static_cast<int>(values.size());
    form_.flxJurisUnits.Rows(count + 1);
    global_.TotalJurisUnits = count;
    form_.UpdateOtherJurisUnitFlexGrids(count);
    fillNames(form_.flxJurisUnits, values);
}

void ProjectFileReader::readLandUses(const Row&, Values values) {
    const int count = static_cast<int>(values.size());
    form_.flxLandUses.Rows(count + 1);
    global_.TotalLandUses = count;
    form_.UpdateOtherLandUseFlexGrids(count);
    fillNames(form_.flxLandUses, values);
}

void ProjectFileReader::readFunctions(const Row&, Values values) {
    const int count = static_cast<int>(values.size());
    form_.flxFunctions.Rows(count + 1);
    global_.TotalFunctions = count;
    form_.flxFunctionality.Rows(1);
    form_.UpdateOtherFunctionFlexGrids(count);
    fillNames(form_.flxFunctions, values);
}

void ProjectFileReader::readListColumn(const Row& row, Values values) {
    ui::Grid& grid = form_.*row.List;
    clip(values, grid);
    grid.WriteColumn(row.Column, 1, 1, values);
}

void ProjectFileReader::readAreas(const Row& row, Values values) {
    ui::Grid& grid = form_.*row.List;
    clip(values, grid);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const int gridRow = static_cast<int>(i) + 1;
        grid.TextMatrix(gridRow, list::Area, values[i]);
        if (isVersion1()) grid.TextMatrix(gridRow, list::LevelOfUse, DefaultLevelOfUse);
    }
}

void ProjectFileReader::readHomeRangeDefinition(const Row&, Values values) {
    int type = 0;
    for (int i = 0; i < static_cast<int>(projectfile::HomeRangeTypes.size()); ++i) {
        if (!ui::equalsIgnoringCase(values.front(), projectfile::HomeRangeTypes[static_cast<std::size_t>(i)]))
            continue;
        type = i;
        form_.optHomeRangeType(i).Value(true);
        if (i == 2) readUserBins(values);
    }
    form_.UpdateHRInfo(type);
}

/// The breakpoints stand behind the type.
void ProjectFileReader::readUserBins(const Values& values) {
    const int bins = static_cast<int>(values.size()) - 1;
    form_.flxBins.Rows(bins + 1);
    global_.TotalBins = bins;
    fillNames(form_.flxBins, Values(values.begin() + 1, values.end()));
    form_.rebuildUserBins();
}

/// Version 1 told only whether a unit is used: unused and 0 become "0", used becomes "2", other levels stay. Gives the
/// number of levels down to the first that is no number.
std::size_t ProjectFileReader::convertVersion1Levels(Values& levels) const {
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const std::optional<double> value =
            ui::tryReal(levels[i].empty() ? "0" : levels[i], form_.Separator());
        if (!value) return i;
        if (*value == 0) levels[i] = "0";
        if (*value == 1) levels[i] = DefaultLevelOfUse;
    }
    return levels.size();
}

/// A list of one blank name reads as no list, but its data lines are there: they are passed over.
void ProjectFileReader::readLevelsOfUse(const Row& row, Values values) {
    if (global_.TotalSpecies == 0 || global_.*row.Units == 0) return;
    ui::Grid& levels = form_.flxSummary(row.Member);
    ui::Grid& table = form_.flxSummary(row.SecondMember);
    clip(values, levels);
    const std::size_t readable = isVersion1() ? convertVersion1Levels(values) : values.size();
    int species = 0;
    forEachBlock(Block(values).first(readable), global_.*row.Units, [&](Block block) {
        ++species;
        // A block that the table has no row for comes as far as its first level.
        const Block fitting = species < table.Rows() ? block : block.first(1);
        levels.WriteColumn(row.Column, blockRow(species, global_.*row.Units, 1), 1, fitting);
        table.WriteRow(species, 1, block);
    });
    if (readable < values.size()) ui::toReal(values[readable], form_.Separator());
}

void ProjectFileReader::readSummaryColumn(const Row& row, Values values) {
    ui::Grid& grid = form_.flxSummary(row.Member);
    clip(values, grid);
    grid.WriteColumn(row.Column, 1, 1, values);
}

/// Passed over without species, too. Older programs write ratings even where there is no activity to rate.
void ProjectFileReader::readThreatRatings(const Row& row, Values values) {
    const int threats = global_.TotalLandUses;
    if (threats == 0 || global_.TotalSpecies == 0) return;
    ui::Grid& bySpecies = form_.flxSummary(row.Member);
    ui::Grid& byThreat = form_.flxSummary(row.SecondMember);
    clip(values, bySpecies);
    bySpecies.WriteColumn(row.Column, 1, 1, values);
    clip(values, byThreat);
    int species = 0;
    forEachBlock(values, threats, [&](Block block) {
        byThreat.WriteColumn(row.SecondColumn, ++species, global_.TotalSpecies, block);
    });
}

/// No species is left without a row by a line that is too short, nor given grades before it is there.
void ProjectFileReader::readNumberedColumn(const Row& row, Values values) {
    ui::Grid& grid = form_.flxSummary(row.Member);
    const int count = std::max(static_cast<int>(values.size()), global_.TotalSpecies);
    if (grid.Rows() - 1 != count) grid.Rows(count + 1);
    grid.WriteColumn(column_, 1, 1, values);
    if (global_.TotalSpecies == 0) grid.Rows(1);
}

/// A file that cannot be opened fails to the caller as it is. Any later failure leaves the grids as far as they came,
/// the file open and ProjectLoading set.
void frmBrenica::OpenProject(const std::string& path) {
    files_.Open(path, ui::FileMode::Input, ui::filenumber::Shared);
    int lines = 0;
    try {
        ProjectLoading = true;
        ProjectFileReader reader(*this);
        while (!files_.EndOfFile(ui::filenumber::Shared)) {
            ++lines;
            reader.readLine(files_.LineInput(ui::filenumber::Shared, ui::LineEnds::CarriageReturn));
        }
        files_.Close(ui::filenumber::Shared);
        UpdateSpeciesList();
        if (global_.ProjectVersion.empty()) convertVersion1Project();
        ProjectLoading = false;
    } catch (...) {
        const bool readWhole = !files_.IsOpen(ui::filenumber::Shared);
        files_.NoteFault(
            {path, lines, CurrentError(), ui::FileMode::Input, ui::filenumber::Shared, readWhole});
        ReportError(9999, "Brenica.OpenProject", "");
    }
}
