// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/help_menu.h"

#include <qcustomplot.h>

#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <array>

#include "desktop/dialogues.h"
#include "desktop/own/own_texts.h"
#include "desktop/program_files.h"
#include "desktop/texts.h"
#include "project/project_file.h"

namespace desktop {

namespace {

struct Library {
    const char* Name;
    const char* Version;
    const char* Licence;
};

void tell(QWidget* owner, const QString& text) {
    showMessageBox(owner, utf8(text), ui::ApplicationTitle, ui::MessageIcon::None);
}

/// In the system's browser. A page is a file of its own, since what opens it may drop the name of a section.
void showGuide(QWidget* owner, const QString& page) {
    const QString folder = guideFolder();
    if (folder.isEmpty()) return tell(owner, own_texts::NoGuide);
    const QString path = QDir(folder).filePath(page);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        tell(owner, QString(own_texts::NoBrowser).arg(path));
}

QString aboutText() {
    const std::array libraries = {Library{"Qt", qVersion(), "LGPL-3.0"},
                                  Library{"QCustomPlot", QCUSTOMPLOT_VERSION_STR, "GPL-3.0-or-later"}};
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
             {"ownAbout", own_texts::About, [link] { tell(link.Owner, aboutText()); }}}};
}

}  // namespace desktop
