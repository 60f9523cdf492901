// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "method/selection.h"

/// Selections of one landscape, outside the form.
namespace insight {

class Rerun {
public:
    /// The landscape must outlive it. REQUIRES: one that can be scored, as that of a run that came to its selection.
    explicit Rerun(const method::Landscape& landscape);

    /// The suite, or how far it came where the selection failed. Valid until the next one.
    const method::Suite& select(const method::Levels& levels, method::Chooser& chooser,
                                method::Listener* listener = nullptr);
    /// Whether the last selection ended in a failure.
    bool failed() const { return failed_; }
    /// Of the first pass.
    const method::Scores& scores() const { return assessment_.Species; }

private:
    method::Assessment assessment_;
    method::Selection selection_;
    bool failed_ = false;
};

/// Units that a suite leaves.
std::size_t uncoveredUnits(const method::Suite& suite);

}  // namespace insight
