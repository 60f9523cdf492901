// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/main_window.h"
#include "desktop/own/strip_reader.h"
#include "desktop/own/window_strip.h"

namespace desktop_test {

/// Copies as a test wants them; what is done to them is logged.
class ScriptedCopies : public desktop::SafetyCopies {
public:
    QList<desktop::CopyOffer> Offers;
    QString Reason;
    QList<desktop::LostText> Lost;
    QStringList Log;
    bool DropSucceeds = true;

    QList<desktop::CopyOffer> offers() const override { return Offers; }
    bool open(const QString& id) override {
        Log << "open " + id;
        remove(id);
        return true;
    }
    bool drop(const QString& id) override {
        Log << "drop " + id;
        if (DropSucceeds) remove(id);
        return DropSucceeds;
    }
    bool keeps() const override { return Reason.isEmpty(); }
    QString whyNotKept() const override { return Reason; }
    QList<desktop::LostText> notCarried() const override { return Lost; }

    void give(const QList<desktop::CopyOffer>& offers) {
        Offers = offers;
        emit offersChanged();
    }
    void failToKeep(const QString& reason) {
        Reason = reason;
        emit keepingChanged();
    }
    void failToSave(const QString& path, const QString& reason) { emit saveNotOnDisk(path, reason); }
    void lose(const QList<desktop::LostText>& lost) {
        Lost = lost;
        emit notCarriedChanged();
    }

private:
    void remove(const QString& id) {
        Offers.removeIf([&](const desktop::CopyOffer& offer) { return offer.Id == id; });
        emit offersChanged();
    }
};

inline desktop::CopyOffer copyOf(const QString& path, const QString& id = "1") {
    desktop::CopyOffer offer;
    offer.Id = id;
    offer.ProjectPath = path;
    offer.Time = QDateTime(QDate::currentDate(), QTime(14, 32));
    offer.Species = 25;
    offer.File = "/state/" + id + ".brn";
    return offer;
}

/// One that was left by New, Open or Exit.
inline desktop::CopyOffer leftCopyOf(const QString& path, const QString& id) {
    desktop::CopyOffer offer = copyOf(path, id);
    offer.Announced = false;
    return offer;
}

/// The main form in its window with the strip, followed as the program does it.
struct StripWindow : MainWindow {
    ScriptedCopies copies;
    desktop::WindowStrip own{*view, *form, files, copies};

    StripWindow() {
        view->activateWindow();
        (void)QTest::qWaitForWindowActive(view.get());
        strip().TimeToRest = 0;
    }

    void run(const std::function<void()>& action) override {
        MainWindow::run(action);
        own.look();
    }

    desktop::Strip& strip() { return own.strip(); }
    QStringList lines() { return linesOf(strip()); }
    QAbstractButton* button(const QString& line, const QString& caption) {
        return buttonOf(strip(), line, caption);
    }
    void click(const QString& line, const QString& caption) {
        QAbstractButton* found = button(line, caption);
        QVERIFY2(found != nullptr, qPrintable(line + ": " + caption));
        QTest::mouseClick(found, Qt::LeftButton);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focused = view->focusWidget();
        QTest::keyClick(focused != nullptr ? focused : view.get(), key, modifiers);
    }
};

}  // namespace desktop_test
