// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDeadlineTimer>
#include <QFrame>
#include <QPointer>
#include <functional>
#include <vector>

class QAbstractButton;
class QScrollArea;
class QVBoxLayout;

namespace desktop {

/// What a line is about; its picture and colour follow from it.
enum class StripTone { Offer, Note, Warning };

struct StripAction {
    QString Caption;
    std::function<void()> Run;
};

/// One line of the strip. Lines are the same when all but what they run is equal.
struct StripLine {
    QString Text;
    QString Details;  ///< shown as a tip; may be empty
    StripTone Tone = StripTone::Note;
    std::vector<StripAction> Actions;
    std::function<void()> Close;  ///< nothing for a line that cannot be closed by itself
    bool Indented = false;        ///< belongs to the line above it
    QString Progress{};           ///< follows the text and may change while the line stays the same
};

class StripRow;

/// The line, or the few lines, at the window's edge that tell what the form does not tell. It is on view while it has
/// lines. It asks nothing and takes no focus: neither its coming, nor a click on it, nor Tab move the focus here.
/// `enter` does, for whoever works by keys; Tab and the arrows then go from button to button, Enter and Space press,
/// Escape and F6 lead back to where the focus was. A line that is new is announced to screen readers. When a line has gone,
/// nothing can be pressed for a moment, since another button may have come under the finger.
class Strip : public QFrame {
    Q_OBJECT

public:
    explicit Strip(QWidget* parent = nullptr);

    /// Milliseconds in which nothing can be pressed after a line has gone.
    int TimeToRest = 500;

    /// Shows these lines in place of those before. A line that was there already keeps its widgets and its focus.
    void show(std::vector<StripLine> lines);
    /// Gives the first button the focus; again, gives the focus back.
    void enter();

    /// The height that the lines want at a width; more lines than a few are scrolled.
    int heightForWidth(int width) const override;
    bool hasHeightForWidth() const override { return true; }

signals:
    /// The strip has come, gone, or wants another height.
    void heightChanged();
    /// A line that is new was told to screen readers.
    void announced(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    StripRow* takeRow(const StripLine& line);
    int rowWithFocus() const;
    void keepFocus(int place);
    void focus(QWidget* button);
    bool takesKey(int key, QAbstractButton& button);
    void step(int by);
    void leave();
    std::vector<QWidget*> buttons() const;

    QScrollArea* scroll_;
    QWidget* contents_;
    QVBoxLayout* layout_;
    std::vector<StripRow*> rows_;
    QPointer<QWidget> cameFrom_;  // had the focus before the strip was entered
    QDeadlineTimer rest_{0};      // of the buttons
};

}  // namespace desktop
