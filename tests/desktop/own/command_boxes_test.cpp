// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/command_boxes.h"

#include <QClipboard>
#include <QPlainTextEdit>

#include "desktop/box_user.h"
#include "desktop/desktop.h"
#include "desktop/desktop_test.h"

using desktop_test::press;
using desktop_test::User;

namespace {

constexpr ui::MessageIcon Icon = ui::MessageIcon::Exclamation;

QAbstractButton* buttonOf(const QWidget& box, const QString& caption) {
    for (auto* button : box.findChildren<QAbstractButton*>()) {
        if (button->text() == caption) return button;
    }
    return nullptr;
}

User::Step pressButton(const QString& caption) {
    return [caption](QWidget& box) {
        QAbstractButton* button = buttonOf(box, caption);
        if (button == nullptr) return false;
        QTest::mouseClick(button, Qt::LeftButton);
        return true;
    };
}

const QString OkToRest = "OK to the &rest that only tell";

/// A platform whose boxes are answered.
struct Commands {
    desktop::CommandBoxes boxes;

    /// Shows boxes "from" … "to" of one command, as the platform does.
    void tell(int from, int to) {
        for (int i = from; i <= to; ++i) {
            const std::string text = "text " + std::to_string(i);
            if (!boxes.takes(text)) boxes.show(nullptr, text, "title", Icon);
        }
    }
};

/// Notes what a box says and whether it can be answered for all, and presses Enter.
User::Step note(QStringList& noted) {
    return [&noted](QWidget& box) {
        QString said = box.accessibleDescription();
        noted << said.replace('\n', " / ") + (buttonOf(box, OkToRest) != nullptr ? " +" : "");
        QTest::keyClick(&box, Qt::Key_Return);
        return true;
    };
}

}  // namespace

class CommandBoxesTest : public QObject {
    Q_OBJECT

private slots:
    void fromTheThirdOnABoxTellsItsNumber() {
        Commands w;
        QStringList noted;
        User user({note(noted), note(noted), note(noted), note(noted)});
        const desktop::CommandBoxes::Command command(w.boxes);
        w.tell(1, 4);
        w.boxes.showTaken(nullptr);
        QCOMPARE(noted, QStringList({"text 1", "text 2", "text 3 / Box 3 of this command +",
                                     "text 4 / Box 4 of this command +"}));
    }

    void theNumberIsSeenInTheBox() {
        Commands w;
        QStringList seen;
        User user({press(Qt::Key_Return), press(Qt::Key_Return), [&](QWidget& box) {
                       for (const QLabel* label : box.findChildren<QLabel*>()) {
                           if (label->isVisible() && !label->text().isEmpty()) seen << label->text();
                       }
                       QTest::keyClick(&box, Qt::Key_Escape);
                       return true;
                   }});
        const desktop::CommandBoxes::Command command(w.boxes);
        w.tell(1, 3);
        QCOMPARE(seen, QStringList({"text 3", "Box 3 of this command"}));
    }

    void theRestGoesInOrderIntoAListThatCanBeCopied() {
        Commands w;
        QString heading, text, selected;
        User user({press(Qt::Key_Return), press(Qt::Key_Return), pressButton(OkToRest), [&](QWidget& list) {
                       heading = list.findChild<QLabel*>()->text();
                       auto* texts = list.findChild<QPlainTextEdit*>();
                       text = texts->toPlainText();
                       QTest::keyClick(texts, Qt::Key_A, Qt::ControlModifier);
                       QTest::keyClick(texts, Qt::Key_C, Qt::ControlModifier);
                       selected = QApplication::clipboard()->text();
                       QApplication::clipboard()->clear();
                       QTest::mouseClick(buttonOf(list, "&Copy all"), Qt::LeftButton);
                       QTest::keyClick(&list, Qt::Key_Escape);
                       return true;
                   }});
        const desktop::CommandBoxes::Command command(w.boxes);
        w.tell(1, 6);
        QVERIFY(w.boxes.takes("two\r\nlines\r\n"));
        QVERIFY(!user.done());
        w.boxes.showTaken(nullptr);
        QVERIFY(user.done());
        QCOMPARE(heading, QString("4 boxes of this command were answered with OK at once:"));
        QCOMPARE(text, QString("text 4\ntext 5\ntext 6\n\ntwo\nlines"));
        QCOMPARE(selected, text);
        QCOMPARE(QApplication::clipboard()->text(), text);
        w.boxes.showTaken(nullptr);  // is not shown twice
    }

