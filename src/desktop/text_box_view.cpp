// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/text_box_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QStyleOption>
#include <algorithm>

#include "desktop/texts.h"
#include "ui/text_editor.h"
#include "ui/window_texts.h"

namespace desktop {

namespace {

constexpr int QtMargin = 2;    // what Qt leaves beside the text and its caret
constexpr int FrameWidth = 1;  // what the design's boxes have room for instead
constexpr int TextGap = 2;     // beside a text that leaves it
constexpr int CaretWidth = 1;

}  // namespace

TextBoxView::TextBoxView(ui::TextBox& box, FormLink& link, QWidget* parent)
    : QLineEdit(parent), box_(box), link_(link) {
    fitMargins();
    setAcceptDrops(false);
    setDragEnabled(false);
    connect(this, &QLineEdit::selectionChanged, this, [this] { tellSelection(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { tellSelection(); });
}

/// Takes back what the style's frame is wider than the design's boxes have room for. A text stands off the left edge as
/// far as it leaves room.
void TextBoxView::fitMargins() {
    QStyleOptionFrame option;
    initStyleOption(&option);
    option.rect = QRect(0, 0, 1000, 1000);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    const auto margin = [](int frame, int room) { return std::min(0, room - frame); };
    const int free = width() - 2 * FrameWidth - fontMetrics().horizontalAdvance(text()) - CaretWidth;
    const int gap = std::clamp(free, 0, TextGap);
    const QMargins margins(margin(contents.left(), FrameWidth - QtMargin) + gap,
                           margin(contents.top(), FrameWidth),
                           margin(option.rect.right() - contents.right(), FrameWidth - QtMargin),
                           margin(option.rect.bottom() - contents.bottom(), FrameWidth));
    if (margins != textMargins()) setTextMargins(margins);
}

void TextBoxView::resizeEvent(QResizeEvent* event) {
    fitMargins();
    QLineEdit::resizeEvent(event);
}

void TextBoxView::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange) fitMargins();
}

void TextBoxView::follow() {
    following_ = true;
    const QString shown = QString::fromStdString(box_.Text());
    if (text() != shown) {
        setText(shown);
        fitMargins();
    }
    const int start = unitOf(shown, box_.SelStart());
    const int end = unitOf(shown, box_.SelStart() + box_.SelLength());
    if (start != end && hasFocus()) {
        setSelection(start, end - start);
    } else {
        setCursorPosition(start);
    }
    following_ = false;
}

/// The user's own moves of caret and selection; what the form says is not told back to it.
void TextBoxView::tellSelection() {
    if (following_) return;
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const int first = characterOf(text(), start);
    const int count = characterOf(text(), start + static_cast<int>(selectedText().size())) - first;
    if (first == box_.SelStart() && count == box_.SelLength()) return;
    box_.UserSelect(first, count);
}

void TextBoxView::focusInEvent(QFocusEvent* event) {
    following_ = true;  // Qt selects by itself
    QLineEdit::focusInEvent(event);
    following_ = false;
    const bool cameBack = event->reason() == Qt::ActiveWindowFocusReason ||
                          event->reason() == Qt::PopupFocusReason ||
                          event->reason() == Qt::MenuBarFocusReason;
    pressGaveFocus_ = event->reason() == Qt::MouseFocusReason;
    if (!cameBack) link_.run([this] { box_.UserFocus(); });
    follow();
}

void TextBoxView::pressKey(int key) {
    link_.run([this, key] { box_.UserKey(key); });
}

void TextBoxView::type(const QString& text) {
    for (const uint character : text.toUcs4()) pressKey(static_cast<int>(character));
}

void TextBoxView::pasteText(const QString& text) {
    link_.run([this, &text] { box_.UserPaste(utf8(text)); });
}

void TextBoxView::copySelection() const {
    if (hasSelectedText()) QGuiApplication::clipboard()->setText(selectedText());
}

void TextBoxView::deleteForward() {
    if (box_.SelLength() == 0) box_.UserSelect(box_.SelStart(), 1);
    pasteText({});
}

bool TextBoxView::editWithClipboard(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy)) {
        copySelection();
    } else if (event.matches(QKeySequence::Cut)) {
        copySelection();
        if (hasSelectedText()) pasteText({});
    } else if (event.matches(QKeySequence::Paste)) {
        pasteText(QGuiApplication::clipboard()->text());
    } else if (event.matches(QKeySequence::SelectAll)) {
        selectAll();
    } else {
        return false;
    }
    return true;
}

void TextBoxView::keyPressEvent(QKeyEvent* event) {
    if (editWithClipboard(*event)) return;
    const bool command =
        (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    switch (event->key()) {
        case Qt::Key_Backspace: return command ? event->ignore() : pressKey(ui::BackspaceKey);
        case Qt::Key_Return:
        case Qt::Key_Enter: return pressKey(ui::EnterKey);
        case Qt::Key_Escape: return pressKey(ui::EscapeKey);
        case Qt::Key_Delete: return command ? event->ignore() : deleteForward();
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End: return QLineEdit::keyPressEvent(event);
        default: break;
    }
    if (!isTyping(*event)) return event->ignore();
    type(event->text());
}

void TextBoxView::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty()) type(event->commitString());
    event->accept();
}

/// The press that brings the focus leaves what the form selects on it.
void TextBoxView::mousePressEvent(QMouseEvent* event) {
    if (std::exchange(pressGaveFocus_, false) && event->button() == Qt::LeftButton) return;
    QLineEdit::mousePressEvent(event);
}

void TextBoxView::mouseReleaseEvent(QMouseEvent* event) {
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton) {
        if (clipboard.supportsSelection()) pasteText(clipboard.text(QClipboard::Selection));
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void TextBoxView::contextMenuEvent(QContextMenuEvent* event) {
    using namespace ui::window_text;
    QMenu menu(this);
    menu.addAction(CutText, this, [this] { copySelection(), pasteText({}); })->setEnabled(hasSelectedText());
    menu.addAction(CopyText, this, [this] { copySelection(); })->setEnabled(hasSelectedText());
    menu.addAction(PasteText, this, [this] { pasteText(QGuiApplication::clipboard()->text()); });
    menu.addAction(SelectAllText, this, [this] { selectAll(); });
    menu.exec(event->globalPos());
}

}  // namespace desktop
