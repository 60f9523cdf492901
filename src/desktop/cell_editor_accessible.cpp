// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/cell_editor_accessible.h"

#include <QAccessibleWidget>
#include <algorithm>

#include "desktop/cell_editor.h"
#include "desktop/texts.h"

namespace desktop {

namespace {

/// One line of text whose caret and selection the editor knows. Its keys come through the grid, which has the focus.
class EditorInterface : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit EditorInterface(CellEditor& editor) : QAccessibleWidget(&editor, QAccessible::EditableText) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focusable = true;
        state.focused = editor().isVisible();
        state.editable = true;
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? content() : QAccessibleWidget::text(kind);
    }

    void selection(int index, int* start, int* end) const override {
        const auto [from, to] = index == 0 ? editor().selectedUnits() : CellEditor::Units{};
        *start = from;
        *end = to;
    }
    int selectionCount() const override {
        const auto [from, to] = editor().selectedUnits();
        return from < to ? 1 : 0;
    }
    void addSelection(int start, int end) override { editor().selectUnits(start, end); }
    void removeSelection(int) override { setCursorPosition(cursorPosition()); }
    void setSelection(int, int start, int end) override { editor().selectUnits(start, end); }
    int cursorPosition() const override { return editor().caretUnit(); }
    void setCursorPosition(int unit) override { editor().selectUnits(unit, unit); }
    QString text(int start, int end) const override { return content().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(content().size()); }
    QRect characterRect(int unit) const override {
        return editor().placeOfUnit(unit).translated(editor().mapToGlobal(QPoint()));
    }
    int offsetAtPoint(const QPoint& point) const override {
        return editor().unitAt(editor().mapFromGlobal(point).x());
    }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    CellEditor& editor() const { return static_cast<CellEditor&>(*widget()); }
    QString content() const { return editor().text(); }
};

QAccessibleInterface* makeEditorInterface(const QString&, QObject* object) {
    auto* editor = dynamic_cast<CellEditor*>(object);
    return editor != nullptr ? new EditorInterface(*editor) : nullptr;
}

void tellOpened(CellEditor& editor) {
    QAccessibleEvent event(&editor, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void tellText(CellEditor& editor, const QString& before) {
    QAccessibleTextUpdateEvent event(&editor, 0, before, editor.text());
    QAccessible::updateAccessibility(&event);
}

void tellCaret(CellEditor& editor) {
    QAccessibleTextCursorEvent event(&editor, editor.caretUnit());
    QAccessible::updateAccessibility(&event);
}

}  // namespace

void installEditorAccessibility() {
    static const bool installed = (QAccessible::installFactory(makeEditorInterface), true);
    static_cast<void>(installed);
}

int CellEditor::caretUnit() const { return unitOf(text(), caret_); }

CellEditor::Units CellEditor::selectedUnits() const {
    return {unitOf(text(), std::min(anchor_, caret_)), unitOf(text(), std::max(anchor_, caret_))};
}

void CellEditor::selectUnits(int anchor, int caret) {
    select(characterOf(text(), anchor), characterOf(text(), caret));
}

QRect CellEditor::placeOfUnit(int unit) const {
    const int left = static_cast<int>(xOfUnit(unit));
    return {left, 0, std::max(1, static_cast<int>(xOfUnit(unit + 1)) - left), height()};
}

/// That it has opened, and from then on what has changed in it.
void CellEditor::tellListeners() {
    const auto before = std::exchange(told_, std::pair(text(), caretUnit()));
    if (!before) return tellOpened(*this);
    if (before->first != told_->first) tellText(*this, before->first);
    if (before->second != told_->second) tellCaret(*this);
}

}  // namespace desktop
