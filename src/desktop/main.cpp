// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QFile>
#include <QIcon>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <memory>

#include "desktop/desktop.h"
#include "desktop/own/command_line.h"
#include "desktop/own/display_check.h"
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

/// Made apart, so that a display that is not there is met here.
std::unique_ptr<Application> makeApplication(int& argc, char** argv) {
    const desktop::DisplayCheck check;
    return std::make_unique<Application>(argc, argv);
}

QStringList textsOf(int argc, char** argv) {
    QStringList texts;
    for (int i = 0; i < argc; ++i) texts.append(QFile::decodeName(argv[i]));
    return texts;
}

}  // namespace

/// The desktop program.
int main(int argc, char** argv) {
    const QString answer = desktop::readCommandLine(textsOf(argc, argv)).Answer;
    if (!answer.isEmpty()) return std::fputs(qUtf8Printable(answer), stdout), EXIT_SUCCESS;
    const auto application = makeApplication(argc, argv);
    const desktop::CommandLine commandLine = desktop::readCommandLine(textsOf(argc, argv));
    if (!commandLine.Fault.isEmpty()) {
        std::fprintf(stderr, "brenica: %s\n", qUtf8Printable(commandLine.Fault));
        return EXIT_FAILURE;
    }
    QApplication::setApplicationName(ui::ApplicationTitle);
    QApplication::setDesktopFileName("org.brenica.Brenica");
    QApplication::setWindowIcon(QIcon(":/icons/brenica.svg"));
    QApplication::setQuitOnLastWindowClosed(false);
    desktop::Desktop desktop;
    application->OnFailure = [&desktop](const std::exception_ptr& failure) { desktop.fail(failure); };
    desktop.start(commandLine.Project);
    return QApplication::exec();
}
