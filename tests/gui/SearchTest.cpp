#include <array>
#include <filesystem>
#include <memory>
#include <utility>
#include <vector>
#include <wx/msgdlg.h>

#include "core/Settings.h"
#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

class SearchTest : public test::GuiTest {
  protected:
    SearchTest() { folder.Write("resultfiles/installedplugins.csv", ""); }

    /// Writes projects that take longer to scan than the window goes without running events, each
    /// with one plug-in.
    void AddSlowProjects(int count) const {
        constexpr std::uintmax_t size = std::uintmax_t{1} << 30;
        for (int i = 1; i <= count; ++i)
            std::filesystem::resize_file(AddProject("slow" + std::to_string(i) + ".cpr"), size);
    }

    /// Makes the picker choose the folder of the projects, and the question be answered with the
    /// key of a button.
    void ExpectQuestions(int answer = 'Y') {
        dialogs.Handle([&](test::Dialog& picker) { ChooseInPicker(picker, folder.Path("songs")); });
        dialogs.Handle([&, answer](test::Dialog& /*question*/) { Press(answer, wxMOD_ALT); });
    }

    /// The texts that a status box is painted with from now on, one after the other.
    std::shared_ptr<std::vector<std::string>> PaintedTexts(const std::string& box) {
        auto texts = std::make_shared<std::vector<std::string>>();
        Find(box).Bind(wxEVT_PAINT, [this, box, texts](wxPaintEvent& event) {
            event.Skip();
            const std::string text = StatusText(box);
            if (!text.empty() && (texts->empty() || texts->back() != text))
                texts->push_back(text);
        });
        return texts;
    }

    /// Whether projects are being scanned.
    bool IsScanning() { return IsWindowOpen() && StatusText("Text1").starts_with("(2)"); }

    void ExpectMessage(const std::string& text, long style) {
        dialogs.Handle([&, text, style](test::Dialog& dialog) {
            ExpectMessageBox(dialog, text, style);
            Press(WXK_RETURN);
        });
    }
};

TEST_F(SearchTest, AsksForTheFolderAndItsSubfoldersAndUnlocksTheReports) {
    AddProject("a.cpr");
    AddProject("below/b.cpr", "Echo");
    folder.MakeFolder("songs/empty");
    Open();
    dialogs.Handle([&](test::Dialog& picker) {
        EXPECT_EQ(picker.Title(), "Please select a folder:");
        ChooseInPicker(picker, folder.Path("songs"));
    });
    dialogs.Handle([&](test::Dialog& question) {
        ExpectMessageBox(question, "Include Subfolders in the search?",
                         wxYES_NO | wxCANCEL | wxICON_QUESTION, "");
        Press('Y', wxMOD_ALT);
    });
    Click(Item(kSearchItem));
    EXPECT_TRUE(Item(kUsedReportItem).IsEnabled());
    EXPECT_EQ(folder.Read("resultfiles/tln.csv"),
              "\"Reverb\",\"VST\",\"On\"\r\n\"Echo\",\"VST\",\"On\"\r\n");
    EXPECT_EQ(getSetting(application, setting::kLastFolder), folder.Path("songs"));
    EXPECT_EQ(getSetting(application, setting::kIncludeSubfolders), "1");
    EXPECT_EQ(getSetting(application, setting::kLastSearch), "11-15-2026 03:10:22");
    EXPECT_EQ(Log(), "");
}

TEST_F(SearchTest, NoLeavesTheSubfoldersOut) {
    AddProject("a.cpr");
    AddProject("below/b.cpr", "Echo");
    folder.MakeFolder("songs/empty");
    Open();
    ExpectQuestions('N');
    Click(Item(kSearchItem));
    EXPECT_EQ(folder.Read("resultfiles/tln.csv"), "\"Reverb\",\"VST\",\"On\"\r\n");
    EXPECT_EQ(getSetting(application, setting::kIncludeSubfolders), "0");
}

