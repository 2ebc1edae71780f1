#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "platform/Machine.h"
#include "platform/linux/LinuxClock.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

namespace marlo::platform {
namespace {

/// A desktop of which the tests know what it has: a program that notes the arguments that it gets,
/// and opens ".sheet" and ".cpr" files and folders with it. What a desktop has is looked up once in
/// a process, so there is one for all tests.
class MadeDesktop {
  public:
    static const MadeDesktop& Instance() {
        static const MadeDesktop desktop;
        return desktop;
    }

    std::string Program() const { return folder_.Path("bin/Sheets & Co"); }
    std::string DrawnProgram() const { return folder_.Path("bin/drawn"); }

    /// What the program noted, once it has: how many arguments it got, and which.
    std::string TakeNote() const {
        for (int i = 0; i < 1000 && !folder_.Exists("note"); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        std::string note = folder_.Read("note");
        std::filesystem::remove(folder_.Path("note"));
        return note;
    }

  private:
    MadeDesktop() {
        const std::string note = folder_.Path("note");
        folder_.Write("bin/Sheets & Co", "#!/bin/sh\nprintf '%s|' \"$#\" \"$@\" >'" + note +
                                             ".new'\nmv '" + note + ".new' '" + note + "'\n");
        std::filesystem::permissions(Program(), std::filesystem::perms::owner_all);
        folder_.Write("data/mime/globs2",
                      "50:text/x-sheet:*.sheet\n50:text/x-none:*.none\n"
                      "50:text/x-boxed:*.boxed\n50:text/x-song:*.cpr\n");
        folder_.Write("data/applications/sheets.desktop",
                      "[Desktop Entry]\nType=Application\nName=Sheets\nIcon=sheets-icon\nExec=\"" +
                          Program() +
                          "\" %u\nMimeType=text/x-sheet;text/x-song;"
                          "inode/directory;x-scheme-handler/https;\n");
        folder_.Write("data/applications/drawn.desktop",
                      "[Desktop Entry]\nType=Application\nName=Drawn\nIcon=/pictures/drawn.png\n"
                      "Exec=" +
                          DrawnProgram() + "\n");
        folder_.Write("bin/drawn", "");
        std::filesystem::permissions(DrawnProgram(), std::filesystem::perms::owner_all);
        folder_.Write("data/applications/boxed.desktop",
                      "[Desktop Entry]\nType=Application\nName=Boxed\nExec=env A=b " +
                          folder_.Path("bin/x") + " %F\nMimeType=text/x-boxed;\n");
        folder_.Write("config/mimeapps.list",
                      "[Default Applications]\ntext/x-sheet=sheets.desktop\n"
                      "text/x-song=sheets.desktop\ninode/directory=sheets.desktop\n"
                      "text/x-boxed=boxed.desktop\nx-scheme-handler/https=sheets.desktop\n");
        test::SetVariable("XDG_DATA_HOME", folder_.Path("data"));
        test::SetVariable("XDG_DATA_DIRS", folder_.Path("data"));
        test::SetVariable("XDG_CONFIG_HOME", folder_.Path("config"));
    }

    test::TempFolder folder_;
};

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
    const MadeDesktop& made = MadeDesktop::Instance();
    EXPECT_EQ(SystemDesktop().ProgramForExtension(".sheet"), made.Program());
    EXPECT_EQ(SystemDesktop().ProgramForExtension(".none"), "");
    EXPECT_EQ(SystemDesktop().ProgramForExtension(".boxed"), "") << "env is not the program";
}

TEST_F(DesktopTest, AProgramHasTheIconThatItsDesktopEntryNames) {
    const MadeDesktop& made = MadeDesktop::Instance();
    const auto themed = SystemDesktop().SmallIcon(made.Program());
    ASSERT_TRUE(themed);
    EXPECT_EQ(themed->name, "sheets-icon");
    const auto drawn = SystemDesktop().SmallIcon(made.DrawnProgram());
    ASSERT_TRUE(drawn);
    EXPECT_EQ(drawn->name, "/pictures/drawn.png");
}

TEST_F(DesktopTest, AProgramWithoutADesktopEntryHasNoIcon) {
    EXPECT_FALSE(SystemDesktop().SmallIcon(folder.Write("program", "")));
    EXPECT_FALSE(SystemDesktop().SmallIcon(""));
}

class ShellTest : public DesktopTest {
  protected:
    static int Ask(const ShellRequest& request) { return SystemDesktop().ShellExecute(request); }

