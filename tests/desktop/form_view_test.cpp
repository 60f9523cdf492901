// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/form_view.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextDocument>

#include "desktop/desktop_test.h"
#include "desktop/grid_view.h"
#include "desktop/main_window.h"
#include "desktop/texts.h"
#include "project/pages.h"
#include "support/form_views.h"
#include "ui/combo_box.h"
#include "ui/grid.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"
#include "ui/timer.h"

using desktop_test::MainWindow;

namespace {

/// Lets a window follow, as the program does.
class FollowingLink : public desktop::FormLink {
public:
    void run(const std::function<void()>& action) override {
        action();
        if (Window != nullptr) Window->follow();
    }
    const desktop::Scale& scale() const override { return scale_; }

    desktop::FormView* Window = nullptr;

private:
    desktop::Scale scale_{QApplication::font()};
};

/// A form with one control of several kinds, and its window.
struct SmallForm {
    ScriptedPlatform platform;
    ui::FormWindow form{platform, "frmTest"};
    ui::Frame frame{form, "fraTest"};
    ui::Label label{frame, "lblTest", {.Caption = "Count:", .AccessKey = 'C'}};
    ui::TextBox box{frame, "txtTest", "0", {.ToolTipText = "<b>bold</b>"}};
    ui::CommandButton button{frame, "cmdTest", {.Caption = "Go", .Visible = false, .Enabled = false}};
    ui::Grid grid{form, "flxTest"};
    ui::TabStrip outer{form, "tabOuter", {{"One"}, {"Two"}, {"Three"}}};
    ui::TabStrip inner{outer, "tabInner", {{"A"}, {"B"}}};
    FollowingLink link;
    std::unique_ptr<desktop::FormView> view;

    SmallForm() {
        form.Caption("Form");
        form.Move(500, 500, 11000, 7000);
        frame.Move(0, 0, 3000, 1000);
        label.Move(0, 0, 900, 300);
        box.Move(1000, 0, 900, 300);
        button.Move(2000, 0, 900, 300);
        grid.Move(0, 1000, 3000, 2000);
        grid.Rows(4);
        grid.Cols(3);
        grid.Editable = ui::EditMode::KeyboardAndMouse;
        grid.Select(1, 1);
        outer.Move(4000, 0, 6000, 3000);
        inner.Move(100, 400, 5000, 2000);
    }

    void show() {
        view = std::make_unique<desktop::FormView>(form, link);
        link.Window = view.get();
        view->open();
        view->activateWindow();
        (void)QTest::qWaitForWindowActive(view.get());
    }
    QWidget& widgetOf(const ui::Control& control) { return view->viewOf(control)->widget(); }
    /// Waits until a window that was moved or resized has come to rest.
    static void settle() { QTest::qWait(400); }
};

/// A window manager that puts a window back to where it wants it.
class Stubborn : public QObject {
public:
    explicit Stubborn(QWidget& window) : window_(window) { window.installEventFilter(this); }

    int Refusals = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Move && event->type() != QEvent::Resize) return false;
        if (window_.geometry() == wanted_ || std::exchange(refusing_, true)) return false;
        const auto refuse = [this] {
            refusing_ = false;
            ++Refusals;
            window_.setGeometry(wanted_);
        };
        QMetaObject::invokeMethod(&window_, refuse, Qt::QueuedConnection);
        return false;
    }

private:
    QWidget& window_;
    const QRect wanted_{40, 50, 300, 200};
    bool refusing_ = false;
};

bool canBeReached(const QWidget& widget) { return (widget.focusPolicy() & Qt::TabFocus) != 0; }

}  // namespace

class FormViewTest : public QObject {
    Q_OBJECT

private slots:
    void everyControlHasAWidgetUnderItsName() {
        MainWindow window;
        int widgets = 0;
        for (const ui::Control* control : window.form->Controls()) {
            if (control->Kind() == ui::ControlKind::MenuItem) {
                QVERIFY2(window.view->findChild<QAction*>(QString::fromStdString(control->Name())) != nullptr,
                         control->Name().c_str());
                continue;
            }
            desktop::View* view = window.view->viewOf(*control);
            QVERIFY2(view != nullptr, control->Name().c_str());
            QCOMPARE(view->widget().objectName(), QString::fromStdString(control->Name()));
            ++widgets;
        }
        QVERIFY(widgets > 100);
    }

