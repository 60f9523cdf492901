// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "insight/report/markup.h"

/// Drawings of a page. Lengths are in pixels of the screen; colours come from the style sheet, by class.
namespace insight::svg {

/// What a drawing is, for who does not see it.
struct Title {
    std::string Id;  ///< of its own on the page
    std::string Name;
    std::string Description;
};

Markup drawing(const Title& title, double width, double height, const Markup& content);

struct Box {
    double X;
    double Y;
    double Width;
    double Height;
};
Markup rectangle(const char* look, const Box& box);
Markup circle(const char* look, double x, double y, double radius);
Markup line(const char* look, double x1, double y1, double x2, double y2);
/// Through points "x,y x,y".
Markup path(const char* look, const std::string& points);
std::string point(double x, double y);

enum class Anchor { Start, Middle, End };
/// `y` is that of the base line.
Markup text(const char* look, double x, double y, Anchor anchor, std::string_view text);
/// A name of the lists, cut to the room that it has; whole, as far as a page shows it, to who points at it.
Markup label(const char* look, double x, double y, Anchor anchor, std::string_view name, double room);
/// The same, rising to the right from its start.
Markup risingLabel(const char* look, double x, double y, std::string_view name, double room);

/// Height of a rising label that takes so much room, and how far it reaches to the right.
double riseOf(double room);

}  // namespace insight::svg
