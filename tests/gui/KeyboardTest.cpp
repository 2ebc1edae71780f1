#include <vector>
#include <wx/clipbrd.h>
#include <wx/textctrl.h>

#include "tests/gui/ListGuiTest.h"

namespace marlo {
namespace {

using test::Texts;

class KeyboardTest : public test::ListGuiTest {
  protected:
    /// Where the focus goes when a key is pressed again and again.
    Texts Steps(int key, int modifiers, std::size_t count) {
        Texts names;
        while (names.size() < count) {
            Press(key, modifiers);
            names.push_back(FocusedName());
        }
        return names;
    }

    static std::string Name(std::size_t item) { return "cmdbuttons(" + std::to_string(item) + ")"; }
};

TEST_F(KeyboardTest, TheSearchBoxHasTheFocusAtFirst) {
    Open();
    EXPECT_EQ(FocusedName(), "txtSearchText");
    Type("reverb");
    EXPECT_EQ(Find<wxTextCtrl>("txtSearchText").GetValue(), "reverb");
}

TEST_F(KeyboardTest, TabWalksTheItemsFromTheTopAndThenTheRightPane) {
    WriteResultFiles();
    Open();
    Item(kSearchItem).SetFocus();
    EXPECT_EQ(Steps(WXK_TAB, wxMOD_NONE, 16),
              (Texts{Name(1), Name(2), Name(3), Name(4), Name(5), Name(6), Name(7), Name(8),
                     Name(9), Name(10), "btnDonate", Name(11), "cboSearchType", "chkIgnoreCase",
                     "txtSearchText", "cmdFind"}));
    EXPECT_EQ(Steps(WXK_TAB, wxMOD_NONE, 2), (Texts{"lstSongs", Name(0)}));
}

TEST_F(KeyboardTest, ShiftTabWalksBack) {
    WriteResultFiles();
    Open();
    Item(kUnusedReportItem).SetFocus();
    EXPECT_EQ(Steps(WXK_TAB, wxMOD_SHIFT, 3), (Texts{Name(1), Name(0), "lstSongs"}));
}

TEST_F(KeyboardTest, LockedItemsArePassedBy) {
    Open();
    Item(kSearchItem).SetFocus();
    EXPECT_EQ(Steps(WXK_TAB, wxMOD_NONE, 2), (Texts{Name(1), Name(8)}));
}

TEST_F(KeyboardTest, WhatIsOnlyLookedAtNeverGetsTheFocus) {
    Open();
    for (const char* name : {"Image1", "Label5", "Label3", "Text1"}) {
        ClickAt(Find(name), {2, 2});
        EXPECT_EQ(FocusedName(), "txtSearchText") << name;
    }
}

TEST_F(KeyboardTest, EnterAndSpacePressAnItem) {
    Open();
    Item(kSearchModeItem).SetFocus();
    Press(WXK_RETURN);
    EXPECT_EQ(Item(kSearchModeItem).Caption(), "List Plugins in Project");
    Press(WXK_SPACE);
    EXPECT_EQ(Item(kSearchModeItem).Caption(), "Search for Projects by Plugin");
}

TEST_F(KeyboardTest, EnterAndSpacePressThePictureButtons) {
    Open();
    Find("btnDonate").SetFocus();
    Press(WXK_RETURN);
    Press(WXK_SPACE);
    EXPECT_EQ(desktop.shellRequests.size(), 2U);
}

TEST_F(KeyboardTest, TheFocusIsToBeSeen) {
    Open();
    const auto around = [&](wxWindow& control) {
        const wxRect place = control.GetRect().Inflate(6);
        return test::PictureOf(*control.GetParent(), place);
    };
    for (const std::string& name : {Name(1), Name(kSearchModeItem), std::string("btnDonate")}) {
        wxWindow& control = Find(name);
        Find("txtSearchText").SetFocus();
        const wxImage without = around(control);
        control.SetFocus();
        EXPECT_FALSE(test::AreEqual(around(control), without)) << name;
        Find("txtSearchText").SetFocus();
        EXPECT_TRUE(test::AreEqual(around(control), without)) << name;
    }
}

TEST_F(KeyboardTest, CtrlCInTheSearchBoxCopiesItsText) {
    WriteResultFiles();
    Open();
    Click(Item(kUsedReportItem));
    ClickRow(0);
    Click(Find("txtSearchText"));
    Type("abc");
    Press('A', wxMOD_CONTROL);
    Press('C', wxMOD_CONTROL);
    const wxClipboardLocker clipboard;
    wxTextDataObject text;
    ASSERT_TRUE(wxTheClipboard->GetData(text));
    EXPECT_EQ(text.GetText(), "abc");
}

}  // namespace
}  // namespace marlo