    void everyControlStandsInTheWidgetOfItsContainer() {
        MainWindow window;
        for (const ui::Control* control : window.form->Controls()) {
            const ui::Control& container = control->Container();
            const bool plain = control->Kind() != ui::ControlKind::MenuItem;
            if (!plain || container.Kind() == ui::ControlKind::Form) continue;
            QCOMPARE(window.widgetOf(*control).parentWidget(), &window.widgetOf(container));
        }
    }

    void aControlOfAnotherFormHasNoView() {
        SmallForm one;
        one.show();
        const SmallForm other;
        QVERIFY(one.view->viewOf(other.box) == nullptr);
    }

    void whatTheKeyboardReachesHasANameForScreenReaders() {
        MainWindow window;
        window.open(ProjectText(3, 3, 3, 3));
        int reached = 0;
        form_views::onEveryView(*window.form, [&](const std::string& view) {
            window.view->follow();
            for (const ui::Control* control : form_views::shownControls(*window.form)) {
                const QWidget& widget = window.widgetOf(*control);
                if (!canBeReached(widget)) continue;
                ++reached;
                QVERIFY2(!widget.accessibleName().trimmed().isEmpty(),
                         (view + ": " + control->Name()).c_str());
            }
        });
        QVERIFY(reached > 100);
    }

    void placesVisibilityAndStateFollow() {
        SmallForm w;
        w.show();
        QWidget& button = w.widgetOf(w.button);
        QVERIFY(!button.isVisible());
        QVERIFY(!button.isEnabled());
        w.link.run([&] {
            w.button.Visible(true);
            w.button.Enabled(true);
            w.button.Move(100, 400, 1500, 450);
            w.button.ToolTipText("Tip");
            w.button.Caption("Stop");
        });
        QVERIFY(button.isVisible());
        QVERIFY(button.isEnabled());
        QCOMPARE(button.geometry(), w.link.scale().place(w.button));
        QCOMPARE(button.toolTip(), QString("Tip"));
        QCOMPARE(button.accessibleName(), QString("Stop"));
        w.link.run([&] { w.frame.Visible(false); });
        QVERIFY(!button.isVisible());
    }

    void toolTipsAreShownPlain() {
        SmallForm w;
        w.show();
        QTextDocument shown;
        shown.setHtml(w.widgetOf(w.box).toolTip());
        QCOMPARE(shown.toPlainText(), QString("<b>bold</b>"));
    }

    void theTitleFollows() {
        SmallForm w;
        w.show();
        QCOMPARE(w.view->windowTitle(), QString("Form"));
        w.link.run([&] { w.form.Caption("Form - <b>project</b>"); });
        QCOMPARE(w.view->windowTitle(), QString("Form - <b>project</b>"));
    }

    void theAccessKeyOfALabelReachesTheBoxBehindIt() {
        SmallForm w;
        w.show();
        w.widgetOf(w.grid).setFocus();
        QTest::keyClick(w.view.get(), Qt::Key_C, Qt::AltModifier);
        QVERIFY(w.widgetOf(w.box).hasFocus());
    }

    void aTimerTicksWhileItIsEnabled() {
        SmallForm w;
        ui::Timer timer(w.form);
        int ticks = 0;
        timer.Interval = 5;
        timer.Enabled = true;
        timer.Elapsed = [&] {
            if (++ticks == 3) timer.Enabled = false;
        };
        w.show();
        QTRY_COMPARE(ticks, 3);
        QTest::qWait(50);
        QCOMPARE(ticks, 3);
    }

    void aClickThatNoControlTakesIsTheFormsClick() {
        SmallForm w;
        int clicks = 0;
        w.form.Click = [&] { ++clicks; };
        w.show();
        QTest::mouseClick(&w.widgetOf(w.label), Qt::LeftButton);
        QCOMPARE(clicks, 1);
        QTest::mouseClick(w.view.get(), Qt::LeftButton, {}, QPoint(5, w.view->height() - 5));
        QCOMPARE(clicks, 2);
        QTest::mouseClick(&w.widgetOf(w.box), Qt::LeftButton);
        QCOMPARE(clicks, 2);
    }

    void theCloseBoxUnloadsTheFormAndLeavesTheWindowToIt() {
        SmallForm w;
        w.show();
        w.view->close();
        QVERIFY(w.form.Unloaded());
        QVERIFY(w.view->isVisible());
    }

