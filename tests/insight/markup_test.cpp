// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/markup.h"

#include <gmock/gmock.h>

#include "insight/report/data_table.h"
#include "insight/report/sentence.h"
#include "insight/report/svg.h"

using namespace insight;
using testing::HasSubstr;
using testing::Not;

TEST(Markup, EscapesWhateverAPageMustNotHold) {
    EXPECT_EQ(escaped("a < b & \"c\" > d").text(), "a &lt; b &amp; &quot;c&quot; &gt; d");
    EXPECT_EQ(escaped("a\tb\nc\rd").text(), "a b c d");
    EXPECT_EQ(escaped(std::string_view("a\0b\x01\x7F", 5)).text(), "a\uFFFDb\uFFFD\uFFFD");
    EXPECT_EQ(escaped("Ñandú \u05D3\u05D5\u05D1 \U0001F98A").text(), "Ñandú \u05D3\u05D5\u05D1 \U0001F98A");
    EXPECT_EQ(escaped("\xC3").text(), "\uFFFD") << "a byte that is no UTF-8";
    EXPECT_EQ(escaped("\uFFFE\u0085").text(), "\uFFFD\uFFFD") << "no characters, and controls";
}

TEST(Markup, WritesElementsThatReadTheSameAsHtmlAndAsXml) {
    EXPECT_EQ(element("p", {{"title", "\"<"}}, element("b", "x")).text(),
              "<p title=\"&quot;&lt;\"><b>x</b></p>");
    EXPECT_EQ(element("td", Markup()).text(), "<td></td>");
    EXPECT_EQ(voidElement("meta", {{"charset", "utf-8"}}).text(), "<meta charset=\"utf-8\"/>");
}

TEST(Sentences, SetNamesApart) {
    const Sentence sentence = Sentence("Without ").name("<Fox>").say(".");
    EXPECT_EQ(sentence.text(), "Without <Fox>.");
    EXPECT_EQ(sentence.markup().text(), "Without <bdi>&lt;Fox&gt;</bdi>.");
}

TEST(Sentences, ListNamesAndCutLongLists) {
    EXPECT_EQ(Sentence().names({"A"}).text(), "A");
    EXPECT_EQ(Sentence().names({"A", "B"}).text(), "A and B");
    EXPECT_EQ(Sentence().names({"A", "B", "C"}).text(), "A, B and C");
    EXPECT_EQ(Sentence().names({"A", "B", "C", "D", "E", "F", "G"}).text(), "A, B, C, D, E, F and G");
    EXPECT_EQ(Sentence().names(std::vector<std::string>(1010, "A")).text(),
              "A, A, A, A, A, A and 1,004 more");
}

TEST(Sentences, CutNamesThatNoPageHasRoomFor) {
    const std::string longest(120, 'x');
    EXPECT_EQ(shownName(longest), longest);
    EXPECT_EQ(shownName(longest + "x"), longest + "…");
    EXPECT_EQ(shownName(std::string(2'000'000, 'x')), longest + "…");
    EXPECT_EQ(shownName("a\tb"), "a b");
}

TEST(Sentences, SpellSmallNumbers) {
    EXPECT_EQ(countWord(0), "no");
    EXPECT_EQ(capitalCountWord(12), "Twelve");
    EXPECT_EQ(capitalCountWord(13), "13");
    EXPECT_EQ(counted(1, "unit", "units"), "1 unit");
    EXPECT_EQ(counted(100'000, "suite", "suites"), "100,000 suites");
    EXPECT_EQ(withThousands(1'234'567), "1,234,567");
}

TEST(DataTable, HeadsColumnsAndRows) {
    const ResultTable table = {
        {"number", "name", "left_out", "list"},
        {{numberCell(1), std::string("A&B"), true, std::vector<std::string>{"x", "y"}}}};
    const std::array columns = {ShownColumn{"number", "No."}, ShownColumn{"name", "Name", ColumnKind::Name},
                                ShownColumn{"list", "Others", ColumnKind::Names}};
    const std::string page = dataTable("Caption", table, columns).text();
    EXPECT_THAT(page, HasSubstr("<caption>Caption</caption>"));
    EXPECT_THAT(page, HasSubstr("<th scope=\"col\" class=\"number\">No.</th>"));
    EXPECT_THAT(
        page, HasSubstr("<td class=\"number\">1</td><th scope=\"row\" class=\"name\"><bdi>A&amp;B</bdi></th>"
                        "<td class=\"names\"><bdi>x</bdi>; <bdi>y</bdi></td>"));
    EXPECT_THAT(page, Not(HasSubstr("yes")));
}

TEST(Drawing, TellsWhatItIs) {
    const std::string drawing = svg::drawing({"d", "Name", "What it shows"}, 10, 20.25, {}).text();
    EXPECT_THAT(drawing, HasSubstr("role=\"img\" aria-labelledby=\"d-name d-text\""));
    EXPECT_THAT(drawing,
                HasSubstr("<title id=\"d-name\">Name</title><desc id=\"d-text\">What it shows</desc>"));
    EXPECT_THAT(drawing, HasSubstr("height=\"20.3\""));
}

TEST(Drawing, CutsLabelsToTheirRoom) {
    const auto shown = [](std::string_view name) {
        return svg::label("label", 0, 0, svg::Anchor::End, name, 80).text();
    };
    EXPECT_THAT(shown("Puma"), HasSubstr("<title>Puma</title>Puma</text>"));
    EXPECT_THAT(shown("Great Fruit-eating Bat"),
                HasSubstr("<title>Great Fruit-eating Bat</title>Great Fru…</text>"));
}
