#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/RunTimeError.h"
#include "core/Settings.h"
#include "dialogs/frmOptions.h"
#include "tests/dialogs/DialogFakes.h"

namespace marlo {
namespace {

using Texts = std::vector<std::string>;

/// What Ok and Cancel leave in the settings.
class OptionsWriteTest : public test::OptionsTestBase {
  protected:
    OptionsWriteTest() {
        WriteFolders({"/a", "/b", "/c"});
        WriteSetting(application, 4, "/bin/old.exe");
        WriteSetting(application, 20, "1");
        WriteSetting(application, 21, "0");
        desktop.icons["/bin/new.exe"] = {.name = "new icon"};
        options.Form_Load();
        view.events.clear();
    }

    void Browse(const std::string& program) {
        files.Choose(program);
        options.cmdTab2Search_Click();
    }

    void CancelBrowsing() {
        files.Cancel();
        options.cmdTab2Search_Click();
    }

    void Add(const std::string& path) {
        folders.answer = path;
        options.cmdAdd_Click();
    }

    void Remove(std::size_t position) {
        options.SelectPath(position);
        options.cmdRemove_Click();
    }

    /// Changes everything that can be changed.
    void ChangeAll() {
        Add("/d");
        Remove(1);
        Browse("/bin/new.exe");
        options.SetIgnoreDX(false);
        options.SetIgnoreOff(true);
        view.events.clear();
    }
};

TEST_F(OptionsWriteTest, OkWritesWhatWasChangedAndClosesTheDialog) {
    ChangeAll();
    options.cmdOk_Click();
    EXPECT_EQ(SettingsFrom50(4), (Texts{"/b", "/c", "/d", ""}));
    EXPECT_EQ(Setting(4), "/bin/new.exe");
    EXPECT_EQ(Setting(20), "0");
    EXPECT_EQ(Setting(21), "1");
    EXPECT_EQ(view.events, Texts{"Close"});
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsWriteTest, OkWritesNothingElse) {
    const std::string before = folder.Read("settings.ini");
    options.cmdOk_Click();
    EXPECT_EQ(folder.Read("settings.ini"), before);
}

TEST_F(OptionsWriteTest, AnythingButOneIsWrittenAsZero) {
    WriteSetting(application, 20, "");
    WriteSetting(application, 21, "2");
    frmOptions other(application, {view, folders, files, picture, firstCsvBox, secondCsvBox});
    other.Form_Load();
    other.cmdOk_Click();
    EXPECT_EQ(Setting(20), "0");
    EXPECT_EQ(Setting(21), "0");
}

TEST_F(OptionsWriteTest, NothingIsWrittenBeforeOkAndCancelWritesNothing) {
    const std::string before = folder.Read("settings.ini");
    ChangeAll();
    EXPECT_EQ(folder.Read("settings.ini"), before);
    options.cmdCancel_Click();
    EXPECT_EQ(folder.Read("settings.ini"), before);
    EXPECT_EQ(view.events, Texts{"Close"});
    EXPECT_TRUE(firstCsvBox.events.empty());
}

TEST_F(OptionsWriteTest, OfThreeFoldersWithOneRemovedTwoSettingsStaySet) {
    Remove(2);
    options.cmdOk_Click();
    EXPECT_EQ(SettingsFrom50(3), (Texts{"/a", "/c", ""}));
}

TEST_F(OptionsWriteTest, WithoutFoldersNoSettingStaysSet) {
    for (int i = 0; i < 3; ++i)
        Remove(1);
    options.cmdOk_Click();
    EXPECT_EQ(SettingsFrom50(4), (Texts{"", "", "", ""}));
}

TEST_F(OptionsWriteTest, SettingsBehindTheFirstEmptyOneStay) {
    WriteSetting(application, 54, "/behind");
    Remove(1);
    options.cmdOk_Click();
    EXPECT_EQ(SettingsFrom50(5), (Texts{"/b", "/c", "", "", "/behind"}));
}

TEST_F(OptionsWriteTest, OkWithoutBrowsingLeavesTheProgramAsItWas) {
    WriteSetting(application, 4, "/bin/changed.exe");
    options.cmdOk_Click();
    EXPECT_EQ(Setting(4), "/bin/changed.exe");
    EXPECT_TRUE(firstCsvBox.events.empty());
    EXPECT_TRUE(secondCsvBox.events.empty());
}

TEST_F(OptionsWriteTest, ACancelledBrowseUndoesTheOneBefore) {
    Browse("/bin/new.exe");
    CancelBrowsing();
    EXPECT_EQ(view.shown.program, "/bin/new.exe") << "which stays shown";
    options.cmdOk_Click();
    EXPECT_EQ(Setting(4), "/bin/old.exe");
    EXPECT_TRUE(firstCsvBox.events.empty());
}

TEST_F(OptionsWriteTest, ABrowseThatFailsUndoesTheOneBefore) {
    Browse("/bin/new.exe");
    files.failure = std::make_exception_ptr(RunTimeError(ErrorNumber::OutOfMemory));
    options.cmdTab2Search_Click();
    options.cmdOk_Click();
    EXPECT_EQ(Setting(4), "/bin/old.exe");
}

TEST_F(OptionsWriteTest, TheLastOfSeveralBrowsesCounts) {
    Browse("/bin/new.exe");
    CancelBrowsing();
    Browse("/bin/newer.exe");
    options.cmdOk_Click();
    EXPECT_EQ(Setting(4), "/bin/newer.exe");
}

TEST_F(OptionsWriteTest, TheProgramsIconIsDrawnBehindFoldersAndProgramAndBeforeTheChecks) {
    ChangeAll();
    Texts written;
    firstCsvBox.onClear = [&] { written = {Setting(50), Setting(4), Setting(20), Setting(21)}; };
    options.cmdOk_Click();
    EXPECT_EQ(written, (Texts{"/b", "/bin/new.exe", "1", "0"}));
    EXPECT_EQ(firstCsvBox.events, (Texts{"Clear", "Draw new icon"}));
    EXPECT_EQ(secondCsvBox.events, (Texts{"Clear", "Draw new icon"}));
}

TEST_F(OptionsWriteTest, TheDialogClosesWhenEverythingIsWritten) {
    ChangeAll();
    Texts written;
    view.onClose = [&] { written = {Setting(20), Setting(21)}; };
    options.cmdOk_Click();
    EXPECT_EQ(written, (Texts{"0", "1"}));
}

TEST_F(OptionsWriteTest, AnIconThatFailsIsLoggedOnly) {
    ChangeAll();
    desktop.shellFailure = std::make_exception_ptr(RunTimeError(ErrorNumber::OutOfMemory));
    options.cmdOk_Click();
    const std::string line = LogLine("FileBrowser:StripTerminator", 7, "Out of memory");
    EXPECT_EQ(Log(), line + line) << "one for each box";
    EXPECT_EQ(Setting(21), "1");
    EXPECT_EQ(view.events, Texts{"Close"});
}

TEST_F(OptionsWriteTest, ASettingThatCannotBeWrittenIsLoggedOnlyAndTheDialogCloses) {
    std::filesystem::remove(folder.Path("settings.ini"));
    folder.MakeFolder("settings.ini");
    options.cmdOk_Click();
    EXPECT_NE(Log().find("Procedure: WriteSetting "), std::string::npos);
    EXPECT_EQ(Log().find("frmOptions"), std::string::npos);
    EXPECT_EQ(view.events, Texts{"Close"});
}

TEST_F(OptionsWriteTest, AFailureIsLoggedAndToldWithTheFilesName) {
    view.onClose = Fail;
    options.cmdOk_Click();
    ExpectMessage("A problem occurred while writing to the file " + folder.Path() +
                  "\\settings.ini. Please delete it and try again.");
    EXPECT_EQ(Log(), LogLine("frmOptions:cmdOk_Click", 70, "Permission denied"));
}

}  // namespace
}  // namespace marlo
