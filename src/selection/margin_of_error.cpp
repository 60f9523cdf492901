// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/columns.h"
#include "selection/result_colours.h"
#include "selection/selection.h"
#include "ui/arrays.h"
#include "ui/text.h"

/// Two species whose aggregates lie close together are not told apart by a small difference: the user decides.

namespace modBrenicaUtilities {

namespace {

constexpr int Places = 3;

/// The rows of the current block within the margin: the top surviving one and the `Count` below it.
struct MarginBand {
    const ui::Grid& Grid;
    int BlockStartRow;
    int PickOffset;
    int Count;
    const Flags& SpeciesRemoved;

    int topRow() const { return BlockStartRow + PickOffset; }
    int firstBelow() const { return PickOffset + 1; }
    int last() const { return PickOffset + Count; }
    bool survives(int offset) const {
        const int species = Grid.Long(BlockStartRow + offset, result::Candidate);
        return !static_cast<bool>(ui::elementAt(SpeciesRemoved, species - 1));
    }
};

/// A column of the band as the dialogue shows it; scores are rounded.
struct BandColumn {
    int Column;
    bool Rounded;
    std::string Text{};

    void append(const ui::Grid& grid, int row, const char* before) {
        Text += before;
        Text += Rounded ? ui::toText(ui::roundTo(grid.Real(row, Column), Places))
                        : std::string(grid.TextMatrix(row, Column));
    }
};

struct BandTexts {
    BandColumn Names{result::Name, false};
    BandColumn Aggregate{result::Aggregate, true};
    BandColumn Heterogeneity{result::Heterogeneity, true};
    BandColumn Threats{result::Vulnerability, true};
    BandColumn SocioEcon{result::SocioEcon, true};
    BandColumn AddHabitats{result::AddHabitats, false};
    BandColumn AddZones{result::AddJurisUnits, false};
    BandColumn AddThreats{result::AddThreats, false};
    int Species = 0;

