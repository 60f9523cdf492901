// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyleOption>

#include "desktop/main_window.h"
#include "support/form_views.h"
#include "ui/combo_box.h"

using desktop_test::MainWindow;

namespace {

constexpr int TextGap = 2;         // left of a text that leaves it
constexpr int LineEditMargin = 2;  // Qt's own, inside the text margins
constexpr int TabFrame = 2;

QString describe(const QWidget& widget) {
    const QRect place = widget.geometry();
    return QString("%1 at %2,%3 %4x%5")
        .arg(widget.objectName())
        .arg(place.left())
        .arg(place.top())
        .arg(place.width())
        .arg(place.height());
}

/// What widgets have and what their texts need, as the style draws them.
class Fit {
public:
    explicit Fit(QStringList& faults) : faults_(faults) {}

    void button(const QAbstractButton& widget, QStyle::SubElement contents) {
        QStyleOptionButton option;
        option.initFrom(&widget);
        option.text = widget.text();
        const QSize needed = widget.fontMetrics().size(Qt::TextShowMnemonic, widget.text());
        require(widget, widget.style()->subElementRect(contents, &option, &widget).size(), needed);
    }

    void label(const QLabel& widget) {
        if (widget.text().isEmpty()) return;
        const int flags = Qt::TextWordWrap | (widget.buddy() != nullptr ? Qt::TextShowMnemonic : 0);
        const QRect text = widget.fontMetrics().boundingRect(
            QRect(0, 0, widget.contentsRect().width(), 1 << 20), flags, widget.text());
        require(widget, widget.contentsRect().size(), text.size());
    }

    void lineEdit(const QLineEdit& widget, const QString& longest) {
        QStyleOptionFrame option;
        option.initFrom(&widget);
        option.lineWidth = widget.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &widget);
        const QRect contents = widget.style()->subElementRect(QStyle::SE_LineEditContents, &option, &widget);
        const QSize room =
            contents.marginsRemoved(widget.textMargins()).size() - QSize(2 * LineEditMargin - TextGap, 0);
        const QFontMetrics metrics = widget.fontMetrics();
        require(widget, room, {metrics.horizontalAdvance(longest) + 1, metrics.height()});
    }

    void comboBox(const QComboBox& widget) {
        QStyleOptionComboBox option;
        option.initFrom(&widget);
        const QRect field = widget.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                           QStyle::SC_ComboBoxEditField, &widget);
        for (int i = 0; i < widget.count(); ++i)
            require(widget, field.size() - QSize(2, 0), widget.fontMetrics().size(0, widget.itemText(i)));
    }

    void frame(const QGroupBox& widget) {
        QStyleOptionGroupBox option;
        option.initFrom(&widget);
        option.text = widget.title();
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        option.lineWidth = 1;
        const QRect title =
            widget.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &widget);
        const QRect ink = widget.fontMetrics().boundingRect(widget.title().trimmed());
        require(widget, title.size(), {ink.right() + 1, widget.fontMetrics().height()});
        for (const QObject* child : widget.children()) {
            const auto* below = qobject_cast<const QWidget*>(child);
            if (below == nullptr || !below->isVisibleTo(&widget)) continue;
            if (below->geometry().intersects(title)) faults_ << describe(*below) + " on the caption";
        }
    }

    void tab(const QAbstractButton& widget) {
        require(widget, widget.size() - QSize(2 * TabFrame, 2 * TabFrame),
                widget.fontMetrics().size(Qt::TextShowMnemonic, widget.text()));
    }

    void tabs(const QWidget& strip) {
        const QList<QAbstractButton*> all =
            strip.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
        for (qsizetype i = 0; i < all.size(); ++i) {
            tab(*all[i]);
            if (!strip.rect().contains(all[i]->geometry()))
                faults_ << describe(*all[i]) + " leaves its strip";
            for (qsizetype k = 0; k < i; ++k) {
                if (all[k]->geometry().intersects(all[i]->geometry()))
                    faults_ << describe(*all[k]) + " lies on " + describe(*all[i]);
            }
        }
    }

    void menuBar(const QMenuBar& menus) {
        for (QAction* menu : menus.actions()) {
            if (!menus.rect().contains(menus.actionGeometry(menu)))
                faults_ << menu->text() + " leaves the menu bar";
        }
    }

