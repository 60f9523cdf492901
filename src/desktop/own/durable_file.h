// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <stdexcept>

namespace desktop {

/// What the system says of a file that could not be written; the text is to be shown as it is.
struct DiskFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The calls to the system that files of the window's own go through, so that a test can make each of them fail. Qt's
/// QSaveFile passes over a sync that failed, after which nobody knows what the disk holds.
class Disk {
public:
    enum class Call { MakeFolder, Open, Write, Sync, Close, Rename, SyncFolder, Lock, Remove };
    /// Called before each call; any other answer than 0 is the system's error number that the call ends in.
    std::function<int(Call)> BeforeCall;

    /// Makes the folder and those above it for the user alone, where they are not there yet.
    void makeFolder(const QString& path) const;
    /// Puts the content there in one step: to a temporary name beside it that is synced, then renamed. When it fails,
    /// the file is what it was before, or the new one where only the folder could not be synced. The folder is there.
    void replace(const QString& path, const QByteArray& content) const;
    /// Removes the file; one that is not there is removed already.
    void remove(const QString& path) const;
    /// Takes care that what another program part has written there is on the disk, where its file system can do so.
    void sync(const QString& path) const;
    /// Opens the file, which is made where it is not there, and locks it until it is closed or the program ends in
    /// whatever way: for itself, or so that others may share it. -1 where another program holds it.
    int lock(const QString& path, bool shared) const;

    /// The ending of temporary names.
    static constexpr const char* Temporary = ".new";

private:
    template <class Step>
    auto attempt(Call call, const QString& path, Step step) const;
};

}  // namespace desktop
