// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/dialogues.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "desktop/box_user.h"
#include "desktop/desktop_test.h"

using desktop_test::click;
using desktop_test::press;
using desktop_test::textOf;
using desktop_test::User;

namespace {

bool hasIcon(const QWidget& box) {
    for (const QLabel* label : box.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->pixmap(Qt::ReturnByValue).isNull()) return true;
    }
    return false;
}

}  // namespace

class DialoguesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void aMessageShowsItsTitleAndPlainText() {
        QString title;
        QString text;
        User user({[&](QWidget& box) {
                       title = box.windowTitle();
                       text = textOf(box).text();
                       return textOf(box).textFormat() == Qt::PlainText;
                   },
                   press(Qt::Key_Return)});
        desktop::showMessageBox(nullptr, "<b>One</b> & two\r\nthree\rfour", "A <i>title</i>",
                                ui::MessageIcon::None);
        QVERIFY(user.done());
        QCOMPARE(title, QString("A <i>title</i>"));
        QCOMPARE(text, QString("<b>One</b> & two\nthree\nfour"));
    }

    void aMessageHasTheIconOfItsKind() {
        for (const ui::MessageIcon icon :
             {ui::MessageIcon::None, ui::MessageIcon::Exclamation, ui::MessageIcon::Question}) {
            bool shown = false;
            User user({[&](QWidget& box) {
                           shown = hasIcon(box);
                           return true;
                       },
                       press(Qt::Key_Return)});
            desktop::showMessageBox(nullptr, "text", "title", icon);
            QCOMPARE(shown, icon != ui::MessageIcon::None);
        }
    }

    void everyLineOfTheTextIsOnView() {
        bool whole = false;
        User user({[&](QWidget& box) {
                       const QLabel& text = textOf(box);
                       whole = text.height() >= text.heightForWidth(text.width()) &&
                               box.rect().contains(QRect(text.mapTo(&box, QPoint()), text.size()));
                       return true;
                   },
                   press(Qt::Key_Return)});
        desktop::showMessageBox(nullptr, QString("line of some words\r\n").repeated(9).toStdString(), "title",
                                ui::MessageIcon::Exclamation);
        QVERIFY(whole);
    }

    void aQuestionIsYesByEnter() {
        User user({press(Qt::Key_Return)});
        QVERIFY(desktop::showQuestionBox(nullptr, "Sure?", "title"));
    }

    /// Whether they answer it or leave it to its buttons.
    void aQuestionIsNeverYesByEscapeOrTheCloseBox() {
        User escape({press(Qt::Key_Escape), click(QDialogButtonBox::No)});
        QVERIFY(!desktop::showQuestionBox(nullptr, "Sure?", "title"));
        User close({[](QWidget& box) {
                        box.close();
                        return true;
                    },
                    click(QDialogButtonBox::No)});
        QVERIFY(!desktop::showQuestionBox(nullptr, "Sure?", "title"));
    }

    void aQuestionIsAnsweredByItsButtons() {
        User no({click(QDialogButtonBox::No)});
        QVERIFY(!desktop::showQuestionBox(nullptr, "Sure?", "title"));
        User yes({click(QDialogButtonBox::Yes)});
        QVERIFY(desktop::showQuestionBox(nullptr, "Sure?", "title"));
    }

    void anInputProposesItsDefaultSelected() {
        QString selected;
        User user({[&](QWidget& box) {
                       selected = box.findChild<QLineEdit*>()->selectedText();
                       return box.findChild<QLineEdit*>()->hasFocus();
                   },
                   press(Qt::Key_Return)});
        QCOMPARE(desktop::showInputBox(nullptr, "How many?", "title", "12 é"), std::string("12 é"));
        QCOMPARE(selected, QString("12 é"));
    }

    void anInputGivesWhatIsTyped() {
        User user({[](QWidget& box) {
                       QTest::keyClicks(box.findChild<QLineEdit*>(), "34");
                       return true;
                   },
                   press(Qt::Key_Return)});
        QCOMPARE(desktop::showInputBox(nullptr, "How many?", "title", "12"), std::string("34"));
    }

    void aCancelledInputGivesNothing() {
        User escape({press(Qt::Key_Escape)});
        QCOMPARE(desktop::showInputBox(nullptr, "How many?", "title", "12"), std::string());
        User cancel({[](QWidget& box) {
            QTest::mouseClick(box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel),
                              Qt::LeftButton);
            return true;
        }});
        QCOMPARE(desktop::showInputBox(nullptr, "How many?", "title", "12"), std::string());
    }

    void aVeryLongTextScrollsInABoxThatFitsTheScreen_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("title");
        QTest::newRow("lines") << QString("A line of a report\r\n").repeated(400) << QString("title");
        QTest::newRow("one line") << QString("words and ").repeated(3000) << QString("title");
        QTest::newRow("a word") << QString(4000, 'w') << QString("title");
        QTest::newRow("title") << QString("text") << QString("long title ").repeated(60);
    }

    void aVeryLongTextScrollsInABoxThatFitsTheScreen() {
        QFETCH(QString, text);
        QFETCH(QString, title);
        QSize size;
        bool reachable = false;
        User user({[&](QWidget& box) {
                       size = box.size();
                       const auto* area = box.findChild<QScrollArea*>();
                       reachable = area == nullptr || area->verticalScrollBar()->maximum() > 0 ||
                                   area->horizontalScrollBar()->maximum() > 0;
                       return true;
                   },
                   press(Qt::Key_Return)});
        desktop::showInputBox(nullptr, text.toStdString(), title.toStdString(), "0");
        const QSize screen = QApplication::primaryScreen()->availableSize();
        QVERIFY2(size.width() <= screen.width(), qPrintable(QString::number(size.width())));
        QVERIFY2(size.height() <= screen.height(), qPrintable(QString::number(size.height())));
        QVERIFY(reachable);
    }

    void aHundredBoxesOneAfterAnotherAreAnsweredByEnter() {
        User user(QList<User::Step>(100, press(Qt::Key_Return)));
        for (int i = 0; i < 100; ++i) {
            if (i % 2 == 0) {
                desktop::showMessageBox(nullptr, "text", "title", ui::MessageIcon::Exclamation);
            } else {
                QVERIFY(desktop::showQuestionBox(nullptr, "text", "title"));
            }
        }
        QVERIFY(user.done());
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void screenReadersGetTitleAndText() {
        QStringList names;
        User user({[&](QWidget& box) {
                       names = {box.accessibleName(), box.accessibleDescription(),
                                box.findChild<QLineEdit*>()->accessibleName()};
                       return true;
                   },
                   press(Qt::Key_Return)});
        desktop::showInputBox(nullptr, "How many?", "title", "0");
        QCOMPARE(names, QStringList({"title", "How many?", "How many?"}));
    }
};

static const desktop_test::Registered<DialoguesTest> registered;

#include "dialogues_test.moc"
