// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/file_drop.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <utility>

#include "desktop/view.h"
#include "project/project_file.h"

namespace desktop {

FileDrop::FileDrop(QWidget& window, const FormLink& link, std::function<void(const QString&)> open)
    : QObject(&window), link_(link), open_(std::move(open)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

QString FileDrop::offeredFile(const QDropEvent& event) const {
    const QList<QUrl> urls = event.mimeData()->urls();
    if (link_.isBusy() || urls.size() != 1) return {};
    const QString path = urls.first().toLocalFile();
    return path.endsWith(projectfile::Extension, Qt::CaseInsensitive) && !QFileInfo(path).isDir() ? path
                                                                                                  : QString();
}

/// The file is opened once the drop is over, as the program that it came from waits for that.
bool FileDrop::eventFilter(QObject*, QEvent* event) {
    const bool comes = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    if (!comes && event->type() != QEvent::Drop) return false;
    auto& drop = static_cast<QDropEvent&>(*event);
    const QString path = offeredFile(drop);
    if (path.isEmpty()) return drop.ignore(), true;
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (comes) return true;
    QMetaObject::invokeMethod(
        this, [this, path] { open_(path); }, Qt::QueuedConnection);
    return true;
}

}  // namespace desktop
