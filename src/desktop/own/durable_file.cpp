// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/durable_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <utility>

namespace desktop {

namespace {

constexpr mode_t OwnersFolder = 0700;
constexpr mode_t OwnersFile = 0600;

/// An open file, closed at the latest with its owner.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    int release() { return std::exchange(number_, -1); }

private:
    int number_;
};

int openFile(const QByteArray& name, int flags) {
    return ::open(name.constData(), flags | O_CLOEXEC, OwnersFile);
}

}  // namespace

/// Runs one call; one that gives a negative number has failed.
template <class Step>
auto Disk::attempt(Call call, const QString& path, Step step) const {
    errno = BeforeCall ? BeforeCall(call) : 0;
    const auto result = errno == 0 ? step() : decltype(step()){-1};
    if (result < 0) {
        throw DiskFault((QString::fromLocal8Bit(std::strerror(errno)) + ": " + path).toStdString());
    }
    return result;
}

void Disk::makeFolder(const QString& path) const {
    if (QFileInfo(path).isDir()) return;
    const QString above = QFileInfo(path).path();
    if (above != path) makeFolder(above);
    attempt(Call::MakeFolder, path, [&] {
        const int made = ::mkdir(QFile::encodeName(path).constData(), OwnersFolder);
        return made != 0 && errno == EEXIST && QFileInfo(path).isDir() ? 0 : made;
    });
}

void Disk::replace(const QString& path, const QByteArray& content) const try {
    const QByteArray temporary = QFile::encodeName(path + Temporary);
    Descriptor file(attempt(Call::Open, path,
                            [&] { return openFile(temporary, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW); }));
    for (qsizetype written = 0; written < content.size();) {
        written += attempt(Call::Write, path, [&] {
            return ::write(file.number(), content.constData() + written,
                           static_cast<std::size_t>(content.size() - written));
        });
    }
    attempt(Call::Sync, path, [&] { return ::fsync(file.number()); });
    attempt(Call::Close, path, [&] { return ::close(file.release()); });
    attempt(Call::Rename, path,
            [&] { return ::rename(temporary.constData(), QFile::encodeName(path).constData()); });
    const Descriptor folder(attempt(Call::SyncFolder, path, [&] {
        return openFile(QFile::encodeName(QFileInfo(path).path()), O_RDONLY | O_DIRECTORY);
    }));
    attempt(Call::SyncFolder, path, [&] { return ::fsync(folder.number()); });
} catch (...) {
    QFile::remove(path + Temporary);
    throw;
}

void Disk::remove(const QString& path) const {
    attempt(Call::Remove, path, [&] {
        const int removed = ::unlink(QFile::encodeName(path).constData());
        return removed != 0 && errno == ENOENT ? 0 : removed;
    });
}

void Disk::sync(const QString& path) const {
    const Descriptor file(
        attempt(Call::Open, path, [&] { return openFile(QFile::encodeName(path), O_RDONLY | O_NONBLOCK); }));
    attempt(Call::Sync, path, [&] {
        const int synced = ::fsync(file.number());
        const bool cannotSync = synced != 0 && (errno == EINVAL || errno == ENOTSUP);
        return cannotSync ? 0 : synced;
    });
}

int Disk::lock(const QString& path, bool shared) const {
    Descriptor file(attempt(Call::Lock, path, [&] {
        return openFile(QFile::encodeName(path), O_RDONLY | O_CREAT | O_NOFOLLOW);
    }));
    const int locked = attempt(Call::Lock, path, [&] {
        const int result = ::flock(file.number(), (shared ? LOCK_SH : LOCK_EX) | LOCK_NB);
        return result != 0 && errno == EWOULDBLOCK ? 1 : result;
    });
    return locked == 0 ? file.release() : -1;
}

}  // namespace desktop
