#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "app/cli/JsonList.h"
#include "app/cli/Table.h"
#include "app/cli/TerminalText.h"

namespace marlo::cli {
namespace {

TEST(PrintableTest, TextIsShownAsUtf8) {
    EXPECT_EQ(Printable("R\xE9verb \xE6\x9B\xB2"), "R\xC3\xA9verb \xC3\xA6\xE2\x80\xBA\xC2\xB2");
    EXPECT_EQ(Printable("R\xC3\xA9verb \xE6\x9B\xB2"), "R\xC3\xA9verb \xE6\x9B\xB2");
}

TEST(PrintableTest, ControlCharactersAndEscapeSequencesAreShownNotSent) {
    EXPECT_EQ(Printable("a\nb\rc\td"), "a\\nb\\rc\\td");
    EXPECT_EQ(Printable("\x1b[2J\x07"), "\\x1B[2J\\x07");
    EXPECT_EQ(Printable(std::string("a\0b", 3)), "a\\x00b");
    EXPECT_EQ(Printable("\x7F"), "\\x7F");
    EXPECT_EQ(Printable("\xC2\x9B"), "\\x9B");
}

TEST(PrintableTest, AnAnsiByteThatIsAControlCharacterIsShownNotSent) {
    EXPECT_EQ(Printable("\x9D"), "\\x9D");
}

TEST(PrintableTest, WhatTurnsTheWritingDirectionOrEndsTheLineIsShown) {
    // NOLINTNEXTLINE(misc-misleading-bidirectional): that is what it is about.
    EXPECT_EQ(Printable("\xE2\x80\xAEtxt.rpc"), "\\u{202E}txt.rpc");
    EXPECT_EQ(Printable("a\xE2\x80\xA8z"), "a\\u{2028}z");
    EXPECT_EQ(Printable("\xF3\xA0\x80\x81"), "\\u{E0001}");
}

TEST(PrintableTest, OfLinesTheEndsStay) {
    EXPECT_EQ(PrintableLines("a\x1b[2J\n\nR\xE9verb\r\n\tb"),
              "a\\x1B[2J\n\nR\xC3\xA9verb\\r\n\\tb");
    EXPECT_EQ(PrintableLines(""), "");
}

TEST(DisplayWidthTest, WideAndCombiningCharactersCountAsTheyShow) {
    EXPECT_EQ(DisplayWidth("abc"), 3);
    EXPECT_EQ(DisplayWidth("\xE6\x9B\xB2\xF0\x9F\x8E\xB9"), 4);
    EXPECT_EQ(DisplayWidth("e\xCC\x81"), 1);
}

TEST(FitToWidthTest, TextIsCutToCellsWithAnEllipsis) {
    EXPECT_EQ(FitToWidth("abcdef", 6), "abcdef");
    EXPECT_EQ(FitToWidth("abcdefg", 6), "abcde\xE2\x80\xA6");
    EXPECT_EQ(FitToWidth("\xE6\x9B\xB2\xE6\x9B\xB2\xE6\x9B\xB2", 4), "\xE6\x9B\xB2\xE2\x80\xA6");
}

TEST(FitToWidthTest, OfAPathTheBeginningIsCut) {
    EXPECT_EQ(FitToWidth("/songs/a.cpr", 6),
              "\xE2\x80\xA6"
              "a.cpr");
    EXPECT_EQ(FitToWidth("C:\\songs\\a.cpr", 7), "\xE2\x80\xA6\\a.cpr");
    EXPECT_EQ(FitToWidth("/\xE6\x9B\xB2\xE6\x9B\xB2", 4), "\xE2\x80\xA6\xE6\x9B\xB2");
}

TEST(JsonTextTest, WhatATerminalWouldActOnIsEscapedAndMeansTheSame) {
    const std::string field = "\x1b[2J\x7f \xC2\x9B \xE2\x80\xAE \xF3\xA0\x80\x81 \xC3\xA9\n\"\\";
    const std::string text = JsonText(field);
    EXPECT_EQ(text,
              "\"\\u001b[2J\\u007f \\u009b \\u202e \\udb40\\udc01 "
              "\xC3\xA9\\n\\\"\\\\\"");
    EXPECT_EQ(nlohmann::json::parse(text), field);
}

TEST(JsonListTest, ObjectsAndTheirFieldsAreIndented) {
    std::ostringstream out;
    JsonList list(out);
    for (const char* const name : {"a", "R\xE9verb"}) {
        list.BeginObject();
        list.AddText("name", name);
        list.AddFlag("on", name == std::string("a"));
    }
    list.End();
    const auto expected = nlohmann::ordered_json::array(
        {{{"name", "a"}, {"on", true}}, {{"name", "R\xC3\xA9verb"}, {"on", false}}});
    EXPECT_EQ(out.str(), expected.dump(2) + "\n");
}

TEST(JsonListTest, WithoutObjectsTheArrayIsEmpty) {
    std::ostringstream out;
    JsonList(out).End();
    EXPECT_EQ(out.str(), "[]\n");
}

TEST(TableTest, ColumnsAreAlignedByDisplayWidth) {
    Table table({"Name", "Type", "Project"}, 60);
    table.AddRow({"\xE6\x9B\xB2", "VST", "a.cpr"});
    table.AddRow({"R\xE9verb", "DirectX", "b.cpr"});
    std::ostringstream out;
    table.Print(out);
    EXPECT_EQ(out.str(),
              "Name    Type     Project\n"
              "\xE6\x9B\xB2      VST      a.cpr\n"
              "R\xC3\xA9verb  DirectX  b.cpr\n");
}

TEST(TableTest, RowsEndWithTheirLastText) {
    Table table({"Name", "Path"}, 60);
    table.AddRow({"Echo", ""});
    std::ostringstream out;
    table.Print(out);
    EXPECT_EQ(out.str(), "Name  Path\nEcho\n");
}

TEST(TableTest, DimmedRowsAreDimmedOrMarked) {
    Table table({"Name", "Type"}, 60);
    table.AddRow({"a", "VST"});
    table.AddRow({"b", "VST"}, true);
    std::ostringstream marked;
    table.Print(marked);
    EXPECT_EQ(marked.str(), "  Name  Type\n  a     VST\n* b     VST\n");
    std::ostringstream dimmed;
    table.Print(dimmed, true);
    EXPECT_EQ(dimmed.str(), "Name  Type\na     VST\n\x1b[2mb     VST\x1b[0m\n");
}

TEST(TableTest, AWideTextIsCutExceptInTheLastColumn) {
    Table table({"Name", "Project"}, 60);
    table.AddRow({std::string(70, 'n'), std::string(70, 'p')});
    std::ostringstream out;
    table.Print(out);
    EXPECT_EQ(out.str(), "Name" + std::string(58, ' ') + "Project\n" + std::string(59, 'n') +
                             "\xE2\x80\xA6  " + std::string(70, 'p') + "\n");
}

}  // namespace
}  // namespace marlo::cli
