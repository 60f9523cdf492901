// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/rerun.h"

#include <algorithm>

namespace insight {

Rerun::Rerun(const method::Landscape& landscape) {
    method::assess(landscape, assessment_);
    selection_.load(landscape, assessment_);
}

const method::Suite& Rerun::select(const method::Levels& levels, method::Chooser& chooser,
                                   method::Listener* listener) {
    failed_ = false;
    try {
        selection_.start(levels);
        selection_.run(chooser, listener);
    } catch (const method::Failure&) {
        failed_ = true;
    }
    return selection_.suite();
}

std::size_t uncoveredUnits(const method::Suite& suite) {
    std::size_t units = 0;
    for (const method::Unit kind : method::UnitKinds) {
        const std::vector<int>& coveredBy = suite.CoveredBy[kind];
        units += static_cast<std::size_t>(std::count(coveredBy.begin(), coveredBy.end(), 0));
    }
    return units;
}

}  // namespace insight
