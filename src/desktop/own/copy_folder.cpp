// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/copy_folder.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QThread>
#include <QUuid>
#include <algorithm>
#include <cerrno>
#include <cstring>

#include "project/project_file.h"

namespace desktop {

namespace {

constexpr const char* RecordEnding = ".json";
constexpr const char* LockEnding = ".lock";
// Another program's look at a copy lasts no longer.
constexpr int LockAttempts = 20;
constexpr int BetweenAttempts = 10;  // milliseconds

/// Nothing where the file cannot be read.
std::optional<QByteArray> contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    return file.readAll();
}

}  // namespace

CopyFolder::~CopyFolder() {
    for (const auto& [id, descriptor] : locks_) ::close(descriptor);
}

QString CopyFolder::usualPath() {
    const QString wanted = qEnvironmentVariable("XDG_STATE_HOME");
    const QString state = QDir::isAbsolutePath(wanted) ? wanted : QDir::homePath() + "/.local/state";
    return QDir::cleanPath(state + "/brenica");
}

QString CopyFolder::copyFile(const QString& id) const { return file(id, projectfile::Extension); }

QString CopyFolder::newId() { return QUuid::createUuid().toString(QUuid::Id128); }

/// A new copy's lock is there before the copy is, so that no other program takes it for one that was left.
bool CopyFolder::hold(const QString& id) {
    if (locks_.contains(id)) return true;
    for (int attempt = 0; attempt < LockAttempts; ++attempt) {
        const int descriptor = disk_.lock(file(id, LockEnding), false);
        if (descriptor >= 0) return locks_.emplace(id, descriptor), true;
        QThread::msleep(BetweenAttempts);
    }
    return false;
}

void CopyFolder::letGo(const QString& id) {
    written_.erase(id);
    const auto held = locks_.find(id);
    if (held == locks_.end()) return;
    ::close(held->second);
    locks_.erase(held);
}

void CopyFolder::keep(const QString& id, CopyRecord record, const ProjectCopy& copy) {
    const std::lock_guard guard(mutex_);
    disk_.makeFolder(path_);
    if (!hold(id)) throw DiskFault(std::strerror(EWOULDBLOCK));
    record.Time = QDateTime::currentDateTime();
    record.Process = QCoreApplication::applicationPid();
    record.Now = contentFor(copy);
    record.Before = contentThere(id);
    written_.erase(id);
    disk_.replace(file(id, RecordEnding), record.toJson());
    const bool isThere = record.Before && record.Before->Hash == record.Now.Hash;
    if (!isThere) {
        disk_.replace(copyFile(id), QByteArray::fromRawData(copy.Text.data(), record.Now.Length));
    }
    written_[id] = std::move(record.Now);
}

/// What the copy's file holds. After a failure only the disk knows how far that write came.
std::optional<CopyContent> CopyFolder::contentThere(const QString& id) const {
    if (const auto written = written_.find(id); written != written_.end()) return written->second;
    const auto text = contentOf(copyFile(id));
    const auto record = recordThere(id);
    const CopyContent* content = record && text ? record->contentOf(*text) : nullptr;
    return content != nullptr ? std::optional(*content) : std::nullopt;
}

std::optional<CopyRecord> CopyFolder::recordThere(const QString& id) const {
    const auto json = contentOf(file(id, RecordEnding));
    return json ? CopyRecord::fromJson(*json) : std::nullopt;
}

void CopyFolder::leave(const QString& id) {
    const std::lock_guard guard(mutex_);
    auto record = locks_.contains(id) ? recordThere(id) : std::nullopt;
    if (record) {
        record->Left = true;
        try {
            disk_.replace(file(id, RecordEnding), record->toJson());
        } catch (const DiskFault&) {
            // It is announced all the same.
        }
    }
    letGo(id);
}

void CopyFolder::remove(const QString& id) {
    const std::lock_guard guard(mutex_);
    removeFiles(id);
}

