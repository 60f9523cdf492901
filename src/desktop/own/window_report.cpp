// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/window_report.h"

#include <QCryptographicHash>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QUrl>
#include <exception>
#include <utility>

#include "desktop/file_dialogue.h"
#include "desktop/own/own_texts.h"
#include "desktop/own/own_words.h"
#include "desktop/own/report_words.h"
#include "desktop/texts.h"
#include "insight/cover/search_effort.h"
#include "project/frmBrenica.h"
#include "scripted/selection_aside.h"
#include "ui/wait_pointer.h"

namespace desktop {

namespace {

using own_words::said;

/// The project's file as it is now, put where nobody else writes.
struct SavedProject {
    explicit SavedProject(const QString& project);

    AsideFiles files() const;

    QTemporaryDir Folder;
    QByteArray Bytes;
    bool IsThere = false;
};

SavedProject::SavedProject(const QString& project) {
    QFile source(project);
    if (!QFileInfo(project).isFile() || !source.open(QIODevice::ReadOnly)) return;
    Bytes = source.readAll();
    QFile copy(Folder.filePath("saved"));
    IsThere = copy.open(QIODevice::WriteOnly) && copy.write(Bytes) == Bytes.size() && copy.flush();
}

AsideFiles SavedProject::files() const {
    return {IsThere ? utf8(Folder.filePath("saved")) : std::string(), utf8(Folder.filePath("copy"))};
}

std::string hashOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
}

insight::ReportOrigin originOf(const SelectionAside& aside, const QString& project, const QByteArray& saved) {
    insight::ReportOrigin origin;
    origin.Project = utf8(report_words::projectName(project));
    origin.IsSaved = aside.IsSaved;
    if (aside.IsSaved) origin.Hash = hashOf(saved);
    origin.HasDefaults = aside.HasDefaults;
    origin.Program = BRENICA_VERSION;
    origin.Answers = aside.Run->Outcome.Answers;
    origin.Limits.Seconds = insight::UsualSeconds;
    return origin;
}

}  // namespace

WindowReport::WindowReport(FormLink& link, const frmBrenica& form, ui::Platform& platform, StripLines& lines)
    : link_(link), form_(form), platform_(platform), lines_(lines) {
    connect(&maker_, &ReportMaker::progressed, this, [this](const QString& words) {
        line_.Progress = said(own_texts::SoFar).arg(words);
        lines_.tellOfReport(line_);
    });
    connect(&maker_, &ReportMaker::failed, this, [this](const QString& reason) {
        show(closable({report_words::whyNone(reason), {}, StripTone::Warning, {}, {}}));
    });
    connect(&maker_, &ReportMaker::made, this, [this](const QByteArray& page) {
        page_ = page;
        save();
    });
}

void WindowReport::make() {
    link_.command([this] { begin(); });
}

void WindowReport::begin() {
    if (isMaking()) return tell(said(own_texts::ReportIsBeingMade).arg(project_));
    const QString project = shownText(form_.Global().ProjectFileName);
    auto order = takeProject();
    if (!order) return;
    const auto file = askForFile(report_words::proposedFile(project));
    if (!file) return;
    file_ = *file;
    project_ = report_words::projectName(project);
    page_.clear();
    maker_.start(*std::move(order));
    show(lineOfWork());
}

/// Nothing where it cannot be explained, or the user would rather not; the form is not touched.
std::optional<ReportMaker::Order> WindowReport::takeProject() try {
    const QString project = shownText(form_.Global().ProjectFileName);
    const SavedProject saved(project);
    SelectionAside aside;
    {
        const ui::WaitPointer wait(platform_);
        aside = selectAside(form_, saved.files());
    }
    if (!aside.Run) return tell(report_words::whyNone(aside)), std::nullopt;
    if (form_.Outcome() && !aside.IsOnView && !agreesToChanges()) return std::nullopt;
    insight::ReportOrigin origin = originOf(aside, project, saved.Bytes);
    return ReportMaker::Order{*std::move(aside.Run), std::move(origin)};
} catch (const std::exception& fault) {
    tell(report_words::whyNone(QString::fromUtf8(fault.what())));
    return std::nullopt;
}

