// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "desktop/desktop_test.h"
#include "desktop/form_view.h"
#include "desktop/qt_platform.h"
#include "project/frmBrenica.h"
#include "support/project_text.h"

namespace desktop_test {

class NoWindows : public desktop::Windows {
public:
    void followForms() override {}
    void handlePendingEvents() override {}
    QWidget* ownerOfBoxes() override { return nullptr; }
    QPixmap pictureOf(const ui::Chart&) override { return {}; }
};

/// The main form in its window, measured in the fonts that it is drawn with. Boxes are answered from a list.
struct MainWindow : desktop::FormLink {
    desktop::Scale scaled{QApplication::font()};
    NoWindows windows;
    desktop::QtPlatform measuring{scaled, windows};
    ScriptedPlatform platform;
    ui::Files files;
    modGlobal global;
    std::unique_ptr<frmBrenica> form;
    std::unique_ptr<desktop::FormView> view;

    MainWindow() {
        platform.TextWidth = [this](std::string_view text, const ui::Font& font) {
            return measuring.textWidth(text, font);
        };
        form = std::make_unique<frmBrenica>(platform, files, global);
        view = std::make_unique<desktop::FormView>(*form, *this);
        view->open();
    }

    void run(const std::function<void()>& action) override {
        action();
        if (view != nullptr) view->follow();
    }
    const desktop::Scale& scale() const override { return scaled; }

    QWidget& widgetOf(const ui::Control& control) { return view->viewOf(control)->widget(); }
    void goTo(int page) {
        run([&] { form->tabBrenica.UserSelectTab(page); });
    }
    void open(const ProjectText& project) {
        const QTemporaryDir folder;
        QFile file(folder.filePath("project.brn"));
        (void)file.open(QIODevice::WriteOnly);
        file.write(QByteArray::fromStdString(project.text()));
        file.close();
        platform.Files = {file.fileName().toStdString()};
        run([this] { form->mnuOpenProject.UserClick(); });
    }
};

}  // namespace desktop_test
