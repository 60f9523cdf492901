// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/program_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <initializer_list>

namespace desktop {

namespace {

/// The first of these folders that there is, seen from the program; empty where there is none.
QString firstFolder(std::initializer_list<const char*> places) {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* place : places) {
        if (program.exists(place)) return QDir::cleanPath(program.filePath(place));
    }
    return {};
}

}  // namespace

QString examplesFolder() {
    const QString found = firstFolder({"../share/brenica/examples", "../../../../examples"});
    return found.isEmpty() ? QCoreApplication::applicationDirPath() : found;
}

bool takesFiles(const QString& folder) {
    return QFileInfo(folder).isWritable() && QDir(folder) != QDir(examplesFolder());
}

QString guideFolder() { return firstFolder({"../share/brenica/guide", "../../docs/guide"}); }

}  // namespace desktop
