// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBasicTimer>
#include <QTextLayout>
#include <QWidget>
#include <functional>
#include <optional>
#include <utility>

#include "desktop/grid_painter.h"
#include "desktop/view.h"
#include "ui/grid.h"

namespace desktop {

class CellList;

/// Shows the open edit of a grid over its cell: the text, caret and selection that the grid holds. The view keeps the
/// keyboard and hands the keys on. A cell that offers a list has a button that opens it.
class CellEditor : public QWidget {
    Q_OBJECT

public:
    /// `view` keeps the focus; the editor stands in its viewport.
    CellEditor(ui::Grid& grid, FormLink& link, const GridPainter& painter, QWidget* view, QWidget* viewport);

    /// Shows the edit as it stands at the cell's place, as wide as its text as far as `body` reaches; hidden when the
    /// cell is scrolled out of it.
    void showAt(const QRect& cell, const QRect& body);
    void conceal();

    /// Takes a key; false for one that is none of an editor's.
    bool key(QKeyEvent* event);
    /// Commits and moves as Tab does, or backwards; an item chosen in the open list is taken.
    void tab(bool backwards);
    void copy() const;
    void cut();
    void paste();
    void selectAll();
    /// Shows the items that the cell offers, if it does.
    void openList();
    /// Text that an input method is about to enter.
    void preedit(const QString& text);
    QVariant inputMethodValue(Qt::InputMethodQuery query) const;
    void showCaret(bool blinking);
    /// Says at the cell that it does not accept a text.
    void tellRefused(const QString& text);

    // For screen readers, in Qt's units.
    struct Units {
        int From = 0;
        int To = 0;
    };
    QString text() const { return QString::fromStdString(grid_.EditText()); }
    int caretUnit() const;
    Units selectedUnits() const;
    void selectUnits(int anchor, int caret);
    int unitAt(int x) const;
    QRect placeOfUnit(int unit) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    bool listKey(QKeyEvent* event);
    void chooseItem(int index, bool stepsOn);
    void followList();
    QRect button() const;
    bool commandKey(QKeyEvent* event);
    bool caretKey(QKeyEvent* event);
    bool steppingKey(QKeyEvent* event);
    void type(const QString& text);
    void leaveBy(const std::function<bool()>& step);
    void deleteNext();
    void replaceSelection(const QString& text);
    QString selectedText() const;
    void followCaret();
    void select(int anchor, int caret);
    void paintText(QPainter& painter) const;
    void layOut(QTextLayout& layout) const;
    double caretX() const;
    double xOfUnit(int unit) const;
    void tellListeners();
    int characterAt(int x) const;
    int naturalWidth() const;
    void scrollToCaret();

    ui::Grid& grid_;
    FormLink& link_;
    const GridPainter& painter_;
    CellList* list_;
    QString preedit_;
    // In characters, as the grid counts them; what is selected lies between them.
    int anchor_ = 0;
    int caret_ = 0;
    double scrolled_ = 0;
    bool caretShown_ = true;
    std::optional<std::pair<QString, int>> told_;  // text and caret, while it is open
    QBasicTimer blinking_;
};

/// Types each character of a text into the open edit; false where one is refused.
bool typeInto(ui::Grid& grid, const QString& text);

}  // namespace desktop
