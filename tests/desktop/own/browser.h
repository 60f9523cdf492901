// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QUrl>

namespace desktop_test {

/// Takes the place of the system's browser.
class Browser : public QObject {
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler("file"); }

    QList<QUrl> Opened;

public slots:
    void open(const QUrl& url) { Opened.append(url); }
};

}  // namespace desktop_test
