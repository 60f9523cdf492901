// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later

/// Times the window itself: from the user's action to the last picture that it causes. Prints the medians beside what
/// each is held to; exits with 1 when one is over.
///   brenica-window-times OPENED.brn WALKED.brn
#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "desktop/desktop.h"
#include "project/pages.h"

namespace {

constexpr int Runs = 7;
constexpr int StartLimit = 300;
constexpr int OpenLimit = 100;
constexpr int MoveLimit = 200;

/// Sees every paint of the program.
class PaintWatch : public QObject {
public:
    int Paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++Paints;
        return false;
    }
};

/// Handles events until a round of them has painted nothing.
void settle(PaintWatch& watch) {
    for (int before = -1; before != watch.Paints;) {
        before = watch.Paints;
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
}

template <class Action>
double timed(PaintWatch& watch, Action action) {
    QElapsedTimer clock;
    clock.start();
    action();
    settle(watch);
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// Opens a project as a user does; the clock starts when the dialogue is left.
double open(desktop::Desktop& desktop, PaintWatch& watch, const QString& path) {
    QElapsedTimer clock;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        auto* dialogue = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialogue == nullptr) return;
        answer.stop();
        dialogue->selectFile(path);
        clock.start();
        static_cast<QDialog*>(dialogue)->done(QDialog::Accepted);
    });
    answer.start(20);
    desktop.run([&] { desktop.program().MainForm()->mnuOpenProject.UserClick(); });
    settle(watch);
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

using Times = std::map<std::string, std::vector<double>>;

double start(desktop::Desktop& desktop, PaintWatch& watch) {
    desktop.start();
    settle(watch);
    return timed(watch, [&] { desktop.run([&] { desktop.program().Splash()->UserClick(); }); });
}

void measureOpening(const QString& project, PaintWatch& watch, Times& times) {
    desktop::Desktop desktop;
    times["1 start"].push_back(start(desktop, watch));
    times["2 open"].push_back(open(desktop, watch, project));
}

void measureMoves(const QString& project, PaintWatch& watch, Times& times) {
    desktop::Desktop desktop;
    start(desktop, watch);
    open(desktop, watch, project);
    frmBrenica& form = *desktop.program().MainForm();
    for (int page = page::Parameters; page <= page::Results; ++page) {
        times["3 to page " + std::to_string(page)].push_back(
            timed(watch, [&] { desktop.run([&] { form.tabBrenica.UserSelectTab(page); }); }));
        if (form.CurrentMainTab != page) std::fprintf(stderr, "page %d was not reached\n", page);
    }
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc != 3) {
        std::fputs("usage: brenica-window-times OPENED.brn WALKED.brn\n", stderr);
        return 2;
    }
    PaintWatch watch;
    application.installEventFilter(&watch);
    Times times;
    for (int run = 0; run < Runs; ++run) {
        measureOpening(argv[1], watch, times);
        measureMoves(argv[2], watch, times);
    }

    bool over = false;
    std::printf("%-14s %10s %10s\n", "step", "ms", "held to");
    for (const auto& [step, values] : times) {
        const int limit = step[0] == '1' ? StartLimit : step[0] == '2' ? OpenLimit : MoveLimit;
        const double middle = median(values);
        over = over || middle > limit;
        std::printf("%-14s %10.1f %10d%s\n", step.c_str() + 2, middle, limit, middle > limit ? "  over" : "");
    }
    return over ? 1 : 0;
}
