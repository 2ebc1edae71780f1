#include <wx/msgdlg.h>

#include "core/Settings.h"
#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

/// What is opened outside of the program: pages, and the result files.
class PagesTest : public test::GuiTest {
  protected:
    PagesTest() {
        WriteResultFiles();
        Open();
    }

    void ExpectRequest(const std::string& file, const std::string& parameters = "") {
        ASSERT_EQ(desktop.shellRequests.size(), 1U);
        const platform::ShellRequest& request = desktop.shellRequests[0];
        EXPECT_EQ(request.verb, "Open");
        EXPECT_EQ(request.file, file);
        EXPECT_EQ(request.parameters, parameters);
        EXPECT_EQ(request.folder, "0");
        EXPECT_EQ(request.showState, 1);
    }

    void ExpectMessage(const std::string& text, long style) {
        dialogs.Handle([&, text, style](test::Dialog& dialog) {
            ExpectMessageBox(dialog, text, style);
            Press(WXK_RETURN);
        });
    }
};

TEST_F(PagesTest, HelpOpensItsPage) {
    Click(Item(kHelpItem));
    ExpectRequest("https://marlo.example/2006/10/table-of-contents.html");
}

TEST_F(PagesTest, AHelpPageThatCannotBeShownIsTold) {
    desktop.shellAnswer = platform::kLastShellFailure;
    ExpectMessage("Cannot show the help file", wxOK);
    Click(Item(kHelpItem));
}

TEST_F(PagesTest, DonateOpensItsPage) {
    Click(Find("btnDonate"));
    ExpectRequest("https://marlo.example/2006/10/donate.html");
}

TEST_F(PagesTest, ADonationPageThatCannotBeShownIsTold) {
    desktop.shellAnswer = platform::kLastShellFailure;
    ExpectMessage("Cannot show the donations page", wxOK | wxICON_EXCLAMATION);
    Click(Find("btnDonate"));
}

TEST_F(PagesTest, AFailureOfTheDonationPageIsLoggedUnderItsOldName) {
    desktop.shellFailure = std::make_exception_ptr(std::bad_alloc());
    Click(Find("btnDonate"));
    EXPECT_NE(Log().find("Procedure: lstSongs_ColumnClick "), std::string::npos);
}

TEST_F(PagesTest, PluginsByProjectOpensInTheChosenProgram) {
    Click(Item(kProjectPluginsFileItem));
    ExpectRequest("/bin/sheets", "short:" + folder.Path("resultfiles/fln.csv"));
}

TEST_F(PagesTest, InstalledPluginsOpenInTheChosenProgram) {
    Click(Item(kInstalledPluginsFileItem));
    ExpectRequest("/bin/sheets", "short:" + folder.Path("resultfiles/installedplugins.csv"));
}

TEST_F(PagesTest, WithoutAProgramTheUserIsSentToTheOptions) {
    WriteSetting(application, setting::kCsvProgram, "");
    ExpectMessage("You need to select a program to open the file. See the Settings menu.", wxOK);
    Click(Item(kProjectPluginsFileItem));
    EXPECT_TRUE(desktop.shellRequests.empty());
}

TEST_F(PagesTest, AProgramThatCannotBeStartedIsTold) {
    desktop.shellAnswer = platform::kLastShellFailure;
    ExpectMessage("Cannot open the file at the moment", wxOK | wxICON_INFORMATION);
    Click(Item(kProjectPluginsFileItem));
}

}  // namespace
}  // namespace marlo
