#include <exception>
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

constexpr const char* kFoldersHeader =
    "Select the Cubase SX Plugins and the shared VST Plugins folder";
constexpr const char* kNote =
    "DirectX Plugins and 'Off' Plugins are still included in the comma seperated value files.";

class OptionsOpeningTest : public test::OptionsTestBase {
  protected:
    /// Writes a setting and opens the dialog.
    const test::ShownOptions& OpenWith(std::int16_t record, const std::string& value) {
        WriteSetting(application, record, value);
        options.Form_Load();
        return view.shown;
    }
};

TEST_F(OptionsOpeningTest, ItShowsWhatTheSettingsHold) {
    WriteFolders({"/vst", "/shared/vst"});
    WriteSetting(application, 1, "/songs");
    WriteSetting(application, 3, "0");
    WriteSetting(application, 4, "/bin/sheet");
    WriteSetting(application, 11, "11-15-2026 03:10:22");
    WriteSetting(application, 15, "11-16-2026 23:59:59");
    WriteSetting(application, 20, "1");
    WriteSetting(application, 21, "1");
    options.Form_Load();
    const test::ShownOptions expected = {.tab = 0,
                                         .header = kFoldersHeader,
                                         .folders = {"/vst", "/shared/vst"},
                                         .selectedFolder = "(none)",
                                         .program = "/bin/sheet",
                                         .ignoreDX = true,
                                         .ignoreOff = true,
                                         .searchDate = "11-15-2026 03:10:22",
                                         .searchPath = "/songs - Excluding sub folders",
                                         .inventoryDate = "11-16-2026 23:59:59",
                                         .note = kNote};
    EXPECT_EQ(view.shown, expected);
    EXPECT_EQ(test::ShownAs(options.State()), expected);
    EXPECT_TRUE(view.messages.empty());
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsOpeningTest, WithoutSettingsItIsEmpty) {
    options.Form_Load();
    EXPECT_EQ(view.shown, (test::ShownOptions{.tab = 0,
                                              .header = kFoldersHeader,
                                              .folders = {},
                                              .selectedFolder = "(none)",
                                              .program = "",
                                              .ignoreDX = false,
                                              .ignoreOff = false,
                                              .searchDate = "",
                                              .searchPath = "",
                                              .inventoryDate = "",
                                              .note = kNote}));
    EXPECT_TRUE(view.messages.empty());
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsOpeningTest, TheFoldersEndAtTheFirstEmptySetting) {
    WriteFolders({"/a", "/b"});
    WriteSetting(application, 53, "/behind");
    options.Form_Load();
    EXPECT_EQ(view.shown.folders, (Texts{"/a", "/b"}));
}

TEST_F(OptionsOpeningTest, TheFoldersAreShadedOnceTheyAreShown) {
    WriteFolders({"/a"});
    Texts folders;
    view.onSetLedger = [&] { folders = view.shown.folders; };
    options.Form_Load();
    EXPECT_EQ(folders, Texts{"/a"});
}

TEST_F(OptionsOpeningTest, TheLastFolderIsFollowedByWhetherItsSubfoldersWereSearched) {
    WriteSetting(application, 1, "/songs");
    EXPECT_EQ(OpenWith(3, "1").searchPath, "/songs - Including sub folders");
    EXPECT_EQ(OpenWith(3, "0").searchPath, "/songs - Excluding sub folders");
    EXPECT_EQ(OpenWith(3, "").searchPath, "/songs");
    EXPECT_EQ(OpenWith(3, "yes").searchPath, "");
}

TEST_F(OptionsOpeningTest, ABoxIsCheckedWhenItsSettingsNumberIsOne) {
    for (const std::string value : {"1", "1.0", "1 x"}) {
        EXPECT_TRUE(OpenWith(20, value).ignoreDX) << value;
        EXPECT_TRUE(OpenWith(21, value).ignoreOff) << value;
    }
    for (const std::string value : {"", "0", "x1", "2", "-1"}) {
        EXPECT_FALSE(OpenWith(20, value).ignoreDX) << value;
        EXPECT_FALSE(OpenWith(21, value).ignoreOff) << value;
    }
}

TEST_F(OptionsOpeningTest, EachBoxHasItsOwnSetting) {
    EXPECT_TRUE(OpenWith(20, "1").ignoreDX);
    EXPECT_FALSE(view.shown.ignoreOff);
}

