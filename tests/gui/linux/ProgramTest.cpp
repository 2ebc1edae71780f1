// The window's program itself, from its start to its end: installed, and where it was unpacked.

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>
#include <wx/uiaction.h>

#include <gtest/gtest.h>

#include "tests/gui/Events.h"
#include "tests/gui/linux/ScreenWindows.h"
#include "tests/support/Program.h"
#include "tests/support/System.h"
#include "tests/support/TempFolder.h"

namespace marlo {
namespace {

using std::filesystem::perms;

/// A place in the caption "Help", in pixels from the left top of the window.
constexpr int kHelpLeft = 60;
constexpr int kHelpTop = 351;

class ProgramTest : public testing::Test {
  protected:
    ProgramTest() {
        std::filesystem::permissions(folder.Path(), perms{0755});
        test::SetVariable("HOME", folder.MakeFolder("home"));
        std::filesystem::permissions(folder.Path("home"), perms::all);
        test::ClearVariable("XDG_DATA_HOME");
        // An ordinary user has to get at the screen, too.
        const char* const authority = std::getenv("XAUTHORITY");
        if (authority == nullptr)
            return;
        static const std::string path = authority;
        std::filesystem::copy(path, folder.Path("authority"));
        std::filesystem::permissions(folder.Path("authority"), perms{0644});
        test::SetVariable("XAUTHORITY", folder.Path("authority"));
    }

    /// Puts the program into a folder. @return its path.
    std::string Place(const std::string& name) const {
        folder.MakeFolder(name);
        std::filesystem::copy(MARLO_WINDOW, folder.Path(name + "/marlo"));
        return folder.Path(name + "/marlo");
    }

    /// Waits until there are that many windows. @return the one that came last.
    static test::ScreenWindow WaitForWindows(std::size_t count) {
        std::vector<test::ScreenWindow> windows;
        EXPECT_TRUE(test::RunEventsUntil([&] {
            windows = test::WindowsOnScreen();
            return windows.size() == count;
        }));
        return windows.empty() ? test::ScreenWindow() : windows.back();
    }

    /// Waits until the one window has its icon, in its small size, too, and what comes with it.
    static void WaitForIcon() {
        EXPECT_TRUE(test::RunEventsUntil([] {
            const auto windows = test::WindowsOnScreen();
            return windows.size() == 1 && windows.front().iconWidths.contains(16);
        }));
        test::RunEvents();
    }

    /// Waits for the program's end. @return its exit code.
    static int EndOf(test::Program& program) {
        if (!test::RunEventsUntil([&] { return !program.IsRunning(); }))
            program.Kill();
        return program.Wait();
    }

    test::TempFolder folder;
};

TEST_F(ProgramTest, InstalledItHasItsPicturesAndKeepsWhatItWritesInTheHomeFolder) {
    folder.Write("usr/share/marlo/installed", "");
    std::filesystem::copy(MARLO_ICONS, folder.Path("usr/share/marlo/icons"));
    auto program = test::Program::Start({Place("usr/bin")});
    const auto window = WaitForWindows(1);
    EXPECT_EQ(window.title, "Marlo");
    WaitForIcon();
    test::CloseOnScreen(window);
    EXPECT_EQ(EndOf(program), 0);
    EXPECT_TRUE(folder.Exists("home/.local/share/marlo/settings.ini"));
    EXPECT_TRUE(folder.Exists("home/.local/share/marlo/resultfiles"));
    EXPECT_FALSE(folder.Exists("usr/bin/settings.ini"));
}

TEST_F(ProgramTest, InstalledItHasItsHelpBesideItsPictures) {
    folder.Write("usr/share/marlo/installed", "");
    const std::string page =
        folder.Write("usr/share/marlo/site/2006/10/table-of-contents.html", "help");
    // A desktop with a browser that notes what it is to show.
    const std::string browser =
        folder.Write("browser", "#!/bin/sh\nprintf '%s' \"$1\" >'" + folder.Path("note") + "'\n");
    std::filesystem::permissions(browser, perms{0755});
    folder.Write("data/mime/globs2", "50:text/html:*.html\n");
    folder.Write("data/applications/browser.desktop",
                 "[Desktop Entry]\nType=Application\nName=Browser\nExec=" + browser +
                     " %f\nMimeType=text/html;\n");
    folder.Write("data/applications/mimeapps.list",
                 "[Default Applications]\ntext/html=browser.desktop\n");
    test::SetVariable("XDG_DATA_HOME", folder.Path("data"));
    auto program = test::Program::Start({Place("usr/bin")});
    const auto window = WaitForWindows(1);
    EXPECT_TRUE(
        test::RepeatUntil([&] { return folder.Exists("note") && folder.Read("note") == page; },
                          [&] {
                              wxUIActionSimulator mouse;
                              mouse.MouseMove(window.left + kHelpLeft, window.top + kHelpTop);
                              mouse.MouseClick();
                          }));
    test::CloseOnScreen(window);
    EXPECT_EQ(EndOf(program), 0);
}

TEST_F(ProgramTest, InstalledItSaysInABoxThatItsFolderCannotBeMade) {
    folder.Write("usr/share/marlo/installed", "");
    folder.Write("home/.local", "a file");
    auto program = test::Program::Start({Place("usr/bin")});
    const auto box = WaitForWindows(1);
    EXPECT_EQ(box.title, "Marlo");
    test::CloseOnScreen(box);
    EXPECT_EQ(EndOf(program), 1);
}

TEST_F(ProgramTest, UnpackedWhereItCannotWriteItSaysSoOverItsWindow) {
    const std::string path = Place("marlo");
    folder.MakeFolder("marlo/resultfiles");
    std::filesystem::permissions(folder.Path("marlo"), perms{0555});
    const test::OrdinaryUser user;
    auto program = test::Program::Start({path});
    const auto box = WaitForWindows(2);
    const auto window = test::WindowsOnScreen().front();
    EXPECT_EQ(window.title, "Marlo");
    EXPECT_EQ(box.owner, window.id);
    test::CloseOnScreen(box);
    WaitForWindows(1);
    test::CloseOnScreen(window);
    EXPECT_EQ(EndOf(program), 0);
    EXPECT_FALSE(folder.Exists("marlo/settings.ini"));
}

TEST_F(ProgramTest, UnpackedWhereItCanWriteItSaysNothing) {
    const std::string path = Place("marlo");
    folder.MakeFolder("marlo/resultfiles");
    std::filesystem::copy(MARLO_ICONS, folder.Path("marlo/icons"));
    auto program = test::Program::Start({path});
    WaitForWindows(1);
    // A warning would come with the icon.
    WaitForIcon();
    test::CloseOnScreen(WaitForWindows(1));
    EXPECT_EQ(EndOf(program), 0);
    EXPECT_TRUE(folder.Exists("marlo/settings.ini"));
}

}  // namespace
}  // namespace marlo
