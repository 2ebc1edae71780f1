#include <gtest/gtest.h>

#include "platform/MessageBox.h"
#include "tests/platform/windows/DialogAnswer.h"

namespace marlo::platform {
namespace {

struct Shown {
    std::string title;
    bool hasText = false;
    LONG_PTR icon = 0;
    int buttons = 0;
};

class MessageBoxTest : public testing::Test {
  protected:
    MessageAnswer Show(MessageButtons buttons, MessageIcon icon, int button,
                       const std::wstring& title = L"Marlo") {
        const test::DialogAnswer answer([&](HWND dialog) {
            shown = {test::TextOf(dialog), test::Shows(dialog, "How?"), 0, 0};
            for (const int id : {IDOK, IDCANCEL, IDYES, IDNO})
                if (GetDlgItem(dialog, id) != nullptr)
                    ++shown.buttons;
            for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr;
                 child = GetWindow(child, GW_HWNDNEXT))
                shown.icon += SendMessageA(child, STM_GETICON, 0, 0);
            test::Press(dialog, button);
        });
        return ShowMessageBox(nullptr, L"How?", title, buttons, icon);
    }

    Shown shown;
};

TEST_F(MessageBoxTest, TheAnswerIsThatOfTheButton) {
    EXPECT_EQ(Show(MessageButtons::Ok, MessageIcon::None, IDOK), MessageAnswer::Ok);
    EXPECT_EQ(Show(MessageButtons::OkCancel, MessageIcon::None, IDCANCEL), MessageAnswer::Cancel);
    EXPECT_EQ(Show(MessageButtons::YesNo, MessageIcon::None, IDYES), MessageAnswer::Yes);
    EXPECT_EQ(Show(MessageButtons::YesNoCancel, MessageIcon::None, IDNO), MessageAnswer::No);
}

TEST_F(MessageBoxTest, ItHasTheButtonsThatAreAskedFor) {
    Show(MessageButtons::Ok, MessageIcon::None, IDOK);
    EXPECT_EQ(shown.buttons, 1);
    Show(MessageButtons::OkCancel, MessageIcon::None, IDOK);
    EXPECT_EQ(shown.buttons, 2);
    Show(MessageButtons::YesNo, MessageIcon::None, IDNO);
    EXPECT_EQ(shown.buttons, 2);
    Show(MessageButtons::YesNoCancel, MessageIcon::None, IDNO);
    EXPECT_EQ(shown.buttons, 3);
}

TEST_F(MessageBoxTest, ItShowsTheTextAndTheTitleAlsoAnEmptyOne) {
    Show(MessageButtons::Ok, MessageIcon::None, IDOK);
    EXPECT_TRUE(shown.hasText);
    EXPECT_EQ(shown.title, "Marlo");
    Show(MessageButtons::Ok, MessageIcon::None, IDOK, L"");
    EXPECT_EQ(shown.title, "");
}

TEST_F(MessageBoxTest, ItHasAnIconWhereOneIsAskedFor) {
    Show(MessageButtons::Ok, MessageIcon::None, IDOK);
    EXPECT_EQ(shown.icon, 0);
    for (const MessageIcon icon :
         {MessageIcon::Information, MessageIcon::Exclamation, MessageIcon::Question}) {
        Show(MessageButtons::Ok, icon, IDOK);
        EXPECT_NE(shown.icon, 0);
    }
}

}  // namespace
}  // namespace marlo::platform
