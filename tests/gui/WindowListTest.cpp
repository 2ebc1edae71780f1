#include <filesystem>
#include <wx/clipbrd.h>
#include <wx/filename.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>

#include "tests/gui/ListGuiTest.h"
#include "ui/CellText.h"

namespace marlo {
namespace {

using test::Texts;

/// The installed plug-ins "Alpha", "Beta" and "Gamma" in a report, and two projects that use
/// "Alpha".
class WindowListTest : public test::ListGuiTest {
  protected:
    WindowListTest() {
        first_ = AddProject("first.cpr");
        second_ = AddProject("second.cpr");
        SetModified(first_, "2006-02-03 09:08:07");
        SetModified(second_, "2005-04-05 16:07:08");
        folder.Write("resultfiles/results.csv", "");
        folder.Write("resultfiles/tln.csv", "\"Alpha\",\"VST\",\"On\"\r\n");
        folder.Write("resultfiles/fln.csv", "\"" + first_ + "\",\"Alpha\",\"VST\",\"On\"\r\n\"" +
                                                second_ + "\",\"Alpha\",\"VST\",\"Off\"\r\n");
        folder.Write("resultfiles/installedplugins.csv",
                     "\"VST\",\"Alpha\",\"" + alpha_ + "\"\r\n\"VST\",\"Beta\",\"" + beta_ +
                         "\"\r\n\"VST\",\"Gamma\",\"" + gamma_ + "\"\r\n");
        Open();
    }

    void ShowInstalled() { Click(Item(kInstalledReportItem)); }
    void SearchProjects() {
        Click(Find("txtSearchText"));
        Type("Alpha");
        Press(WXK_RETURN);
    }

    static void SetModified(const std::string& path, const std::string& when) {
        wxDateTime moment;
        ASSERT_TRUE(moment.ParseISOCombined(when, ' '));
        ASSERT_TRUE(wxFileName(path).SetTimes(nullptr, &moment, nullptr));
    }

    static std::string Clipboard() {
        const wxClipboardLocker clipboard;
        wxTextDataObject text;
        return wxTheClipboard->GetData(text) ? text.GetText().utf8_string() : "nothing";
    }

