// What the window's start does when the machine under it fails.

#include <filesystem>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "tests/support/System.h"
#include "tests/ui/Form1Test.h"

namespace marlo {
namespace {

using std::filesystem::perms;

class Form1FaultTest : public test::Form1Test {
  protected:
    Form1FaultTest() {
        application.onErrorLogged = [this](const ErrorEntry& entry) {
            logged.insert(entry.procedure + " " + std::to_string(entry.number));
        };
    }

    std::set<std::string> logged;  ///< procedures and numbers
};

TEST_F(Form1FaultTest, InAReadOnlyFolderTheWindowStartsAndItsReportsCanBeUsed) {
    if (!test::CanBeOrdinaryUser())
        GTEST_SKIP() << test::kNoOrdinaryUser;
    WriteResultFiles();
    WriteSetting(application, setting::kSearchType, "2");
    desktop.programs[".csv"] = "/bin/sheets";
    const std::string settings = folder.Read("settings.ini");
    for (const char* name : {"resultfiles", ""})
        std::filesystem::permissions(folder.Path(name), perms{0555});
    {
        const test::OrdinaryUser user;
        form.Form_Load();
        form.cmdButtons_Click(kUsedReportItem);
    }
    EXPECT_EQ(Enabled(), allButCancel);
    EXPECT_EQ(view.searchType, 2);
    EXPECT_EQ(view.timerInterval, 1000);
    EXPECT_EQ(test::NamesOf(form.lstSongs()), (test::Texts{"Echo", "Reverb"}));
    EXPECT_TRUE(view.messages.empty());
    EXPECT_EQ(logged, (std::set<std::string>{"WriteSetting 70"})) << "the program for CSV files";
    EXPECT_EQ(folder.Read("settings.ini"), settings);
    EXPECT_FALSE(folder.Exists("resultfiles/errorlog.txt"));
    for (const char* name : {"", "resultfiles"})
        std::filesystem::permissions(folder.Path(name), perms{0755});
}

TEST_F(Form1FaultTest, WithAFolderInTheSettingsPlaceTheWindowStartsWithoutSettings) {
    WriteResultFiles();
    folder.MakeFolder("settings.ini");
    form.Form_Load();
    EXPECT_EQ(Enabled(), allButCancel);
    EXPECT_EQ(view.searchType, 0);
    EXPECT_FALSE(view.ignoreCase);
    EXPECT_EQ(view.timerInterval, 1000);
    EXPECT_TRUE(view.messages.empty());
    EXPECT_TRUE(logged.contains("getSetting 75"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("settings.ini")));
}

TEST_F(Form1FaultTest, WithoutAResultFolderOrWithAFileInItsPlaceTheWindowStartsWithoutReports) {
    std::filesystem::remove_all(folder.Path("resultfiles"));
    form.Form_Load();
    EXPECT_EQ(Enabled(), withoutResults);
    folder.Write("resultfiles", "a file");
    form.Form_Load();
    EXPECT_EQ(Enabled(), withoutResults);
    EXPECT_EQ(folder.Read("resultfiles"), "a file");
    EXPECT_TRUE(view.messages.empty());
    EXPECT_EQ(view.timerInterval, 1000);
}

}  // namespace
}  // namespace marlo
