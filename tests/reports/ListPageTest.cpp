#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "reports/ListPage.h"
#include "reports/ResultPane.h"
#include "tests/support/Fakes.h"

namespace marlo {
namespace {

class ListPageTest : public testing::Test {
  protected:
    ListPageTest() {
        list.AddColumn(Column::Plugin, "Used Plugins");
        list.AddColumn(Column::Type);
    }

    ResultRow Add(const std::string& name, const std::string& type) {
        const ResultRow row = list.AddRow(name + type, name);
        list.SetSubItem(row, 1, type);
        return row;
    }

    std::string Html() const {
        return ListAsHtml(list, sortedColumn, "Used Plugins", test::FakeClock().Now());
    }
    bool HtmlHas(const std::string& text) const { return Html().find(text) != std::string::npos; }

    ResultList list;
    int sortedColumn = 0;
};

TEST_F(ListPageTest, CsvHasTheHeadersAndTellsWhichRowsAreGreyed) {
    Add("Reverb", "VST");
    GreyRow(list, Add("Echo", "DirectX"));
    EXPECT_EQ(ListAsCsv(list),
              "\"Used Plugins\",\"Type\",\"Greyed\"\r\n"
              "\"Reverb\",\"VST\",\"no\"\r\n"
              "\"Echo\",\"DirectX\",\"yes\"\r\n");
}

TEST_F(ListPageTest, CsvDoublesQuotesAndKeepsBytes) {
    Add("R\xE9verb, \"big\"", "VST");
    EXPECT_EQ(ListAsCsv(list),
              "\"Used Plugins\",\"Type\",\"Greyed\"\r\n"
              "\"R\xE9verb, \"\"big\"\"\",\"VST\",\"no\"\r\n");
}

TEST_F(ListPageTest, CsvHasNoPlaceholder) {
    AddPlaceholderIfEmpty(list, kNoPlugins);
    EXPECT_EQ(ListAsCsv(list), "\"Used Plugins\",\"Type\",\"Greyed\"\r\n");
}

TEST_F(ListPageTest, HtmlHasAHeadingWithDateAndCounts) {
    Add("Reverb", "VST");
    EXPECT_TRUE(HtmlHas("<h1>Used Plugins</h1>\n<p>2026-11-15 03:10 &middot; 1 row</p>"));
    GreyRow(list, Add("Echo", "DirectX"));
    EXPECT_TRUE(HtmlHas("2 rows, 1 of them greyed: not installed"));
}

TEST_F(ListPageTest, HtmlHasTheRowsFromTheTopAndMarksTheGreyedOnes) {
    GreyRow(list, Add("b", "VST"));
    Add("a", "VST");
    list.SetSorted(true);
    sortedColumn = 1;
    EXPECT_TRUE(
        HtmlHas("<tr><td>a</td><td>VST</td></tr>\n<tr class=\"greyed\"><td>b</td><td>VST</td>"));
    EXPECT_TRUE(
        HtmlHas("<th scope=\"col\" aria-sort=\"ascending\"><button type=\"button\">"
                "Used Plugins</button></th><th scope=\"col\"><button"));
}

TEST_F(ListPageTest, HtmlShowsThePlaceholderAndCountsNoRow) {
    AddPlaceholderIfEmpty(list, kNoPlugins);
    EXPECT_TRUE(HtmlHas("<td>No plugins found</td>"));
    EXPECT_TRUE(HtmlHas("&middot; 0 rows</p>"));
}

TEST_F(ListPageTest, HtmlIsUtf8WhateverTheEncodingOfTheFields) {
    Add("R\xE9verb", "Réverb 曲");
    EXPECT_TRUE(HtmlHas("<td>Réverb</td><td>Réverb 曲</td>"));
}

TEST_F(ListPageTest, NothingInAFieldIsMarkup) {
    const std::string hostile = "</td><script>alert('x\" &amp;')</script>";
    Add(hostile, "<b>");
    list.AddColumn(hostile);
    const std::string page = ListAsHtml(list, 0, hostile, test::FakeClock().Now());
    EXPECT_EQ(page.find("alert('"), std::string::npos);
    EXPECT_EQ(page.find("<b>"), std::string::npos);
    const std::string escaped =
        "&#60;/td&#62;&#60;script&#62;alert(&#39;x&#34; &#38;amp;&#39;)&#60;/script&#62;";
    for (const std::string place : {"<title>", "<h1>", "<button type=\"button\">"})
        EXPECT_NE(page.find(place + escaped), std::string::npos) << place;
}

TEST_F(ListPageTest, WhatTurnsTheWritingDirectionStaysInItsCell) {
    const std::string rightToLeft{'\xE2', '\x80', '\xAE'};
    const std::string name = rightToLeft + "txt.rpc";
    Add(name, "VST");
    EXPECT_TRUE(HtmlHas("<td>" + name + "</td><td>VST</td>"));
    EXPECT_TRUE(HtmlHas("td { padding: .3rem .75rem; unicode-bidi: isolate;"));
}

TEST_F(ListPageTest, NoOtherSpellingOfAMarkupCharacterBecomesOne) {
    Add("\xC0\xBC"
        "b>",
        "\xEF\xBC\x9C"
        "b>");  // too long in UTF-8, and of full width
    EXPECT_TRUE(HtmlHas("<td>\u00C0\u00BCb&#62;</td><td>\uFF1Cb&#62;</td>"));
}

TEST_F(ListPageTest, ControlCharactersAreShownAsTheirPictures) {
    Add(std::string("a\0\x1b\n\x7f", 5) + "\xC2\x9B", "VST");
    EXPECT_TRUE(HtmlHas("<td>a\u2400\u241B\u240A\u2421\uFFFD</td>"));
}

TEST_F(ListPageTest, APathMayBeBrokenBehindItsNames) {
    Add("/vst/a.dll", "C:\\vst\\a.dll");
    EXPECT_TRUE(HtmlHas("<td>/<wbr>vst/<wbr>a.dll</td><td>C:\\<wbr>vst\\<wbr>a.dll</td>"));
}

TEST_F(ListPageTest, RowsAreCopiedInTheOrderAskedForWithTabsBetweenTheirCells) {
    Add("R\xE9verb", "VST");
    Add("Echo", "DirectX");
    Add("Delay", "VST");
    EXPECT_EQ(RowsAsText(list, {1, 3}), "Réverb\tVST\nDelay\tVST\n");
    EXPECT_EQ(RowsAsText(list, {}), "");
}

TEST_F(ListPageTest, NothingInACellCanShiftTheCellsOfACopiedRow) {
    Add("a\tb\r\nc", "VST");
    EXPECT_EQ(RowsAsText(list, {1}), "a b  c\tVST\n");
}

TEST_F(ListPageTest, ThePageTellsWhenItWasMade) {
    EXPECT_TRUE(HtmlHas("<p>2026-11-15 03:10 &middot;"));
}

TEST_F(ListPageTest, HtmlNeedsNothingFromElsewhere) {
    Add("a", "VST");
    EXPECT_TRUE(HtmlHas("default-src 'none'"));
    for (const char* link : {"http:", "https:", "src=", "href=", "url(", "@import"})
        EXPECT_FALSE(HtmlHas(link)) << link;
}

}  // namespace
}  // namespace marlo