private:
    void require(const QWidget& widget, QSize room, QSize needed) {
        if (needed.width() <= room.width() && needed.height() <= room.height()) return;
        faults_ << QString("%1 has room for %2x%3, needs %4x%5")
                       .arg(describe(widget))
                       .arg(room.width())
                       .arg(room.height())
                       .arg(needed.width())
                       .arg(needed.height());
    }

    QStringList& faults_;
};

/// The faults of what is on view in a window.
class ViewCheck {
public:
    ViewCheck(MainWindow& window, QStringList& faults) : window_(window), faults_(faults), fit_(faults) {}

    void run() {
        fit_.menuBar(*window_.view->findChild<QMenuBar*>());
        const std::vector<ui::Control*> shown = form_views::shownControls(*window_.form);
        for (const ui::Control* control : shown) {
            const QWidget& widget = window_.widgetOf(*control);
            if (!widget.isVisible()) faults_ << describe(widget) + " is not on view";
            place(*control, widget);
            texts(*control, widget);
        }
        for (std::size_t i = 0; i < shown.size(); ++i) {
            for (std::size_t k = 0; k < i; ++k) siblings(*shown[i], *shown[k]);
        }
    }

private:
    void place(const ui::Control& control, const QWidget& widget) {
        QRect room = widget.parentWidget()->rect();
        if (const auto* strip = dynamic_cast<const ui::TabStrip*>(&control.Container()))
            room.setTop(window_.scaled.pixels(strip->HeaderHeight()));
        const QRect shown = widget.geometry();
        if (shown.isEmpty() || !room.contains(shown))
            faults_ << QString("%1 leaves its container %2x%3")
                           .arg(describe(widget))
                           .arg(room.width())
                           .arg(room.height());
    }

    void siblings(const ui::Control& one, const ui::Control& other) {
        if (&one.Container() != &other.Container()) return;
        const QWidget& a = window_.widgetOf(one);
        const QWidget& b = window_.widgetOf(other);
        if (a.geometry().intersects(b.geometry())) faults_ << describe(a) + " lies on " + describe(b);
    }

    void texts(const ui::Control& control, const QWidget& widget) {
        using ui::ControlKind;
        const auto& button = [&]() -> const QAbstractButton& {
            return dynamic_cast<const QAbstractButton&>(widget);
        };
        switch (control.Kind()) {
            case ControlKind::CommandButton: return fit_.button(button(), QStyle::SE_PushButtonContents);
            case ControlKind::CheckBox: return fit_.button(button(), QStyle::SE_CheckBoxContents);
            case ControlKind::OptionButton: return fit_.button(button(), QStyle::SE_RadioButtonContents);
            case ControlKind::Label: return fit_.label(dynamic_cast<const QLabel&>(widget));
            case ControlKind::ComboBox: return fit_.comboBox(dynamic_cast<const QComboBox&>(widget));
            case ControlKind::TabStrip: return fit_.tabs(widget);
            case ControlKind::TextBox: {
                const auto& box = static_cast<const ui::TextBox&>(control);
                return fit_.lineEdit(dynamic_cast<const QLineEdit&>(widget),
                                     QString::fromStdString(form_views::longestText(*window_.form, box)));
            }
            default: break;
        }
        if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) fit_.frame(*box);
    }

    MainWindow& window_;
    QStringList& faults_;
    Fit fit_;
};

/// The desktop's font in a number of pixels, for as long as it lives.
class DesktopFont {
public:
    explicit DesktopFont(int pixels) {
        QFont font = before_;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
    }
    ~DesktopFont() { QApplication::setFont(before_); }
    DesktopFont(const DesktopFont&) = delete;
    DesktopFont& operator=(const DesktopFont&) = delete;

private:
    QFont before_ = QApplication::font();
};

