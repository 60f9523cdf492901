// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/cell_history.h"

#include <QClipboard>
#include <QMenu>
#include <QScrollBar>

#include "desktop/grid_fixture.h"

using desktop::CellAddress;
using desktop_test::GridWindow;

namespace {

using Texts = std::vector<std::string>;

/// A grid with a history, driven by the keys.
struct HistoryWindow : GridWindow {
    desktop::CellHistory history{grid};

    explicit HistoryWindow(int rows = 6, int cols = 4) : GridWindow(rows, cols) { view.add({&history, {}}); }
    ~HistoryWindow() { view.add({}); }

    void undo() { key(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    void enter(int row, int col, const char* text) {
        select(row, col);
        type(text);
        key(Qt::Key_Return);
    }
    void paste(const char* text) {
        QApplication::clipboard()->setText(text);
        key(Qt::Key_V, Qt::ControlModifier);
    }
    Texts row(int at, int cols = 3) const {
        Texts texts;
        for (int col = 1; col <= cols; ++col) texts.push_back(text(at, col));
        return texts;
    }
    /// A handler that fills the next cell with what was written, in brackets.
    void fillNextCell() {
        grid.CellChanged = [this](int row, int col) {
            if (col == 1) grid.TextMatrix(row, 2, "(" + text(row, col) + ")");
        };
    }
    /// A handler that fills the next cell of a row whose first cell, with a 0 in it, is left.
    void fillWhenLeft() {
        grid.BeforeRowColChange = [this](int row, int col, int, int, bool&) {
            if (col == 1 && text(row, col) == "0") grid.TextMatrix(row, 2, "0");
        };
    }
};

}  // namespace

class CellHistoryTest : public QObject {
    Q_OBJECT

private slots:
    void typingIsOneStep() {
        HistoryWindow w;
        w.enter(1, 1, "first");
        w.enter(2, 2, "second");
        w.undo();
        QCOMPARE(w.text(2, 2), std::string("2.2"));
        QCOMPARE(w.text(1, 1), std::string("first"));
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        w.undo();
        QCOMPARE(w.row(1), (Texts{"1.1", "1.2", "1.3"}));
        w.redo();
        w.redo();
        w.redo();
        QCOMPARE(w.text(1, 1), std::string("first"));
        QCOMPARE(w.text(2, 2), std::string("second"));
    }

