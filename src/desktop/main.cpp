// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QIcon>
#include <exception>
#include <functional>

#include "desktop/desktop.h"
#include "desktop/texts.h"

namespace {

/// Lets no exception pass from a widget into Qt: what comes up outside of the form's user actions, such as memory that is
/// exhausted while a table is drawn, ends the program like a failure of these.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            if (OnFailure) OnFailure(std::current_exception());
            return true;
        }
    }

    std::function<void(const std::exception_ptr&)> OnFailure;
};

}  // namespace

/// The desktop program. It reads no command line of its own.
int main(int argc, char** argv) {
    Application application(argc, argv);
    QApplication::setApplicationName(ui::ApplicationTitle);
    QApplication::setDesktopFileName("org.brenica.Brenica");
    QApplication::setWindowIcon(QIcon(":/icons/brenica.svg"));
    QApplication::setQuitOnLastWindowClosed(false);
    desktop::Desktop desktop;
    application.OnFailure = [&desktop](const std::exception_ptr& failure) { desktop.fail(failure); };
    desktop.start();
    return QApplication::exec();
}
