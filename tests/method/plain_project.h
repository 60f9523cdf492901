// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "method/landscape.h"

/// A project file of version 2 as numbers and names: enough for the examples and for those that are made for measuring.
struct PlainProject {
    explicit PlainProject(const std::string& path);

    std::vector<std::string> Species;
    std::vector<std::string> Habitats;
    std::vector<std::string> Zones;
    std::vector<std::string> Activities;
    method::Landscape Landscape;
};