TEST_F(SearchTest, ThePickerStartsAtTheLastFolder) {
    AddProject("a.cpr");
    ReadFoldersTo(folder.Path("songs"));
    WriteSetting(application, setting::kLastFolder, folder.Path("songs"));
    Open();
    dialogs.Handle([&](test::Dialog& picker) {
        test::RepeatUntil([&] { return !picker.IsOpen(); }, [&] { SendKey(WXK_RETURN); });
    });
    dialogs.Handle([&](test::Dialog& /*question*/) { Press('Y', wxMOD_ALT); });
    Click(Item(kSearchItem));
    EXPECT_EQ(getSetting(application, setting::kLastFolder), folder.Path("songs"));
    EXPECT_TRUE(folder.Exists("resultfiles/tln.csv"));
}

TEST_F(SearchTest, APickerThatIsCancelledEndsItWithoutAWord) {
    Open();
    dialogs.Handle([&](test::Dialog& /*picker*/) { Press(WXK_ESCAPE); });
    Click(Item(kSearchItem));
    EXPECT_TRUE(Item(kSearchItem).IsEnabled());
    EXPECT_EQ(getSetting(application, setting::kLastFolder), "");
}

TEST_F(SearchTest, AQuestionThatIsCancelledEndsItWithoutAWord) {
    AddProject("a.cpr");
    Open();
    dialogs.Handle([&](test::Dialog& picker) { ChooseInPicker(picker, folder.Path("songs")); });
    dialogs.Handle([&](test::Dialog& /*question*/) { Press(WXK_ESCAPE); });
    Click(Item(kSearchItem));
    EXPECT_TRUE(Item(kSearchItem).IsEnabled());
    EXPECT_EQ(getSetting(application, setting::kLastFolder), folder.Path("songs"));
    EXPECT_EQ(getSetting(application, setting::kIncludeSubfolders), "");
    EXPECT_FALSE(folder.Exists("resultfiles/tln.csv"));
}

TEST_F(SearchTest, TheStatusBoxesShowThePhaseAndTheProject) {
    AddSlowProjects(4);
    Open();
    const auto phases = PaintedTexts("Text1");
    const auto projects = PaintedTexts("Text2");
    ExpectQuestions();
    Click(Item(kSearchItem));
    std::erase(*phases, "(1) Compiling list of SX Projects...");  // too short to be always painted
    EXPECT_EQ(*phases, (std::vector<std::string>{
                           "(2) Finding Plugins (25%) ...", "(2) Finding Plugins (50%) ...",
                           "(2) Finding Plugins (75%) ...", "(2) Finding Plugins (100%) ...",
                           "(3) Writing to file..."}));
    EXPECT_EQ(*projects, (std::vector<std::string>{
                             folder.Path("songs/slow1.cpr"), folder.Path("songs/slow2.cpr"),
                             folder.Path("songs/slow3.cpr"), folder.Path("songs/slow4.cpr")}));
    EXPECT_EQ(StatusText("Text1") + StatusText("Text2"), "");
}

TEST_F(SearchTest, WhileItRunsCancelIsTheOnlyCommandThatCanBeUsed) {
    AddSlowProjects(3);
    Open();
    std::vector<std::set<std::size_t>> enabled;
    bool isOtherEnabled = false;
    const test::Observer observer([&] {
        if (!IsScanning())
            return;
        enabled.push_back(EnabledItems());
        isOtherEnabled |= Find("cmdFind").IsEnabled() || Find("btnDonate").IsEnabled();
    });
    ExpectQuestions();
    Click(Item(kSearchItem));
    ASSERT_FALSE(enabled.empty());
    for (const auto& items : enabled)
        EXPECT_EQ(items, std::set<std::size_t>{kCancelItem});
    EXPECT_FALSE(isOtherEnabled);
    EXPECT_FALSE(Item(kCancelItem).IsEnabled());
    EXPECT_TRUE(Find("cmdFind").IsEnabled());
}

