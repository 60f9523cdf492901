// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>
#include <sstream>

#include "support/form_test.h"
#include "support/form_views.h"
#include "support/text_widths.h"

namespace {

constexpr const char* Places = BRENICA_SOURCE_DIR "/tests/entry/layout_places.txt";

/// Where every control stands and how wide the columns of every grid are: in a small window, one that the design was
/// made for, and a large one, when all views have been on view.
std::string placesOfEveryControl() {
    ScriptedPlatform platform;
    platform.TextWidth = liberation_sans::textWidth;
    ui::Files files;
    modGlobal global;
    frmBrenica form(platform, files, global);
    const TemporaryFolder folder;
    writeFile(folder.file("project.brn"), ProjectText(2, 3, 2, 2).text());
    platform.Files = {folder.file("project.brn")};
    form.mnuOpenProject.UserClick();

    std::ostringstream places;
    for (const auto& [width, height] :
         {std::pair(11000, 7000), std::pair(15000, 10000), std::pair(28800, 16200)}) {
        form.UserResize(ui::WindowState::Normal, 0, 0, width, height);
        form_views::onEveryView(form, [](const std::string&) {});
        places << width << " by " << height << "\n";
        for (const ui::Control* control : form.Controls()) {
            if (control->Kind() == ui::ControlKind::MenuItem) continue;
            places << control->Name() << ": " << control->Left() << " " << control->Top() << " "
                   << control->Width() << " " << control->Height();
            const auto* grid = dynamic_cast<const ui::Grid*>(control);
            for (int col = 0; grid != nullptr && col < grid->Cols(); ++col)
                places << (col == 0 ? ", columns " : " ") << grid->ColWidth(col);
            places << "\n";
        }
    }
    return places.str();
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

}  // namespace

/// Places that nobody meant to change stay. After one that was meant: BRENICA_WRITE_PLACES=1, and look at what changed.
TEST(LayoutPlaces, StayWhereTheyAre) {
    const std::string places = placesOfEveryControl();
    if (std::getenv("BRENICA_WRITE_PLACES") != nullptr) writeFile(Places, places);
    const auto expected = linesOf(readFile(Places));
    const auto found = linesOf(places);
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) EXPECT_EQ(found[i], expected[i]);
}
