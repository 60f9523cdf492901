// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "project/frmBrenica.h"

/// Puts the lines of a project file into the grids of a form in the state of a new project. The lines depend on each
/// other's order: species before the lists, the lists before the data.
class ProjectFileReader {
public:
    explicit ProjectFileReader(frmBrenica& form) : form_(form), global_(form.Global()) {}

    /// A line without "=", without a value or with an unknown key is ignored.
    void readLine(std::string_view line);

private:
    using Values = std::vector<std::string_view>;
    struct Row;
    static std::span<const Row> rows();

    bool isVersion1() const { return global_.ProjectVersion.empty(); }

    void readVersion(const Row& row, Values values);
    void readSpecies(const Row& row, Values values);
    void readHabitatTypes(const Row& row, Values values);
    void readJurisUnits(const Row& row, Values values);
    void readLandUses(const Row& row, Values values);
    void readFunctions(const Row& row, Values values);
    void readHomeRangeDefinition(const Row& row, Values values);
    void readListColumn(const Row& row, Values values);
    void readAreas(const Row& row, Values values);
    void readLevelsOfUse(const Row& row, Values values);
    void readSummaryColumn(const Row& row, Values values);
    void readThreatRatings(const Row& row, Values values);
    void readNumberedColumn(const Row& row, Values values);

    void readUserBins(const Values& values);
    void fillNames(ui::Grid& grid, const Values& values);
    std::size_t convertVersion1Levels(Values& levels) const;

    frmBrenica& form_;
    modGlobal& global_;
    int column_ = 0;  ///< from a key that ends in a number
};
