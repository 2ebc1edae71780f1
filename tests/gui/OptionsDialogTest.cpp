#include <vector>
#include <wx/bmpcbox.h>
#include <wx/checkbox.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "core/Settings.h"
#include "tests/gui/ListRows.h"
#include "tests/gui/OptionsGuiTest.h"

namespace marlo {
namespace {

class OptionsDialogTest : public test::OptionsGuiTest {
  protected:
    std::string LabelOf(const std::string& name) {
        return Part<wxControl>(name).GetLabelText().utf8_string();
    }
    gui::LedgerList& Paths() { return Part<gui::LedgerList>("LstPaths"); }

    std::vector<std::string> ShownPaths() {
        std::vector<std::string> paths;
        for (long row = 0; row < Paths().GetItemCount(); ++row)
            paths.push_back(Paths().GetItemText(row).utf8_string());
        return paths;
    }

    void SelectPath(long row) { ClickAt(test::RowsOf(Paths()), test::PointInRow(Paths(), row)); }

    /// Adds a folder with the button and the picker.
    void Add(const std::string& path) {
        dialogs.Handle([this, path](test::Dialog& picker) {
            EXPECT_EQ(picker.Title(), "Please select a folder:");
            ChooseInPicker(picker, path);
        });
        Click(Part("cmdAdd"));
    }

    /// Presses "Browse..." and chooses a file.
    void Browse(const std::string& path) {
        InProgramPicker([this, path](test::Dialog& picker) {
            EXPECT_EQ(picker.Title(), "Select an application to open the csv result files");
            ChooseInPicker(picker, path);
        });
    }

    std::string ShownProgram() {
        return Part<wxBitmapComboBox>("imgcboPath").GetStringSelection().utf8_string();
    }

    void SaveFolders(const std::vector<std::string>& folders) const {
        for (std::size_t i = 0; i < folders.size(); ++i)
            WriteSetting(application, static_cast<std::int16_t>(setting::kFirstVstFolder + i),
                         folders[i]);
    }
    std::vector<std::string> SavedFolders() const {
        std::vector<std::string> folders;
        for (std::int16_t record = setting::kFirstVstFolder;; ++record) {
            folders.push_back(getSetting(application, record));
            if (folders.back().empty())
                break;
        }
        folders.pop_back();
        return folders;
    }

