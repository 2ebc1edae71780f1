#include <array>
#include <filesystem>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include "core/Settings.h"
#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

constexpr int kTwipsPerPixel = 15;

int Pixels(int twips) {
    return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

wxPoint Pixels(int left, int top) {
    return {Pixels(left), Pixels(top)};
}

class StartTest : public test::GuiTest {
  protected:
    /// How far from grey a control is to be seen: what lies between the channels of a pixel, at the
    /// most.
    static int Colourfulness(wxWindow& control) {
        const wxImage picture = test::PictureOf(control);
        int most = 0;
        for (int x = 0; x < picture.GetWidth(); ++x)
            for (int y = 0; y < picture.GetHeight(); ++y) {
                const auto [darkest, lightest] = std::minmax(
                    {picture.GetRed(x, y), picture.GetGreen(x, y), picture.GetBlue(x, y)});
                most = std::max(most, lightest - darkest);
            }
        return most;
    }

    /// What the desktop shows a program with: a red square.
    static platform::ShellIcon RedIcon() {
        constexpr int side = 16;
        platform::ShellIcon icon{.width = side, .height = side};
        for (int i = 0; i < side * side; ++i)
            icon.pixels.insert(icon.pixels.end(), {0xFF, 0, 0, 0xFF});
        return icon;
    }

    void ExpectTwoColourfulIcons() {
        for (const char* name : {"Picture2", "Picture3"}) {
            wxWindow& icon = Find(name);
            EXPECT_TRUE(test::RunEventsUntil([&] { return Colourfulness(icon) > 80; })) << name;
        }
    }

    const std::set<std::size_t> allButCancel = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    const std::set<std::size_t> withoutResults = {0, 1, 8, 9, 10, 11};
};

TEST_F(StartTest, OnAFirstStartOnlyTheCommandsWithoutResultFilesCanBeUsed) {
    Open();
    EXPECT_EQ(EnabledItems(), withoutResults);
    EXPECT_FALSE(Find("cmdFind").IsEnabled());
    EXPECT_TRUE(Find("btnDonate").IsEnabled());
    EXPECT_EQ(StatusText("Text1") + StatusText("Text2"), "");
    EXPECT_EQ(Find<gui::LedgerList>("lstSongs").GetItemCount(), 0);
    EXPECT_EQ(Window().GetTitle(), "Marlo");
}

TEST_F(StartTest, WithAllResultFilesTheReportsCanBeUsed) {
    WriteResultFiles();
    Open();
    EXPECT_EQ(EnabledItems(), allButCancel);
    EXPECT_TRUE(Find("cmdFind").IsEnabled());
}

TEST_F(StartTest, ASingleMissingResultFileLocksAllSixCommandsThatNeedThem) {
    for (const std::string missing :
         {"results.csv", "fln.csv", "tln.csv", "installedplugins.csv"}) {
        WriteResultFiles();
        std::filesystem::remove(folder.Path("resultfiles/" + missing));
        Open();
        EXPECT_EQ(EnabledItems(), withoutResults) << missing;
        EXPECT_FALSE(Find("cmdFind").IsEnabled()) << missing;
        CloseWindow();
    }
}

TEST_F(StartTest, EveryControlIsFoundByItsName) {
    Open();
    for (const char* name : {"boxMenu", "imgMenu", "Label5", "Image1", "btnDonate", "boxRightPane",
                             "imgRightPane", "cboSearchType", "Label3", "chkIgnoreCase",
                             "txtSearchText", "cmdFind", "lstSongs", "Text1", "Text2"})
        EXPECT_TRUE(Find(name).IsShownOnScreen()) << name;
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        EXPECT_TRUE(Item(i).IsShownOnScreen()) << i;
}

TEST_F(StartTest, TheCommandItemsHaveTheirCaptions) {
    Open();
    for (std::size_t i = 0; i < kCommandItems.size(); ++i)
        EXPECT_EQ(Item(i).Caption(), kCommandItems.at(i).caption);
}

TEST_F(StartTest, TheCommandItemsStandInTheirPlaces) {
    Open();
    const std::array<int, kCommandItemCount> tops = {1080, 1440, 2160, 2520, 2880, 3240, 3720,
                                                     4080, 4800, 5160, 5520, 360,  1800};
    // The menu pane is wider where captions need that, and what is right of it stands so much
    // further.
    const int growth = PlaceOf(Find("boxMenu")).width - Pixels(2688);
    EXPECT_GE(growth, 0);
    EXPECT_LE(growth, Pixels(100));
    for (std::size_t i = 0; i < tops.size(); ++i) {
        const wxPoint place = i == kSearchModeItem ? Pixels(3028, tops.at(i)) + wxPoint(growth, 0)
                                                   : Pixels(720, tops.at(i));
        EXPECT_EQ(PlaceOf(Item(i)).GetTopLeft(), place) << i;
        EXPECT_GE(PlaceOf(Item(i)).width, Pixels(2040)) << i;
        EXPECT_GE(PlaceOf(Item(i)).height, Pixels(195)) << i;
        EXPECT_EQ(Item(i).GetParent()->GetName(), i == kSearchModeItem ? "imgRightPane" : "imgMenu")
            << i;
    }
    EXPECT_EQ(PlaceOf(Find("btnDonate")), wxRect(Pixels(360, 6000), wxSize(62, 31)));
}

TEST_F(StartTest, TheKindsOfMatchAreInTheirOrderAndTheFirstOneIsChosen) {
    Open();
    const auto& types = Find<wxChoice>("cboSearchType");
    const wxArrayString kinds = types.GetStrings();
    EXPECT_EQ(std::vector<wxString>(kinds.begin(), kinds.end()),
              (std::vector<wxString>{"Exact match", "Starts with", "Ends with", "Contains"}));
    EXPECT_EQ(types.GetSelection(), 0);
    EXPECT_FALSE(Find<wxCheckBox>("chkIgnoreCase").IsChecked());
}

TEST_F(StartTest, ChoicesAreSavedAndShownAtTheNextStart) {
    Open();
    Find("cboSearchType").SetFocus();
    Press(WXK_DOWN);
    Press(WXK_DOWN);
    Click(Find("chkIgnoreCase"));
    CloseWindow();
    EXPECT_EQ(getSetting(application, setting::kSearchType), "2");
    EXPECT_EQ(getSetting(application, setting::kIgnoreCase), "1");
    Open();
    EXPECT_EQ(Find<wxChoice>("cboSearchType").GetSelection(), 2);
    EXPECT_TRUE(Find<wxCheckBox>("chkIgnoreCase").IsChecked());
}

TEST_F(StartTest, TheSearchBoxHasItsColour) {
    Open();
    EXPECT_TRUE(test::RunEventsUntil([&] {
        return test::ColourAt(Find("txtSearchText"), {100, 12}) == wxColour(0xEF, 0xF3, 0xFF);
    }));
}

TEST_F(StartTest, ThePicturesOfDonateAndSearchAreGreyWhileTheyCannotBeUsed) {
    AddPictures();
    constexpr int tint = 60;  // of the panes
    Open();
    EXPECT_TRUE(test::RunEventsUntil([&] { return Colourfulness(Find("btnDonate")) > 2 * tint; }));
    EXPECT_LT(Colourfulness(Find("cmdFind")), tint);
    CloseWindow();
    WriteResultFiles();
    Open();
    EXPECT_TRUE(test::RunEventsUntil([&] { return Colourfulness(Find("cmdFind")) > 2 * tint; }));
    Logic().DisableButtons();
    EXPECT_TRUE(test::RunEventsUntil([&] {
        return Colourfulness(Find("cmdFind")) < tint && Colourfulness(Find("btnDonate")) < tint;
    }));
}

TEST_F(StartTest, APictureIsFoundWhateverTheCaseOfItsName) {
    AddPictures();
    std::filesystem::rename(folder.Path("icons/donate.gif"), folder.Path("icons/Donate.GIF"));
    std::filesystem::rename(folder.Path("icons"), folder.Path("Icons"));
    Open();
    EXPECT_TRUE(test::RunEventsUntil([&] { return Colourfulness(Find("btnDonate")) > 120; }));
}

TEST_F(StartTest, TheWindowTakesItsIconsFromTheApplicationFolder) {
    Open();
    EXPECT_FALSE(test::HasIcon(Window())) << "without the file there are none";
    CloseWindow();
    AddPictures();
    Open();
    EXPECT_TRUE(test::RunEventsUntil([&] { return test::HasIcon(Window()); }));
}

TEST_F(StartTest, TheProgramForCsvFilesIsFoundOutAndItsIconShownTwice) {
    WriteSetting(application, setting::kCsvProgram, "");
    desktop.programs[".csv"] = "/bin/sheets";
    desktop.icons["/bin/sheets"] = RedIcon();
    Open();
    EXPECT_EQ(getSetting(application, setting::kCsvProgram), "/bin/sheets");
    ExpectTwoColourfulIcons();
}

TEST_F(StartTest, AnIconMayBeAFile) {
    AddPictures();
    const std::string file = folder.Path("icons/plug_256.png");
    if (!file.starts_with('/'))
        GTEST_SKIP() << "icons have no files of their own here";
    desktop.icons["/bin/sheets"] = {file};
    Open();
    ExpectTwoColourfulIcons();
}

TEST_F(StartTest, TheProgramForCsvFilesThatWasChosenIsKept) {
    desktop.programs[".csv"] = "/bin/other";
    Open();
    EXPECT_EQ(getSetting(application, setting::kCsvProgram), "/bin/sheets");
}

}  // namespace
}  // namespace marlo
