// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/svg.h"

#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

#include "insight/report/sentence.h"
#include "ui/text.h"

namespace insight::svg {

namespace {

constexpr double LetterWidth = 7.3;  ///< of a wide face at the size of labels, on the average
constexpr double WideLetter = 12;    ///< of capitals and of scripts with square letters
constexpr double Slope = 50;         ///< degrees, of rising labels
constexpr std::array AnchorNames = {"start", "middle", "end"};

/// One decimal, or none.
std::string number(double value) {
    std::array<char, 32> digits;
    const double rounded = std::round(value * 10) / 10 + 0.0;
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), rounded).ptr};
}

double widthOf(std::string_view character) {
    const auto first = static_cast<unsigned char>(character.front());
    const bool capital =
        character.size() == 1 && (first == 'M' || first == 'W' || first == '@' || first == '%');
    return capital || first >= 0xE1 ? WideLetter : LetterWidth;
}

/// As much of a name as fits, with "…" for the rest.
std::string fitted(std::string_view name, double room) {
    const std::string whole = shownName(name);
    std::string_view left = whole;
    std::string_view fits;
    double width = 0;
    while (!left.empty()) {
        const std::string_view character = ui::firstCharacters(left, 1);
        width += widthOf(character);
        if (width > room) return std::string(fits) + "…";
        if (width + WideLetter <= room)  // as wide as "…"
            fits = std::string_view(whole).substr(0, fits.size() + character.size());
        left.remove_prefix(character.size());
    }
    return whole;
}

Markup textWith(std::initializer_list<Attribute> attributes, std::string_view shown, std::string_view whole) {
    Markup content;
    if (!whole.empty()) content += element("title", shownName(whole));
    return element("text", attributes, content + escaped(shown));
}

}  // namespace

Markup drawing(const Title& title, double width, double height, const Markup& content) {
    const std::string name = title.Id + "-name";
    const std::string description = title.Id + "-text";
    return element("svg",
                   {{"xmlns", "http://www.w3.org/2000/svg"},
                    {"role", "img"},
                    {"aria-labelledby", name + " " + description},
                    {"viewBox", "0 0 " + number(width) + " " + number(height)},
                    {"width", number(width)},
                    {"height", number(height)}},
                   element("title", {{"id", name}}, title.Name) +
                       element("desc", {{"id", description}}, title.Description) + content);
}

Markup rectangle(const char* look, const Box& box) {
    return element("rect", {{"class", look},
                            {"x", number(box.X)},
                            {"y", number(box.Y)},
                            {"width", number(box.Width)},
                            {"height", number(box.Height)}});
}

Markup circle(const char* look, double x, double y, double radius) {
    return element("circle", {{"class", look}, {"cx", number(x)}, {"cy", number(y)}, {"r", number(radius)}});
}

Markup line(const char* look, double x1, double y1, double x2, double y2) {
    return element(
        "line",
        {{"class", look}, {"x1", number(x1)}, {"y1", number(y1)}, {"x2", number(x2)}, {"y2", number(y2)}});
}

Markup path(const char* look, const std::string& points) {
    return element("polyline", {{"class", look}, {"points", points}});
}

std::string point(double x, double y) { return number(x) + "," + number(y) + " "; }

Markup text(const char* look, double x, double y, Anchor anchor, std::string_view shown) {
    return textWith({{"class", look},
                     {"x", number(x)},
                     {"y", number(y)},
                     {"text-anchor", AnchorNames[static_cast<std::size_t>(anchor)]}},
                    shown, "");
}

Markup label(const char* look, double x, double y, Anchor anchor, std::string_view name, double room) {
    return textWith({{"class", look},
                     {"x", number(x)},
                     {"y", number(y)},
                     {"text-anchor", AnchorNames[static_cast<std::size_t>(anchor)]}},
                    fitted(name, room), name);
}

Markup risingLabel(const char* look, double x, double y, std::string_view name, double room) {
    const std::string turn = "translate(" + number(x) + " " + number(y) + ") rotate(" + number(-Slope) + ")";
    return textWith({{"class", look}, {"transform", turn}}, fitted(name, room), name);
}

double riseOf(double room) { return room * std::sin(Slope * std::numbers::pi / 180); }

}  // namespace insight::svg
