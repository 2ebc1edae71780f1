#include <filesystem>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include "tests/gui/ListGuiTest.h"

namespace marlo {
namespace {

using test::Texts;

/// Two projects: one uses "Reverb" and "Big Reverb", the other "Echo".
class WindowFindTest : public test::ListGuiTest {
  protected:
    WindowFindTest() {
        mix_ = AddProject("mix.cpr");
        song_ = AddProject("song.cpr");
        folder.Write("resultfiles/results.csv", "");
        folder.Write("resultfiles/tln.csv", "");
        folder.Write("resultfiles/installedplugins.csv", "\"VST\",\"Reverb\",\"/vst/r.dll\"\r\n");
        folder.Write("resultfiles/fln.csv", "\"" + mix_ + "\",\"Reverb\",\"VST\",\"On\"\r\n\"" +
                                                mix_ + "\",\"Big Reverb\",\"VST\",\"Off\"\r\n\"" +
                                                song_ + "\",\"Echo\",\"DirectX\",\"On\"\r\n");
        Open();
    }

    wxTextCtrl& TextBox() { return Find<wxTextCtrl>("txtSearchText"); }

    void TypeText(const std::string& text) {
        Click(TextBox());
        Press('A', wxMOD_CONTROL);
        Type(text);
    }

    void ChooseKind(int index) {
        auto& kinds = Find<wxChoice>("cboSearchType");
        kinds.SetFocus();
        while (kinds.GetSelection() < index)
            Press(WXK_DOWN);
    }

    std::string mix_;
    std::string song_;
};

TEST_F(WindowFindTest, EnterFindsTheProjectsThatUseAPlugin) {
    TypeText("Reverb");
    Press(WXK_RETURN);
    EXPECT_EQ(Headers(), (Texts{"Project", "Last Modified", "Plugin", "Type", "Status"}));
    EXPECT_EQ(Column(0), Texts{mix_});
    EXPECT_EQ(Column(2), Texts{"Reverb"});
    EXPECT_EQ(StatusText("Text1") + StatusText("Text2"), "");
    EXPECT_FALSE(wxIsBusy());
}

TEST_F(WindowFindTest, AClickOnTheButtonDoesTheSame) {
    TypeText("Echo");
    EXPECT_EQ(Headers(), Texts{}) << "not while the text is typed";
    Click(Find("cmdFind"));
    EXPECT_EQ(Column(0), Texts{song_});
    EXPECT_EQ(Column(3), Texts{"DirectX"});
}

TEST_F(WindowFindTest, TheOtherModeListsThePluginsInAProject) {
    Click(Item(kSearchModeItem));
    EXPECT_EQ(Item(kSearchModeItem).Caption(), "List Plugins in Project");
    Click(TextBox());
    Paste(mix_);
    Press(WXK_RETURN);
    EXPECT_EQ(Column(2), (Texts{"Reverb", "Big Reverb"}));
    Click(Item(kSearchModeItem));
    EXPECT_EQ(Item(kSearchModeItem).Caption(), "Search for Projects by Plugin");
    TypeText("Echo");
    Press(WXK_RETURN);
    EXPECT_EQ(Column(0), Texts{song_});
}

TEST_F(WindowFindTest, TheKindOfMatchIsTheOneThatIsChosen) {
    ChooseKind(2);
    TypeText("Reverb");
    Press(WXK_RETURN);
    EXPECT_EQ(Column(2), (Texts{"Reverb", "Big Reverb"}));
    ChooseKind(3);
    TypeText("ch");
    Press(WXK_RETURN);
    EXPECT_EQ(Column(2), Texts{"Echo"});
}

TEST_F(WindowFindTest, CaseCountsUnlessItIsIgnored) {
    TypeText("reverb");
    Press(WXK_RETURN);
    EXPECT_EQ(Column(0), Texts{"No projects found"});
    Click(Find("chkIgnoreCase"));
    Click(Find("cmdFind"));
    EXPECT_EQ(Column(2), Texts{"Reverb"});
}

TEST_F(WindowFindTest, APluginThatIsNotInstalledStandsInGrey) {
    ChooseKind(2);
    TypeText("Reverb");
    Press(WXK_RETURN);
    EXPECT_GT(test::TextColour(List(), 1).GetLuminance(),
              test::TextColour(List(), 0).GetLuminance() + 0.1);
}

TEST_F(WindowFindTest, WithoutResultFilesItIsLocked) {
    CloseWindow();
    std::filesystem::remove(folder.Path("resultfiles/tln.csv"));
    Open();
    TypeText("Reverb");
    Press(WXK_RETURN);
    Click(Find("cmdFind"));
    EXPECT_EQ(Headers(), Texts{});
}

}  // namespace
}  // namespace marlo
