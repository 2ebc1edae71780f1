#include <exception>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "core/Settings.h"
#include "tests/support/ApplicationTest.h"
#include "ui/OpenResultsFile.h"

namespace marlo {
namespace {

class OpenResultsFileTest : public test::ApplicationTest {
  protected:
    OpenResultsFileTest() {
        folder.Write("resultfiles/fln.csv", "");
        WriteSetting(application, setting::kCsvProgram, "/usr/bin/sheet");
    }

    void Open(const std::string& name = "fln.csv") { OpenResultsFile(application, window, name); }

    void ExpectMessage(const std::string& text, MessageIcon icon) const {
        ASSERT_EQ(window.messages.size(), 1U);
        EXPECT_EQ(window.messages.front().text, text);
        EXPECT_EQ(window.messages.front().icon, icon);
        EXPECT_EQ(window.messages.front().buttons, MessageButtons::Ok);
    }
};

TEST_F(OpenResultsFileTest, TheChosenProgramGetsTheShortPathAsItsParameters) {
    Open(" fln.csv ");
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    const platform::ShellRequest& request = desktop.shellRequests.front();
    EXPECT_EQ(request.verb, "Open");
    EXPECT_EQ(request.file, "/usr/bin/sheet");
    EXPECT_EQ(request.parameters, "short:" + folder.Path("resultfiles/fln.csv"));
    EXPECT_TRUE(request.isProgram);
    EXPECT_EQ(request.folder, "0");
    EXPECT_EQ(request.showState, 1);
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(OpenResultsFileTest, AFileThatDoesNotExistStartsTheProgramWithEmptyParameters) {
    Open("installedplugins.csv");
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    EXPECT_EQ(desktop.shellRequests.front().parameters, "");
    EXPECT_TRUE(window.messages.empty());
}

TEST_F(OpenResultsFileTest, WithoutAChosenProgramTheUserIsToldToSelectOne) {
    WriteSetting(application, setting::kCsvProgram, "");
    Open();
    ExpectMessage("You need to select a program to open the file. See the Settings menu.",
                  MessageIcon::None);
    EXPECT_TRUE(desktop.shellRequests.empty());
    EXPECT_EQ(Log(), "");
}

TEST_F(OpenResultsFileTest, AProgramThatCannotBeStartedIsTold) {
    desktop.shellAnswer = 2;
    Open();
    ExpectMessage("Cannot open the file at the moment", MessageIcon::Information);
    EXPECT_EQ(Log(), "");
}

TEST_F(OpenResultsFileTest, AFailureIsLoggedAndTold) {
    desktop.shellFailure = std::make_exception_ptr(RunTimeError(ErrorNumber::OutOfMemory));
    Open();
    ExpectMessage(
        "The file could not be opened. Check the settings menu to ensure you have selected an "
        "appropiate program to open the file.",
        MessageIcon::None);
    EXPECT_EQ(Log(), LogLine("OpenResultsFile", 7, "Out of memory"));
}

TEST_F(OpenResultsFileTest, TheShortPathOfAPathThatDoesNotExistIsEmpty) {
    EXPECT_EQ(GetShortPath(application, folder.Path("gone")), "");
}

}  // namespace
}  // namespace marlo
