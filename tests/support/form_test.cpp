// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/form_test.h"

#include <unistd.h>

#include <atomic>
#include <fstream>
#include <sstream>

TemporaryFolder::TemporaryFolder() {
    static std::atomic<int> made{0};
    const std::string name = "brenica-test-" + std::to_string(getpid()) + "-" + std::to_string(++made);
    path_ = std::filesystem::temp_directory_path() / name;
    std::filesystem::create_directories(path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string readFile(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream) << path;
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

void writeFile(const std::string& path, const std::string& content) {
    std::ofstream stream(path, std::ios::binary);
    stream << content;
    ASSERT_TRUE(stream) << path;
}

void FormTest::openText(const std::string& text) {
    const std::string path = folder.file("project.brn");
    writeFile(path, text);
    if (form.ProjectChanged) platform.Answers.push_front("no");
    platform.Files.push_back(path);
    form.mnuOpenProject.UserClick();
}

std::string FormTest::save() {
    const std::string path = folder.file("saved.brn");
    platform.Files.push_back(path);
    form.mnuSaveProject.UserClick();
    return readFile(path);
}

void FormTest::walkTo(int lastPage) {
    for (int page = 2; page <= lastPage; ++page) goTo(page);
}

void FormTest::type(ui::TextBox& box, const std::string& text) {
    box.UserFocus();
    box.SelStart(0);
    box.SelLength(static_cast<int>(box.Text().size()));
    for (const char character : text) box.UserKey(static_cast<unsigned char>(character));
}

void FormTest::addRows(ui::TextBox& box, ui::CommandButton& button, ui::Grid& grid,
                       const std::vector<std::string>& names) {
    const int first = grid.Rows();
    type(box, std::to_string(names.size()));
    button.UserClick();
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_TRUE(grid.UserEditCell(first + static_cast<int>(i), list::Name, names[i]));
    }
}

void FormTest::addSpecies(const std::vector<std::string>& names) {
    addRows(form.txtTotalSpecies, form.cmdUpdateSpecies, form.flxCandidateSpecies, names);
}
void FormTest::addHabitats(const std::vector<std::string>& names) {
    addRows(form.txtTotalHabitatTypes, form.cmdUpdateHabitatTypes, form.flxHabitatTypes, names);
}
void FormTest::addZones(const std::vector<std::string>& names) {
    addRows(form.txtTotalJurisUnits, form.cmdUpdateJurisUnits, form.flxJurisUnits, names);
}
void FormTest::addActivities(const std::vector<std::string>& names) {
    addRows(form.txtTotalLandUses, form.cmdUpdateLandUses, form.flxLandUses, names);
}

const ShownBox& FormTest::lastBox() const {
    static const ShownBox None{ShownBox::Kind::Message, "", ""};
    if (platform.Transcript.empty()) {
        ADD_FAILURE() << "no box was shown";
        return None;
    }
    return platform.Transcript.back();
}

std::vector<std::string> FormTest::shownTitles() const {
    std::vector<std::string> titles;
    for (const ShownBox& box : platform.Transcript) titles.push_back(box.Title);
    return titles;
}

std::vector<std::string> FormTest::rowOf(const ui::Grid& grid, int row) {
    std::vector<std::string> texts;
    for (int col = 0; col < grid.Cols(); ++col) texts.emplace_back(grid.TextMatrix(row, col));
    return texts;
}

std::vector<std::string> FormTest::columnOf(const ui::Grid& grid, int col) {
    std::vector<std::string> texts;
    for (int row = 0; row < grid.Rows(); ++row) texts.emplace_back(grid.TextMatrix(row, col));
    return texts;
}

std::string reportOf(const std::string& source, int number, const std::string& description) {
    return "Unexpected error in Brenica System.\r\nSource: Brenica." + source +
           "\r\nInternal Error number: " + std::to_string(number) + ".\r\nInternal Error description: \"" +
           description + "\".\r\n";
}
