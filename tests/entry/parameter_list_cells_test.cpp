// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/entry_fixture.h"

namespace {

using Texts = std::vector<std::string_view>;

/// Cells of lists written together, held against the same cells written one by one.
class ParameterListCells : public EntryTest {
protected:
    static constexpr int Units = 4;

    void expectTheSame(
        int species, ui::Grid& grid, int col, int row, const Texts& texts,
        const std::function<void()>& disturb = [] {}) {
        const auto after = [&](const std::function<void()>& write) {
            open(ProjectText(species, Units, Units, Units));
            disturb();
            form.ProjectChanged = false;
            try {
                write();
                return state("");
            } catch (const ui::RunTimeError& error) {
                return state(error.what());
            }
        };
        const std::vector<std::string> together = after([&] { grid.WriteColumn(col, row, 1, texts); });
        const std::vector<std::string> oneByOne = after([&] {
            for (std::size_t i = 0; i < texts.size(); ++i)
                grid.TextMatrix(row + static_cast<int>(i), col, texts[i]);
        });
        EXPECT_EQ(together, oneByOne);
    }

private:
    /// All that the lists' cells reach, and how it ended.
    std::vector<std::string> state(const std::string& failure) {
        std::vector<std::string> texts{form.ProjectChanged ? "changed" : "as it was", failure};
        for (const ui::Grid* grid :
             {&form.flxHabitatHetero, &form.flxJurisUnitHetero, &form.flxLandUsesVulnerability,
              &form.flxSummary(summary::HabitatsBySpecies), &form.flxSummary(summary::JurisUnitsBySpecies),
              &form.flxSummary(summary::ThreatsBySpecies), &form.flxSummary(summary::SpeciesByThreat)}) {
            for (int row = 0; row < grid->Rows(); ++row) {
                for (const std::string& text : rowOf(*grid, row)) texts.push_back(text);
            }
        }
        return texts;
    }
};

}  // namespace

TEST_F(ParameterListCells, AreTheSameWrittenTogetherOrOneByOne) {
    const Texts texts = {"Bog", "Seasonally flooded savanna", ""};
    for (const int species : {0, 1, 3}) {
        for (ui::Grid* grid : {&form.flxHabitatTypes, &form.flxJurisUnits, &form.flxLandUses}) {
            for (const int col : {list::Number, list::Name, list::Urgency, list::Probability}) {
                for (const int row : {0, 1, 2}) expectTheSame(species, *grid, col, row, texts);
            }
        }
    }
}

TEST_F(ParameterListCells, FailAtTheSameCellWhereATableLacksRows) {
    const Texts texts = {"Bog", "Fen"};
    for (const int member :
         {summary::HabitatsBySpecies, summary::ThreatsBySpecies, summary::SpeciesByThreat}) {
        ui::Grid& table = form.flxSummary(member);
        const auto shorten = [&] { table.Rows(table.Rows() - 2); };
        expectTheSame(3, form.flxHabitatTypes, list::Name, 3, texts, shorten);
        expectTheSame(3, form.flxLandUses, list::Name, 3, texts, shorten);
    }
    expectTheSame(3, form.flxHabitatTypes, list::Name, 1, texts, [&] { form.flxHabitatHetero.Rows(2); });
}
