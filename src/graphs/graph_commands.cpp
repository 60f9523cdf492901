// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"
#include "project/pages.h"
#include "ui/text.h"

namespace {

constexpr int SummaryChartsWithTab = 8;

template <class Charts>
ui::Chart* lastVisible(Charts& charts, int count) {
    ui::Chart* visible = nullptr;
    for (int i = 0; i < count; ++i) {
        if (charts(i).Visible()) visible = &charts(i);
    }
    return visible;
}

}  // namespace

ui::Chart* frmBrenica::GetCurrentChart() try {
    if (CurrentMainTab == page::Graphs) return lastVisible(chtSummary, SummaryChartsWithTab);
    if (CurrentMainTab == page::Scores) return lastVisible(chtScores, chtScores.Count());
    return nullptr;
} catch (...) {
    ReportError(9999, "Brenica.GetCurrentChart", "");
}

/// The picture goes through the clipboard in all three commands; printing leaves it there.
void frmBrenica::MenuSelectionGraph(std::string_view action) try {
    ui::Chart* chart = GetCurrentChart();
    if (chart == nullptr) {
        platform().showMessage("Graphs currently not visible!", "Graph error", ui::MessageIcon::Exclamation);
    } else if (ui::equalsIgnoringCase(action, "Save")) {
        cdgFileDialog.FileName.clear();
        cdgFileDialog.Filter = "Pictures (*.bmp)|*.bmp";
        cdgFileDialog.DefaultExt = "bmp";
        cdgFileDialog.ShowSave();
        saveGraph(*chart);
    } else if (ui::equalsIgnoringCase(action, "Copy")) {
        chart->EditCopy();
    } else if (ui::equalsIgnoringCase(action, "Print")) {
        printGraph(*chart);
    }
} catch (...) {
    SwallowError();
}

void frmBrenica::saveGraph(ui::Chart& chart) try {
    chart.EditCopy();
    platform().SavePicture(cdgFileDialog.FileName);
    cdgFileDialog.InitDir.clear();
} catch (...) {
    platform().showMessage(CurrentError().Description, ui::ApplicationTitle, ui::MessageIcon::None);
}

void frmBrenica::printGraph(ui::Chart& chart) try { chart.EditCopy(); } catch (...) {
    SwallowError();
    platform().showMessage("Unable to print the graph!", "Printing error", ui::MessageIcon::Exclamation);
}
