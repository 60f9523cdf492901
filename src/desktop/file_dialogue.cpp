// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/file_dialogue.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>
#include <QShortcut>
#include <QStandardPaths>

#include "desktop/dialogues.h"
#include "desktop/program_files.h"
#include "desktop/texts.h"
#include "ui/window_texts.h"

namespace desktop {

namespace {

/// "Description|pattern|Description|pattern" as Qt's list of filters.
QStringList filtersOf(const std::string& filter) {
    const QStringList fields = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (int i = 0; i + 1 < fields.size(); i += 2) {
        const QString description = fields[i].section('(', 0, 0).trimmed();
        filters.append(QString("%1 (%2)").arg(description, QString(fields[i + 1]).replace(';', ' ')));
    }
    return filters;
}

/// The path with the extension that its name lacks.
QString completed(const QString& path, const QString& extension) {
    const QString ending = '.' + extension;
    return extension.isEmpty() || path.endsWith(ending, Qt::CaseInsensitive) ? path : path + ending;
}

/// Whether a file may be written there: in a folder that there is, and over another file only if the user says so.
bool mayBeWritten(QWidget* parent, const QString& path, bool asksBeforeOverwriting) {
    const QFileInfo file(path);
    if (!QDir(file.absolutePath()).exists()) {
        const QString fault = QString::fromUtf8(ui::window_text::NoSuchFolder).arg(file.absolutePath());
        showMessageBox(parent, utf8(fault), ui::ApplicationTitle, ui::MessageIcon::Exclamation);
        return false;
    }
    if (!asksBeforeOverwriting || !file.exists()) return true;
    const QString question = QString::fromUtf8(ui::window_text::MayBeReplaced).arg(file.fileName());
    return showQuestionBox(parent, utf8(question), ui::ApplicationTitle);
}

QString documents() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(folder).exists() ? folder : QDir::homePath();
}

/// In the folder of the file that is proposed, else in the one that is asked for, else in the last one; but to save where
/// files are taken.
QString folderToBeginIn(const ui::FileDialogRequest& request, const QString& lastFolder) {
    const QFileInfo proposed(QString::fromStdString(request.FileName));
    const bool namesFolder = !request.FileName.empty() && proposed.isAbsolute();
    for (const QString& folder : {namesFolder ? proposed.absolutePath() : QString(),
                                  QString::fromStdString(request.InitDir), lastFolder}) {
        const bool serves = request.Kind == ui::FileDialogKind::Open || takesFiles(folder);
        if (!folder.isEmpty() && serves) return folder;
    }
    return documents();
}

void openWhereProposed(QFileDialog& dialogue, const ui::FileDialogRequest& request,
                       const QString& lastFolder) {
    dialogue.setDirectory(folderToBeginIn(request, lastFolder));
    const QFileInfo proposed(QString::fromStdString(request.FileName));
    if (!request.FileName.empty()) dialogue.selectFile(proposed.fileName());
}

/// Whoever looks for a file must not rename or delete one by a slip. Only Qt's own dialogue has these; it shows where the
/// desktop has none.
void takeAwayHarm(QFileDialog& dialogue) {
    for (const char* name : {"qt_rename_action", "qt_delete_action"}) {
        if (auto* action = dialogue.findChild<QAction*>(name)) action->setVisible(false);
    }
    for (auto* files : dialogue.findChildren<QAbstractItemView*>()) {
        files->setEditTriggers(QAbstractItemView::NoEditTriggers);
        for (auto* shortcut : files->findChildren<QShortcut*>())
            shortcut->setEnabled(shortcut->key() != QKeySequence(QKeySequence::Delete));
    }
}

/// Wide enough for a name, a size, a type and a date beside the places.
void giveRoom(QFileDialog& dialogue) {
    constexpr int Characters = 110;
    constexpr int Lines = 30;
    const QFontMetrics font = dialogue.fontMetrics();
    const QSize wanted(font.averageCharWidth() * Characters, font.lineSpacing() * Lines);
    dialogue.resize(wanted.boundedTo(dialogue.screen()->availableSize() * 9 / 10));
}

}  // namespace

/// What is chosen is looked at here, since dialogues of the desktop's own complete names after they have asked.
std::optional<std::string> showFileDialogue(QWidget* parent, const ui::FileDialogRequest& request,
                                            QString& lastFolder) {
    const bool saves = request.Kind == ui::FileDialogKind::Save;
    QString extension = QString::fromStdString(request.DefaultExt);
    if (extension.startsWith('.')) extension.remove(0, 1);
    QFileDialog dialogue(parent);
    takeAwayHarm(dialogue);
    dialogue.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogue.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialogue.setOption(QFileDialog::DontConfirmOverwrite);
    dialogue.setNameFilters(filtersOf(request.Filter));
    dialogue.setDefaultSuffix(extension);
    openWhereProposed(dialogue, request, lastFolder);
    giveRoom(dialogue);
    while (dialogue.exec() == QDialog::Accepted) {
        const QString chosen = dialogue.selectedFiles().value(0);
        const QString path = saves ? completed(chosen, extension) : chosen;
        if (saves && !mayBeWritten(parent, path, (request.Flags & AskBeforeOverwriting) != 0)) continue;
        lastFolder = QFileInfo(path).absolutePath();
        return utf8(path);
    }
    return std::nullopt;
}

}  // namespace desktop
