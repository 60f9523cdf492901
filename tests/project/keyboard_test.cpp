// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "support/form_test.h"
#include "support/form_views.h"

namespace {

bool isReached(ui::ControlKind kind) {
    using ui::ControlKind;
    const std::set<ControlKind> reached = {
        ControlKind::CommandButton, ControlKind::TextBox,  ControlKind::ComboBox, ControlKind::CheckBox,
        ControlKind::OptionButton,  ControlKind::TabStrip, ControlKind::Grid,     ControlKind::Chart};
    return reached.count(kind) != 0;
}

bool hasLetter(const std::string& text) {
    return std::any_of(text.begin(), text.end(), [](unsigned char c) { return std::isalpha(c) != 0; });
}

}  // namespace

/// What keyboard and screen reader need of the form's design.
class Keyboard : public FormTest {
protected:
    void openProject() { open(ProjectText(3, 3, 3, 3)); }

    /// Every view, the page of areas for each kind of home range.
    void onEveryView(const std::function<void(const std::string&)>& check) {
        form_views::onEveryView(form, check);
        for (int type = 0; type <= 2; ++type) {
            form.UpdateHRInfo(type);
            goTo(3);
            form.tabCriteria.UserSelectTab(1);
            form.tabCriteria.UserSelectTab(2);
            check("home range type " + std::to_string(type));
        }
    }

    std::vector<const ui::Control*> menus() {
        std::vector<const ui::Control*> found;
        for (const ui::Control* control : form.Controls()) {
            const bool menu = control->Kind() == ui::ControlKind::MenuItem;
            if (menu && control->Container().Kind() == ui::ControlKind::Form) found.push_back(control);
        }
        return found;
    }

    static void expectDistinct(const std::vector<const ui::Control*>& controls, const std::string& where) {
        std::map<int, const ui::Control*> owners;
        for (const ui::Control* control : controls) {
            if (control->AccessKey() == 0) continue;
            const auto [owner, isNew] =
                owners.emplace(std::tolower(static_cast<unsigned char>(control->AccessKey())), control);
            EXPECT_TRUE(isNew) << where << ": " << owner->second->Name() << " and " << control->Name()
                               << " have the key " << control->AccessKey();
        }
    }
};

TEST_F(Keyboard, AnAccessKeyIsALetterOfItsCaption) {
    int keys = 0;
    for (const ui::Control* control : form.Controls()) {
        if (control->AccessKey() == 0) continue;
        ++keys;
        EXPECT_NE(std::isalpha(static_cast<unsigned char>(control->AccessKey())), 0) << control->Name();
        EXPECT_NE(control->Caption().find(control->AccessKey()), std::string::npos) << control->Name();
    }
    EXPECT_GT(keys, 40);
}

TEST_F(Keyboard, NoTwoControlsOnViewShareAnAccessKey) {
    openProject();
    onEveryView([this](const std::string& view) {
        std::vector<const ui::Control*> controls = menus();
        for (const ui::Control* control : form_views::shownControls(form)) controls.push_back(control);
        expectDistinct(controls, view);
    });
}

TEST_F(Keyboard, NoTwoEntriesOfAMenuShareAnAccessKey) {
    for (const ui::Control* menu : menus()) {
        std::vector<const ui::Control*> entries;
        for (const ui::Control* control : form.Controls()) {
            if (&control->Container() == menu) entries.push_back(control);
        }
        EXPECT_FALSE(entries.empty()) << menu->Name();
        expectDistinct(entries, menu->Name());
    }
}

TEST_F(Keyboard, TheAccessKeyOfALabelHasAControlBehindIt) {
    for (const ui::Control* control : form.Controls()) {
        if (control->Kind() != ui::ControlKind::Label || control->AccessKey() == 0) continue;
        const auto labelled = [&](const ui::Control* other) { return form.LabelOf(*other) == control; };
        const auto controls = form.Controls();
        const auto found = std::find_if(controls.begin(), controls.end(), labelled);
        ASSERT_NE(found, controls.end()) << control->Name();
        EXPECT_TRUE(isReached((*found)->Kind())) << (*found)->Name();
    }
}

TEST_F(Keyboard, NoTwoControlsShareAShortcut) {
    std::set<std::string> shortcuts;
    for (const ui::Control* control : form.Controls()) {
        if (control->Shortcut().empty()) continue;
        EXPECT_TRUE(shortcuts.insert(control->Shortcut()).second) << control->Name();
    }
    EXPECT_GE(shortcuts.size(), 4U);
}

TEST_F(Keyboard, EveryControlThatAUserCanReachHasAName) {
    openProject();
    std::set<std::string> seen;
    onEveryView([&](const std::string& view) {
        for (const ui::Control* control : form_views::shownControls(form)) {
            if (!isReached(control->Kind())) continue;
            seen.insert(control->Name());
            EXPECT_TRUE(hasLetter(control->AccessibleName())) << view << ": " << control->Name();
        }
    });
    EXPECT_GT(seen.size(), 90U);
}

TEST_F(Keyboard, ControlsOfOneKindOnViewHaveDifferentNames) {
    openProject();
    onEveryView([&](const std::string& view) {
        std::map<std::pair<ui::ControlKind, std::string>, std::string> owners;
        for (const ui::Control* control : form_views::shownControls(form)) {
            if (!isReached(control->Kind())) continue;
            const auto [owner, isNew] =
                owners.emplace(std::pair(control->Kind(), control->AccessibleName()), control->Name());
            EXPECT_TRUE(isNew) << view << ": " << owner->second << " and " << control->Name();
        }
    });
}