    std::string first_;
    std::string second_;
    const std::string alpha_ = folder.Path("c/Alpha.dll");
    const std::string beta_ = folder.Path("b/Beta.dll");
    const std::string gamma_ = folder.Path("a/Gamma.dll");
};

using ListLookTest = WindowListTest;

const wxColour kBlue(0xEF, 0xF3, 0xFF);

TEST_F(ListLookTest, TheRowsAreWhiteAndBlueInTurn) {
    ShowInstalled();
    EXPECT_EQ(test::BandColour(List(), 0), *wxWHITE);
    EXPECT_EQ(test::BandColour(List(), 1), kBlue);
    EXPECT_EQ(test::BandColour(List(), 2), *wxWHITE);
}

TEST_F(ListLookTest, SortedRowsKeepTheBandsInTheirPlaces) {
    ShowInstalled();
    ClickHeader(0);
    EXPECT_EQ(test::BandColour(List(), 0), *wxWHITE);
    EXPECT_EQ(test::BandColour(List(), 1), kBlue);
}

TEST_F(ListLookTest, ARowIsAsHighAsABandUnlessItsTextNeedsMore) {
    ShowInstalled();
    wxListCtrl plain(&Window(), wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT);
    plain.AppendColumn("A");
    plain.InsertItem(0, "a");
    wxRect needed;
    plain.GetItemRect(0, needed);
    wxRect row;
    List().GetItemRect(0, row);
    constexpr int band = 21;
    EXPECT_EQ(row.height, std::max(band, needed.height));
}

TEST_F(ListLookTest, EachColumnIsAsWideAsItsHeaderAndItsCells) {
    const std::string longPath = "/vst/" + std::string(60, 'W') + "/Alpha.dll";
    folder.Write("resultfiles/installedplugins.csv",
                 "\"VST\",\"Alpha\",\"/a\"\r\n\"VST\",\"Beta\",\"" + longPath + "\"\r\n");
    ShowInstalled();
    const auto widthOf = [&](const std::string& text) { return List().GetTextExtent(text).x; };
    EXPECT_GT(List().GetColumnWidth(0), widthOf("Installed Plugins"));
    EXPECT_GT(List().GetColumnWidth(1), widthOf("Type"));
    EXPECT_LT(List().GetColumnWidth(1), 2 * widthOf("Type") + 40) << "no wider than needed";
    EXPECT_GT(List().GetColumnWidth(2), widthOf(longPath));
}

TEST_F(ListLookTest, TheColumnsAreFittedAgainWhenTheWindowIsResized) {
    ShowInstalled();
    const int fitted = List().GetColumnWidth(0);
    List().SetColumnWidth(0, 20);
    Window().SetClientSize(Window().GetClientSize() - wxSize(30, 30));
    EXPECT_TRUE(test::RunEventsUntil([&] { return List().GetColumnWidth(0) == fitted; }));
}

TEST_F(ListLookTest, AListOf200000RowsAppears) {
    std::string lines;
    constexpr int count = 200000;
    for (int i = 0; i < count; ++i)
        lines += "\"VST\",\"Plugin " + std::to_string(count + i) + "\",\"/vst/" +
                 std::to_string(i) + ".dll\"\r\n";
    folder.Write("resultfiles/installedplugins.csv", lines);
    ShowInstalled();
    ASSERT_EQ(List().GetItemCount(), count);
    ClickRow(0);
    Press(WXK_END);
    EXPECT_TRUE(test::RowsOf(List()).GetClientRect().Contains(test::PointInRow(List(), count - 1)));
    EXPECT_EQ(List().GetItemText(count - 1, 0), "Plugin 399999");
    EXPECT_EQ(List().GetItemText(count - 1, 2), "/vst/199999.dll");
    EXPECT_EQ(Log(), "");
}

TEST_F(ListLookTest, ANameOf10MegabytesIsCutAndSavedWhole) {
    std::string endless;
    endless.resize(10'000'000, 'W');
    folder.Write(
        "resultfiles/installedplugins.csv",
        "\"VST\",\"Alpha\",\"" + alpha_ + "\"\r\n\"VST\",\"" + endless + "\",\"/w.dll\"\r\n");
    ShowInstalled();
    const std::string shown = Column(0).at(1);
    EXPECT_LE(shown.size(), kMostCellLength + std::string("…").size());
    EXPECT_TRUE(shown.starts_with(endless.substr(0, 500)));
    EXPECT_LE(List().GetColumnWidth(0), List().FromDIP(2000));
    Logic().SaveList(folder.Path("list.csv"));
    EXPECT_NE(folder.Read("list.csv").find("\"" + endless + "\",\"VST\",\"/w.dll\""),
              std::string::npos);
    EXPECT_EQ(Log(), "");
}

TEST_F(ListLookTest, NoCharacterOfANameReachesOutOfItsCell) {
    const std::string odd = std::string("A\x1B[2J\u202E\u2028\t") + '\0' + 'z';
    std::string lines;
    for (const std::string& name : {odd, std::string("B"), std::string("C"), std::string("D")})
        lines += "\"VST\",\"" + name + "\",\"/p.dll\"\r\n";
    folder.Write("resultfiles/installedplugins.csv", lines);
    ShowInstalled();
    const auto besideTheName = [&](long row) {
        wxRect place = test::PlaceOfRow(List(), row);
        place.x += List().GetColumnWidth(0);
        place.width = List().GetColumnWidth(1) + List().GetColumnWidth(2);
        return test::PictureOf(test::RowsOf(List()), place);
    };
    ASSERT_EQ(List().GetItemCount(), 4);
    EXPECT_EQ(test::PlaceOfRow(List(), 0).GetSize(), test::PlaceOfRow(List(), 2).GetSize());
    EXPECT_TRUE(test::AreEqual(besideTheName(0), besideTheName(2)));
}

using ListSortTest = WindowListTest;

TEST_F(ListSortTest, AReportComesSortedByName) {
    ShowInstalled();
    EXPECT_EQ(Column(0), (Texts{"Alpha", "Beta", "Gamma"}));
    EXPECT_EQ(List().GetSortIndicator(), 0);
    EXPECT_TRUE(List().IsAscendingSortIndicator());
}

TEST_F(ListSortTest, TheFirstClickOnAHeaderTurnsTheOrderRound) {
    ShowInstalled();
    ClickHeader(0);
    EXPECT_EQ(Column(0), (Texts{"Gamma", "Beta", "Alpha"}));
    EXPECT_EQ(List().GetSortIndicator(), 0);
    EXPECT_FALSE(List().IsAscendingSortIndicator());
}

TEST_F(ListSortTest, AnotherClickTurnsItBackAndOneOnAnotherColumnKeepsIt) {
    ShowInstalled();
    ClickHeader(0);
    ClickHeader(0);
    EXPECT_EQ(Column(0), (Texts{"Alpha", "Beta", "Gamma"}));
    EXPECT_TRUE(List().IsAscendingSortIndicator());
    ClickHeader(2);
    EXPECT_EQ(Column(2), (Texts{gamma_, beta_, alpha_}));
    EXPECT_EQ(List().GetSortIndicator(), 2);
    EXPECT_TRUE(List().IsAscendingSortIndicator());
}

TEST_F(ListSortTest, LastModifiedIsSortedByDateAndLosesZeros) {
    SetModified(first_, "2006-10-20 09:08:07");
    SearchProjects();
    EXPECT_EQ(Headers(), (Texts{"Project", "Last Modified", "Plugin", "Type", "Status"}));
    EXPECT_EQ(Column(1), (Texts{"10/20/2006 9:08:07 AM", "4/5/2005 4:07:08 PM"}));
    ClickHeader(1);
    EXPECT_EQ(Column(1), (Texts{"1/2/2006 9:08:07 AM", "4/5/2005 4:07:08 PM"}));
    EXPECT_FALSE(List().IsAscendingSortIndicator());
    ClickHeader(1);
    EXPECT_EQ(Column(0), (Texts{second_, first_}));
    EXPECT_EQ(Log(), "");
}

TEST_F(ListSortTest, TheSelectedRowStaysSelected) {
    ShowInstalled();
    ClickRow(0);
    ClickHeader(0);
    EXPECT_EQ(List().GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED), 2);
    EXPECT_EQ(List().GetSelectedItemCount(), 1);
}

using ListOpenTest = WindowListTest;

TEST_F(ListOpenTest, ADoubleClickOnAProjectOpensIt) {
    SearchProjects();
    DoubleClickRow(1);
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    const platform::ShellRequest& request = desktop.shellRequests[0];
    EXPECT_EQ(request.verb, "Open");
    EXPECT_EQ(request.file, second_);
    EXPECT_EQ(request.parameters, "");
    EXPECT_EQ(request.folder, "0");
    EXPECT_EQ(request.showState, 1);
}

TEST_F(ListOpenTest, ADoubleClickOnAPathOpensItsFolder) {
    ShowInstalled();
    DoubleClickRow(2);
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    EXPECT_EQ(desktop.shellRequests[0].file, "explorer.exe");
    EXPECT_EQ(desktop.shellRequests[0].parameters, folder.Path("a"));
}

TEST_F(ListOpenTest, EnterOnARowDoesTheSame) {
    ShowInstalled();
    ClickRow(0);
    Press(WXK_DOWN);
    Press(WXK_RETURN);
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    EXPECT_EQ(desktop.shellRequests[0].parameters, folder.Path("b"));
}

TEST_F(ListOpenTest, OfSeveralSelectedRowsTheFocusedOneCounts) {
    ShowInstalled();
    ClickRow(0);
    Press(WXK_DOWN, wxMOD_SHIFT);
    Press(WXK_DOWN, wxMOD_SHIFT);
    ASSERT_EQ(List().GetSelectedItemCount(), 3);
    Press(WXK_RETURN);
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    EXPECT_EQ(desktop.shellRequests[0].parameters, folder.Path("a"));
}

TEST_F(ListOpenTest, ADoubleClickBelowTheRowsIsLoggedWhenNothingIsSelected) {
    ShowInstalled();
    DoubleClickBelowTheRows();
    EXPECT_TRUE(desktop.shellRequests.empty());
    EXPECT_EQ(Log(), LogLine("lstSongs_dblClick", 91, "Object variable not set"));
}

TEST_F(ListOpenTest, ADoubleClickOnAnEmptyListDoesNothing) {
    DoubleClickBelowTheRows();
    EXPECT_TRUE(desktop.shellRequests.empty());
    EXPECT_EQ(Log(), "");
}

TEST_F(ListOpenTest, ADoubleClickOnAHeaderOpensNothing) {
    ShowInstalled();
    ClickRow(0);
    DoubleClickHeader(0);
    EXPECT_TRUE(desktop.shellRequests.empty());
    EXPECT_EQ(Log(), "");
}

TEST_F(ListOpenTest, AFolderThatCannotBeOpenedIsTold) {
    desktop.shellAnswer = 32;
    ShowInstalled();
    dialogs.Handle([&](test::Dialog& box) {
        ExpectMessageBox(box, "Cannot open the folder at the moment", wxOK | wxICON_INFORMATION);
        Press(WXK_RETURN);
    });
    DoubleClickRow(0);
}

using ListCopyTest = WindowListTest;

TEST_F(ListCopyTest, CopiesTheSelectedRowsWithTabsBetweenTheirCells) {
    ShowInstalled();
    ClickRow(1);
    Press(WXK_DOWN, wxMOD_SHIFT);
    Press('C', wxMOD_CONTROL);
    EXPECT_EQ(Clipboard(), "Beta\tVST\t" + beta_ + "\nGamma\tVST\t" + gamma_ + "\n");
}

class ListMenuTest : public WindowListTest {
  protected:
    /// The entries of the menu that can be chosen.
    Texts EnabledEntries(const std::function<void()>& open) {
        Texts enabled;
        InMenu(open, [&](const wxMenu& menu) {
            for (const wxMenuItem* item : menu.GetMenuItems())
                if (item->IsEnabled() && !item->IsSeparator())
                    enabled.push_back(item->GetItemLabelText().utf8_string());
            SendKey(WXK_ESCAPE);
        });
        return enabled;
    }
};

TEST_F(ListMenuTest, OpensTheRowThatWasClicked) {
    ShowInstalled();
    ChooseInMenu(1, [&] { ClickRow(1, wxMOUSE_BTN_RIGHT); });
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    EXPECT_EQ(desktop.shellRequests[0].parameters, folder.Path("b"));
}

TEST_F(ListMenuTest, CopiesTheRowThatWasClicked) {
    ShowInstalled();
    ChooseInMenu(2, [&] { ClickRow(2, wxMOUSE_BTN_RIGHT); });
    EXPECT_EQ(Clipboard(), "Gamma\tVST\t" + gamma_ + "\n");
}

TEST_F(ListMenuTest, TheMenuKeyOpensItToo) {
    ShowInstalled();
    ClickRow(2);
    ChooseInMenu(1, [&] { Press(test::MenuKey()); });
    ASSERT_EQ(desktop.shellRequests.size(), 1U);
    EXPECT_EQ(desktop.shellRequests[0].parameters, folder.Path("a"));
}

TEST_F(ListMenuTest, WithoutASelectedRowOnlySavingIsOffered) {
    ShowInstalled();
    EXPECT_EQ(EnabledEntries([&] { RightClickBelowTheRows(); }), Texts{"Save list as\u2026"});
}

TEST_F(ListMenuTest, SavesTheListInTheChosenFile) {
    ShowInstalled();
    dialogs.Handle([&](test::Dialog& chooser) {
        EXPECT_EQ(chooser.Title(), "Save list as");
        ChooseInPicker(chooser, folder.Path("list.csv"));
    });
    ChooseInMenu(3, [&] { ClickRow(0, wxMOUSE_BTN_RIGHT); });
    EXPECT_EQ(folder.Read("list.csv"),
              "\"Installed Plugins\",\"Type\",\"Path\",\"Greyed\"\r\n"
              "\"Alpha\",\"VST\",\"" +
                  alpha_ + "\",\"no\"\r\n\"Beta\",\"VST\",\"" + beta_ +
                  "\",\"no\"\r\n\"Gamma\",\"VST\",\"" + gamma_ + "\",\"no\"\r\n");
}

TEST_F(ListMenuTest, SavesAPageWhenThatKindIsChosen) {
    ShowInstalled();
    dialogs.Handle([&](test::Dialog& chooser) {
        chooser.ChooseKind(1);
        ChooseInPicker(chooser, folder.Path("list"));
    });
    ChooseInMenu(3, [&] { ClickRow(0, wxMOUSE_BTN_RIGHT); });
    EXPECT_NE(folder.Read("list.html").find("Installed Plugins"), std::string::npos);
}

TEST_F(ListMenuTest, SavesAPageUnderANameOfOne) {
    ShowInstalled();
    dialogs.Handle(
        [&](test::Dialog& chooser) { ChooseInPicker(chooser, folder.Path("list.html")); });
    ChooseInMenu(3, [&] { ClickRow(0, wxMOUSE_BTN_RIGHT); });
    if (folder.Exists("list.html.csv"))
        GTEST_SKIP() << "this picker gives every file the extension of the chosen kind";
    EXPECT_NE(folder.Read("list.html").find("Installed Plugins"), std::string::npos);
}

TEST_F(ListMenuTest, AnEmptyListOffersNothing) {
    EXPECT_EQ(EnabledEntries([&] { RightClickBelowTheRows(); }), Texts{});
}

}  // namespace
}  // namespace marlo