TEST_F(OptionsOpeningTest, TheProgramIsShownWithItsIconBeforeTheGeneralSettings) {
    WriteFolders({"/a"});
    WriteSetting(application, 4, "/bin/sheet");
    WriteSetting(application, 20, "1");
    desktop.icons["/bin/sheet"] = {.name = "spreadsheet"};
    test::ShownOptions before;
    picture.onClear = [&] { before = test::ShownAs(options.State()); };
    options.Form_Load();
    EXPECT_EQ(before.folders, Texts{"/a"});
    EXPECT_EQ(before.header, kFoldersHeader);
    EXPECT_FALSE(before.ignoreDX);
    EXPECT_EQ(picture.events, (Texts{"Clear", "Draw spreadsheet"}));
    EXPECT_EQ(view.shown.program, "/bin/sheet");
    EXPECT_TRUE(firstCsvBox.events.empty()) << "only Ok draws in the main window";
}

TEST_F(OptionsOpeningTest, AProgramWithoutAnIconLeavesThePictureAsItIs) {
    EXPECT_EQ(OpenWith(4, "/bin/sheet").program, "/bin/sheet");
    EXPECT_TRUE(picture.events.empty());
}

TEST_F(OptionsOpeningTest, AFolderThatTheSettingsHoldTwiceEndsIt) {
    WriteFolders({"/a", "/b", "/a", "/c"});
    WriteSetting(application, 4, "/bin/sheet");
    WriteSetting(application, 20, "1");
    options.Form_Load();
    EXPECT_EQ(view.shown, (test::ShownOptions{.tab = 0,
                                              .header = "",
                                              .folders = {"/a", "/b"},
                                              .selectedFolder = "(none)",
                                              .program = "",
                                              .ignoreDX = false,
                                              .ignoreOff = false,
                                              .searchDate = "",
                                              .searchPath = "",
                                              .inventoryDate = "",
                                              .note = ""}));
    EXPECT_EQ(view.events, (Texts{"Show", "Message: An unexpected error occurred"}));
    ExpectMessage("An unexpected error occurred");
    EXPECT_EQ(Log(), LogLine("frmOptions:Form_Load", 35602, "Key is not unique in collection"));
}

TEST_F(OptionsOpeningTest, AFailureIsLoggedAndToldWithoutAFullStopAndEndsIt) {
    WriteSetting(application, 4, "/bin/sheet");
    view.onAutoSize = Fail;
    options.Form_Load();
    ExpectMessage("An unexpected error occurred");
    EXPECT_EQ(Log(), LogLine("frmOptions:Form_Load", 70, "Permission denied"));
    EXPECT_EQ(options.State().lblHeader, "");
    EXPECT_EQ(options.State().imgcboPath, "");
    EXPECT_EQ(options.State().Label2, "");
}

TEST_F(OptionsOpeningTest, RowColoursThatFailAreLoggedUnderTheirOwnNameAndTheRestIsShown) {
    WriteFolders({"/a"});
    WriteSetting(application, 4, "/bin/sheet");
    view.onSetLedger = Fail;
    options.Form_Load();
    EXPECT_EQ(Log(), LogLine("SetListViewLedger", 70, "Permission denied"));
    EXPECT_EQ(view.events.at(2), test::kSetLedger);
    EXPECT_EQ(view.events.at(3), "RemoveLedger");
    EXPECT_TRUE(view.messages.empty());
    EXPECT_EQ(view.shown.folders, Texts{"/a"});
    EXPECT_EQ(view.shown.program, "/bin/sheet");
    EXPECT_EQ(view.shown.note, kNote);
}

TEST_F(OptionsOpeningTest, AProgramThatCannotBeShownIsLoggedOnlyAndTheRestIsShown) {
    WriteSetting(application, 4, "/bin/sheet");
    WriteSetting(application, 20, "1");
    int showings = 0;
    view.onShow = [&] {
        if (++showings == 2)
            Fail();
    };
    options.Form_Load();
    EXPECT_EQ(Log(), LogLine("frmOptions:LoadImageIntoCombo", 70, "Permission denied"));
    EXPECT_TRUE(view.messages.empty());
    EXPECT_TRUE(view.shown.ignoreDX);
}

TEST_F(OptionsOpeningTest, AFailureOfTheIconIsLoggedOnlyAndTheProgramIsShown) {
    desktop.shellFailure = std::make_exception_ptr(RunTimeError(ErrorNumber::OutOfMemory));
    EXPECT_EQ(OpenWith(4, "/bin/sheet").program, "/bin/sheet");
    EXPECT_EQ(Log(), LogLine("FileBrowser:StripTerminator", 7, "Out of memory"));
    EXPECT_TRUE(view.messages.empty());
}

class OptionsTabTest : public test::OptionsTestBase {
  protected:
    OptionsTabTest() { options.Form_Load(); }

