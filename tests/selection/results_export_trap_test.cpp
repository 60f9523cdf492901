// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <stdexcept>

#include "support/form_test.h"

namespace {

/// A desktop whose file dialogue may have a defect of its own.
class DefectivePlatform : public ScriptedPlatform {
public:
    bool Defective = false;

    std::optional<std::string> chooseFile(const ui::FileDialogRequest& request) override {
        if (Defective) throw std::logic_error("a slip of the desktop");
        return ScriptedPlatform::chooseFile(request);
    }
};

}  // namespace

TEST(ResultsExportTrap, LetsADefectPassThatIsNoFailureOfTheSystem) {
    DefectivePlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form(platform, files, global);
    const TemporaryFolder folder;
    ProjectText project(2, 2, 1, 1);
    project.set("HeteroHabitat Population", "2,2,1,1").set("HeteroJU Individual", "2,1");
    writeFile(folder.file("project.brn"), project.text());
    platform.Files.emplace_back(folder.file("project.brn"));
    form.mnuOpenProject.UserClick();
    for (int page = 2; page <= 7; ++page) form.tabBrenica.UserSelectTab(page);
    form.cmdComplement.UserClick();
    ASSERT_TRUE(form.cmdExportResults.Enabled());
    platform.Defective = true;
    EXPECT_THROW(form.cmdExportResults.UserClick(), std::logic_error);
}
