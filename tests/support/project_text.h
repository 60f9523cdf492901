// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <vector>

/// The text of a project file, line by line. The constructor makes a complete project that passes every gate: species
/// "Species 1" …, habitats "Habitat 1" …, zones "Zone 1" …, activities "Activity 1" …, the six functions; all levels
/// of use 1 with thresholds 2, all ratings 1, area values "Y", "Y", "10" and "0.5", conservation status 0.5.
class ProjectText {
public:
    ProjectText(int species, int habitats, int zones, int activities);

    /// Replaces the values of a line, given as the file holds them: "1,2,3". A new key goes to the end.
    ProjectText& set(const std::string& key, const std::string& values);
    ProjectText& remove(const std::string& key);
    const std::string& values(const std::string& key) const;
    std::string text() const;

private:
    std::vector<std::string> order_;
    std::map<std::string, std::string> values_;
};

/// "text 1,text 2,…"
std::string numbered(const std::string& text, int count);
/// "value,value,…"
std::string repeated(const std::string& value, int count);
