// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_view.h"

#include "desktop/desktop_test.h"

static QImage asPixels(const QPixmap& picture) { return picture.toImage().convertToFormat(QImage::Format_RGB32); }

class ChartViewTest : public QObject {
    Q_OBJECT

private slots:
    void pictureIsWhatIsSeen() {
        desktop_test::Window window;
        ui::Chart chart(window.form, "cht");
        chart.ChartData({{"a", "1"}, {"b", "2"}});
        desktop::ChartView view(chart, window.link, nullptr);
        view.resize(400, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QVERIFY(asPixels(view.picture()) == asPixels(view.grab()));
    }
};

static const desktop_test::Registered<ChartViewTest> registered;

#include "chart_view_test.moc"