    void choosingIsOneStep() {
        HistoryWindow w;
        w.grid.BeforeEdit = [&](int, int, bool&) { w.grid.ComboList("high|low"); };
        w.key(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(w.list().isVisible());
        w.key(Qt::Key_Down);
        w.key(Qt::Key_Return);
        QCOMPARE(w.text(1, 1), std::string("high"));
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        w.redo();
        QCOMPARE(w.text(1, 1), std::string("high"));
    }

    void deletingIsOneStep() {
        HistoryWindow w;
        w.key(Qt::Key_Delete);
        QCOMPARE(w.text(1, 1), std::string());
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        w.redo();
        QCOMPARE(w.text(1, 1), std::string());
    }

    void cuttingIsOneStep() {
        HistoryWindow w;
        w.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(w.text(1, 1), std::string());
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        QVERIFY(!w.history.canUndo());
    }

    void aPasteOfAThousandCellsIsOneStep() {
        HistoryWindow w(1001, 3);
        QString column;
        for (int row = 1; row <= 1000; ++row) column += QString("new %1\n").arg(row);
        w.paste(qPrintable(column));
        QCOMPARE(w.text(1000, 1), std::string("new 1000"));
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        QCOMPARE(w.text(1000, 1), std::string("1000.1"));
        QVERIFY(!w.history.canUndo());
        w.redo();
        QCOMPARE(w.text(1, 1), std::string("new 1"));
        QCOMPARE(w.text(1000, 1), std::string("new 1000"));
        QVERIFY(!w.history.canRedo());
    }

    void aPasteThatStopsIsOneStepAsFarAsItCame() {
        HistoryWindow w;
        w.grid.ValidateEdit = [&](int, int, bool& cancel) { cancel = w.grid.EditText() == "bad"; };
        w.paste("a\tb\tbad");
        QCOMPARE(w.row(1), (Texts{"a", "b", "1.3"}));
        w.undo();
        QCOMPARE(w.row(1), (Texts{"1.1", "1.2", "1.3"}));
        QVERIFY(!w.history.canUndo());
    }

    void anotherKeyRedoesToo() {
        HistoryWindow w;
        w.enter(1, 1, "first");
        w.undo();
        w.key(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(w.text(1, 1), std::string("first"));
    }

    void anEditThatAnotherControlEndsIsAStep() {
        HistoryWindow w;
        w.type("first");
        w.run([&] { w.form.CommitOpenEditor(); });
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
    }

    void anEditThatIsDroppedIsNoStep() {
        HistoryWindow w;
        w.type("first");
        w.key(Qt::Key_Escape);
        QVERIFY(!w.history.canUndo());
    }

    void anEditThatChangesNothingIsNoStep() {
        HistoryWindow w;
        w.enter(1, 1, "first");
        w.undo();
        w.select(2, 1);
        w.key(Qt::Key_F2);
        w.key(Qt::Key_Return);
        QVERIFY(!w.history.canUndo());
        QVERIFY(w.history.canRedo());
    }

    void everyGridHasItsOwn() {
        HistoryWindow w;
        ui::Grid other(w.form, "flxOther");
        other.Rows(3);
        other.Editable = ui::EditMode::KeyboardAndMouse;
        desktop::CellHistory othersHistory(other);
        w.enter(1, 1, "here");
        other.UserEditCell(1, 1, "there");
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        QCOMPARE(std::string(other.TextMatrix(1, 1)), std::string("there"));
        QVERIFY(othersHistory.undo());
        QCOMPARE(std::string(other.TextMatrix(1, 1)), std::string());
    }

    void aStepIsReplayedAsACommit() {
        HistoryWindow w;
        w.enter(1, 1, "first");
        Texts log;
        const auto note = [&](const char* what, int row, int col) {
            log.push_back(what + GridWindow::at(row, col) + " " + w.text(row, col));
        };
        w.grid.BeforeEdit = [&](int row, int col, bool&) { note("before ", row, col); };
        w.grid.ValidateEdit = [&](int row, int col, bool&) { note("validate ", row, col); };
        w.grid.CellChanged = [&](int row, int col) { note("changed ", row, col); };
        w.grid.AfterEdit = [&](int row, int col) { note("after ", row, col); };
        w.undo();
        QCOMPARE(log, (Texts{"changed 1.1 1.1", "after 1.1 1.1"}));
        log.clear();
        w.redo();
        QCOMPARE(log, (Texts{"changed 1.1 first", "after 1.1 first"}));
    }

    void anyTextThatStoodThereComesBack() {
        HistoryWindow w;
        w.run([&] {
            w.grid.TextMatrix(1, 1, "");
            w.grid.TextMatrix(2, 1, " no item ");
        });
        w.grid.BeforeEdit = [&](int, int, bool&) { w.grid.ComboList("high|low"); };
        w.grid.ValidateEdit = [&](int, int, bool& cancel) { cancel = w.grid.EditText() != "low"; };
        w.select(1, 1);
        w.paste("low\nlow\n");
        QCOMPARE(w.text(2, 1), std::string("low"));
        w.undo();
        QCOMPARE(w.text(1, 1), std::string());
        QCOMPARE(w.text(2, 1), std::string(" no item "));
    }

    void whatAHandlerFilledInBelongsToTheStep() {
        HistoryWindow w;
        w.fillNextCell();
        w.enter(1, 1, "first");
        QCOMPARE(w.row(1), (Texts{"first", "(first)", "1.3"}));
        w.undo();
        QCOMPARE(w.row(1), (Texts{"1.1", "1.2", "1.3"}));
        QVERIFY(!w.history.canUndo());
        w.redo();
        QCOMPARE(w.row(1), (Texts{"first", "(first)", "1.3"}));
        w.undo();
        QCOMPARE(w.row(1), (Texts{"1.1", "1.2", "1.3"}));
    }

    void whatAHandlerOfTheEndOfAnEditFilledInBelongsToTheStep() {
        HistoryWindow w;
        w.grid.AfterEdit = [&](int row, int) { w.grid.TextMatrix(row, 3, "edited"); };
        w.enter(1, 1, "first");
        w.undo();
        w.grid.AfterEdit = nullptr;
        w.undo();
        QCOMPARE(w.row(1), (Texts{"1.1", "1.2", "1.3"}));
    }

    void whatWasPastedOverAFillingComesBack() {
        HistoryWindow w;
        w.fillNextCell();
        w.paste("a\tb\tc\nd\te\tf");
        QCOMPARE(w.row(1), (Texts{"a", "b", "c"}));
        w.undo();
        QCOMPARE(w.row(1), (Texts{"1.1", "1.2", "1.3"}));
        QCOMPARE(w.row(2), (Texts{"2.1", "2.2", "2.3"}));
        w.redo();
        QCOMPARE(w.row(1), (Texts{"a", "b", "c"}));
        QCOMPARE(w.row(2), (Texts{"d", "e", "f"}));
    }

    void whatIsFilledInWhenTheCellIsLeftBelongsToItsStep() {
        HistoryWindow w;
        w.fillWhenLeft();
        w.enter(2, 1, "0");
        QCOMPARE(w.row(2), (Texts{"0", "0", "2.3"}));
        w.undo();
        QCOMPARE(w.row(2), (Texts{"2.1", "2.2", "2.3"}));
        w.redo();
        QCOMPARE(w.row(2), (Texts{"0", "0", "2.3"}));
    }

    void whatIsFilledInWhenTheCellIsLeftLaterBelongsToItsStepToo() {
        HistoryWindow w;
        w.fillWhenLeft();
        w.select(2, 1);
        w.type("0");
        w.run([&] { w.form.CommitOpenEditor(); });
        QCOMPARE(w.row(2), (Texts{"0", "2.2", "2.3"}));
        w.key(Qt::Key_Down);
        QCOMPARE(w.row(2), (Texts{"0", "0", "2.3"}));
        w.undo();
        QCOMPARE(w.row(2), (Texts{"2.1", "2.2", "2.3"}));
        QVERIFY(!w.history.canUndo());
    }

    void aFillingBehindAnUndoneStepEndsWhatCanBeRedone() {
        HistoryWindow w;
        w.fillWhenLeft();
        w.select(2, 1);
        w.type("0");
        w.run([&] { w.form.CommitOpenEditor(); });
        w.type("7");
        w.run([&] { w.form.CommitOpenEditor(); });
        w.undo();
        QVERIFY(w.history.canRedo());
        w.key(Qt::Key_Down);
        QCOMPARE(w.row(2), (Texts{"0", "0", "2.3"}));
        QVERIFY(!w.history.canRedo());
        w.undo();
        QCOMPARE(w.row(2), (Texts{"2.1", "2.2", "2.3"}));
    }

    void aFillingThatFollowsFromNoStepEndsTheHistory() {
        HistoryWindow w;
        w.run([&] { w.grid.TextMatrix(3, 1, "0"); });
        w.fillWhenLeft();
        w.enter(1, 1, "first");
        w.select(3, 1);
        QVERIFY(w.history.canUndo());
        w.key(Qt::Key_Down);
        QCOMPARE(w.text(3, 2), std::string("0"));
        QVERIFY(!w.history.canUndo());
    }

    void anotherEditEndsWhatCanBeRedone() {
        HistoryWindow w;
        w.enter(1, 1, "first");
        w.undo();
        w.enter(2, 1, "second");
        w.redo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
        w.undo();
        QCOMPARE(w.text(2, 1), std::string("2.1"));
    }

    void changesByOthersEndTheHistory_data() {
        QTest::addColumn<std::function<void(ui::Grid&)>>("change");
        const auto row = [](const char* name, std::function<void(ui::Grid&)> change) {
            QTest::newRow(name) << std::move(change);
        };
        row("more rows", [](ui::Grid& grid) { grid.Rows(9); });
        row("fewer rows", [](ui::Grid& grid) { grid.Rows(3); });
        row("columns", [](ui::Grid& grid) { grid.Cols(9); });
        row("a row added", [](ui::Grid& grid) { grid.AddItem("new"); });
        row("a row removed", [](ui::Grid& grid) { grid.RemoveItem(4); });
        row("order", [](ui::Grid& grid) { grid.Sort(ui::SortOrder::GenericDescending); });
        row("a cell rewritten", [](ui::Grid& grid) { grid.TextMatrix(3, 3, "else"); });
        row("a cell rewritten as it was", [](ui::Grid& grid) { grid.TextMatrix(1, 1, "1.1"); });
    }
    void changesByOthersEndTheHistory() {
        QFETCH(const std::function<void(ui::Grid&)>, change);
        HistoryWindow w;
        w.enter(1, 1, "first");
        w.enter(2, 1, "second");
        w.undo();
        w.run([&] { w.grid.Row(1); });
        QVERIFY(w.history.canUndo());
        QVERIFY(w.history.canRedo());
        w.run([&] { change(w.grid); });
        QVERIFY(!w.history.canUndo());
        QVERIFY(!w.history.canRedo());
    }

    void aHandlerThatChangesTheShapeEndsTheHistory() {
        HistoryWindow w;
        w.enter(1, 1, "first");
        w.grid.CellChanged = [&](int, int) { w.grid.Rows(w.grid.Rows() + 1); };
        w.enter(2, 1, "second");
        QVERIFY(!w.history.canUndo());
        w.grid.CellChanged = nullptr;
        w.enter(3, 1, "third");
        w.grid.CellChanged = [&](int, int) { w.grid.Rows(w.grid.Rows() - 1); };
        w.undo();
        QCOMPARE(w.text(3, 1), std::string("3.1"));
        QVERIFY(!w.history.canUndo());
        QVERIFY(!w.history.canRedo());
    }

    void nothingIsTakenBackWhereNothingCanBeEdited() {
        HistoryWindow w;
        w.enter(1, 1, "first");
        w.grid.Editable = ui::EditMode::ReadOnly;
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("first"));
        w.grid.Editable = ui::EditMode::KeyboardAndMouse;
        w.grid.Enabled(false);
        w.history.undo();
        QCOMPARE(w.text(1, 1), std::string("first"));
        w.grid.Enabled(true);
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
    }

    void inAnOpenEditorWhatWasTypedIsTakenBack() {
        HistoryWindow w;
        w.enter(1, 1, "first");
        w.type("half");
        QVERIFY(w.editorShows());
        w.undo();
        QVERIFY(!w.editorShows());
        QCOMPARE(w.text(2, 1), std::string("2.1"));
        QCOMPARE(w.text(1, 1), std::string("first"));
        w.undo();
        QCOMPARE(w.text(1, 1), std::string("1.1"));
    }

    void whatWasTakenBackIsSelectedAndShown() {
        HistoryWindow w(200, 4);
        w.select(2, 1);
        w.paste("a\tb\nc\td");
        w.key(Qt::Key_End, Qt::ControlModifier);
        QVERIFY(w.view.verticalScrollBar()->value() > 100);
        w.undo();
        QCOMPARE(w.current(), (CellAddress{2, 1}));
        QCOMPARE(w.selectedTo(), (CellAddress{3, 2}));
        QVERIFY(w.view.viewport()->rect().contains(w.middle(2, 1)));
    }

    void theMenuOffersBoth() {
        HistoryWindow w;
        const auto enabled = [&] {
            QContextMenuEvent open(QContextMenuEvent::Keyboard, QPoint(), QPoint());
            QApplication::sendEvent(&w.view, &open);
            const auto menus = w.view.findChildren<QMenu*>();
            QStringList texts;
            for (const QAction* action : menus.last()->actions()) {
                if (action->isEnabled() && !action->text().isEmpty()) texts << action->text();
            }
            menus.last()->close();
            return texts.filter("do");
        };
        QCOMPARE(enabled(), QStringList());
        w.enter(1, 1, "first");
        QCOMPARE(enabled(), QStringList("Undo"));
        w.undo();
        QCOMPARE(enabled(), QStringList("Redo"));
    }
};

static const desktop_test::Registered<CellHistoryTest> registered;

#include "cell_history_test.moc"