    std::string HeaderOf(int tab) {
        options.Tabs_Click(tab);
        EXPECT_EQ(view.shown.tab, tab);
        return view.shown.header;
    }
};

TEST_F(OptionsTabTest, TheHeaderFollowsTheTab) {
    EXPECT_EQ(HeaderOf(1), "Select a program to open up the .csv result files");
    EXPECT_EQ(HeaderOf(2), "General settings");
    EXPECT_EQ(HeaderOf(3), "Last run Log");
    EXPECT_EQ(HeaderOf(0), kFoldersHeader);
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsTabTest, AFailureIsLoggedAndToldWithoutAFullStop) {
    view.onShow = Fail;
    options.Tabs_Click(1);
    ExpectMessage("An unexpected error occurred");
    EXPECT_EQ(Log(), LogLine("frmOptions:Tabs_Click", 70, "Permission denied"));
}

TEST_F(OptionsTabTest, ATabThatDoesNotExistFailsAndTheTabStays) {
    options.Tabs_Click(3);
    options.Tabs_Click(4);
    ExpectMessage("An unexpected error occurred");
    options.Tabs_Click(-1);
    const std::string line = LogLine("frmOptions:Tabs_Click", 9, "Subscript out of range");
    EXPECT_EQ(Log(), line + line);
    EXPECT_EQ(options.State().tab, 3);
    EXPECT_EQ(options.State().lblHeader, "Last run Log");
}

class OptionsBrowseTest : public test::OptionsTestBase {
  protected:
    OptionsBrowseTest() {
        WriteSetting(application, 4, "/bin/old.exe");
        options.Form_Load();
        desktop.icons["/bin/new.exe"] = {.name = "new icon"};
        view.events.clear();
    }

    void Browse(const std::string& program) {
        files.Choose(program);
        options.cmdTab2Search_Click();
    }
};

TEST_F(OptionsBrowseTest, AProgramIsAskedFor) {
    Browse("/bin/new.exe");
    ASSERT_EQ(files.records.size(), 1U);
    const OpenFileName& record = files.records.front();
    EXPECT_EQ(record.title, "Select an application to open the csv result files");
    EXPECT_EQ(record.filter, std::string("Program files (*.exe)\0*.exe\0\0", 29));
    EXPECT_EQ(record.file.substr(0, record.file.find('\0')), "/bin/old.exe");
    EXPECT_EQ(record.initialFolder, "");
}

TEST_F(OptionsBrowseTest, TheSettingsProgramIsProposedAlsoWhenAnotherWasChosenBefore) {
    Browse("/bin/new.exe");
    Browse("/bin/new.exe");
    ASSERT_EQ(files.records.size(), 2U);
    EXPECT_TRUE(files.records.back().file.starts_with("/bin/old.exe"));
}

TEST_F(OptionsBrowseTest, TheChosenProgramIsShownWithItsIcon) {
    Browse("/bin/new.exe");
    EXPECT_EQ(view.shown.program, "/bin/new.exe");
    EXPECT_EQ(picture.events, (Texts{"Clear", "Draw new icon"}));
    EXPECT_TRUE(firstCsvBox.events.empty());
    EXPECT_EQ(Setting(4), "/bin/old.exe") << "only Ok writes";
    EXPECT_TRUE(view.messages.empty());
}

TEST_F(OptionsBrowseTest, TheIconIsDrawnBeforeTheProgramIsShown) {
    std::string before;
    picture.onClear = [&] { before = view.shown.program; };
    Browse("/bin/new.exe");
    EXPECT_EQ(before, "/bin/old.exe");
}

TEST_F(OptionsBrowseTest, ACancelShowsNothingNew) {
    options.cmdTab2Search_Click();
    EXPECT_TRUE(view.events.empty());
    EXPECT_EQ(options.State().imgcboPath, "/bin/old.exe");
}

TEST_F(OptionsBrowseTest, APickerThatFailsShowsNothingNew) {
    files.failure = std::make_exception_ptr(RunTimeError(ErrorNumber::OutOfMemory));
    Browse("/bin/new.exe");
    EXPECT_TRUE(view.events.empty());
    EXPECT_EQ(options.State().imgcboPath, "/bin/old.exe");
    EXPECT_EQ(Log(), LogLine("FileBrowser:VBGetOpenFileName", 7, "Out of memory"));
}

TEST_F(OptionsBrowseTest, AProgramThatCannotBeShownIsLoggedOnly) {
    view.onShow = Fail;
    Browse("/bin/new.exe");
    EXPECT_EQ(Log(), LogLine("frmOptions:LoadImageIntoCombo", 70, "Permission denied"));
    EXPECT_TRUE(view.messages.empty());
}

}  // namespace
}  // namespace marlo
