#include <array>
#include <cstdlib>
#include <wx/stattext.h>

#include "tests/gui/GuiTest.h"

namespace marlo {
namespace {

class AboutDialogTest : public test::GuiTest {
  protected:
    AboutDialogTest() { Open(); }

    void ExpectCentredOverTheWindow(const wxWindow& dialog) {
        const auto middle = [](const wxRect& place) {
            return wxPoint(place.x + place.width / 2, place.y + place.height / 2);
        };
        wxPoint aside;
        EXPECT_TRUE(test::RunEventsUntil([&] {
            aside = middle(dialog.GetRect()) - middle(Window().GetRect());
            return std::abs(aside.x) <= 1 && std::abs(aside.y) <= 1;
        })) << aside.x
            << " to the right, " << aside.y << " down";
    }
};

TEST_F(AboutDialogTest, NamesTheProgramItsVersionAndWhatItIsForFromTheTopDown) {
    AddPictures();
    dialogs.Handle([&](test::Dialog& dialog) {
        wxDialog& about = dialog.Window();
        EXPECT_EQ(about.GetName(), "frmAbout");
        EXPECT_EQ(dialog.Title(), "About Marlo");
        const std::array<std::pair<const char*, const char*>, 3> texts = {{
            {"lblTitle", "Marlo"},
            {"lblVersion", "Version " MARLO_VERSION},
            {"lblDescription",
             "Everything you wanted to know about your usage of Cubase SX3 VST and DirectX "
             "Plugins"},
        }};
        int bottom = 0;
        for (const auto& [name, text] : texts) {
            const auto& label = Find<wxStaticText>(name, &about);
            wxString shown = label.GetLabelText();
            shown.Replace("\n", " ");  // where it was wrapped
            EXPECT_EQ(shown, text);
            EXPECT_GE(label.GetPosition().y, bottom) << name;
            bottom = label.GetRect().GetBottom();
        }
        EXPECT_GE(Find("cmdOk", &about).GetPosition().y, bottom);
        EXPECT_TRUE(Find("Image1", &about).IsShownOnScreen());
        Press(WXK_ESCAPE);
    });
    Click(Item(kAboutItem));
}

TEST_F(AboutDialogTest, EnterClosesIt) {
    dialogs.Handle([&](test::Dialog& /*about*/) { Press(WXK_RETURN); });
    Click(Item(kAboutItem));
}

TEST_F(AboutDialogTest, AClickOnItsButtonClosesIt) {
    dialogs.Handle([&](test::Dialog& about) { Click(Find("cmdOk", &about.Window())); });
    Click(Item(kAboutItem));
}

TEST_F(AboutDialogTest, StandsInTheMiddleOfTheWindow) {
    dialogs.Handle([&](test::Dialog& about) {
        ExpectCentredOverTheWindow(about.Window());
        Press(WXK_ESCAPE);
    });
    Click(Item(kAboutItem));
}

TEST_F(AboutDialogTest, StandsInTheMiddleOfAWindowThatIsPartlyOffTheScreen) {
    // The dialog itself has room, else the window manager moves it.
    const wxSize room(250, 200);
    const wxSize screen = wxGetDisplaySize();
    const wxSize half = Window().GetSize() / 2;
    const wxPoint corner(screen.x - room.x - half.x, screen.y - room.y - half.y);
    const wxPoint client = Window().ClientToScreen({0, 0}) - Window().GetPosition();
    Window().Move(corner);
    ASSERT_TRUE(test::RunEventsUntil([&] {
        return Window().ClientToScreen({0, 0}) == corner + client;
    }));
    ASSERT_GT(Window().GetRect().GetRight(), screen.x);
    ASSERT_GT(Window().GetRect().GetBottom(), screen.y);
    dialogs.Handle([&](test::Dialog& about) {
        ExpectCentredOverTheWindow(about.Window());
        Press(WXK_ESCAPE);
    });
    Click(Item(kAboutItem));
}

}  // namespace
}  // namespace marlo