TEST_F(SearchTest, WhileItRunsAClickOnAnotherCommandDoesNothing) {
    WriteResultFiles();
    AddSlowProjects(5);
    Open();
    dialogs.Handle([&](test::Dialog& picker) { ChooseInPicker(picker, folder.Path("songs")); });
    dialogs.Handle([&](test::Dialog& /*question*/) {
        MoveTo(Item(kUsedReportItem));
        Press('Y', wxMOD_ALT);
    });
    int clicks = 0;
    const test::Observer observer([&] {
        if (IsScanning() && ++clicks <= 3)
            SendClick();
    });
    Click(Item(kSearchItem));
    EXPECT_GE(clicks, 3);
    EXPECT_EQ(Find<gui::LedgerList>("lstSongs").GetColumnCount(), 0) << "no report is shown";
}

TEST_F(SearchTest, TheFocusGoesToCancelAndComesBack) {
    AddSlowProjects(3);
    Open();
    ExpectQuestions();
    std::set<std::string> during;
    const test::Observer observer([&] {
        if (IsScanning())
            during.insert(FocusedName());
    });
    Click(Item(kSearchItem));
    EXPECT_EQ(during, std::set<std::string>{"cmdbuttons(12)"});
    EXPECT_EQ(FocusedName(), "cmdbuttons(0)");
}

class CancelledSearchTest : public SearchTest {
  protected:
    CancelledSearchTest() {
        WriteResultFiles();
        AddSlowProjects(40);
        for (const char* name : kFiles)
            before_.push_back(folder.Read(name));
    }

    void ExpectOldResults() const {
        for (std::size_t i = 0; i < kFiles.size(); ++i)
            EXPECT_EQ(folder.Read(kFiles.at(i)), before_.at(i)) << kFiles.at(i);
        EXPECT_EQ(getSetting(application, setting::kLastSearch), "");
    }

  private:
    static constexpr std::array kFiles = {"resultfiles/results.csv", "resultfiles/fln.csv",
                                          "resultfiles/tln.csv"};
    std::vector<std::string> before_;
};

TEST_F(CancelledSearchTest, AClickOnCancelEndsItAndLeavesTheOldResults) {
    Open();
    dialogs.Handle([&](test::Dialog& picker) { ChooseInPicker(picker, folder.Path("songs")); });
    dialogs.Handle([&](test::Dialog& /*question*/) {
        MoveTo(Item(kCancelItem));
        Press('Y', wxMOD_ALT);
    });
    ExpectMessage("Cancelled", wxOK | wxICON_INFORMATION);
    bool isClicked = false;
    const test::Observer observer([&] {
        if (IsScanning() && !std::exchange(isClicked, true))
            SendClick();
    });
    Click(Item(kSearchItem));
    EXPECT_TRUE(isClicked);
    ExpectOldResults();
    EXPECT_EQ(StatusText("Text1") + StatusText("Text2"), "");
    EXPECT_TRUE(Item(kSearchItem).IsEnabled());
    EXPECT_FALSE(Item(kCancelItem).IsEnabled());
    EXPECT_EQ(Item(kCancelItem).Caption(), "Cancel");
}

TEST_F(CancelledSearchTest, EscapeEndsItToo) {
    Open();
    ExpectQuestions();
    ExpectMessage("Cancelled", wxOK | wxICON_INFORMATION);
    bool isPressed = false;
    const test::Observer observer([&] {
        if (IsScanning() && test::HasKeyboard() && !std::exchange(isPressed, true))
            SendKey(WXK_ESCAPE);
    });
    Click(Item(kSearchItem));
    EXPECT_TRUE(isPressed);
    ExpectOldResults();
}

TEST_F(CancelledSearchTest, EnterOnCancelEndsItToo) {
    Open();
    ExpectQuestions();
    ExpectMessage("Cancelled", wxOK | wxICON_INFORMATION);
    bool isPressed = false;
    const test::Observer observer([&] {
        if (IsScanning() && test::HasKeyboard() && !std::exchange(isPressed, true))
            SendKey(WXK_RETURN);
    });
    Click(Item(kSearchItem));
    ExpectOldResults();
}

