// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <map>
#include <mutex>

#include "desktop/own/copy_record.h"
#include "desktop/own/durable_file.h"
#include "desktop/own/safety_copies.h"

namespace desktop {

/// The folder with the safety copies of all running and ended programs of the user. A copy is ID.brn, a project file,
/// with ID.json beside it; ID.lock is held by the program that works on the project. Any thread may call; what fails at
/// the disk is thrown as a DiskFault.
class CopyFolder {
public:
    explicit CopyFolder(QString path) : path_(std::move(path)) {}
    ~CopyFolder();
    CopyFolder(const CopyFolder&) = delete;
    CopyFolder& operator=(const CopyFolder&) = delete;

    /// $XDG_STATE_HOME/brenica or ~/.local/state/brenica.
    static QString usualPath();
    static QString newId();
    static constexpr int DaysKept = 30;

    /// Writes a copy, which is this program's from now on. `record` lacks what is told of the content; a text that is
    /// there already is not written again.
    void keep(const QString& id, CopyRecord record, const ProjectCopy& copy);
    /// Notes that the user has left the work by a decision, and gives the copy up to whoever opens it.
    void leave(const QString& id);
    void remove(const QString& id);

    /// The copies that no running program holds. Those that are too old are removed on the way.
    QList<CopyOffer> offers();
    /// A whole copy, with its text, which is this program's from now on; nothing where another program holds it, it is
    /// gone or damaged.
    struct Found {
        CopyRecord Record;
        ProjectCopy Copy;
    };
    std::optional<Found> claim(const QString& id);
    /// Gives a claimed copy back as it is.
    void release(const QString& id);
    /// Removes a copy that is offered; false where another program holds it.
    bool drop(const QString& id);

    QString copyFile(const QString& id) const;
    /// For tests: its calls can be made to fail.
    Disk& disk() { return disk_; }

private:
    QString file(const QString& id, const char* ending) const { return path_ + '/' + id + ending; }
    bool hold(const QString& id);
    void letGo(const QString& id);
    void removeFiles(const QString& id);
    std::optional<CopyContent> contentThere(const QString& id) const;
    std::optional<CopyRecord> recordThere(const QString& id) const;
    std::optional<CopyOffer> offer(const QString& id);

    const QString path_;
    Disk disk_;
    std::mutex mutex_;
    std::map<QString, int> locks_;            ///< descriptors, by the copies held
    std::map<QString, CopyContent> written_;  ///< of the copies held, where the last write has not failed
};

}  // namespace desktop
