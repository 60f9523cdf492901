// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace desktop {

// What is installed beside the program, or lies in the tree that it was built in.

/// The program's own folder where there are no examples.
QString examplesFolder();
/// The guide as web pages; empty where there are none.
QString guideFolder();

}  // namespace desktop
