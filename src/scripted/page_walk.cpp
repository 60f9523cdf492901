// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted/page_walk.h"

#include <utility>

#include "project/frmBrenica.h"

namespace {

constexpr int FirstPageOfWalk = 2;
constexpr int LastPageOfWalk = 7;

std::vector<const char*> emptyLists(const modGlobal& global) {
    const std::pair<int, const char*> lists[] = {{global.TotalSpecies, "candidate species"},
                                                 {global.TotalHabitatTypes, "habitat types"},
                                                 {global.TotalJurisUnits, "management zones"},
                                                 {global.TotalLandUses, "human activities"}};
    std::vector<const char*> empty;
    for (const auto& [count, name] : lists) {
        if (count < 1) empty.push_back(name);
    }
    return empty;
}

PageWalk refusedBy(const frmBrenica& form) {
    const int page = form.CurrentMainTab;
    const auto& tabs = form.tabBrenica.Tabs();
    return {.RefusedPage = page, .RefusedTab = tabs[static_cast<std::size_t>(page - 1)].Caption};
}

}  // namespace

PageWalk walkToSelection(frmBrenica& form) {
    for (int page = FirstPageOfWalk; page <= LastPageOfWalk; ++page) {
        form.tabBrenica.UserSelectTab(page);
        if (form.CurrentMainTab != page) return refusedBy(form);
    }
    if (form.cmdComplement.Enabled()) return {.MaySelect = true};
    return {.EmptyLists = emptyLists(form.Global())};
}
