// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scripted/scripted_platform.h"
#include "support/form_test.h"
#include "ui/form_window.h"
#include "ui/grid.h"
#include "ui/simple_controls.h"

/// A bare window on a scripted platform, with a log of what happened in which order.
class WindowTest : public testing::Test {
protected:
    ScriptedPlatform platform;
    ui::FormWindow window{platform, "frmTest"};
    ui::Frame frame{window, "fraTest"};
    std::vector<std::string> log;

    auto logging(const std::string& entry) {
        return [this, entry] { log.push_back(entry); };
    }
};

/// The same with a grid of four rows and three columns below and beside one fixed row and column; the text of a cell
/// is "row.column".
class GridTest : public WindowTest {
protected:
    ui::Grid grid{frame, "flxTest"};

    GridTest() {
        grid.Rows(4);
        grid.Cols(3);
        for (int row = 0; row < 4; ++row) {
            for (int col = 0; col < 3; ++col) grid.TextMatrix(row, col, at(row, col));
        }
        grid.Editable = ui::EditMode::KeyboardAndMouse;
        grid.Select(1, 1);
    }

    static std::string at(int row, int col) { return std::to_string(row) + "." + std::to_string(col); }

    std::vector<std::string> column(int col) const {
        std::vector<std::string> texts;
        for (int row = 0; row < grid.Rows(); ++row) texts.emplace_back(grid.TextMatrix(row, col));
        return texts;
    }
};
