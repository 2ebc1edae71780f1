#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

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

TEST_F(SaveListTest, OnlyTheOtherKindsEndingMakesWayForThatOfAPage) {
    EXPECT_EQ(PagePath("/lists/Mix 2.csv"), "/lists/Mix 2.html");
    EXPECT_EQ(PagePath("/lists/Mix.CSV"), "/lists/Mix.html");
    EXPECT_EQ(PagePath("/lists/Mix 2.1"), "/lists/Mix 2.1.html");
    EXPECT_EQ(PagePath("/lists.csv/Mix"), "/lists.csv/Mix.html");
    for (const std::string page : {"/lists/Mix.html", "/lists/Mix.HTM"})
        EXPECT_EQ(PagePath(page), page);
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

TEST_F(SaveListTest, FilesThatHappenToHaveTheNamesOfUnfinishedOnesStay) {
    folder.Write("list.csv.new", "mine");
    folder.MakeFolder("list.csv.new2");
    EXPECT_TRUE(Save("list.csv"));
    EXPECT_EQ(folder.Read("list.csv"), csv);
    EXPECT_EQ(folder.Read("list.csv.new"), "mine");
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("list.csv.new2")));
    EXPECT_FALSE(folder.Exists("list.csv.new3"));
}

TEST_F(SaveListTest, ALinkThatLeadsNowhereAndHasTheNameOfAnUnfinishedOneStays) {
    if (!test::MakeLink("elsewhere", folder.Path("list.csv.new")))
        GTEST_SKIP() << test::kNoLinks;
    EXPECT_TRUE(Save("list.csv"));
    EXPECT_EQ(folder.Read("list.csv"), csv);
    EXPECT_FALSE(folder.Exists("elsewhere"));
}

TEST_F(SaveListTest, WhereverTheDiskIsFullTheOldFileStays) {
    if (!test::FileSizeLimit::IsPossible())
        GTEST_SKIP() << test::kNoFileSizeLimit;
    for (const std::string name : {"list.csv", "list.html"}) {
        ASSERT_TRUE(Save(name));
        const std::size_t size = folder.Read(name).size();
        folder.Write(name, "old");
        // The log is not asked: it is on the disk that is full.
        std::vector<std::int32_t> logged;
        application.onErrorLogged = [&](const ErrorEntry& entry) {
            logged.push_back(entry.number);
        };
        std::size_t saved = 0;
        for (std::size_t limit = 0; limit < size; ++limit) {
            const test::FileSizeLimit full(limit);
            saved += Save(name) ? 1 : 0;
            ASSERT_EQ(folder.Read(name), "old") << name << " after " << limit << " bytes";
            ASSERT_FALSE(folder.Exists(name + ".new")) << name << " after " << limit << " bytes";
        }
        EXPECT_EQ(saved, 0U);
        constexpr std::int32_t diskFull = 61;
        EXPECT_EQ(logged, std::vector<std::int32_t>(size, diskFull));
        EXPECT_EQ(window.messages.size(), size);
        window.messages.clear();
    }
}

}  // namespace
}  // namespace marlo
