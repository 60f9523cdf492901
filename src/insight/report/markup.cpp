// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/markup.h"

#include "ui/text.h"

namespace insight {

namespace {

constexpr std::string_view Replacement = "\xEF\xBF\xBD";

/// What stands for a character that a page must not hold as it is; nothing where it stands for itself.
std::string_view entityOf(char32_t character) {
    switch (character) {
        case '&': return "&amp;";
        case '<': return "&lt;";
        case '>': return "&gt;";
        case '"': return "&quot;";
        case '\t':
        case '\n':
        case '\r': return " ";
        default: break;
    }
    const bool isControl = character < 0x20 || (character >= 0x7F && character <= 0x9F);
    const bool isNoCharacter = (character & 0xFFFE) == 0xFFFE || (character >= 0xFDD0 && character <= 0xFDEF);
    return isControl || isNoCharacter ? Replacement : std::string_view();
}

}  // namespace

Markup escaped(std::string_view text) {
    Markup markup;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t character = ui::nextCharacter(text, position);
        const std::string_view read = text.substr(start, position - start);
        const std::string_view entity = entityOf(character);
        const bool isStrayByte = character >= 0x80 && read.size() == 1;
        markup.text_ += isStrayByte ? Replacement : entity.empty() ? read : entity;
    }
    return markup;
}

Markup startTag(const char* name, std::initializer_list<Attribute> attributes) {
    Markup tag;
    tag.text_ = std::string("<") + name;
    for (const Attribute& attribute : attributes)
        tag.text_ += std::string(" ") + attribute.Name + "=\"" + escaped(attribute.Value).text() + '"';
    tag.text_ += '>';
    return tag;
}

Markup endTag(const char* name) {
    Markup tag;
    tag.text_ = std::string("</") + name + '>';
    return tag;
}

Markup element(const char* name, std::initializer_list<Attribute> attributes, const Markup& content) {
    return (startTag(name, attributes) += content) += endTag(name);
}

Markup element(const char* name, const Markup& content) { return element(name, {}, content); }

Markup element(const char* name, std::initializer_list<Attribute> attributes, std::string_view text) {
    return element(name, attributes, escaped(text));
}

Markup element(const char* name, std::string_view text) { return element(name, {}, escaped(text)); }

Markup voidElement(const char* name, std::initializer_list<Attribute> attributes) {
    // HTML takes the slash for nothing, XML for the end of the element.
    Markup tag = startTag(name, attributes);
    tag.text_.pop_back();
    tag.text_ += "/>";
    return tag;
}

Markup styleSheet(std::string_view css) {
    Markup style = startTag("style", {});
    style.text_ += css;
    return style += endTag("style");
}

Markup document(const Markup& root) {
    Markup page;
    page.text_ = "<!DOCTYPE html>\n" + root.text() + "\n";
    return page;
}

}  // namespace insight
