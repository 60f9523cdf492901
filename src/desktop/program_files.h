// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace desktop {

// What is installed beside the program, or lies in the tree that it was built in.

/// The program's own folder where there are no examples.
QString examplesFolder();
/// Whether a user may want to save in a folder: one that can be written, and is not that of the examples, which lie among
/// what was installed.
bool takesFiles(const QString& folder);
/// The guide as web pages; empty where there are none.
QString guideFolder();

}  // namespace desktop
