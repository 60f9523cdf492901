// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/tab_strip_view.h"

#include <QTextDocument>

#include "desktop/desktop_test.h"

namespace {

struct StripWindow : desktop_test::Window {
    ui::TabStrip strip{form,
                       "tabTest",
                       {{"Ash & oak", "", "<i>tip</i>"}, {"Birch"}, {"A tab with a long caption "}, {"Yew"}}};
    QWidget window;
    std::unique_ptr<desktop::TabStripView> view;
    QList<int> clicks;

    StripWindow() {
        strip.Move(0, 0, 4000, 3000);
        strip.Click = [this] { clicks << strip.SelectedItem(); };
        view = std::make_unique<desktop::TabStripView>(strip, link, &window);
        link.Followed = view.get();
        view->setGeometry(link.scale().place(strip));
        view->follow();
        window.resize(view->size());
        window.show();
        window.activateWindow();
        (void)QTest::qWaitForWindowActive(&window);
    }

    QAbstractButton& tab(int index) const {
        return *view->findChild<QAbstractButton*>(QString("tabTest.%1").arg(index));
    }
    QString checked() const {
        QString values;
        for (int i = 1; i <= 4; ++i) values += tab(i).isChecked() ? '1' : '0';
        return values;
    }
    void key(Qt::Key code) { QTest::keyClick(window.focusWidget(), code); }
};

}  // namespace

class TabStripViewTest : public QObject {
    Q_OBJECT

private slots:
    void tabsStandInThePlacesOfTheForm() {
        StripWindow w;
        const desktop::Scale& scale = w.link.scale();
        const std::vector<ui::TabPlace> places = w.strip.TabPlaces();
        QVERIFY(places.back().Top > 0);
        for (int i = 0; i < 4; ++i) {
            const ui::TabPlace& place = places[static_cast<std::size_t>(i)];
            const QRect shown = w.tab(i + 1).geometry();
            QCOMPARE(shown.topLeft(), QPoint(scale.pixels(place.Left), scale.pixels(place.Top)));
            QCOMPARE(shown.right() + 1, scale.pixels(place.Left + place.Width));
            QCOMPARE(shown.bottom() + 1, scale.pixels(place.Top + place.Height));
        }
    }

    void placesFollowTheWidthOfTheStrip() {
        StripWindow w;
        w.link.run([&] { w.strip.Width(20000); });
        QCOMPARE(w.tab(4).y(), 0);
    }

    void captionsAndTipsAreShownPlain() {
        StripWindow w;
        QCOMPARE(w.tab(1).text(), QString("Ash && oak"));
        QCOMPARE(w.tab(1).accessibleName(), QString("Ash & oak"));
        QCOMPARE(w.tab(3).accessibleName(), QString("A tab with a long caption"));
        QTextDocument tip;
        tip.setHtml(w.tab(1).toolTip());
        QCOMPARE(tip.toPlainText(), QString("<i>tip</i>"));
    }

    void aClickSelectsAlsoTheTabThatIsSelected() {
        StripWindow w;
        QTest::mouseClick(&w.tab(3), Qt::LeftButton);
        QTest::mouseClick(&w.tab(3), Qt::LeftButton);
        QCOMPARE(w.clicks, QList<int>({3, 3}));
        QCOMPARE(w.checked(), QString("0010"));
    }

    void arrowsGoFromTabToTabAndStopAtTheEnds() {
        StripWindow w;
        w.tab(1).setFocus();
        w.key(Qt::Key_Left);
        QCOMPARE(w.clicks, QList<int>());
        for (int i = 0; i < 5; ++i) w.key(Qt::Key_Right);
        QCOMPARE(w.clicks, QList<int>({2, 3, 4}));
        QVERIFY(w.tab(4).hasFocus());
        w.key(Qt::Key_Left);
        QVERIFY(w.tab(3).hasFocus());
        QCOMPARE(w.checked(), QString("0010"));
    }

    void aTabThatCannotBeLeftStays() {
        StripWindow w;
        w.strip.Click = [&] {
            if (w.strip.SelectedItem() != 1) w.strip.SelectedItem(1);
        };
        QTest::mouseClick(&w.tab(2), Qt::LeftButton);
        QCOMPARE(w.checked(), QString("1000"));
        w.tab(1).setFocus();
        w.key(Qt::Key_Right);
        QCOMPARE(w.checked(), QString("1000"));
        QVERIFY(w.tab(1).hasFocus());
    }

    void aClickThatDoesNotTakePlaceChangesNoTab() {
        StripWindow w;
        w.form.Enabled(false);
        w.link.Followed = nullptr;  // as the control has not changed
        w.tab(2).click();
        QCOMPARE(w.checked(), QString("1000"));
    }

    void onlyTheSelectedTabIsReachedByTheTabKey() {
        StripWindow w;
        w.link.run([&] { w.strip.SelectedItem(2); });
        for (int i = 1; i <= 4; ++i) QCOMPARE((w.tab(i).focusPolicy() & Qt::TabFocus) != 0, i == 2);
    }

    void aCaptionIsDrawnWholeInItsTab() {
        StripWindow w;
        // As wide as its text needs: the outermost letters must be there.
        QWidget& tab = w.tab(2);
        const QFontMetrics metrics = tab.fontMetrics();
        const QImage whole = tab.grab().toImage();
        tab.resize(metrics.horizontalAdvance("Birch") + 4, tab.height());
        const QImage narrow = tab.grab().toImage();
        const auto ink = [](const QImage& image, int from, int to) {
            int dark = 0;
            for (int x = from; x < to; ++x) {
                for (int y = 8; y < image.height() - 6; ++y) dark += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
            }
            return dark;
        };
        QVERIFY(ink(whole, 0, whole.width()) > 0);
        QVERIFY(ink(narrow, 2, narrow.width() - 2) >= ink(whole, 4, whole.width() - 4) * 9 / 10);
    }
};

static const desktop_test::Registered<TabStripViewTest> registered;

#include "tab_strip_view_test.moc"
