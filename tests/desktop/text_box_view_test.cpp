// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/text_box_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>

#include "desktop/desktop_test.h"
#include "ui/window_texts.h"

namespace {

/// A window with a text box behind another widget.
struct BoxWindow : desktop_test::Window {
    ui::TextBox box{form, "txtTest", "0"};
    QWidget window;
    QLineEdit before{&window};
    desktop::TextBoxView view{box, link, &window};
    QList<int> keys;
    int focused = 0;

    explicit BoxWindow(const std::string& text = "0") {
        box.Text(text);
        box.KeyPress = [this](int& key) { keys.append(key); };
        box.GotFocus = [this] { ++focused; };
        link.Followed = &view;
        before.setGeometry(0, 0, 100, 25);
        view.setGeometry(0, 40, 100, 25);
        view.follow();
        window.resize(200, 100);
        window.show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
        before.setFocus();
    }

    void focus() { view.setFocus(Qt::TabFocusReason); }
    void digitsOnly() {
        box.KeyPress = [](int& key) {
            if (key >= ' ' && (key < '0' || key > '9')) key = 0;
        };
    }
    void selectAllOnFocus() {
        box.GotFocus = [this] {
            box.SelStart(0);
            box.SelLength(100);
        };
    }
    void type(const char* text) { QTest::keyClicks(&view, QString::fromUtf8(text)); }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, code, modifiers);
    }
    void select(int start, int length) {
        link.run([&] { box.UserSelect(start, length); });
    }
    QString text() const { return QString::fromStdString(box.Text()); }
    QList<int> selection() const { return {box.SelStart(), box.SelLength()}; }
};

QClipboard& clipboard() { return *QApplication::clipboard(); }

}  // namespace

class TextBoxViewTest : public QObject {
    Q_OBJECT

private slots:
    void keysGoThroughTheFilterOfTheForm() {
        BoxWindow w;
        w.digitsOnly();
        w.focus();
        w.type("1a2 .");
        QCOMPARE(w.text(), QString("012"));
        QCOMPARE(w.view.text(), QString("012"));
        QCOMPARE(w.view.cursorPosition(), 3);
    }

