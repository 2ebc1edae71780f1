#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/ReportTest.h"
#include "tests/support/System.h"
#include "ui/SaveList.h"

namespace marlo {
namespace {

class SaveListTest : public test::ReportTest {
  protected:
    SaveListTest() {
        AddColumns({"Used Plugins"});
        pane.lstSongs.AddRow("R\xE9verb", "R\xE9verb");
    }

    bool Save(const std::string& name) const {
        return SaveList(pane, "Used Plugins", folder.Path(name));
    }

    const std::string csv = "\"Used Plugins\",\"Greyed\"\r\n\"R\xE9verb\",\"no\"\r\n";
};

TEST_F(SaveListTest, TheListIsSavedAsCommaSeparatedValues) {
    const std::string name = "曲 " + test::OddName() + ".csv";
    EXPECT_TRUE(Save(name));
    EXPECT_EQ(folder.Read(name), csv);
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(SaveListTest, ANameThatEndsAsAPageGetsAPageWhateverItsCase) {
    for (const std::string name : {"a.html", "b.htm", "c.HTML"}) {
        EXPECT_TRUE(Save(name));
        const std::string page = folder.Read(name);
        EXPECT_TRUE(page.starts_with("<!DOCTYPE html>")) << name;
        EXPECT_NE(page.find("<h1>Used Plugins</h1>\n<p>2026-11-15 03:10"), std::string::npos);
    }
}

TEST_F(SaveListTest, AnOldFileIsReplacedAndNothingIsLeftBeside) {
    folder.Write("old/list.csv", std::string(10000, 'x'));
    EXPECT_TRUE(Save("old/list.csv"));
    EXPECT_EQ(folder.Read("old/list.csv"), csv);
    EXPECT_FALSE(folder.Exists("old/list.csv.new"));
}

TEST_F(SaveListTest, AFolderThatIsNotThereIsToldAndLogged) {
    EXPECT_FALSE(Save("gone/list.csv"));
    ASSERT_EQ(window.messages.size(), 1U);
    EXPECT_EQ(window.messages[0].text,
              "The list cannot be saved as " + folder.Path("gone/list.csv"));
    EXPECT_EQ(window.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(Log(), LogLine("SaveList", 76, "Path not found"));
}

TEST_F(SaveListTest, AFolderInTheWayIsToldAndStays) {
    folder.MakeFolder("list.csv");
    EXPECT_FALSE(Save("list.csv"));
    EXPECT_EQ(window.messages.size(), 1U);
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path("list.csv")));
    EXPECT_FALSE(folder.Exists("list.csv.new"));
}

TEST_F(SaveListTest, ADiskThatIsFullLeavesTheOldFile) {
    if (!test::FileSizeLimit::IsPossible())
        GTEST_SKIP() << test::kNoFileSizeLimit;
    folder.Write("list.csv", "old");
    bool isSaved = true;
    {
        const test::FileSizeLimit full(10);
        isSaved = Save("list.csv");
    }
    EXPECT_FALSE(isSaved);
    EXPECT_EQ(window.messages.size(), 1U);
    EXPECT_EQ(folder.Read("list.csv"), "old");
    EXPECT_FALSE(folder.Exists("list.csv.new"));
}

}  // namespace
}  // namespace marlo
