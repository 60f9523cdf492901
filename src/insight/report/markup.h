// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// HTML and SVG that is well-formed by construction: text gets into a page through escaped() alone. What is written
/// reads the same as HTML and as XML.
namespace insight {

class Markup {
public:
    const std::string& text() const { return text_; }
    Markup& operator+=(const Markup& other) {
        text_ += other.text_;
        return *this;
    }
    friend Markup operator+(Markup left, const Markup& right) { return left += right; }

private:
    friend Markup escaped(std::string_view text);
    friend Markup styleSheet(std::string_view css);
    friend Markup document(const Markup& root);
    friend Markup voidElement(const char* name, std::initializer_list<struct Attribute> attributes);
    friend Markup startTag(const char* name, std::initializer_list<struct Attribute> attributes);
    friend Markup endTag(const char* name);

    std::string text_;
};

/// A value is escaped as it is written.
struct Attribute {
    const char* Name;
    std::string Value;
};

/// Any bytes as text: what is no UTF-8, and what no page may hold, becomes a replacement character.
Markup escaped(std::string_view text);

/// An element with its end tag.
Markup element(const char* name, std::initializer_list<Attribute> attributes, const Markup& content = {});
Markup element(const char* name, const Markup& content);
/// With text in it.
Markup element(const char* name, std::initializer_list<Attribute> attributes, std::string_view text);
Markup element(const char* name, std::string_view text);
/// An element that has no end tag, as a meta element.
Markup voidElement(const char* name, std::initializer_list<Attribute> attributes);

/// REQUIRES: neither "<" nor "&" in it
Markup styleSheet(std::string_view css);
/// With the document type before it.
Markup document(const Markup& root);

}  // namespace insight
