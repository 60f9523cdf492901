// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/data_table.h"
#include "insight/report/figures.h"

namespace insight {

Markup figure(std::string_view label, const Markup& drawings, const Markup& caption) {
    return element("figure", scrollBox(label, drawings) + element("figcaption", caption));
}

}  // namespace insight