bool WindowReport::agreesToChanges() {
    return platform_.askYesNo(own_texts::ChangedSinceSelection, ui::ApplicationTitle);
}

/// Over anything but the project.
std::optional<QString> WindowReport::askForFile(const QString& proposed) {
    const auto chosen = platform_.chooseFile({.Kind = ui::FileDialogKind::Save,
                                              .FileName = utf8(proposed),
                                              .Filter = own_texts::ReportFilter,
                                              .DefaultExt = ".html",
                                              .InitDir = "",
                                              .Flags = AskBeforeOverwriting});
    if (!chosen) return std::nullopt;
    const QString file = QString::fromStdString(*chosen);
    const QFileInfo project(QString::fromStdString(form_.Global().ProjectFileName));
    if (!project.exists() || QFileInfo(file) != project) return file;
    tell(said(own_texts::NotOverProject).arg(project.fileName()));
    return std::nullopt;
}

/// What has stood there stays until the page is whole.
void WindowReport::save() {
    QSaveFile file(file_);
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(page_) == page_.size() && file.commit();
    if (!isSaved) {
        const QString text = said(own_texts::NotExported)
                                 .arg(QFileInfo(file_).fileName(), own_words::clause(file.errorString()));
        return show(closable({text,
                              file_,
                              StripTone::Warning,
                              {{own_texts::SaveElsewhere, [this] { saveElsewhere(); }}},
                              {}}));
    }
    page_.clear();
    open();
}

void WindowReport::saveElsewhere() {
    link_.command([this] {
        const auto file = askForFile(QFileInfo(file_).fileName());
        if (!file) return;
        file_ = *file;
        save();
    });
}

/// A browser would not tell that the file has gone.
void WindowReport::open() {
    const bool isThere = QFileInfo::exists(file_);
    StripLine line = lineOfFile();
    if (!isThere || !QDesktopServices::openUrl(QUrl::fromLocalFile(file_)))
        line.Text += ' ' + said(isThere ? own_texts::NoBrowserForReport : own_texts::ReportIsGone);
    show(line);
}

void WindowReport::hurry() {
    maker_.hurry();
    show(lineOfHurry());
}

void WindowReport::drop() {
    maker_.drop();
    show(closable({said(own_texts::ReportCancelled).arg(project_), {}, StripTone::Note, {}, {}}));
}

StripLine WindowReport::lineOfWork() {
    return {said(own_texts::MakingReport).arg(project_),
            file_,
            StripTone::Note,
            {{own_texts::ShowWhatIsKnown, [this] { hurry(); }}, cancel()},
            {}};
}

StripLine WindowReport::lineOfHurry() {
    return {said(own_texts::FinishingReport).arg(project_), file_, StripTone::Note, {cancel()}, {}};
}

StripAction WindowReport::cancel() {
    return {own_texts::Cancel, [this] { drop(); }};
}

StripLine WindowReport::lineOfFile() {
    const QFileInfo file(file_);
    const QString folder = report_words::folderName(file.absolutePath());
    return closable({said(own_texts::ReportIsMade).arg(project_, file.fileName(), folder),
                     file_,
                     StripTone::Offer,
                     {{own_texts::OpenReport, [this] { open(); }}},
                     {}});
}

StripLine WindowReport::closable(StripLine line) {
    line.Close = [this] {
        page_.clear();
        lines_.tellOfReport(std::nullopt);
    };
    return line;
}

void WindowReport::show(StripLine line) {
    line_ = std::move(line);
    lines_.tellOfReport(line_);
}

void WindowReport::tell(const QString& text) {
    platform_.showMessage(utf8(text), ui::ApplicationTitle, ui::MessageIcon::Exclamation);
}

}  // namespace desktop
