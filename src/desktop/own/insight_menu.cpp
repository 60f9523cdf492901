// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/insight_menu.h"

#include "desktop/own/guide.h"
#include "desktop/own/own_texts.h"
#include "desktop/own/window_report.h"

namespace desktop {

OwnEntry insightMenu(WindowReport& report, QWidget& ownerOfBoxes) {
    return {"ownInsight",
            own_texts::Insight,
            {},
            {},
            {{"ownReport", own_texts::ReportOnSuite, [&report] { report.make(); }},
             {"ownInsightPage", own_texts::WhatReportSays,
              [&ownerOfBoxes] { showGuide(&ownerOfBoxes, "page-report.html"); }}}};
}

}  // namespace desktop
