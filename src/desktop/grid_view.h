// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QPixmap>
#include <functional>

#include "desktop/grid_geometry.h"
#include "desktop/grid_painter.h"
#include "desktop/view.h"

class QHelpEvent;
class QMenu;

namespace desktop {

class CellEditor;
class CellHistory;

/// What the window adds to a grid beside the form; each may be missing.
struct GridAdditions {
    CellHistory* History = nullptr;
    /// The heading of a column as it is copied, with a name where the grid shows a number.
    std::function<std::string(int col)> HeadingOf;
};

/// Shows a grid and takes the user's keys and mouse to it. It keeps a picture of what it shows: many changes are drawn
/// once, and while the grid's Redraw is off the last picture stays.
class GridView : public QAbstractScrollArea, public View {
    Q_OBJECT

public:
    GridView(ui::Grid& grid, FormLink& link, QWidget* parent);
    ~GridView() override;

    QWidget& widget() override { return *this; }
    void follow() override;

    void add(GridAdditions additions) { additions_ = std::move(additions); }

    ui::Grid& grid() const { return grid_; }
    /// The place of a cell in the viewport; empty for a hidden one.
    QRect cellPlace(int row, int col) const { return geometry_.cell(row, col); }
    CellAddress cellAt(QPoint place) const { return geometry_.cellAt(place); }

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void act(const std::function<void()>& action) { link_.run(action); }

    // What is shown.
    void tellListeners();
    void refresh();
    void updateScrollBars();
    void placeEditor();
    void render();
    void paintFrame();
    void reveal(CellAddress cell);
    void showToolTip(QHelpEvent* event);
    void explain(CellAddress cell);

    // Keys, while no editor is open (grid_keys.cpp).
    static bool isOwnShortcut(QKeyEvent& key);
    bool editorKey(QKeyEvent* event);
    bool goByTab(bool backwards);
    bool clipboardKey(QKeyEvent* event);
    bool historyKey(QKeyEvent* event);
    void replay(bool (CellHistory::*way)());
    CellAddress keyCell() const;
    void enterBody();
    bool moveKey(QKeyEvent* event);
    bool editKey(QKeyEvent* event);
    CellAddress target(int key, bool toCorner, CellAddress from) const;
    void moveTo(CellAddress cell);
    void step(const std::function<bool()>& action);
    void selectTo(CellAddress cell);
    void selectAll();
    void edit(const std::function<void()>& keys);
    void beginEdit();
    void typeText(const QString& text);

    // The clipboard, and the menu (grid_clipboard.cpp).
    void moveToClicked(QPoint place);
    bool canPaste() const;
    void offerForText(QMenu& menu);
    void offerForCells(QMenu& menu, CellAddress cell);
    void sortByColumn(int col);
    void cutCell();
    void copyCells();
    void copyWithHeadings();
    void pasteCells();
    void tellWherePastingStopped(const ui::PastedBlock& block);

    // The mouse (grid_mouse.cpp).
    void hover(QPoint place);
    void leave();
    void endDrag();
    void dragColumn(QPoint place);
    void dragSelection(QPoint place);
    CellAddress bodyCellNear(QPoint place) const;

    ui::Grid& grid_;
    FormLink& link_;
    GridGeometry geometry_;
    GridPainter painter_;
    CellEditor* editor_;
    GridAdditions additions_;
    QPixmap picture_;
    bool outdated_ = true;
    CellAddress toldCell_;
    std::string toldText_;
    bool toldEditing_ = false;

    CellAddress hovered_;
    int draggedCol_ = -1;
    bool selecting_ = false;
    QPoint dragPlace_;
    QBasicTimer autoScroll_;
};

}  // namespace desktop
