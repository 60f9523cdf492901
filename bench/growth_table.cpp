// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "growth_table.h"

#include <cstdio>
#include <ostream>
#include <string>

namespace {

constexpr int NameWidth = 22;
constexpr int TimeWidth = 11;
constexpr int PeakWidth = 9;
constexpr int GrowthWidth = 8;
/// Below this a larger working set is reason enough: what leaves the caches costs more a cell.
constexpr double Noticeable = 1.25;
/// A step this short says nothing about growth.
constexpr double ShortestMilliseconds = 0.5;

std::string text(double value, int places) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.*f", places, value);
    return buffer;
}

std::string right(const std::string& shown, int width) {
    const int missing = width - static_cast<int>(shown.size());
    return std::string(static_cast<std::size_t>(missing > 0 ? missing : 0), ' ') + shown;
}

std::string left(const std::string& shown, int width) {
    const int missing = width - static_cast<int>(shown.size());
    return shown + std::string(static_cast<std::size_t>(missing > 0 ? missing : 0), ' ');
}

std::string growth(double fromTime, double toTime, double workRatio) {
    if (toTime < ShortestMilliseconds || fromTime <= 0) return "-";
    const double ratio = toTime / fromTime / workRatio;
    return text(ratio, 2) + (ratio > Noticeable ? "!" : "");
}

const char* nameOf(WorkUnit unit) {
    switch (unit) {
        case WorkUnit::Cells: return "cells";
        case WorkUnit::CellsByPasses: return "cells x passes";
        case WorkUnit::CellsAndRows: return "cells + rows";
    }
    return "";
}

void printSizes(std::ostream& out, const std::vector<RunMeasure>& measures) {
    const auto line = [&](const char* name, auto valueOf) {
        out << left(name, NameWidth);
        for (const RunMeasure& measure : measures)
            out << right(valueOf(measure.Size), TimeWidth + PeakWidth + GrowthWidth);
        out << '\n';
    };
    line("size", [](const ProjectSize& size) { return size.label(); });
    line("cells", [](const ProjectSize& size) { return text(size.cells(), 0); });
    line("passes", [](const ProjectSize& size) { return std::to_string(size.Passes); });
    line("picks", [](const ProjectSize& size) { return std::to_string(size.Picks); });
    line("rows of the passes", [](const ProjectSize& size) { return std::to_string(size.ResultRows); });
}

void printHeadings(std::ostream& out, std::size_t columns) {
    out << '\n' << left("step", NameWidth);
    for (std::size_t i = 0; i < columns; ++i) {
        out << right("time ms", TimeWidth) << right("peak MB", PeakWidth)
            << right(i == 0 ? "" : "growth", GrowthWidth);
    }
    out << "  over\n";
}

double total(const RunMeasure& measure) {
    double sum = 0;
    for (const StepMeasure& step : measure.Steps) sum += step.Milliseconds;
    return sum;
}

}  // namespace

void printTable(std::ostream& out, const std::vector<RunMeasure>& measures) {
    printSizes(out, measures);
    printHeadings(out, measures.size());
    for (std::size_t s = 0; s < steps().size(); ++s) {
        const StepDesign& design = steps()[s];
        out << left(design.Name, NameWidth);
        for (std::size_t i = 0; i < measures.size(); ++i) {
            const StepMeasure& step = measures[i].Steps[s];
            out << right(text(step.Milliseconds, 3), TimeWidth)
                << right(text(step.PeakMegabytes, 1), PeakWidth);
            if (i == 0) {
                out << right("", GrowthWidth);
                continue;
            }
            const double workRatio =
                measures[i].Size.work(design.Work) / measures[i - 1].Size.work(design.Work);
            out << right(growth(measures[i - 1].Steps[s].Milliseconds, step.Milliseconds, workRatio),
                         GrowthWidth);
        }
        out << "  " << nameOf(design.Work) << '\n';
    }
    out << left("sum", NameWidth);
    for (const RunMeasure& measure : measures) {
        out << right(text(total(measure), 3), TimeWidth)
            << right(text(measure.Steps.back().PeakMegabytes, 1), PeakWidth) << right("", GrowthWidth);
    }
    out << '\n';
}
