// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/file_dialogue.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/box_user.h"
#include "desktop/desktop_test.h"
#include "desktop/program_files.h"
#include "desktop/texts.h"

using desktop::utf8;
using desktop_test::click;
using desktop_test::press;
using desktop_test::User;

namespace {

/// File dialogues that are looked at and answered.
struct FileBox {
    QTemporaryDir folder;
    QString lastFolder;
    ui::FileDialogRequest request{ui::FileDialogKind::Save, "", "Text Files (*.txt)|*.txt", "txt", "", 6};
    QString filters;
    QString directory;

    FileBox() { request.InitDir = folder.path().toStdString(); }

    QString path(const char* name) const { return QDir(folder.path()).filePath(name); }
    void write(const char* name, const char* content) const {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    User::Step look() {
        return [this](QWidget& box) {
            const auto& dialogue = dynamic_cast<QFileDialog&>(box);
            filters = dialogue.nameFilters().join('|');
            directory = dialogue.directory().absolutePath();
            return true;
        };
    }
    static User::Step choose(const QString& name) {
        return [name](QWidget& box) {
            auto* edit = box.findChild<QLineEdit*>("fileNameEdit");
            if (edit == nullptr) return false;
            edit->setText(name);
            static_cast<QDialog&>(box).accept();
            return true;
        };
    }
    static User::Step cancel() { return press(Qt::Key_Escape); }
    std::optional<std::string> show() { return desktop::showFileDialogue(nullptr, request, lastFolder); }
};

}  // namespace

class FileDialogueTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void aFileDialogueOpensWithFilterAndFolder() {
        FileBox w;
        User user({w.look(), FileBox::cancel()});
        QVERIFY(!w.show().has_value());
        QCOMPARE(w.filters, QString("Text Files (*.txt)"));
        QCOMPARE(w.directory, QDir(w.folder.path()).absolutePath());
    }

    void aNameWithoutAnExtensionGetsTheDefaultOne() {
        for (const char* extension : {"txt", ".txt"}) {
            FileBox w;
            w.request.DefaultExt = extension;
            User user({FileBox::choose("result")});
            QCOMPARE(QString::fromStdString(w.show().value_or("")), w.path("result.txt"));
        }
        FileBox w;
        User user({FileBox::choose("result.brn")});
        QCOMPARE(QString::fromStdString(w.show().value_or("")), w.path("result.brn.txt"));
        User dotted({FileBox::choose("scores v1.2")});
        QCOMPARE(QString::fromStdString(w.show().value_or("")), w.path("scores v1.2.txt"));
        User spelled({FileBox::choose("SCORES.TXT")});
        QCOMPARE(QString::fromStdString(w.show().value_or("")), w.path("SCORES.TXT"));
    }

    void aFolderThatIsNotThereIsToldAndAskedForAgain() {
        FileBox w;
        int told = 0;
        const User::Step reading = [&told](QWidget& box) {
            if (qobject_cast<QFileDialog*>(&box) != nullptr) return false;
            told += box.accessibleDescription().contains("nowhere") ? 1 : 0;
            return click(QDialogButtonBox::Ok)(box);
        };
        User user({FileBox::choose("nowhere/result.txt"), reading, FileBox::choose("result.txt")});
        QCOMPARE(QString::fromStdString(w.show().value_or("")), w.path("result.txt"));
        QCOMPARE(told, 1);
    }

    void theProposedNameIsTheChoice() {
        FileBox w;
        w.request.FileName = "Proposed";
        User user({[](QWidget& box) {
            static_cast<QDialog&>(box).accept();
            return true;
        }});
        QCOMPARE(QString::fromStdString(w.show().value_or("")), w.path("Proposed.txt"));
    }

    void overwritingIsAskedForAndMayBeRefused() {
        FileBox w;
        w.write("old.txt", "old");
        int questions = 0;
        const auto answer = [&](QDialogButtonBox::StandardButton button) -> User::Step {
            return [&questions, button](QWidget& box) {
                if (qobject_cast<QFileDialog*>(&box) != nullptr) return false;
                ++questions;
                return click(button)(box);
            };
        };
        User refusing({FileBox::choose("old.txt"), answer(QDialogButtonBox::No), FileBox::cancel()});
        QVERIFY(!w.show().has_value());
        QCOMPARE(questions, 1);
        User agreeing({FileBox::choose("old.txt"), answer(QDialogButtonBox::Yes)});
        QCOMPARE(QString::fromStdString(w.show().value_or("")), w.path("old.txt"));
        QCOMPARE(questions, 2);
    }