    using Folders = std::vector<std::string>;
};

TEST_F(OptionsDialogTest, HasFourTabsWithTheirHeaders) {
    InOptions([&] {
        EXPECT_EQ(Tabs().GetPageCount(), 4U);
        EXPECT_EQ(Tabs().GetSelection(), 0);
        const std::vector<std::pair<std::string, std::string>> tabs = {
            {"Plugin Folders", "Select the Cubase SX Plugins and the shared VST Plugins folder"},
            {"Csv App", "Select a program to open up the .csv result files"},
            {"General", "General settings"},
            {"Log", "Last run Log"}};
        const auto header = [&] { return Part<wxStaticText>("lblHeader").GetLabelText(); };
        EXPECT_EQ(header(), tabs[0].second);
        for (const int tab : {1, 2, 3, 0}) {
            const auto& [caption, text] = tabs[static_cast<std::size_t>(tab)];
            EXPECT_EQ(Tabs().GetPageText(static_cast<std::size_t>(tab)), caption);
            SelectTab(tab);
            EXPECT_EQ(header(), text);
        }
        Press(WXK_ESCAPE);
    });
}

TEST_F(OptionsDialogTest, OpensWithTheFirstTabEachTime) {
    InOptions([&] {
        SelectTab(2);
        Press(WXK_ESCAPE);
    });
    InOptions([&] {
        EXPECT_EQ(Tabs().GetSelection(), 0);
        Press(WXK_ESCAPE);
    });
}

TEST_F(OptionsDialogTest, ShowsTheFoldersOfTheSettings) {
    SaveFolders({"/vst/a", "/vst/b", "", "/vst/behind the first empty one"});
    InOptions([&] {
        EXPECT_EQ(ShownPaths(), (Folders{"/vst/a", "/vst/b"}));
        Press(WXK_ESCAPE);
    });
}

TEST_F(OptionsDialogTest, AFolderIsAddedAndSavedWithOk) {
    SaveFolders({"/vst/a"});
    const std::string added = folder.MakeFolder("plugins");
    InOptions([&] {
        Add(added);
        EXPECT_EQ(ShownPaths(), (Folders{"/vst/a", added}));
        EXPECT_EQ(SavedFolders(), Folders{"/vst/a"}) << "not before Ok";
        Click(Part("cmdOk"));
    });
    EXPECT_EQ(SavedFolders(), (Folders{"/vst/a", added}));
}

TEST_F(OptionsDialogTest, AFolderThatIsListedAlreadyIsTold) {
    const std::string listed = folder.MakeFolder("plugins");
    SaveFolders({listed});
    InOptions([&] {
        dialogs.Handle([&](test::Dialog& picker) { ChooseInPicker(picker, listed); });
        dialogs.Handle([&](test::Dialog& box) {
            ExpectMessageBox(box, "Path is already in the list", wxOK | wxICON_EXCLAMATION);
            Press(WXK_RETURN);
        });
        Click(Part("cmdAdd"));
        EXPECT_EQ(ShownPaths(), Folders{listed});
        Press(WXK_ESCAPE);
    });
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsDialogTest, APickerThatIsCancelledAddsNothing) {
    InOptions([&] {
        dialogs.Handle([&](test::Dialog& /*picker*/) { Press(WXK_ESCAPE); });
        Click(Part("cmdAdd"));
        EXPECT_EQ(ShownPaths(), Folders{});
        Press(WXK_ESCAPE);
    });
}

TEST_F(OptionsDialogTest, TheSelectedFolderIsRemoved) {
    SaveFolders({"/vst/a", "/vst/b", "/vst/c"});
    InOptions([&] {
        SelectPath(1);
        Click(Part("cmdRemove"));
        EXPECT_EQ(ShownPaths(), (Folders{"/vst/a", "/vst/c"}));
        Click(Part("cmdOk"));
    });
    EXPECT_EQ(SavedFolders(), (Folders{"/vst/a", "/vst/c"}));
    EXPECT_EQ(getSetting(application, setting::kFirstVstFolder + 2), "");
}

TEST_F(OptionsDialogTest, TheFolderThatWasSelectedBeforeAddIsRemoved) {
    SaveFolders({"/vst/a", "/vst/b"});
    const std::string added = folder.MakeFolder("plugins");
    InOptions([&] {
        SelectPath(1);
        Add(added);
        EXPECT_EQ(Paths().ActivePosition(), 2U) << "it stays selected";
        Click(Part("cmdRemove"));
        EXPECT_EQ(ShownPaths(), (Folders{"/vst/a", added}));
        Press(WXK_ESCAPE);
    });
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsDialogTest, TheFolderThatWasSelectedBetweenRemoveAndAddIsRemoved) {
    SaveFolders({"/vst/a", "/vst/b", "/vst/c"});
    const std::string added = folder.MakeFolder("plugins");
    InOptions([&] {
        SelectPath(2);
        Click(Part("cmdRemove"));
        SelectPath(0);
        Add(added);
        EXPECT_EQ(Paths().ActivePosition(), 1U) << "it stays selected";
        Click(Part("cmdRemove"));
        EXPECT_EQ(ShownPaths(), (Folders{"/vst/b", added}));
        Press(WXK_ESCAPE);
    });
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsDialogTest, RemoveInAnEmptyListDoesNothing) {
    InOptions([&] {
        Click(Part("cmdRemove"));
        Press(WXK_ESCAPE);
    });
    EXPECT_EQ(Log(), "");
}

TEST_F(OptionsDialogTest, RemoveWithoutASelectedFolderIsTold) {
    SaveFolders({"/vst/a"});
    InOptions([&] {
        dialogs.Handle([&](test::Dialog& box) {
            ExpectMessageBox(box, "An unexpected error occurred.", wxOK | wxICON_EXCLAMATION);
            Press(WXK_RETURN);
        });
        Click(Part("cmdRemove"));
        EXPECT_EQ(ShownPaths(), Folders{"/vst/a"});
        Press(WXK_ESCAPE);
    });
    EXPECT_NE(Log().find("Procedure: frmOptions:cmdRemove_Click "), std::string::npos);
}

TEST_F(OptionsDialogTest, TheFoldersStandOnBandsInTurn) {
    SaveFolders({"/vst/a", "/vst/b"});
    InOptions([&] {
        EXPECT_EQ(test::BandColour(Paths(), 0), *wxWHITE);
        EXPECT_EQ(test::BandColour(Paths(), 1), wxColour(0xEF, 0xF3, 0xFF));
        Press(WXK_ESCAPE);
    });
}

TEST_F(OptionsDialogTest, TheProgramForCsvFilesIsShown) {
    InOptions([&] {
        SelectTab(1);
        EXPECT_EQ(ShownProgram(), "/bin/sheets");
        Press(WXK_ESCAPE);
    });
}

TEST_F(OptionsDialogTest, AProgramThatWasBrowsedForIsSavedWithOk) {
    const std::string program = folder.Write("sheets.exe", "");
    InOptions([&] {
        SelectTab(1);
        Browse(program);
        EXPECT_EQ(ShownProgram(), program);
        EXPECT_EQ(getSetting(application, setting::kCsvProgram), "/bin/sheets") << "not before Ok";
        Click(Part("cmdOk"));
    });
    EXPECT_EQ(getSetting(application, setting::kCsvProgram), program);
}

TEST_F(OptionsDialogTest, AProgramWithoutAnExtensionCanBeChosenToo) {
    const std::string program = folder.Write("sheets", "");
    InOptions([&] {
        SelectTab(1);
        Browse(program);
        Click(Part("cmdOk"));
    });
    EXPECT_EQ(getSetting(application, setting::kCsvProgram), program);
}

TEST_F(OptionsDialogTest, ABrowseThatIsCancelledUndoesTheOneBefore) {
    const std::string program = folder.Write("sheets.exe", "");
    InOptions([&] {
        SelectTab(1);
        Browse(program);
        InProgramPicker([&](test::Dialog& /*picker*/) { Press(WXK_ESCAPE); });
        EXPECT_EQ(ShownProgram(), program) << "it stays shown";
        Click(Part("cmdOk"));
    });
    EXPECT_EQ(getSetting(application, setting::kCsvProgram), "/bin/sheets");
}

TEST_F(OptionsDialogTest, OkWithoutBrowsingKeepsTheProgram) {
    InOptions([&] { Click(Part("cmdOk")); });
    EXPECT_EQ(getSetting(application, setting::kCsvProgram), "/bin/sheets");
}

TEST_F(OptionsDialogTest, TheGeneralSettingsAreSavedWithOkAndShownAgain) {
    InOptions([&] {
        SelectTab(2);
        EXPECT_EQ(LabelOf("chkIgnoreDX"), "Ignore DirectX Plugins");
        EXPECT_EQ(LabelOf("chkIgnoreOff"), "Ignore Plugins that are turned off");
        EXPECT_FALSE(Part<wxCheckBox>("chkIgnoreDX").IsChecked());
        EXPECT_FALSE(Part<wxCheckBox>("chkIgnoreOff").IsChecked());
        Click(Part("chkIgnoreDX"));
        Click(Part("cmdOk"));
    });
    EXPECT_EQ(getSetting(application, setting::kIgnoreDirectX), "1");
    EXPECT_EQ(getSetting(application, setting::kIgnoreOff), "0");
    InOptions([&] {
        EXPECT_TRUE(Part<wxCheckBox>("chkIgnoreDX").IsChecked());
        EXPECT_FALSE(Part<wxCheckBox>("chkIgnoreOff").IsChecked());
        SelectTab(2);
        Click(Part("chkIgnoreDX"));
        Click(Part("chkIgnoreOff"));
        Click(Part("cmdOk"));
    });
    EXPECT_EQ(getSetting(application, setting::kIgnoreDirectX), "0");
    EXPECT_EQ(getSetting(application, setting::kIgnoreOff), "1");
}

TEST_F(OptionsDialogTest, TheNoteTellsThatTheFilesHoldThemAll) {
    InOptions([&] {
        SelectTab(2);
        EXPECT_EQ(LabelOf("Frame4"), "Note");
        wxString note = Part<wxStaticText>("Label2").GetLabelText();
        note.Replace("\n", " ");  // where it was wrapped
        EXPECT_EQ(note,
                  "DirectX Plugins and 'Off' Plugins are still included in the comma seperated "
                  "value files.");
        Press(WXK_ESCAPE);
    });
}

TEST_F(OptionsDialogTest, TheLogTellsOfTheLastRuns) {
    WriteSetting(application, setting::kLastFolder, "/songs");
    WriteSetting(application, setting::kIncludeSubfolders, "1");
    WriteSetting(application, setting::kLastSearch, "11-14-2026 01:02:03");
    WriteSetting(application, setting::kLastInventory, "11-13-2026 04:05:06");
    InOptions([&] {
        SelectTab(3);
        EXPECT_EQ(LabelOf("Frame2"), "Search SX Projects");
        EXPECT_EQ(LabelOf("Label4"), "Date:");
        EXPECT_EQ(LabelOf("Label1"), "11-14-2026 01:02:03");
        EXPECT_EQ(LabelOf("Label5"), "Path:");
        EXPECT_EQ(Part<wxTextCtrl>("Text1").GetValue(), "/songs - Including sub folders");
        EXPECT_EQ(LabelOf("Frame3"), "Find installed Plugins");
        EXPECT_EQ(LabelOf("Label6"), "Date:");
        EXPECT_EQ(LabelOf("Label7"), "11-13-2026 04:05:06");
        EXPECT_TRUE(Part("Label7").IsShownOnScreen());
        Press(WXK_ESCAPE);
    });
}

TEST_F(OptionsDialogTest, CancelAndEscapeSaveNothing) {
    SaveFolders({"/vst/a", "/vst/b"});
    const auto change = [&] {
        SelectPath(0);
        Click(Part("cmdRemove"));
        SelectTab(2);
        Click(Part("chkIgnoreDX"));
    };
    InOptions([&] {
        change();
        Click(Part("cmdCancel"));
    });
    InOptions([&] {
        change();
        Press(WXK_ESCAPE);
    });
    EXPECT_EQ(SavedFolders(), (Folders{"/vst/a", "/vst/b"}));
    EXPECT_EQ(getSetting(application, setting::kIgnoreDirectX), "");
}

TEST_F(OptionsDialogTest, EnterIsOk) {
    InOptions([&] {
        SelectTab(2);
        Click(Part("chkIgnoreOff"));
        Press(WXK_RETURN);
    });
    EXPECT_EQ(getSetting(application, setting::kIgnoreOff), "1");
}

TEST_F(OptionsDialogTest, AFolderThatTheSettingsHoldTwiceIsTold) {
    SaveFolders({"/vst/a", "/vst/a"});
    dialogs.Handle([&](test::Dialog& box) {
        ExpectMessageBox(box, "An unexpected error occurred", wxOK | wxICON_EXCLAMATION);
        Press(WXK_RETURN);
    });
    InOptions([&] {
        EXPECT_EQ(ShownPaths(), Folders{"/vst/a"});
        Press(WXK_ESCAPE);
    });
}

}  // namespace
}  // namespace marlo