    void aNormalWindowIsAsLargeAsTheFormSays() {
        SmallForm w;
        w.form.Resize = [&] { w.form.Left(500), w.form.Top(500); };
        w.show();
        const desktop::Scale& scale = w.link.scale();
        QCOMPARE(w.view->frameGeometry().topLeft(), QPoint(scale.pixels(500), scale.pixels(500)));
        QCOMPARE(w.view->width(), scale.pixels(11000 - ui::FormWindow::BorderWidth));
        QCOMPARE(w.view->height(), scale.pixels(7000 - ui::FormWindow::BorderHeight));
    }

    void aResizedWindowTellsTheFormOnce() {
        SmallForm w;
        w.show();
        int resizes = 0;
        w.form.Resize = [&] { ++resizes; };
        for (int width = 700; width < 760; width += 10) w.view->resize(width, 600);
        w.settle();
        QCOMPARE(resizes, 1);
        QVERIFY(std::abs(w.link.scale().pixels(w.form.Width() - ui::FormWindow::BorderWidth) - 750) <= 1);
    }

    void aDraggedWindowGoesBackWhereTheFormWantsIt() {
        SmallForm w;
        w.form.Resize = [&] {
            if (w.form.WindowState() == ui::WindowState::Normal) w.form.Left(500), w.form.Top(500);
        };
        w.show();
        const QPoint place = w.view->frameGeometry().topLeft();
        w.view->move(10, 10);
        w.settle();
        QCOMPARE(w.view->frameGeometry().topLeft(), place);
    }

    void aWindowManagerThatRefusesIsAskedOnce() {
        SmallForm w;
        w.form.Resize = [&] { w.form.Move(500, 500, 11000, 7000); };
        w.show();
        Stubborn manager(*w.view);
        w.view->setGeometry(40, 50, 300, 200);
        for (int i = 0; i < 4; ++i) w.settle();
        QCOMPARE(manager.Refusals, 1);
        QCOMPARE(w.view->geometry(), QRect(40, 50, 300, 200));
        const auto& area = *w.view->findChild<QScrollArea*>();
        QCOMPARE(area.widget()->width(), w.link.scale().pixels(11000 - ui::FormWindow::BorderWidth));
        QVERIFY(area.horizontalScrollBar()->maximum() > 0);
    }

    void aMinimisedWindowTellsItsStateOnly() {
        SmallForm w;
        w.show();
        const int width = w.form.Width();
        w.view->showMinimized();
        w.settle();
        QCOMPARE(w.form.WindowState(), ui::WindowState::Minimized);
        QCOMPARE(w.form.Width(), width);
        w.view->showNormal();
        w.settle();
        QCOMPARE(w.form.WindowState(), ui::WindowState::Normal);
        QCOMPARE(w.form.Width(), width);
    }

    void pageKeysTurnTheOutermostTabs() {
        SmallForm w;
        w.show();
        for (const ui::Control* focused : std::initializer_list<const ui::Control*>{&w.grid, &w.box}) {
            w.link.run([&] { w.outer.SelectedItem(1); });
            w.widgetOf(*focused).setFocus();
            QTest::keyClick(&w.widgetOf(*focused), Qt::Key_PageDown, Qt::ControlModifier);
            QCOMPARE(w.outer.SelectedItem(), 2);
            QTest::keyClick(&w.widgetOf(*focused), Qt::Key_PageDown, Qt::ControlModifier);
            QTest::keyClick(&w.widgetOf(*focused), Qt::Key_PageDown, Qt::ControlModifier);
            QCOMPARE(w.outer.SelectedItem(), 3);
            QTest::keyClick(&w.widgetOf(*focused), Qt::Key_PageUp, Qt::ControlModifier);
            QCOMPARE(w.outer.SelectedItem(), 2);
            QCOMPARE(w.inner.SelectedItem(), 1);
        }
    }

