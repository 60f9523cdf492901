// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/scale.h"

#include <QFontMetricsF>

#include "desktop/desktop_test.h"

class ScaleTest : public QObject {
    Q_OBJECT

private slots:
    void theDesignsFontIsAsHighAsTheDesktops() {
        for (const int points : {9, 10, 12, 14}) {
            QFont font = QApplication::font();
            font.setPointSize(points);
            const desktop::Scale scale(font);
            QCOMPARE(scale.pixels(160), qRound(QFontMetricsF(font).height()));
        }
    }

    void twipsHoldThePixelsTheyAreGivenFor() {
        const desktop::Scale scale(QApplication::font());
        for (int pixels = 0; pixels < 3000; pixels += 7) QVERIFY(scale.pixels(scale.twips(pixels)) >= pixels);
    }

    void neighboursMeet() {
        desktop_test::Window window;
        ui::Frame left(window.form, "fraLeft");
        ui::Frame right(window.form, "fraRight");
        const desktop::Scale& scale = window.link.scale();
        for (int width = 1; width < 400; ++width) {
            left.Move(13, 7, width, 100);
            right.Move(13 + width, 7, 50, 100);
            QCOMPARE(scale.place(left).right() + 1, scale.place(right).left());
        }
    }

    void otherFontsKeepTheirRatioToTheDesigns() {
        QFont font = QApplication::font();
        font.setPointSize(16);
        const desktop::Scale scale(font);
        const QFont title = scale.font({.Name = "Arial", .Size = 11});
        QCOMPARE(title.pointSizeF(), 22.0);
        QCOMPARE(title.family(), QString("Arial"));
        QVERIFY(scale.font({.Bold = true}).bold());
        QCOMPARE(scale.font({}).family(), font.family());
    }
};

static const desktop_test::Registered<ScaleTest> registered;

#include "scale_test.moc"
