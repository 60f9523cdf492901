// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryDir>
#include <QTimer>

#include "desktop/desktop.h"
#include "desktop/desktop_test.h"
#include "project/frmBrenica.h"

namespace desktop_test {

/// The program in its main window, with a folder for state of its own, the event loop not running.
class WindowedProgram {
public:
    /// Started with a file to open, or without one.
    explicit WindowedProgram(const QString& file = {}) {
        qputenv("XDG_STATE_HOME", QFile::encodeName(state_.path()));
        desktop_ = std::make_unique<desktop::Desktop>();
        desktop_->start(file);
        desktop_->run([this] { desktop_->program().Splash()->UserClick(); });
    }
    ~WindowedProgram() {
        desktop_.reset();
        endEventLoop();
        qputenv("XDG_STATE_HOME", before_);
    }
    WindowedProgram(const WindowedProgram&) = delete;
    WindowedProgram& operator=(const WindowedProgram&) = delete;

    desktop::Desktop& desktop() { return *desktop_; }
    frmBrenica& form() { return *desktop_->program().MainForm(); }
    QWidget& widget(const ui::Control& control) { return desktop_->mainWindow()->viewOf(control)->widget(); }

    void addSpecies(const std::string& name) {
        desktop_->run([&] {
            form().txtTotalSpecies.Text("1");
            form().cmdUpdateSpecies.UserClick();
            form().flxCandidateSpecies.UserEditCell(form().Global().TotalSpecies, list::Name, name);
        });
    }
    QString folder() const { return state_.filePath("brenica"); }
    /// What a program that starts now would find.
    QList<desktop::CopyOffer> leftOver() {
        desktop_.reset();
        return desktop::CopyFolder(folder()).offers();
    }
    QByteArray copy() const {
        QFile file(folder() + '/' + QDir(folder()).entryList({"*.brn"}).value(0));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir state_;
    const QByteArray before_ = qgetenv("XDG_STATE_HOME");
    std::unique_ptr<desktop::Desktop> desktop_;
};

/// Answers every box with Enter until it is gone.
class Boxes {
public:
    Boxes() {
        QObject::connect(&look_, &QTimer::timeout, [this] {
            QWidget* box = QApplication::activeModalWidget();
            if (box == nullptr) return;
            ++Shown;
            Texts << box->accessibleDescription();
            QTest::keyClick(box, Qt::Key_Return);
        });
        look_.start(5);
    }
    int Shown = 0;
    QStringList Texts;

private:
    QTimer look_;
};

}  // namespace desktop_test
