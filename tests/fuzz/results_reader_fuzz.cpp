// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string_view>

#include "batch/project_run.h"
#include "fuzz_session.h"
#include "insight/verify/verification.h"

namespace {

constexpr std::size_t LongestResults = 16384;

const SelectionRun& smallLandscape() {
    static const SelectionRun run = [] {
        const RunOptions options{BRENICA_SOURCE_DIR "/examples/small_landscape.brn"};
        std::ostringstream unheard;
        ProjectRun project(options, unheard);
        project.select();
        return project.form().TakeSelectionRun().value();
    }();
    return run;
}

void check(const insight::Verification& verification) {
    const auto& [columns, rows] = verification.Table;
    bool holds = true;
    for (const auto& row : rows) {
        require(row.size() == columns.size(), "a check of other columns");
        require(!insight::fieldOf(row.front()).empty(), "a check without a place");
        holds = holds && insight::fieldOf(row.back()) == "yes";
    }
    require(holds == verification.Holds, "the checks and what they come to differ");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Takes any bytes for the results of the small example.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int KeepNot = -1;
    if (size > LongestResults) return KeepNot;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        check(insight::verifyResults(smallLandscape(), insight::readResultsFile(text)));
    } catch (const insight::ResultsFault& fault) {
        require(fault.Line >= 1 && *fault.what() != '\0', "a fault without line or word");
    }
    return 0;
}
