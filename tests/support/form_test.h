// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "project/frmBrenica.h"
#include "scripted/scripted_platform.h"
#include "support/project_text.h"

/// A folder of a test's own, gone after it.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    std::string path() const { return path_.string(); }

private:
    std::filesystem::path path_;
};

std::string readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& content);

/// A running form on a scripted platform. Tests act as a user does and read the grids as a user would.
class FormTest : public testing::Test {
protected:
    ScriptedPlatform platform;
    ui::Files files;
    modGlobal global;
    frmBrenica form{platform, files, global};
    TemporaryFolder folder;

    /// Opens a project through the menu; the save question, if it comes, is answered No.
    void open(const ProjectText& project) { openText(project.text()); }
    void openText(const std::string& text);
    /// Saves through the menu and returns the file's content.
    std::string save();
    void goTo(int page) { form.tabBrenica.UserSelectTab(page); }
    /// Walks the pages from 2 to `lastPage`.
    void walkTo(int lastPage);

    /// Adds rows to a list by its box and button, then types the names.
    void addSpecies(const std::vector<std::string>& names);
    void addHabitats(const std::vector<std::string>& names);
    void addZones(const std::vector<std::string>& names);
    void addActivities(const std::vector<std::string>& names);
    void type(ui::TextBox& box, const std::string& text);

    /// Text of the last box that was shown; fails where none was.
    const ShownBox& lastBox() const;
    std::vector<std::string> shownTitles() const;

    /// The texts of a grid's row or column, headings included.
    static std::vector<std::string> rowOf(const ui::Grid& grid, int row);
    static std::vector<std::string> columnOf(const ui::Grid& grid, int col);

private:
    void addRows(ui::TextBox& box, ui::CommandButton& button, ui::Grid& grid,
                 const std::vector<std::string>& names);
};

/// Runs an action that must end in a run-time failure, and returns it.
template <class Action>
ui::RunTimeError failureOf(Action action) {
    try {
        action();
    } catch (const ui::RunTimeError& error) {
        return error;
    }
    ADD_FAILURE() << "no run-time failure";
    return ui::RunTimeError(0, "", "");
}

/// The description that the user sees of an unexpected failure.
std::string reportOf(const std::string& source, int number, const std::string& description);
