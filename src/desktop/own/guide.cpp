// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/guide.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

#include "desktop/dialogues.h"
#include "desktop/own/own_texts.h"
#include "desktop/program_files.h"
#include "desktop/texts.h"

namespace desktop {

/// A page is a file of its own, since what opens it may drop the name of a section.
void showGuide(QWidget* owner, const QString& page) {
    const QString folder = guideFolder();
    if (folder.isEmpty()) return tellInBox(owner, own_texts::NoGuide);
    const QString path = QDir(folder).filePath(page);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        tellInBox(owner, QString(own_texts::NoBrowser).arg(path));
}

void tellInBox(QWidget* owner, const QString& text) {
    showMessageBox(owner, utf8(text), ui::ApplicationTitle, ui::MessageIcon::None);
}

}  // namespace desktop
