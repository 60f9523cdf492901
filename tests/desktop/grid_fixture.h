// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QToolTip>

#include "desktop/cell_editor.h"
#include "desktop/cell_list.h"
#include "desktop/desktop_test.h"
#include "desktop/grid_view.h"
#include "ui/grid.h"

namespace desktop_test {

/// A window with a grid between two boxes; below and beside one fixed row and column the text of a cell is
/// "row.column". The grid has the focus and its first cell is the current one.
struct GridWindow : Window {
    static constexpr int TipGoes = 400;  // milliseconds

    ui::Grid grid{form, "flxTest"};
    QWidget window;
    QLineEdit before{&window};
    desktop::GridView view{grid, link, &window};
    QLineEdit after{&window};

    explicit GridWindow(int rows = 6, int cols = 4) {
        grid.Rows(rows);
        grid.Cols(cols);
        for (int row = 0; row < rows; ++row) {
            for (int col = 0; col < cols; ++col) grid.TextMatrix(row, col, at(row, col));
        }
        grid.Editable = ui::EditMode::KeyboardAndMouse;
        grid.Select(std::min(1, rows - 1), std::min(1, cols - 1));
        grid.Move(0, 600, 6000, 3000);
        link.Followed = &view;
        view.setGeometry(link.scale().place(grid));
        before.setGeometry(0, 0, 100, 20);
        after.setGeometry(200, 0, 100, 20);
        window.resize(view.geometry().bottomRight().x() + 50, view.geometry().bottom() + 50);
        window.show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
        view.setFocus();
        view.follow();
        QApplication::processEvents();
    }

    static std::string at(int row, int col) { return std::to_string(row) + "." + std::to_string(col); }
    std::string text(int row, int col) const { return std::string(grid.TextMatrix(row, col)); }
    desktop::CellAddress current() const { return {grid.Row(), grid.Col()}; }
    desktop::CellAddress selectedTo() const { return {grid.RowSel(), grid.ColSel()}; }
    /// What code does: the view follows when it has returned.
    void run(const std::function<void()>& action) { link.run(action); }
    void select(int row, int col) {
        run([&] { grid.Select(row, col); });
    }

    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, static_cast<Qt::Key>(code), modifiers);
    }
    void type(const char* keys) { QTest::keyClicks(&view, QString::fromUtf8(keys)); }

    QPoint middle(int row, int col) const { return view.cellPlace(row, col).center(); }
    void press(int row, int col, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mousePress(view.viewport(), Qt::LeftButton, modifiers, middle(row, col));
    }
    void click(int row, int col, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, middle(row, col));
    }
    /// As a user does it: two presses, of which the second is the double one.
    void doubleClick(QPoint place) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QMouseEvent second(QEvent::MouseButtonDblClick, place, view.viewport()->mapToGlobal(place),
                           Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &second);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    void doubleClick(int row, int col) { doubleClick(middle(row, col)); }
    void movePointer(QPoint place, Qt::MouseButton pressed) {
        QMouseEvent event(QEvent::MouseMove, place, view.viewport()->mapToGlobal(place), Qt::NoButton,
                          pressed, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &event);
    }
    void drag(QPoint place) { movePointer(place, Qt::LeftButton); }
    void hover(QPoint place) { movePointer(place, Qt::NoButton); }

    /// The one on view; a tip that was taken away goes after a moment.
    static QString tip() {
        QTest::qWait(TipGoes);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    QString tipAt(QPoint place) {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->inherits("QTipLabel")) delete widget;
        }
        QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

    desktop::CellEditor& editor() { return *view.findChild<desktop::CellEditor*>(); }
    desktop::CellList& list() { return *view.findChild<desktop::CellList*>(); }
    bool editorShows() { return editor().isVisible(); }

    /// What the view shows, without its frame and bars.
    QImage picture() { return view.viewport()->grab().toImage(); }
};

}  // namespace desktop_test

/// For messages of failed comparisons.
template <>
inline char* QTest::toString(const desktop::CellAddress& cell) {
    return qstrdup(desktop_test::GridWindow::at(cell.Row, cell.Col).c_str());
}
template <>
inline char* QTest::toString(const std::string& text) {
    return qstrdup(text.c_str());
}
