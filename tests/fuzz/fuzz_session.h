// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/// How a session with a project file ended; each is a way that the system foresees.
enum class SessionEnd {
    Selected,          ///< the selection ran to its report
    OnlyOpened,        ///< opened, and nothing else was asked for
    Unreadable,        ///< the open stopped at a line, silently, with a fault that names file and line
    PageRefused,       ///< the answer to a question kept the user on a page
    NothingToScore,    ///< a gap in the grades was named, or a list is empty
    UnexpectedReport,  ///< the four-line report, at which the program ends
};

enum class SessionDepth { Open, OpenAndWalk };

/// A session ended in a way that the system does not foresee, or took too long: a defect of the program.
struct Undescribed : std::logic_error {
    using std::logic_error::logic_error;
};

inline void require(bool holds, const std::string& fault) {
    if (!holds) throw Undescribed(fault);
}

/// Longest time that a session may take, in seconds of the processor.
inline constexpr double SessionSeconds = 2;

/// Opens `project` in a fresh form on a platform without a desktop, and where the depth says so walks all pages and
/// tabs, selects, exports and saves; all of it through user actions. A project that cannot be read is walked too, as
/// far as it came. Whatever is neither success nor a described failure raises Undescribed; other exceptions pass.
///
/// Lines that the reader of project files ignores steer the session: "answer TEXT" is the answer to the next box,
/// "margin P" goes into the box for the margin of error.
SessionEnd runSession(std::string_view project, SessionDepth depth);

/// Whether the lists of the project stay small enough together for a session of some milliseconds. The tables of a
/// project hold species times units cells, so that a few kilobytes of commas make millions of cells.
bool isSmall(std::string_view project);