TEST_F(CancelledSearchTest, EnterInTheSearchBoxDoesNothingMeanwhile) {
    Open();
    dialogs.Handle([&](test::Dialog& picker) { ChooseInPicker(picker, folder.Path("songs")); });
    dialogs.Handle([&](test::Dialog& /*question*/) {
        MoveTo(Find("txtSearchText"));
        Press('Y', wxMOD_ALT);
    });
    ExpectMessage("Cancelled", wxOK | wxICON_INFORMATION);
    int step = 0;
    const test::Observer observer([&] {
        if (!IsScanning() || !test::HasKeyboard())
            return;
        if (step == 0)
            SendClick();
        else if (step == 1 && FocusedName() != "txtSearchText")
            return;
        else if (step == 1)
            SendKey(WXK_RETURN);
        else if (step == 5)
            SendKey(WXK_ESCAPE);
        ++step;
    });
    Click(Item(kSearchItem));
    EXPECT_GE(step, 5);
    EXPECT_EQ(Find<gui::LedgerList>("lstSongs").GetColumnCount(), 0);
    ExpectOldResults();
}

TEST_F(CancelledSearchTest, ClosingTheWindowEndsItWithoutAWord) {
    Open();
    ExpectQuestions();
    bool isClosed = false;
    const test::Observer observer([&] {
        if (IsScanning() && !std::exchange(isClosed, true))
            Window().wxFrame::Close();
    });
    Click(Item(kSearchItem));
    EXPECT_TRUE(isClosed);
    EXPECT_TRUE(test::RunEventsUntil([&] { return !IsWindowOpen(); }));
    ExpectOldResults();
    EXPECT_EQ(getSetting(application, setting::kSearchType), "0") << "the choices are saved";
}

TEST_F(SearchTest, AFolderWithoutProjectsGivesEmptyResultFiles) {
    folder.MakeFolder("songs");
    Open();
    ExpectQuestions();
    Click(Item(kSearchItem));
    for (const char* name : {"results.csv", "fln.csv", "tln.csv"})
        EXPECT_EQ(folder.Read(std::string("resultfiles/") + name), "") << name;
    EXPECT_TRUE(Item(kUsedReportItem).IsEnabled());
}

TEST_F(SearchTest, AProjectThatCannotBeReadIsToldAtTheEnd) {
    AddProject("a.cpr");
    folder.Write("songs/b.cpr", "CcnK....FBCh" + std::string(100, '\0'));
    Open();
    ExpectQuestions();
    ExpectMessage("Errors occurred. See " + folder.Path() + "\\results\\errorlog.txt for details",
                  wxOK);
    Click(Item(kSearchItem));
    EXPECT_NE(folder.Read("resultfiles/tln.csv").find("Reverb"), std::string::npos);
}

TEST_F(SearchTest, FindInstalledPluginsWritesTheList) {
    folder.Write("vst/Reverb.dll", "");
    WriteSetting(application, setting::kFirstVstFolder, folder.Path("vst"));
    Open();
    Click(Item(kInventoryItem));
    EXPECT_NE(folder.Read("resultfiles/installedplugins.csv").find("\"Reverb\""),
              std::string::npos);
    EXPECT_EQ(getSetting(application, setting::kLastInventory), "11-15-2026 03:10:22");
}

TEST_F(SearchTest, EscapeEndsFindInstalledPluginsToo) {
    constexpr int count = 3000;  // enough for events to run several times
    for (int i = 0; i < count; ++i)
        folder.MakeFolder("vst/" + std::to_string(i));
    WriteSetting(application, setting::kFirstVstFolder, folder.Path("vst"));
    Open();
    ExpectMessage("Cancelled", wxOK);
    bool isPressed = false;
    const test::Observer observer([&] {
        if (Item(kCancelItem).IsEnabled() && !std::exchange(isPressed, true))
            SendKey(WXK_ESCAPE);
    });
    Click(Item(kInventoryItem));
    EXPECT_TRUE(isPressed);
    EXPECT_TRUE(Item(kInventoryItem).IsEnabled());
}

}  // namespace
}  // namespace marlo
