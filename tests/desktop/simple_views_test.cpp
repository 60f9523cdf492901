// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/simple_views.h"

#include <QLineEdit>

#include "desktop/desktop_test.h"
#include "ui/control_array.h"

namespace {

/// Lets all its views follow.
class ViewsLink : public desktop::FormLink {
public:
    void run(const std::function<void()>& action) override {
        action();
        for (desktop::View* view : Views) view->follow();
    }
    const desktop::Scale& scale() const override { return scale_; }

    std::vector<desktop::View*> Views;

private:
    desktop::Scale scale_{QApplication::font()};
};

/// A shown window with the view of one control of each kind.
struct ViewsWindow {
    ScriptedPlatform platform;
    ui::FormWindow form{platform, "frmTest"};
    ui::CommandButton button{form, "cmdTest", {.Caption = "Search & <b>go</b>\rnow", .AccessKey = 'g'}};
    ui::CheckBox check{form, "chkTest", false, {.Caption = "Show", .AccessKey = 'S'}};
    ui::ControlArray<ui::OptionButton> options{
        form, "optTest", {{.Caption = "One"}, {.Caption = "Two"}, {.Caption = "Three"}}};
    ui::ControlArray<ui::OptionButton> others{form, "optOther", 1};
    ui::Label label{form, "lblTest", {.Caption = "<b>Ash</b> & oak\rbirch"}};
    ui::Frame frame{form, "fraTest", {.Caption = "Ash & oak"}};
    ViewsLink link;
    QWidget window;
    desktop::CommandButtonView buttonView{button, link, &window};
    desktop::CheckBoxView checkView{check, link, &window};
    QList<desktop::OptionButtonView*> optionViews;
    desktop::LabelView labelView{label, link, &window};
    desktop::CaptionedFrameView frameView{frame, &window};
    QStringList log;

    ViewsWindow() {
        for (ui::OptionButton& option : options)
            optionViews << new desktop::OptionButtonView(option, link, &window);
        optionViews << new desktop::OptionButtonView(others(0), link, &window);
        link.Views = {&buttonView, &checkView, &labelView, &frameView};
        for (desktop::OptionButtonView* view : optionViews) link.Views.push_back(view);
        button.Click = [this] { log << "button"; };
        check.Click = [this] { log << "check"; };
        for (int i = 0; i < options.Count(); ++i)
            options(i).Click = [this, i] { log << QString("option %1").arg(i); };
        link.run([] {});
        window.resize(300, 300);
        window.show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
    }

    QString chosen() const {
        QString values;
        for (const desktop::OptionButtonView* view : optionViews) values += view->isChecked() ? '1' : '0';
        return values;
    }
    void focus(int option) { optionViews[option]->setFocus(); }
    void key(Qt::Key code) { QTest::keyClick(window.focusWidget(), code); }
};

}  // namespace

class SimpleViewsTest : public QObject {
    Q_OBJECT

private slots:
    void aButtonIsClickedByMouseBlankAndEnter() {
        ViewsWindow w;
        QTest::mouseClick(&w.buttonView, Qt::LeftButton);
        QCOMPARE(w.log.size(), 1);
        QTest::keyClick(&w.buttonView, Qt::Key_Space);
        QCOMPARE(w.log.size(), 2);
        QTest::keyClick(&w.buttonView, Qt::Key_Return);
        QTest::keyClick(&w.buttonView, Qt::Key_Enter);
        QCOMPARE(w.log.size(), 4);
    }

