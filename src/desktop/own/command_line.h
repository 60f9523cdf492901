// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace desktop {

/// What the program was started with, beside the options that Qt takes for itself.
struct CommandLine {
    QString Project;  ///< the absolute path of the file to open; empty for none
    QString Answer;   ///< what --help or --version prints, whatever stands beside it; empty without either
    QString Fault;    ///< what is wrong with it, in a line; empty where it can be followed
};

/// `arguments` with the program's name before them.
CommandLine readCommandLine(const QStringList& arguments);

}  // namespace desktop