    void withoutTheFlagOverwritingIsNotAskedFor() {
        FileBox w;
        w.write("old.txt", "old");
        w.request.Flags = 4;
        User user({FileBox::choose("old.txt")});
        QCOMPARE(QString::fromStdString(w.show().value_or("")), w.path("old.txt"));
    }

    void theFolderOfTheLastChoiceIsWhereTheNextDialogueOpens() {
        FileBox w;
        w.write("there.txt", "");
        w.request.Kind = ui::FileDialogKind::Open;
        User choosing({FileBox::choose("there.txt")});
        QVERIFY(w.show().has_value());
        w.request.InitDir.clear();
        User looking({w.look(), FileBox::cancel()});
        QVERIFY(!w.show().has_value());
        QCOMPARE(w.directory, QDir(w.folder.path()).absolutePath());
        QCOMPARE(w.lastFolder, QDir(w.folder.path()).absolutePath());
    }

    void filesAreNotSavedAmongTheExamples() {
        FileBox w;
        const QString examples = desktop::examplesFolder();
        const auto begunIn = [&w] {
            User user({w.look(), FileBox::cancel()});
            w.show();
            return w.directory;
        };
        w.lastFolder = w.folder.path();
        w.request.FileName = utf8(QDir(examples).filePath("small_landscape.brn"));
        w.request.InitDir = utf8(examples);
        QCOMPARE(begunIn(), QDir(w.folder.path()).absolutePath());
        w.lastFolder = examples;
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        QCOMPARE(begunIn(), QDir(documents).exists() ? documents : QDir::homePath());
        w.request.Kind = ui::FileDialogKind::Open;
        QCOMPARE(begunIn(), QDir(examples).absolutePath());
    }

    void aCancelledDialogueKeepsTheFolder() {
        FileBox w;
        w.lastFolder = "/kept";
        User user({FileBox::cancel()});
        QVERIFY(!w.show().has_value());
        QCOMPARE(w.lastFolder, QString("/kept"));
    }

    void aProposedPathOpensItsOwnFolder() {
        FileBox w;
        const QTemporaryDir other;
        w.request.FileName = QDir(other.path()).filePath("project.brn").toStdString();
        User user({w.look(), FileBox::cancel()});
        QVERIFY(!w.show().has_value());
        QCOMPARE(w.directory, QDir(other.path()).absolutePath());
    }

    void openTakesOnlyFilesThatAreThere() {
        FileBox w;
        w.request.Kind = ui::FileDialogKind::Open;
        bool warned = false;
        User user({FileBox::choose("missing.txt"),
                   [&](QWidget& box) {
                       if (qobject_cast<QMessageBox*>(&box) == nullptr) return false;
                       warned = true;
                       QTest::keyClick(&box, Qt::Key_Escape);
                       return true;
                   },
                   FileBox::cancel()});
        QVERIFY(!w.show().has_value());
        QVERIFY(warned);
    }

    void noFileIsRenamedOrDeletedByASlip() {
        FileBox w;
        w.write("there.txt", "");
        bool asked = false;
        User user({[&](QWidget& box) {
            QList<QAbstractItemView*> views = box.findChildren<QAbstractItemView*>();
            views.removeIf([](const QAbstractItemView* view) {
                return !view->isVisible() || view->objectName() == "sidebar";
            });
            QAbstractItemView* files = views.value(0);
            if (files == nullptr || files->model()->rowCount(files->rootIndex()) == 0) return false;
            files->setFocus();
            files->setCurrentIndex(files->model()->index(0, 0, files->rootIndex()));
            QTimer::singleShot(0, &box, [&] {  // where a box would ask
                QWidget* top = QApplication::activeModalWidget();
                asked = asked || top != &box;
                if (top != &box) static_cast<QDialog*>(top)->reject();
            });
            for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Delete}) QTest::keyClick(files, key);
            QCoreApplication::processEvents();
            asked = asked || files->findChild<QLineEdit*>() != nullptr;
            for (const auto* action : box.findChildren<QAction*>())
                asked = asked || (action->isVisible() && action->objectName().contains("delete"));
            static_cast<QDialog&>(box).reject();
            return true;
        }});
        QVERIFY(!w.show().has_value());
        QVERIFY(user.done());
        QVERIFY(!asked);
    }
};

static const desktop_test::Registered<FileDialogueTest> registered;

#include "file_dialogue_test.moc"