    void anAccessKeyClicks() {
        ViewsWindow w;
        QTest::keyClick(&w.window, Qt::Key_G, Qt::AltModifier);
        QTRY_COMPARE(w.log, QStringList("button"));
        QTest::keyClick(&w.window, Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(w.log, QStringList({"button", "check"}));
        QVERIFY(w.checkView.isChecked());
    }

    void captionsAreShownPlain() {
        ViewsWindow w;
        QCOMPARE(w.buttonView.text(), QString("Search && <b>&go</b>\nnow"));
        QCOMPARE(w.labelView.text(), QString("<b>Ash</b> & oak\nbirch"));
        QCOMPARE(w.labelView.textFormat(), Qt::PlainText);
        QCOMPARE(w.frameView.title().trimmed(), QString("Ash && oak"));
    }

    void aCheckBoxShowsWhatTheFormSays() {
        ViewsWindow w;
        QTest::mouseClick(&w.checkView, Qt::LeftButton, {}, QPoint(8, w.checkView.height() / 2));
        QVERIFY(w.check.Value());
        QVERIFY(w.checkView.isChecked());
        w.check.Click = [&] {
            if (w.check.Value()) w.check.Value(false);
        };
        w.link.run([&] { w.check.Value(false); });
        QTest::keyClick(&w.checkView, Qt::Key_Space);
        QVERIFY(!w.check.Value());
        QVERIFY(!w.checkView.isChecked());
    }

    void aClickThatDoesNotTakePlaceChangesNothing() {
        ViewsWindow w;
        w.form.Enabled(false);  // in the form only, so that the widgets take the click
        w.link.Views.clear();   // as no control has changed
        w.checkView.click();
        w.optionViews[1]->click();
        w.buttonView.click();
        QVERIFY(!w.checkView.isChecked());
        QCOMPARE(w.chosen(), QString("0000"));
        QCOMPARE(w.log, QStringList());
    }

    void anOptionButtonThatIsOnIsClickedAgain() {
        ViewsWindow w;
        w.optionViews[1]->click();
        w.optionViews[1]->click();
        QCOMPARE(w.chosen(), QString("0100"));
        QCOMPARE(w.log, QStringList({"option 1", "option 1"}));
    }

    void arrowsChooseTheNextButtonOfTheArray() {
        ViewsWindow w;
        w.focus(0);
        w.key(Qt::Key_Right);
        QCOMPARE(w.chosen(), QString("0100"));
        QVERIFY(w.optionViews[1]->hasFocus());
        w.key(Qt::Key_Down);
        w.key(Qt::Key_Down);
        QCOMPARE(w.chosen(), QString("0010"));
        QVERIFY(w.optionViews[2]->hasFocus());
        w.key(Qt::Key_Left);
        w.key(Qt::Key_Up);
        w.key(Qt::Key_Up);
        QCOMPARE(w.chosen(), QString("1000"));
        QCOMPARE(w.log, QStringList({"option 1", "option 2", "option 1", "option 0"}));
    }

    void arrowsPassDisabledAndHiddenButtons() {
        ViewsWindow w;
        w.optionViews[1]->setEnabled(false);
        w.focus(0);
        w.key(Qt::Key_Right);
        QCOMPARE(w.chosen(), QString("0010"));
        w.optionViews[1]->setEnabled(true);
        w.optionViews[1]->hide();
        w.key(Qt::Key_Left);
        QCOMPARE(w.chosen(), QString("1000"));
    }

    void anArrowThatTheFormRefusesLeavesTheOldButtonOn() {
        ViewsWindow w;
        w.optionViews[0]->click();
        w.options(1).Click = [&] { w.options(0).Value(true); };
        w.focus(0);
        w.key(Qt::Key_Right);
        QCOMPARE(w.chosen(), QString("1000"));
    }

    void buttonsHaveOneTabStopForEachControl() {
        ViewsWindow w;
        QVERIFY((w.buttonView.focusPolicy() & Qt::TabFocus) != 0);
        QVERIFY((w.labelView.focusPolicy() & Qt::TabFocus) == 0);
        QVERIFY((w.frameView.focusPolicy() & Qt::TabFocus) == 0);
    }

    void aLabelIsDrawnInItsColourAndFont() {
        desktop_test::Window w;
        ui::Label label(w.form, "lblTest", {.Caption = "Text"});
        label.ForeColor = ui::rgb(1, 2, 3);
        label.TextFont = {.Size = 16, .Bold = true};
        label.Alignment = ui::CellAlign::RightCentre;
        QWidget window;
        const desktop::LabelView view(label, w.link, &window);
        QCOMPARE(view.palette().color(QPalette::WindowText), QColor(1, 2, 3));
        QVERIFY(view.font().bold());
        QCOMPARE(view.font().pointSizeF(), QApplication::font().pointSizeF() * 2);
        QVERIFY(view.alignment().testFlag(Qt::AlignRight));
    }

    void aPictureIsDrawnFromTheResources() {
        desktop_test::Window w;
        ui::Picture picture(w.form, "imgSplash");
        ui::Picture none(w.form, "imgNone");
        QWidget window;
        desktop::PictureView view(picture, &window);
        desktop::PictureView empty(none, &window);
        const auto colours = [](QWidget& widget) {
            widget.resize(60, 40);
            const QImage image = widget.grab().toImage();
            QSet<QRgb> found;
            for (int x = 0; x < image.width(); ++x) {
                for (int y = 0; y < image.height(); ++y) found.insert(image.pixel(x, y));
            }
            return found.size();
        };
        QVERIFY(colours(view) > 1);
        QCOMPARE(colours(empty), 1);
    }
};

static const desktop_test::Registered<SimpleViewsTest> registered;

#include "simple_views_test.moc"
