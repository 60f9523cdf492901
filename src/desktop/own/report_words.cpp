// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/report_words.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include "desktop/own/own_texts.h"
#include "desktop/own/own_words.h"
#include "desktop/own/strip_words.h"
#include "desktop/program_files.h"
#include "desktop/texts.h"

namespace desktop::report_words {

namespace {

using own_words::said;

constexpr int LongestFolder = 60;  // characters

QString whatIsMissing(const SelectionAside& aside) {
    if (aside.Walk.RefusedPage > 0)
        return said(own_texts::RowsNotComplete).arg(shownText(aside.Walk.RefusedTab));
    if (!aside.Walk.EmptyLists.empty())
        return said(own_texts::ListsAreEmpty)
            .arg(own_words::oneOf({aside.Walk.EmptyLists.begin(), aside.Walk.EmptyLists.end()}));
    if (aside.Obstacle) return strip_words::notSelected(*aside.Obstacle);
    if (!aside.Error.empty()) return said(own_texts::CalculationFails).arg(shownText(aside.Error));
    return shownText(aside.Told);
}

}  // namespace

QString whyNone(const SelectionAside& aside) {
    const QString missing = whatIsMissing(aside);
    return whyNone(aside.Gap ? missing + ' ' + strip_words::gap(*aside.Gap) : missing);
}

QString whyNone(const QString& reason) { return said(own_texts::NoReport).arg(reason); }

QString projectName(const QString& path) {
    return path.isEmpty() ? said(own_texts::NewProject) : QFileInfo(path).fileName();
}

QString folderName(const QString& path) {
    const QString fromHome = QDir::home().relativeFilePath(path);
    if (fromHome == ".") return said(own_texts::HomeFolder);
    return own_words::shortened(fromHome.startsWith("..") ? path : fromHome, LongestFolder);
}

QString proposedFile(const QString& projectPath) {
    const QFileInfo project(projectPath);
    const QString name = projectPath.isEmpty() ? said(own_texts::NewProject) : project.completeBaseName();
    const QString file = said(own_texts::ReportFile).arg(name);
    const bool beside = !projectPath.isEmpty() && takesFiles(project.absolutePath());
    return beside ? project.absoluteDir().filePath(file) : file;
}

}  // namespace desktop::report_words