    const MadeDesktop& made = MadeDesktop::Instance();
};

TEST_F(ShellTest, AProgramGetsItsParametersAsOneArgumentWhateverIsInThem) {
    const std::string hostile = folder.Write("a b'\"$(touch x);`y` \\ \n%f.csv", "");
    EXPECT_GT(Ask({.file = made.Program(), .parameters = hostile, .isProgram = true}),
              kLastShellFailure);
    EXPECT_EQ(made.TakeNote(), "1|" + hostile + "|");
}

TEST_F(ShellTest, AProgramWithoutParametersIsStartedWithoutArguments) {
    EXPECT_GT(Ask({.file = made.Program(), .isProgram = true}), kLastShellFailure);
    EXPECT_EQ(made.TakeNote(), "0|");
}

TEST_F(ShellTest, AProjectIsOpenedByTheProgramForItAndNeverExecuted) {
    for (const std::string name : {"a 曲 $x.cpr", "-rf.cpr", "a\n%f\\\xE9.cpr"}) {
        const std::string project =
            folder.Write(name, "#!/bin/sh\ntouch '" + folder.Path("executed") + "'\n");
        std::filesystem::permissions(project, std::filesystem::perms::owner_all);
        EXPECT_GT(Ask({.file = project}), kLastShellFailure);
        EXPECT_EQ(made.TakeNote(), "1|" + project + "|");
    }
    EXPECT_FALSE(folder.Exists("executed"));
}

TEST_F(ShellTest, AnExecutableFileThatWasNotChosenAsAProgramIsNotStarted) {
    const std::string song = folder.Write("song", "touch '" + folder.Path("executed") + "'\n");
    std::filesystem::permissions(song, std::filesystem::perms::owner_all);
    EXPECT_EQ(Ask({.file = song}), 31);
    EXPECT_EQ(Ask({.file = made.Program()}), 31);
    EXPECT_FALSE(folder.Exists("executed"));
}

TEST_F(ShellTest, TheExplorerShowsAFolder) {
    for (const std::string name : {"songs; and more", "-x", "a\n%f\\\xE9\"$(y)"}) {
        const std::string songs = folder.MakeFolder(name);
        EXPECT_GT(Ask({.file = "explorer.exe", .parameters = songs}), kLastShellFailure);
        EXPECT_EQ(made.TakeNote(), "1|" + songs + "|");
    }
}

TEST_F(ShellTest, WhatIsNotThereIsNotFound) {
    const std::string nul("\0x", 2);
    EXPECT_EQ(Ask({.file = folder.Path("gone.cpr")}), 2);
    EXPECT_EQ(Ask({.file = ""}), 2);
    EXPECT_EQ(Ask({.file = folder.Write("a.cpr", "") + nul}), 2);
    EXPECT_EQ(Ask({.file = folder.Path("gone"), .isProgram = true}), 2);
    EXPECT_EQ(Ask({.file = made.Program() + nul, .isProgram = true}), 2);
    EXPECT_EQ(Ask({.file = made.Program(), .parameters = "a" + nul, .isProgram = true}), 2);
    EXPECT_EQ(Ask({.file = "explorer.exe", .parameters = folder.Path("gone")}), 2);
    EXPECT_EQ(Ask({.file = "explorer.exe", .parameters = made.Program()}), 2) << "no folder";
}

TEST_F(ShellTest, AWebPageIsOpenedByTheProgramForItsAddress) {
    const std::string address = "https://help.example/2006/10/table-of-contents.html";
    EXPECT_GT(Ask({.file = address}), kLastShellFailure);
    EXPECT_EQ(made.TakeNote(), "1|" + address + "|");
    EXPECT_EQ(Ask({.file = "http://help.example/"}), 31) << "nothing is associated with http";
}

TEST_F(ShellTest, ADocumentWithoutAProgramHasNoAssociation) {
    EXPECT_EQ(Ask({.file = folder.Write("a.unheard-of", "")}), 31);
}

TEST_F(ShellTest, AProgramThatCannotBeStartedIsAFailure) {
    const std::string broken = folder.Write("broken", "#!/nowhere/interpreter\n");
    EXPECT_EQ(Ask({.file = broken, .isProgram = true}), 5) << "it may not be executed";
    std::filesystem::permissions(broken, std::filesystem::perms::owner_all);
    EXPECT_EQ(Ask({.file = broken, .isProgram = true}), 5);
}

TEST_F(ShellTest, AShortPathIsThePathItselfOrNothing) {
    const std::string path = folder.Write("a long name.csv", "");
    EXPECT_EQ(SystemDesktop().ShortPath(path), path);
    EXPECT_EQ(SystemDesktop().ShortPath(folder.Path()), folder.Path());
    EXPECT_EQ(SystemDesktop().ShortPath(folder.Path("gone")), "");
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
    test::SetVariable("LC_ALL", "C");
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
    test::SetVariable("LC_ALL", "xx_XX.UTF-8");
    std::tm moment{};
    moment.tm_year = 126;
    moment.tm_mday = 1;
    EXPECT_EQ(LinuxClock().ShortDateText(moment), "01/01/26");
}

}  // namespace
}  // namespace marlo::platform
