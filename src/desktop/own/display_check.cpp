// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/own/display_check.h"

#include <QString>
#include <cstdio>
#include <cstdlib>

#include "desktop/own/own_texts.h"

namespace desktop {

namespace {

constexpr int NoDisplay = 1;  // the exit code of brenica-batch for wrong usage

/// What Qt says on its way to a failure is not passed on: the line tells it.
void tell(QtMsgType kind, const QMessageLogContext& context, const QString& message) {
    if (kind == QtFatalMsg) {
        std::fprintf(stderr, "brenica: %s\n", own_texts::NoDisplay);
        std::_Exit(NoDisplay);
    }
    const bool leadsThere = QString::fromUtf8(context.category).startsWith("qt.qpa");
    if (!leadsThere) std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

}  // namespace

DisplayCheck::DisplayCheck() : before_(qInstallMessageHandler(tell)) {}

DisplayCheck::~DisplayCheck() { qInstallMessageHandler(before_); }

}  // namespace desktop