    void charactersBeyondTheBasicPlaneAreTyped() {
        BoxWindow w("");
        w.focus();
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8("𝔘"));
        QApplication::sendEvent(&w.view, &key);
        QCOMPARE(w.text(), QString::fromUtf8("𝔘"));
        QCOMPARE(w.keys, QList<int>{0x1D518});
    }

    void theTextStandsOffTheLeftEdge() {
        const auto leftOfInk = [](BoxWindow& shown, const QString& text) {
            shown.view.setText({});
            const QImage blank = shown.view.grab().toImage();
            shown.box.Text(text.toStdString());
            shown.view.follow();
            const QImage picture = shown.view.grab().toImage();
            const int y = picture.height() / 2;
            int x = 0;
            while (x < picture.width() && picture.pixel(x, y) == blank.pixel(x, y)) ++x;
            return x;
        };
        BoxWindow w("");
        const int off = leftOfInk(w, "▌");
        // A text that needs all the room gets it.
        w.view.resize(w.view.fontMetrics().horizontalAdvance("▌▌▌▌") + 3, w.view.height());
        QCOMPARE(leftOfInk(w, "▌▌▌▌"), off - 2);
    }

    void backspaceEnterAndEscapeReachTheFilter() {
        BoxWindow w("abc");
        w.focus();
        w.key(Qt::Key_Backspace);
        w.key(Qt::Key_Return);
        w.key(Qt::Key_Enter);
        w.key(Qt::Key_Escape);
        QCOMPARE(w.keys, QList<int>({8, 13, 13, 27}));
        QCOMPARE(w.view.text(), QString("ab"));
    }

    void aRefusedBackspaceKeepsTheText() {
        BoxWindow w("abc");
        w.box.KeyPress = [](int& key) { key = 0; };
        w.focus();
        w.key(Qt::Key_Backspace);
        QCOMPARE(w.view.text(), QString("abc"));
    }

    void deleteTakesTheCharacterBehindTheCaretOrTheSelection() {
        BoxWindow w("aé😀b");
        w.focus();
        w.key(Qt::Key_Delete);
        QCOMPARE(w.text(), QString("aé😀b"));
        w.select(2, 0);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.text(), QString("aéb"));
        w.select(0, 2);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.text(), QString("b"));
        QCOMPARE(w.keys, QList<int>());
    }

    void typingOverTheTextThatFocusSelectsReplacesIt() {
        BoxWindow w;
        w.selectAllOnFocus();
        w.focus();
        QCOMPARE(w.view.selectedText(), QString("0"));
        w.type("12");
        QCOMPARE(w.text(), QString("12"));
    }

    void thePressThatBringsTheFocusKeepsWhatTheFormSelects() {
        BoxWindow w("123");
        w.selectAllOnFocus();
        QTest::mouseClick(&w.view, Qt::LeftButton, {}, QPoint(5, 10));
        QVERIFY(w.view.hasFocus());
        QCOMPARE(w.view.selectedText(), QString("123"));
        w.type("45");
        QCOMPARE(w.text(), QString("45"));
        QTest::mouseClick(&w.view, Qt::LeftButton, {}, QPoint(1, 10));
        QCOMPARE(w.selection(), QList<int>({0, 0}));
    }

    void aSelectionShowsInTheBoxWithTheFocusAlone() {
        BoxWindow w("0");
        w.focus();
        const auto selectAll = [&] {
            w.box.SelStart(0);
            w.box.SelLength(1);
        };
        w.link.run(selectAll);
        QVERIFY(w.view.hasSelectedText());
        w.before.setFocus();
        w.link.run(selectAll);
        QVERIFY(!w.view.hasSelectedText());
        QCOMPARE(w.selection(), QList<int>({0, 1}));
        w.view.setFocus(Qt::ActiveWindowFocusReason);
        QVERIFY(w.view.hasSelectedText());
    }

    void focusSelectsNothingUnlessTheFormDoes() {
        BoxWindow w("123");
        w.focus();
        QCOMPARE(w.focused, 1);
        QVERIFY(!w.view.hasSelectedText());
        QCOMPARE(w.view.cursorPosition(), 3);
        QCOMPARE(w.selection(), QList<int>({3, 0}));
    }

    void comingBackFromAnotherWindowOrAMenuIsNoFocus_data() {
        QTest::addColumn<Qt::FocusReason>("reason");
        QTest::newRow("window") << Qt::ActiveWindowFocusReason;
        QTest::newRow("menu") << Qt::PopupFocusReason;
    }

    void comingBackFromAnotherWindowOrAMenuIsNoFocus() {
        QFETCH(Qt::FocusReason, reason);
        BoxWindow w("123");
        w.focus();
        w.select(1, 1);
        QFocusEvent left(QEvent::FocusOut, reason);
        QApplication::sendEvent(&w.view, &left);
        QFocusEvent back(QEvent::FocusIn, reason);
        QApplication::sendEvent(&w.view, &back);
        QCOMPARE(w.focused, 1);
        QCOMPARE(w.view.selectedText(), QString("2"));
        QCOMPARE(w.selection(), QList<int>({1, 1}));
    }

    void theFormKnowsCaretAndSelectionOfTheUser() {
        BoxWindow w("a😀bc");
        w.focus();
        QCOMPARE(w.selection(), QList<int>({4, 0}));
        w.key(Qt::Key_Home);
        QCOMPARE(w.selection(), QList<int>({0, 0}));
        w.key(Qt::Key_Right);
        w.key(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(w.selection(), QList<int>({1, 1}));
        QCOMPARE(w.view.selectedText(), QString("😀"));
        w.key(Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(w.selection(), QList<int>({1, 3}));
        w.type("x");
        QCOMPARE(w.view.text(), QString("ax"));
    }

    void selectingBackwardsIsToldAsWell() {
        BoxWindow w("a😀bc");
        w.focus();
        w.key(Qt::Key_Left, Qt::ShiftModifier);
        w.key(Qt::Key_Left, Qt::ShiftModifier);
        w.key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(w.selection(), QList<int>({1, 3}));
        w.key(Qt::Key_Backspace);
        QCOMPARE(w.text(), QString("a"));
    }

    void theViewShowsCaretAndSelectionOfTheForm() {
        BoxWindow w("a😀bc");
        w.focus();
        w.select(2, 0);
        QCOMPARE(w.view.cursorPosition(), 3);
        w.select(1, 2);
        QCOMPARE(w.view.selectedText(), QString("😀b"));
    }

    void aRewriteByCodePutsTheCaretToTheEnd() {
        BoxWindow w("1");
        w.focus();
        w.key(Qt::Key_Home);
        w.link.run([&] { w.box.Text("1000"); });
        QCOMPARE(w.view.text(), QString("1000"));
        QCOMPARE(w.view.cursorPosition(), 4);
        w.type("5");
        QCOMPARE(w.view.text(), QString("10005"));
    }

    void aHandlerThatRewritesWhatIsTypedIsFollowed() {
        BoxWindow w("0");
        w.box.Change = [&] { w.box.Text(w.box.Text().empty() ? "0" : std::to_string(w.box.Long())); };
        w.focus();
        w.type("7");
        QCOMPARE(w.view.text(), QString("7"));
        w.key(Qt::Key_Backspace);
        QCOMPARE(w.view.text(), QString("0"));
    }

    void clipboardKeysCopyCutAndPasteWithoutTheFilter() {
        BoxWindow w("abcd");
        w.digitsOnly();
        w.focus();
        w.select(1, 2);
        w.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboard().text(), QString("bc"));
        QCOMPARE(w.text(), QString("abcd"));
        w.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(w.text(), QString("ad"));
        clipboard().setText("x\ty\nsecond line");
        w.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(w.view.text(), QString("ax yd"));
        QCOMPARE(w.selection(), QList<int>({4, 0}));
        w.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(w.selection(), QList<int>({0, 5}));
    }

    void nothingSelectedCopiesAndCutsNothing() {
        BoxWindow w("abc");
        w.focus();
        clipboard().setText("kept");
        w.key(Qt::Key_C, Qt::ControlModifier);
        w.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(clipboard().text(), QString("kept"));
        QCOMPARE(w.text(), QString("abc"));
    }

    void combinationsWithControlOrAltReachTheFormNever() {
        BoxWindow w("abc");
        w.focus();
        for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
            for (const Qt::Key code :
                 {Qt::Key_B, Qt::Key_Z, Qt::Key_Y, Qt::Key_K, Qt::Key_Backspace, Qt::Key_Delete}) {
                w.key(code, modifier);
            }
        }
        QCOMPARE(w.keys, QList<int>());
        QCOMPARE(w.view.text(), QString("abc"));
        QCOMPARE(w.text(), QString("abc"));
    }

    void aMiddleClickPastesTheSelectionOfTheDesktopOnly() {
        BoxWindow w("abc");
        w.focus();
        clipboard().setText("clipboard");
        if (clipboard().supportsSelection()) clipboard().setText("sel", QClipboard::Selection);
        QTest::mouseClick(&w.view, Qt::MiddleButton);
        QCOMPARE(w.text(), clipboard().supportsSelection() ? QString("abcsel") : QString("abc"));
        QCOMPARE(w.view.text(), w.text());
    }

    void whatAnInputMethodCommitsIsTyped() {
        BoxWindow w("0");
        w.digitsOnly();
        w.focus();
        QInputMethodEvent composing("ab", {});
        QApplication::sendEvent(&w.view, &composing);
        QCOMPARE(w.view.text(), QString("0"));
        QInputMethodEvent committed;
        committed.setCommitString("1é2");
        QApplication::sendEvent(&w.view, &committed);
        QCOMPARE(w.view.text(), QString("012"));
        QCOMPARE(w.text(), QString("012"));
    }

    void aDisabledBoxTakesNothing() {
        BoxWindow w("abc");
        w.focus();
        w.box.Enabled(false);
        w.type("1");
        clipboard().setText("2");
        w.key(Qt::Key_V, Qt::ControlModifier);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.view.text(), QString("abc"));
        QCOMPARE(w.text(), QString("abc"));
    }

    void theContextMenuEditsThroughTheForm() {
        using namespace ui::window_text;
        BoxWindow w("abcd");
        w.focus();
        w.select(1, 2);
        clipboard().setText("XY");
        const auto choose = [&](const char* entry) {
            QStringList enabled;
            QTimer::singleShot(0, &w.view, [&] {
                auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                QAction* chosen = nullptr;
                for (QAction* action : menu->actions()) {
                    if (action->isEnabled()) enabled << action->text();
                    if (action->text() == entry) chosen = action;
                }
                menu->setActiveAction(chosen);
                QTest::keyClick(menu, Qt::Key_Return);
            });
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                    w.view.mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(&w.view, &event);
            return enabled;
        };
        QCOMPARE(choose(CopyText), QStringList({CutText, CopyText, PasteText, SelectAllText}));
        QCOMPARE(clipboard().text(), QString("bc"));
        choose(CutText);
        QCOMPARE(w.text(), QString("ad"));
        QCOMPARE(choose(PasteText), QStringList({PasteText, SelectAllText}));
        QCOMPARE(w.text(), QString("abcd"));
        choose(SelectAllText);
        QCOMPARE(w.selection(), QList<int>({0, 4}));
        QCOMPARE(w.keys, QList<int>());
    }
};

static const desktop_test::Registered<TextBoxViewTest> registered;

#include "text_box_view_test.moc"
