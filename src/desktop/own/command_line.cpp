// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/command_line.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include "desktop/own/own_texts.h"

namespace desktop {

CommandLine readCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const bool known = parser.parse(arguments);
    if (parser.isSet(help)) return {{}, own_texts::Usage, {}};
    if (parser.isSet(version)) return {{}, QString(own_texts::Version).arg(BRENICA_VERSION), {}};
    if (!known) return {{}, {}, parser.errorText()};
    const QStringList files = parser.positionalArguments();
    if (files.isEmpty()) return {};
    if (files.size() > 1) return {{}, {}, own_texts::OneProjectOnly};
    if (files.first().isEmpty()) return {{}, {}, own_texts::NamelessProject};
    return {QFileInfo(files.first()).absoluteFilePath(), {}, {}};
}

}  // namespace desktop
