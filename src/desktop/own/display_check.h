// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace desktop {

/// While it lives, Qt's failure to find a display ends the program with one line and exit code 1, where Qt itself would
/// print a page and abort. To be held while the application is made. There can be one at a time.
class DisplayCheck {
public:
    DisplayCheck();
    ~DisplayCheck();
    DisplayCheck(const DisplayCheck&) = delete;
    DisplayCheck& operator=(const DisplayCheck&) = delete;

private:
    QtMessageHandler before_;
};

}  // namespace desktop
