// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/modStartup.h"

void Program::Main() {
    splash_ = std::make_unique<frmSplash>(
        platform_, [this] { mainForm_ = std::make_unique<frmBrenica>(platform_, files_, global_); });
}