/// The lock goes last: whoever comes by meanwhile finds it held.
void CopyFolder::removeFiles(const QString& id) try {
    for (const char* ending : {projectfile::Extension, RecordEnding}) {
        disk_.remove(file(id, ending));
        QFile::remove(file(id, ending) + Disk::Temporary);
    }
    disk_.remove(file(id, LockEnding));
    letGo(id);
} catch (...) {
    letGo(id);
    throw;
}

QList<CopyOffer> CopyFolder::offers() {
    const std::lock_guard guard(mutex_);
    QSet<QString> ids;
    const QDir folder(path_);
    for (const QFileInfo& entry : folder.entryInfoList(
             {QString("*") + projectfile::Extension, QString("*") + RecordEnding}, QDir::Files)) {
        ids.insert(entry.completeBaseName());
    }
    QList<CopyOffer> offers;
    for (const QString& id : ids) {
        if (const auto found = offer(id)) offers.append(*found);
    }
    std::sort(offers.begin(), offers.end(),
              [](const CopyOffer& left, const CopyOffer& right) { return left.Time > right.Time; });
    return offers;
}

/// Looked at under a lock that others may share, so that a program that works on it is not disturbed, nor another one
/// that looks.
std::optional<CopyOffer> CopyFolder::offer(const QString& id) try {
    if (locks_.contains(id)) return std::nullopt;
    const int shared = disk_.lock(file(id, LockEnding), true);
    if (shared < 0) return std::nullopt;
    const auto text = contentOf(copyFile(id));
    const auto record = recordThere(id);
    const CopyContent* content = record && text ? record->contentOf(*text) : nullptr;
    ::close(shared);

    CopyOffer offer;
    offer.Id = id;
    offer.File = copyFile(id);
    offer.Damaged = content == nullptr;
    offer.Time = content != nullptr ? record->Time
                                    : QFileInfo(text ? offer.File : file(id, RecordEnding)).lastModified();
    const bool isOld = offer.Time.daysTo(QDateTime::currentDateTime()) >= DaysKept;
    const bool isGone = !QFileInfo::exists(offer.File);
    if (isOld || isGone) {
        if (hold(id)) removeFiles(id);
        return std::nullopt;
    }
    offer.IsNameless = !record;
    if (record) offer.ProjectPath = record->ProjectPath;
    if (content == nullptr) return offer;
    offer.Species = content->Rest.Species;
    offer.Saved = record->Saved;
    const auto lost = content->Rest.lostBySaving();
    const bool onlyLevels =
        std::all_of(lost.begin(), lost.end(), [](const UncarriedCell& cell) { return cell.Row == 0; });
    offer.Announced = !record->Left && !(record->Saved && onlyLevels && !content->Rest.WithoutFunctions);
    return offer;
} catch (const DiskFault&) {
    return std::nullopt;
}

std::optional<CopyFolder::Found> CopyFolder::claim(const QString& id) try {
    const std::lock_guard guard(mutex_);
    if (locks_.contains(id) || !QFileInfo::exists(copyFile(id)) || !hold(id)) return std::nullopt;
    const auto text = contentOf(copyFile(id));
    auto record = recordThere(id);
    const CopyContent* content = record && text ? record->contentOf(*text) : nullptr;
    if (content == nullptr) {
        letGo(id);
        return std::nullopt;
    }
    record->Now = CopyContent(*content);
    written_[id] = record->Now;
    ProjectCopy copy = record->Now.Rest;
    copy.Text = text->toStdString();
    return Found{std::move(*record), std::move(copy)};
} catch (const DiskFault&) {
    return std::nullopt;
}

void CopyFolder::release(const QString& id) {
    const std::lock_guard guard(mutex_);
    letGo(id);
}

bool CopyFolder::drop(const QString& id) {
    const std::lock_guard guard(mutex_);
    if (locks_.contains(id) || !hold(id)) return false;
    removeFiles(id);
    return true;
}

}  // namespace desktop