/// As a desktop with such a screen does it; the test's own screen is a small one.
void maximise(QWidget& window, QSize size) {
    window.resize(size);
    window.overrideWindowState(Qt::WindowMaximized);
    QResizeEvent resized(size, size);
    QApplication::sendEvent(&window, &resized);
}

QStringList faultsOfEveryView(MainWindow& window, const QString& what) {
    QStringList faults;
    form_views::onEveryView(*window.form, [&](const std::string& view) {
        window.view->follow();
        QStringList found;
        ViewCheck(window, found).run();
        for (const QString& fault : found)
            faults << what + ", " + QString::fromStdString(view) + ": " + fault;
    });
    return faults;
}

}  // namespace

class LayoutTest : public QObject {
    Q_OBJECT

private slots:
    void everyViewIsWholeAndReadable_data() {
        QTest::addColumn<int>("pixels");
        QTest::addColumn<QString>("style");
        for (const int dotsPerInch : {96, 144, 192}) {
            for (const int points : {9, 10, 12, 14}) {
                QTest::addRow("%d points at %d dots per inch", points, dotsPerInch)
                    << qRound(points * dotsPerInch / 72.0) << "Fusion";
            }
        }
        for (const int pixels : {12, 17, 30})
            QTest::addRow("%d pixels in another style", pixels) << pixels << "Windows";
    }

    void everyViewIsWholeAndReadable() {
        QFETCH(int, pixels);
        QFETCH(QString, style);
        QApplication::setStyle(style);
        const auto takeBack = qScopeGuard([] { QApplication::setStyle("Fusion"); });
        const DesktopFont font(pixels);
        MainWindow window;
        window.open(ProjectText(12, 30, 8, 25)
                        .set("HeteroHabitat Population", repeated("2", 12 * 30))
                        .set("HeteroJU Individual", repeated("2", 12 * 8)));
        QStringList faults;
        for (const QSize size : {QSize(1366, 768), QSize(1920, 1080), QSize(3840, 2160)}) {
            maximise(*window.view, size);
            QCOMPARE(window.form->WindowState(), ui::WindowState::Maximized);
            faults += faultsOfEveryView(window, QString("%1x%2").arg(size.width()).arg(size.height()));
        }
        window.view->showNormal();
        window.run([&] { window.form->UserResize(ui::WindowState::Normal, 0, 0, 100, 100); });
        faults += faultsOfEveryView(window, "least");
        for (const QString& fault : faults) qWarning().noquote() << fault;
        QCOMPARE(faults.size(), 0);
    }

    void aScreenTooSmallForTheFormIsScrolled() {
        const DesktopFont font(30);
        MainWindow window;
        window.view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.view.get()));
        const auto& area = *window.view->findChild<QScrollArea*>();
        maximise(*window.view, {1366, 768});
        const QScrollBar& bar = *area.verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        QVERIFY(area.widget()->width() > area.viewport()->width());
        QWidget& last = window.widgetOf(window.form->cmdSpeciesMove(1));
        window.widgetOf(window.form->cmdSpeciesMove(0)).setFocus();
        QTest::keyClick(window.view->focusWidget(), Qt::Key_Tab);
        QVERIFY(last.hasFocus());
        QVERIFY(area.viewport()->rect().contains(QRect(last.mapTo(area.viewport(), QPoint()), last.size())));
    }

    void aScreenThatHoldsTheFormIsNot() {
        const DesktopFont font(12);
        MainWindow window;
        maximise(*window.view, {1366, 768});
        const auto& area = *window.view->findChild<QScrollArea*>();
        QCOMPARE(area.widget()->size(), area.size());
        QVERIFY(!area.verticalScrollBar()->isVisible());
        QVERIFY(!area.horizontalScrollBar()->isVisible());
    }
};

static const desktop_test::Registered<LayoutTest> registered;

#include "layout_test.moc"
