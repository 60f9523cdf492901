// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QIcon>

#include "desktop/desktop.h"
#include "desktop/texts.h"

/// The desktop program. It reads no command line of its own.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(ui::ApplicationTitle);
    QApplication::setDesktopFileName("org.brenica.Brenica");
    QApplication::setWindowIcon(QIcon(":/icons/brenica.svg"));
    QApplication::setQuitOnLastWindowClosed(false);
    desktop::Desktop desktop;
    desktop.start();
    return QApplication::exec();
}