    void append(const ui::Grid& grid, int row, const char* before) {
        for (BandColumn* column : {&Names, &Aggregate, &Heterogeneity, &Threats, &SocioEcon, &AddHabitats,
                                   &AddZones, &AddThreats}) {
            column->append(grid, row, before);
        }
        ++Species;
    }
};

BandTexts collectTexts(const MarginBand& band) {
    BandTexts texts;
    texts.append(band.Grid, band.topRow(), "{");
    for (int j = band.firstBelow(); j <= band.last(); ++j) {
        if (band.survives(j)) texts.append(band.Grid, band.BlockStartRow + j, "; ");
    }
    return texts;
}

std::string firstPrompt(const BandTexts& texts) {
    const auto line = [](const std::string& text) { return text + "\r"; };
    const auto shown = [](const BandColumn& column) { return column.Text + "}"; };
    const std::string indent(6, ' ');
    return line("To select between ") + line(shown(texts.Names)) +
           line("use either (scores for each species shown in brackets):") +
           line("(a)   the aggregate score " + shown(texts.Aggregate)) +
           line("(b)   the heterogeneity score " + shown(texts.Heterogeneity)) +
           line("(c)   the threats score " + shown(texts.Threats)) +
           line("(d)   the socio-economic value or " + shown(texts.SocioEcon)) +
           line("(e)   select the species yourself") + line("") + line("NOTE: Each species covers") +
           line(indent + shown(texts.AddHabitats) + " additional habitats") +
           line(indent + shown(texts.AddZones) + " additional management zones") +
           line(indent + shown(texts.AddThreats) + " additional threats");
}

struct Decision {
    int Row;
    bool Tie = false;
};

/// The reference is that of the block's first row throughout, so that the last row above it wins. `valueRow` tells
/// from which row the value for an offset is read.
template <class ValueRow>
Decision compareOn(const MarginBand& band, int column, ValueRow valueRow) {
    Decision decision{band.BlockStartRow};
    const double reference = band.Grid.Real(band.BlockStartRow, column);
    for (int j = band.firstBelow(); j <= band.last(); ++j) {
        const double value = band.Grid.Real(valueRow(j), column);
        if (value > reference) decision.Row = band.BlockStartRow + j;
        if (value == reference) decision.Tie = true;
    }
    return decision;
}

void showInvalidAnswer(ui::Platform& platform, const char* message) {
    platform.showMessage(message, "Invalid value", ui::MessageIcon::Exclamation);
}

Decision askHowToDecide(ui::Platform& platform, const MarginBand& band, const BandTexts& texts) {
    const std::string answer = ui::foldCase(ui::trim(platform.askText(
        firstPrompt(texts), "Species with aggregate score within the set margin of error", "a")));
    const auto ownRow = [&](int j) { return band.BlockStartRow + j; };
    // The socio-economic value is always that of the block's second row.
    const auto secondRow = [&](int) { return band.BlockStartRow + 1; };
    if (answer == "a") return {band.topRow()};
    if (answer == "b") return compareOn(band, result::Heterogeneity, ownRow);
    if (answer == "c") return compareOn(band, result::Vulnerability, ownRow);
    if (answer == "d") return compareOn(band, result::SocioEcon, secondRow);
    if (answer == "e") return {band.BlockStartRow, true};
    showInvalidAnswer(platform,
                      "The option entered was invalid. The first species will be added to the suite.");
    return {band.BlockStartRow};
}

/// The numbers shown skip removed species, the rows matched do not.
int askForSpecies(ui::Platform& platform, const MarginBand& band) {
    std::string prompt = "Enter the number of the candidate species\r";
    int shown = 0;
    const auto add = [&](int row) {
        prompt += ui::toText(++shown) + ": " + std::string(band.Grid.TextMatrix(row, result::Name)) + "\r";
    };
    add(band.topRow());
    for (int j = band.firstBelow(); j <= band.last(); ++j) {
        if (band.survives(j)) add(band.BlockStartRow + j);
    }
    const std::string typed = platform.askText(prompt, "Select the species within the margin or error", "1");
    for (int k = band.firstBelow(); k <= band.last() + 1; ++k) {
        if (ui::trim(typed) == ui::toText(k - band.PickOffset)) return band.BlockStartRow + k - 1;
    }
    showInvalidAnswer(
        platform, "The species number entered was invalid. The first species will be added to the suite.");
    return band.BlockStartRow;
}

void paintMargin(ui::Grid& grid, int row) {
    grid.Select(row, 0, row, 0);
    grid.CellBackColor(resultcolour::Margin);
}

}  // namespace

int Check4ErrorMargin(double errorMargin, ui::Grid& grid, int blockStartRow, int blockSize,
                      const Flags& speciesRemoved, int& pickOffset) try {
    const auto removed = [&](int offset) {
        const int species = grid.Long(blockStartRow + offset, result::Candidate);
        return static_cast<bool>(ui::elementAt(speciesRemoved, species - 1));
    };
    int k = 0;
    double top = 0;
    bool skipped = true;
    while (skipped) {
        top = grid.Real(blockStartRow + k, result::Aggregate);
        skipped = removed(k);
        ++k;
    }
    pickOffset = k - 1;
    paintMargin(grid, blockStartRow + pickOffset);
    const double band = errorMargin / 100 * top;
    int count = 0;
    for (int j = k; j <= blockSize - 1; ++j) {
        if (!(top - grid.Real(blockStartRow + j, result::Aggregate) <= band)) continue;
        ++count;
        if (!removed(j)) paintMargin(grid, blockStartRow + j);
    }
    return count;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.Check4ErrorMargin", "");
}

int SelectErrorMarginSpecies(ui::Platform& platform, const ui::Grid& grid, int blockStartRow, int pickOffset,
                             int count, const Flags& speciesRemoved) try {
    const MarginBand band{grid, blockStartRow, pickOffset, count, speciesRemoved};
    const BandTexts texts = collectTexts(band);
    if (texts.Species < 2) return band.topRow();
    const Decision decision = askHowToDecide(platform, band, texts);
    return decision.Tie ? askForSpecies(platform, band) : decision.Row;
} catch (...) {
    ReportError(9999, "BrenicaUtilities.SelectErrorMarginSpecies", "");
}

}  // namespace modBrenicaUtilities