    void anotherCommandBeginsAnew() {
        Commands w;
        {
            User user({press(Qt::Key_Return), press(Qt::Key_Return), pressButton(OkToRest)});
            const desktop::CommandBoxes::Command command(w.boxes);
            w.tell(1, 3);
        }
        QStringList noted;
        User user({note(noted)});
        const desktop::CommandBoxes::Command command(w.boxes);
        QVERIFY(!w.boxes.takes("text"));
        w.tell(1, 1);
        QCOMPARE(noted, QStringList("text 1"));
    }

    void aCommandWithinACommandHasARowOfItsOwn() {
        Commands w;
        QStringList noted;
        User user({note(noted), note(noted), note(noted), note(noted)});
        const desktop::CommandBoxes::Command outer(w.boxes);
        w.tell(1, 2);
        {
            const desktop::CommandBoxes::Command inner(w.boxes);
            w.tell(7, 7);
        }
        w.tell(3, 3);
        QCOMPARE(noted, QStringList({"text 1", "text 2", "text 7", "text 3 / Box 3 of this command +"}));
    }

    void questionsStillComeAndTheListOpensWhenTheCommandEnds() {
        desktop::Desktop desktop;
        QStringList order;
        User user({press(Qt::Key_Return), press(Qt::Key_Return), pressButton(OkToRest),
                   [&](QWidget& box) {
                       order << box.accessibleDescription();
                       QTest::keyClick(&box, Qt::Key_Return);
                       return true;
                   },
                   [&](QWidget& list) {
                       auto* text = list.findChild<QPlainTextEdit*>();
                       order << (text != nullptr ? text->toPlainText() : QString("no list"));
                       QTest::keyClick(&list, Qt::Key_Escape);
                       return true;
                   }});
        desktop.start();
        ui::Platform& platform = desktop.program().Splash()->GetPlatform();
        desktop.run([&] {
            for (int i = 1; i <= 4; ++i) platform.showMessage("told " + std::to_string(i), "title", Icon);
            QVERIFY(platform.askYesNo("asked", "title"));
            platform.showMessage("told 5", "title", Icon);
            order << "ended";
        });
        QVERIFY(user.done());
        QCOMPARE(order, QStringList({"asked", "ended", "told 4\ntold 5"}));
    }

    void whatWasTakenIsShownBeforeTheBoxOfAFailure() {
        desktop::Desktop desktop;
        QStringList order;
        User user({press(Qt::Key_Return), press(Qt::Key_Return), pressButton(OkToRest),
                   [&](QWidget& list) {
                       auto* text = list.findChild<QPlainTextEdit*>();
                       if (text != nullptr) order << text->toPlainText();
                       QTest::keyClick(&list, Qt::Key_Escape);
                       return true;
                   },
                   [&](QWidget& box) {
                       order << box.accessibleDescription();
                       QTest::keyClick(&box, Qt::Key_Return);
                       return true;
                   }});
        desktop.start();
        ui::Platform& platform = desktop.program().Splash()->GetPlatform();
        desktop.run([&] {
            for (int i = 1; i <= 4; ++i) platform.showMessage("told " + std::to_string(i), "title", Icon);
            ui::raise(ui::ErrorNumber::Overflow);
        });
        desktop_test::endEventLoop();
        QCOMPARE(order, QStringList({"told 4", "Overflow"}));
    }
};

static const desktop_test::Registered<CommandBoxesTest> registered;

#include "command_boxes_test.moc"