    void controlAndTabTurnTheInnermostTabs() {
        SmallForm w;
        w.show();
        w.widgetOf(w.box).setFocus();
        QTest::keyClick(&w.widgetOf(w.box), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(w.inner.SelectedItem(), 2);
        QTest::keyClick(&w.widgetOf(w.box), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(w.inner.SelectedItem(), 1);
        QCOMPARE(w.outer.SelectedItem(), 1);
        w.link.run([&] { w.inner.Visible(false); });
        QTest::keyClick(&w.widgetOf(w.box), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(w.outer.SelectedItem(), 2);
        QCOMPARE(w.inner.SelectedItem(), 1);
    }

    void innerTabsGoRoundAndPagesDoNot() {
        SmallForm w;
        w.show();
        QWidget& box = w.widgetOf(w.box);
        box.setFocus();
        for (const int tab : {2, 1, 2}) {
            QTest::keyClick(&box, Qt::Key_Tab, Qt::ControlModifier);
            QCOMPARE(w.inner.SelectedItem(), tab);
        }
        w.link.run([&] { w.inner.SelectedItem(1); });
        QTest::keyClick(&box, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(w.inner.SelectedItem(), 2);
        w.link.run([&] { w.inner.Visible(false), w.outer.SelectedItem(3); });
        QTest::keyClick(&box, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(w.outer.SelectedItem(), 3);
    }

    void f10OpensTheMenu() {
        MainWindow w;
        w.view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w.view.get()));
        QTest::keyClick(w.view.get(), Qt::Key_F10);
        QWidget* menu = QApplication::activePopupWidget();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->objectName(), QString("mnuProject"));
        QTest::keyClick(menu, Qt::Key_Escape);
    }

    void shiftF10OpensTheMenuOfWhatHasTheFocus() {
        MainWindow w;
        w.view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w.view.get()));
        QWidget& grid = w.widgetOf(w.form->flxCandidateSpecies);
        grid.setFocus();
        QTest::keyClick(w.view.get(), Qt::Key_F10, Qt::ShiftModifier);
        QWidget* menu = QApplication::activePopupWidget();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->parentWidget(), &grid);
        QTest::keyClick(menu, Qt::Key_Escape);
    }

    void whatAControlDoesIsItsTip() {
        MainWindow w;
        for (const ui::CommandButton& button : w.form->cmdSpeciesMove) {
            const QWidget& widget = w.widgetOf(button);
            QVERIFY(widget.toolTip().contains("grades"));
            QCOMPARE(widget.accessibleDescription(), widget.accessibleDescription().trimmed());
            QVERIFY(!widget.accessibleDescription().isEmpty());
        }
        for (const auto* button :
             {&w.form->cmdUpdateSpecies, &w.form->cmdUpdateHabitatTypes, &w.form->cmdUpdateJurisUnits,
              &w.form->cmdUpdateLandUses, &w.form->cmdUpdateFunctions, &w.form->cmdUpdateBins}) {
            QVERIFY2(!w.widgetOf(*button).toolTip().isEmpty(), button->Name().c_str());
        }
    }

    /// The text of a label is as high as that of the box beside it.
    void labelsStandLevelWithTheirBoxes() {
        MainWindow w;
        w.goTo(page::Criteria);
        int seen = 0;
        for (const QLabel* label : w.view->findChildren<QLabel*>()) {
            if (label->buddy() == nullptr || !label->isVisible()) continue;
            const QWidget& box = *label->buddy();
            if (box.y() > label->geometry().bottom()) continue;  // below it
            const int line = label->mapTo(w.view.get(), QPoint(0, label->fontMetrics().height() / 2)).y();
            const int middle = box.mapTo(w.view.get(), box.rect().center()).y();
            QVERIFY2(std::abs(line - middle) <= 1, qPrintable(label->text()));
            ++seen;
        }
        QVERIFY(seen > 1);
    }

    void theFocusGoesBackToACellEditorThatRefusesToClose() {
        SmallForm w;
        bool refuses = true;
        w.grid.ValidateEdit = [&](int, int, bool& cancel) { cancel = refuses; };
        w.show();
        w.widgetOf(w.grid).setFocus();
        w.link.run([&] { w.grid.UserBeginEdit(); });
        QVERIFY(w.grid.Editing());
        QTest::mouseClick(&w.widgetOf(w.box), Qt::LeftButton);
        QVERIFY(w.grid.Editing());
        const QWidget* focused = w.view->focusWidget();
        QVERIFY(focused == &w.widgetOf(w.grid) || w.widgetOf(w.grid).isAncestorOf(focused));
        refuses = false;
        QTest::mouseClick(&w.widgetOf(w.box), Qt::LeftButton);
        QVERIFY(!w.grid.Editing());
        QVERIFY(w.widgetOf(w.box).hasFocus());
    }
};

static const desktop_test::Registered<FormViewTest> registered;

#include "form_view_test.moc"
