// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/help_menu.h"

#include <glpk.h>
#include <qcustomplot.h>

#include <QDir>
#include <array>

#include "desktop/own/guide.h"
#include "desktop/own/own_texts.h"
#include "desktop/program_files.h"
#include "project/project_file.h"

namespace desktop {

namespace {

struct Library {
    const char* Name;
    const char* Version;
    const char* Licence;
};

QString aboutText() {
    const std::array libraries = {Library{"Qt", qVersion(), "LGPL-3.0"},
                                  Library{"QCustomPlot", QCUSTOMPLOT_VERSION_STR, "GPL-3.0-or-later"},
                                  Library{"GLPK", glp_version(), "GPL-3.0-or-later"}};
    QStringList used;
    for (const Library& library : libraries)
        used.append(QString(own_texts::AboutLibrary).arg(library.Name, library.Version, library.Licence));
    return QString(own_texts::AboutText).arg(BRENICA_VERSION, used.join('\n'));
}

std::vector<OwnEntry> exampleEntries(const HelpLink& link) {
    const QDir folder(examplesFolder());
    std::vector<OwnEntry> entries;
    for (const QString& file :
         folder.entryList({QString('*') + projectfile::Extension}, QDir::Files, QDir::Name)) {
        entries.push_back({"ownExample_" + file, QString(file).replace('&', "&&"),
                           [link, path = folder.filePath(file)] { link.OpenProject(path); }});
    }
    entries.push_back({});
    entries.push_back(
        {"ownExamplesPage", own_texts::AboutExamples, [link] { showGuide(link.Owner, "examples.html"); }});
    return entries;
}

}  // namespace

OwnEntry helpMenu(const HelpLink& link) {
    return {"ownHelp",
            own_texts::Help,
            {},
            {},
            {{"ownGuide", own_texts::Guide,
              [link] { showGuide(link.Owner, QString("page-%1.html").arg(link.Page())); }, Qt::Key_F1},
             {"ownExamples", own_texts::Examples, {}, {}, exampleEntries(link)},
             {"ownAbout", own_texts::About, [link] { tellInBox(link.Owner, aboutText()); }}}};
}

}  // namespace desktop
