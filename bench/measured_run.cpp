// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "measured_run.h"

#include <chrono>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "project/frmBrenica.h"
#include "scripted/scripted_platform.h"

namespace {

constexpr int FirstPage = 2;
constexpr int LastPage = 7;

/// The kernel's high-water mark of this process's memory.
double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == "VmHWM:" && status >> kilobytes) return kilobytes / 1024;
    }
    return 0;
}

class MeasuredRun {
public:
    MeasuredRun(const std::string& project, const std::string& folder) : project_(project), folder_(folder) {}

    RunMeasure run() {
        step([&] { form_ = std::make_unique<frmBrenica>(platform_, files_, global_); });
        step([&] { open(); });
        for (int page = FirstPage; page <= LastPage; ++page) {
            step([&] { form_->tabBrenica.UserSelectTab(page); });
            require(form_->CurrentMainTab == page, "a page may not be left");
        }
        require(form_->cmdComplement.Enabled(), "the scores were not calculated");
        step([&] { form_->cmdComplement.UserClick(); });
        step([&] { exportResults(); });
        step([&] { exportTables(); });
        takeSize();
        return measure_;
    }

private:
    template <class Step>
    void step(Step what) {
        using Clock = std::chrono::steady_clock;
        const Clock::time_point start = Clock::now();
        what();
        const std::chrono::duration<double, std::milli> time = Clock::now() - start;
        measure_.Steps.push_back({time.count(), peakMegabytes()});
    }

    void require(bool holds, const char* fault) const {
        if (!holds) throw std::runtime_error(project_ + ": " + fault);
    }

    void open() {
        platform_.Files.push_back(project_);
        form_->mnuOpenProject.UserClick();
        require(!files_.LastFault() && global_.ProjectFileName == project_, "the project cannot be opened");
    }

    void exportResults() {
        platform_.Files.push_back(folder_ + "/ResultsData.txt");
        form_->cmdExportResults.UserClick();
        require(!files_.LastFault(), "the results cannot be exported");
    }

    void exportTables() {
        for (const ExportTable& table : form_->ExportTables()) {
            if (form_->isExportable(table)) form_->SaveTable(table, folder_ + "/" + table.FileName + ".txt");
        }
    }

    void takeSize() {
        ProjectSize& size = measure_.Size;
        size.Species = global_.TotalSpecies;
        size.Habitats = global_.TotalHabitatTypes;
        size.Zones = global_.TotalJurisUnits;
        size.Activities = global_.TotalLandUses;
        size.Picks = form_->flxBrenicSuite.Rows() - 1;
        const ui::Grid& passes = form_->flxCompResults(0);
        size.ResultRows = passes.Rows() - 1;
        // A blank row ends the block of each pass.
        for (int row = 1; row < passes.Rows(); ++row) size.Passes += passes.TextMatrix(row, 0).empty();
    }

    std::string project_;
    std::string folder_;
    ScriptedPlatform platform_;
    ui::Files files_;
    modGlobal global_;
    std::unique_ptr<frmBrenica> form_;
    RunMeasure measure_;
};

}  // namespace

const std::vector<StepDesign>& steps() {
    static const std::vector<StepDesign> Steps = {
        {"new form", WorkUnit::Cells},
        {"open", WorkUnit::Cells},
        {"to page 2, lists", WorkUnit::Cells},
        {"to page 3, criteria", WorkUnit::Cells},
        {"to page 4, tables", WorkUnit::Cells},
        {"to page 5, graphs", WorkUnit::Cells},
        {"to page 6, scores", WorkUnit::Cells},
        {"to page 7, results", WorkUnit::Cells},
        {"selection", WorkUnit::CellsByPasses},
        {"export of results", WorkUnit::CellsAndRows},
        {"export of all tables", WorkUnit::CellsAndRows},
    };
    return Steps;
}

double ProjectSize::work(WorkUnit unit) const {
    switch (unit) {
        case WorkUnit::Cells: return cells();
        case WorkUnit::CellsByPasses: return cells() * Passes;
        case WorkUnit::CellsAndRows: return cells() + ResultRows;
    }
    return cells();
}

std::string ProjectSize::label() const {
    return std::to_string(Species) + " x " + std::to_string(Habitats) + " x " + std::to_string(Zones) +
           " x " + std::to_string(Activities);
}

RunMeasure measureRun(const std::string& project, const std::string& folder) {
    return MeasuredRun(project, folder).run();
}
