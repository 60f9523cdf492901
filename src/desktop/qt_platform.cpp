// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFontMetricsF>
#include <QLocale>
#include <QSaveFile>
#include <QScreen>
#include <cerrno>
#include <cmath>

#include "desktop/dialogues.h"
#include "desktop/file_dialogue.h"
#include "desktop/program_files.h"
#include "desktop/texts.h"
#include "ui/errors.h"
#include "ui/files.h"

namespace desktop {

namespace {

constexpr std::size_t MostKnownWidths = 1 << 20;
constexpr double MetresPerInch = 0.0254;

/// The default pointer, for as long as a box is on view.
class PointerLift {
public:
    PointerLift() {
        while (const QCursor* pointer = QApplication::overrideCursor()) {
            lifted_.append(*pointer);
            QApplication::restoreOverrideCursor();
        }
    }
    ~PointerLift() {
        for (const QCursor& pointer : lifted_) QApplication::setOverrideCursor(pointer);
    }
    PointerLift(const PointerLift&) = delete;
    PointerLift& operator=(const PointerLift&) = delete;

private:
    QList<QCursor> lifted_;
};

/// What of a text is longer than any screen counts as wide as what comes before it.
double widthOf(std::string_view text, const QFontMetricsF& metrics) {
    const QString measured = shortText(text);
    const double whole = static_cast<double>(shownText(text).size());
    return metrics.horizontalAdvance(measured) * whole /
           static_cast<double>(std::max<qsizetype>(measured.size(), 1));
}

/// Runs a box on top of windows that show how far the form has come.
template <class Show>
auto withBox(Windows& windows, Show show) {
    windows.followForms();
    const PointerLift lift;
    return show(windows.ownerOfBoxes());
}

}  // namespace

void QtPlatform::showMessage(const std::string& text, const std::string& title, ui::MessageIcon icon) {
    if (boxes_.takes(text)) return;
    withBox(windows_, [&](QWidget* owner) { boxes_.show(owner, text, title, icon); });
}

bool QtPlatform::askYesNo(const std::string& prompt, const std::string& title) {
    return withBox(windows_, [&](QWidget* owner) { return showQuestionBox(owner, prompt, title); });
}

std::string QtPlatform::askText(const std::string& prompt, const std::string& title,
                                const std::string& defaultAnswer) {
    return withBox(windows_,
                   [&](QWidget* owner) { return showInputBox(owner, prompt, title, defaultAnswer); });
}

std::optional<std::string> QtPlatform::chooseFile(const ui::FileDialogRequest& request) {
    return withBox(windows_, [&](QWidget* owner) { return showFileDialogue(owner, request, lastFolder_); });
}

void QtPlatform::beep() { QApplication::beep(); }

/// It tells its resolution, so that it is pasted and printed as large as it is seen.
void QtPlatform::copyPicture(const ui::Chart& chart) {
    QImage picture = windows_.pictureOf(chart).toImage();
    const double dots = QApplication::primaryScreen()->logicalDotsPerInch() * picture.devicePixelRatio();
    picture.setDotsPerMeterX(qRound(dots / MetresPerInch));
    picture.setDotsPerMeterY(qRound(dots / MetresPerInch));
    QApplication::clipboard()->setImage(picture);
}

/// Written to a temporary name and renamed, so that a failure leaves the file as it was.
void QtPlatform::SavePicture(const std::string& path) {
    const QImage picture = QApplication::clipboard()->image();
    if (picture.isNull()) ui::raise(ui::ErrorNumber::InvalidPropertyValue);
    const QString name = QString::fromStdString(path);
    if (!QFileInfo(name).dir().exists()) ui::raise(ui::ErrorNumber::PathNotFound);
    QSaveFile file(name);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly))
        ui::raise(ui::errorFor(errno, ui::ErrorNumber::PathFileAccessError));
    // A commit does not see that its own flush failed.
    if (!picture.save(&file, "BMP") || !file.flush() || !file.commit())
        ui::raise(ui::errorFor(errno, ui::ErrorNumber::DeviceIoError));
}

QtPlatform::Widths& QtPlatform::widthsFor(const ui::Font& font) const {
    for (Widths& widths : widths_) {
        if (widths.Font == font) return widths;
    }
    return widths_.emplace_back(Widths{font});
}

int QtPlatform::textWidth(std::string_view text, const ui::Font& font) const {
    Widths& widths = widthsFor(font);
    const auto known = widths.Known.find(text);
    if (known != widths.Known.end()) return known->second;
    const QFontMetricsF metrics(scale_.font(font));
    const int width = scale_.twips(static_cast<int>(std::ceil(widthOf(text, metrics))));
    if (widths.Known.size() >= MostKnownWidths) widths.Known.clear();
    widths.Known.emplace(text, width);
    return width;
}

ui::Size QtPlatform::screenSize() const {
    const QSize size = QApplication::primaryScreen()->availableSize();
    return {scale_.twips(size.width()), scale_.twips(size.height())};
}

void QtPlatform::setMousePointer(ui::MousePointer pointer) {
    if (pointer == ui::MousePointer::Wait) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtPlatform::processPendingEvents() { windows_.handlePendingEvents(); }

std::string QtPlatform::programFolder() const { return utf8(examplesFolder()); }

ui::DecimalSeparator QtPlatform::decimalSeparator() const {
    return QLocale::system().decimalPoint() == "," ? ui::DecimalSeparator::Comma
                                                   : ui::DecimalSeparator::Point;
}

}  // namespace desktop
