#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "platform/Machine.h"
#include "platform/linux/LinuxClock.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

class DesktopTest : public testing::Test {
  protected:
    std::string Describe(const std::string& path, FileKind kind = FileKind::Unknown) {
        return SystemDesktop().FileTypeDescription(path, kind, error);
    }

    test::TempFolder folder;
    std::error_code error;
};

TEST_F(DesktopTest, ARegularFileWithTheExtensionIsACprFileWhateverItsCase) {
    for (const char* name : {"a.cpr", "b.CPR", "c.CpR", ".cpr", "d.txt.cpr"})
        EXPECT_EQ(Describe(folder.Write(name, "")), "CPR File") << name;
}

TEST_F(DesktopTest, ALibraryIsAnApplicationExtensionWhateverItsCase) {
    for (const char* name : {"a.dll", "b.DLL", "c.b.Dll"})
        EXPECT_EQ(Describe(folder.Write(name, "")), "Application Extension") << name;
    EXPECT_EQ(Describe(folder.MakeFolder("folder.dll")), "");
}

TEST_F(DesktopTest, TheProgramForAnExtensionIsTheDesktopsOwn) {
    const std::string program = folder.Write("bin/Sheets & Co", "#!/bin/sh\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    folder.Write("data/mime/globs2",
                 "50:text/x-marlo-sheet:*.sheet\n50:text/x-marlo-none:*.none\n"
                 "50:text/x-marlo-boxed:*.boxed\n");
    folder.Write("data/applications/sheets.desktop",
                 "[Desktop Entry]\nType=Application\nName=Sheets\nExec=\"" + program +
                     "\" %F\nMimeType=text/x-marlo-sheet;\n");
    folder.Write("data/applications/boxed.desktop",
                 "[Desktop Entry]\nType=Application\nName=Boxed\nExec=env A=b " +
                     folder.Path("bin/x") + " %F\nMimeType=text/x-marlo-boxed;\n");
    folder.Write("config/mimeapps.list",
                 "[Default Applications]\ntext/x-marlo-sheet=sheets.desktop\n"
                 "text/x-marlo-boxed=boxed.desktop\n");
    setenv("XDG_DATA_HOME", folder.Path("data").c_str(), 1);
    setenv("XDG_DATA_DIRS", folder.Path("data").c_str(), 1);
    setenv("XDG_CONFIG_HOME", folder.Path("config").c_str(), 1);
    EXPECT_EQ(SystemDesktop().ProgramForExtension(".sheet"), program);
    EXPECT_EQ(SystemDesktop().ProgramForExtension(".none"), "");
    EXPECT_EQ(SystemDesktop().ProgramForExtension(".boxed"), "") << "env is not the program";
}

TEST_F(DesktopTest, OtherFilesHaveNoDescription) {
    for (const char* name : {"a.txt", "cpr", "a.cpr.bak", "a.cprx", "a", "a.dll.bak"})
        EXPECT_EQ(Describe(folder.Write(name, "")), "") << name;
}

TEST_F(DesktopTest, AFolderOrALinkToNowhereIsNoProjectAndNoFailure) {
    EXPECT_EQ(Describe(folder.MakeFolder("folder.cpr")), "");
    std::filesystem::create_symlink("nowhere", folder.Path("dangling.cpr"));
    EXPECT_EQ(Describe(folder.Path("dangling.cpr")), "");
    std::filesystem::create_symlink("self.cpr", folder.Path("self.cpr"));
    EXPECT_EQ(Describe(folder.Path("self.cpr")), "");
    EXPECT_FALSE(error);
}

TEST_F(DesktopTest, ALinkToAProjectIsAProject) {
    folder.Write("real.cpr", "");
    std::filesystem::create_symlink("real.cpr", folder.Path("link.cpr"));
    EXPECT_EQ(Describe(folder.Path("link.cpr")), "CPR File");
}

TEST_F(DesktopTest, AFileThatIsKnownToBeRegularIsNotLookedAt) {
    EXPECT_EQ(Describe(folder.Path("gone.dll"), FileKind::Regular), "Application Extension");
    EXPECT_EQ(Describe(folder.Path("gone.txt"), FileKind::Regular), "");
}

TEST_F(DesktopTest, AFileThatCannotBeAskedAboutIsAnError) {
    Describe(folder.Path(std::string(300, 'x') + ".cpr"));
    EXPECT_EQ(error, std::errc::filename_too_long);
}

TEST(ClockTest, TheClockTellsTheLocalTime) {
    const std::time_t before = std::time(nullptr);
    std::tm now = SystemClock().Now();
    const std::time_t told = std::mktime(&now);
    EXPECT_GE(told, before);
    EXPECT_LE(told, std::time(nullptr));
}

TEST(ClockTest, DatesAndTimesHaveTheFormOfTheUsersLocale) {
    // The plain locale is the one that is installed everywhere.
    setenv("LC_ALL", "C", 1);
    std::tm moment{};
    moment.tm_year = 126;
    moment.tm_mon = 10;
    moment.tm_mday = 15;
    moment.tm_hour = 3;
    moment.tm_min = 10;
    moment.tm_sec = 22;
    EXPECT_EQ(LinuxClock().TimeText(moment), "03:10:22");
    EXPECT_EQ(LinuxClock().ShortDateText(moment), "11/15/26");
}

TEST(ClockTest, ALocaleThatIsNotInstalledFallsBackToThePlainForm) {
    setenv("LC_ALL", "xx_XX.UTF-8", 1);
    std::tm moment{};
    moment.tm_year = 126;
    moment.tm_mday = 1;
    EXPECT_EQ(LinuxClock().ShortDateText(moment), "01/01/26");
}

}  // namespace
}  // namespace marlo::platform
