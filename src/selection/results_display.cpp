// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <span>

#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"

namespace {

/// Tips of the headings from column 1 on.
constexpr const char* OverallTips[] = {"Rank of the species based on the recalculated aggregate score",
                                       "Recalculated aggregate score",
                                       "Recalculated heterogeneity score",
                                       "Original area score",
                                       "Recalculated vulnerability score",
                                       "Original functionality score",
                                       "Original socio-economic score",
                                       "Additional habitats represented by the species",
                                       "Additional management zones represented by the species",
                                       "Additional threats represented by the species"};
constexpr const char* HabitatTips[] = {"The number of the candidate species covering the habitat type"};
constexpr const char* JurisUnitTips[] = {"The number of the candidate species covering the management zone"};
constexpr const char* ThreatTips[] = {"The number of the candidate species covering the threat"};
constexpr const char* SuiteTips[] = {"Brenic species name",
                                     "Additional habitat types covered by the brenic species",
                                     "Additional management zones covered by the brenic species",
                                     "Additional potential threats covered by the brenic species"};

constexpr std::span<const char* const> ViewTips[] = {OverallTips, HabitatTips, JurisUnitTips, ThreatTips};

std::string tipAt(std::span<const char* const> tips, int col) {
    const auto index = static_cast<std::size_t>(col) - 1;
    return index < tips.size() ? tips[index] : "";
}

}  // namespace

void frmBrenica::optCompResults_Click(int index) try {
    for (int i = 0; i < flxCompResults.Count(); ++i) flxCompResults(i).Visible(i == index);
} catch (...) {
    ReportError(9999, "Brenica.optCompResults_Click", "");
}

void frmBrenica::flxCompResults_MouseMove(int index) try {
    showHeadingTip(flxCompResults(index), index, resultTips_,
                   [](int view, int col) { return tipAt(ViewTips[view], col); });
} catch (...) {
    ReportError(9999, "Brenica.flxCompResults_MouseMove", "");
}

void frmBrenica::flxBrenicSuite_MouseMove() try {
    showHeadingTip(flxBrenicSuite, 0, suiteTips_, [](int, int col) { return tipAt(SuiteTips, col); });
} catch (...) {
    ReportError(9999, "Brenica.flxBrenicSuite_MouseMove", "");
}
