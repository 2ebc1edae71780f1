#include "tests/soak/RandomUser.h"

#include <algorithm>
#include <array>
#include <gtk/gtk.h>
#include <string>
#include <vector>
#include <wx/bookctrl.h>
#include <wx/button.h>
#include <wx/filedlg.h>

#include "tests/gui/Display.h"
#include "tests/soak/Input.h"

namespace marlo::soak {

namespace {

struct Key {
    unsigned key;
    Modifier modifier = Modifier::Nothing;
};

const std::vector<Key>& Keys() {
    static const auto keys = [] {
        std::vector<Key> all = {{GDK_KEY_Escape},
                                {GDK_KEY_F1},
                                {GDK_KEY_F10},
                                {GDK_KEY_Menu},
                                {GDK_KEY_BackSpace},
                                {GDK_KEY_Delete},
                                {GDK_KEY_Left},
                                {GDK_KEY_Right},
                                {GDK_KEY_Tab, Modifier::Shift},
                                {GDK_KEY_Tab, Modifier::Control},
                                {GDK_KEY_Page_Down, Modifier::Control},
                                {GDK_KEY_Down, Modifier::Shift},
                                {GDK_KEY_End, Modifier::Shift},
                                {GDK_KEY_Down, Modifier::Alt}};
        for (const unsigned often :
             {GDK_KEY_Tab, GDK_KEY_Return, GDK_KEY_space, GDK_KEY_Up, GDK_KEY_Down, GDK_KEY_Home,
              GDK_KEY_End, GDK_KEY_Page_Up, GDK_KEY_Page_Down})
            all.insert(all.end(), 3, {often});
        for (unsigned letter = GDK_KEY_a; letter <= GDK_KEY_z; ++letter) {
            all.push_back({letter});
            all.push_back({letter, Modifier::Alt});
        }
        for (const unsigned letter : {GDK_KEY_a, GDK_KEY_c, GDK_KEY_v, GDK_KEY_x, GDK_KEY_z})
            all.push_back({letter, Modifier::Control});
        return all;
    }();
    return keys;
}

/// It takes a while until the window has heard of it.
constexpr int kActivationLuck = 3;

constexpr unsigned kLeftButton = 1;
constexpr unsigned kRightButton = 3;

void ClickHere(unsigned button = kLeftButton) {
    PressButton(button);
    ReleaseButton(button);
}

/// All controls in a window that can be seen, which it is one of.
void CollectShown(wxWindow& window, std::vector<wxWindow*>& found) {
    found.push_back(&window);
    for (wxWindow* const child : window.GetChildren())
        if (child->IsShown() && !child->IsTopLevel())
            CollectShown(*child, found);
}

bool IsMenuOpen() {
    GtkWidget* const grab = gtk_grab_get_current();
    if (grab == nullptr)
        return false;
    GtkWidget* const top = gtk_widget_get_toplevel(grab);
    return GTK_IS_WINDOW(top) && gtk_window_get_window_type(GTK_WINDOW(top)) == GTK_WINDOW_POPUP;
}

bool IsRunning() {
    const wxWindow* const cancel =
        wxWindow::FindWindowByName("cmdbuttons(" + std::to_string(kCancelItem) + ")");
    return cancel != nullptr && cancel->IsEnabled();
}

/// As the window manager does for the user.
void AskToClose(const wxTopLevelWindow& window) {
    gtk_window_close(GTK_WINDOW(window.GetHandle()));
}

}  // namespace

struct RandomUser::Action {
    int weight;
    const char* name;
    void (RandomUser::*run)(wxTopLevelWindow& window);
};

RandomUser::RandomUser(std::uint32_t seed, const OpenDialogs& dialogs, Record& record)
    : random_(seed), dialogs_(dialogs), record_(record) {}

int RandomUser::Number(int from, int to) {
    return std::uniform_int_distribution(from, std::max(from, to))(random_);
}

void RandomUser::Act(gui::Form1Window& window) {
    static constexpr std::array kActions = {
        Action{300, "click", &RandomUser::Click},
        Action{40, "double click", &RandomUser::DoubleClick},
        Action{60, "right click", &RandomUser::RightClick},
        Action{40, "drag", &RandomUser::Drag},
        Action{120, "click on a button", &RandomUser::ClickButton},
        Action{100, "turn to another page", &RandomUser::TurnPage},
        Action{250, "key", &RandomUser::PressAnyKey},
        Action{40, "resize", &RandomUser::Resize},
        Action{10, "move", &RandomUser::Move},
        Action{8, "minimise", &RandomUser::Minimise},
        Action{4, "close", &RandomUser::Close},
    };
    wxDialog* const dialog = dialogs_.Top();
    auto& top = dialog != nullptr ? static_cast<wxTopLevelWindow&>(*dialog) : window;
    if (dialog != nullptr && OpenDialogs::IsPicker(*dialog))
        return AnswerPicker(*dialog);
    if (window.IsIconized() && IsLuck(20))
        return test::Restore(window);
    if (IsMenuOpen() && IsLuck(70))
        return UseMenu();
    if (!test::HasKeyboard() && IsLuck(kActivationLuck))
        return Activate(top);
    int left = 0;
    for (const Action& action : kActions)
        left += action.weight;
    left = Number(1, left);
    for (const Action& action : kActions) {
        left -= action.weight;
        if (left > 0)
            continue;
        record_.Count(std::string("done: ") + action.name);
        return (this->*action.run)(top);
    }
}

const char* RandomUser::Calm(gui::Form1Window& window) {
    wxDialog* const dialog = dialogs_.Top();
    if (window.IsIconized()) {
        test::Restore(window);
        return "minimised";
    }
    if (IsMenuOpen()) {
        // It has the keyboard, whoever had it before.
        PressKey(GDK_KEY_Escape, Modifier::Nothing);
        return "a menu";
    }
    if (!test::HasKeyboard()) {
        if (IsLuck(kActivationLuck))
            Activate(dialog != nullptr ? static_cast<wxTopLevelWindow&>(*dialog) : window);
        return "without the keyboard";
    }
    if (dialog != nullptr && OpenDialogs::IsPicker(*dialog)) {
        Press(GDK_KEY_Escape);
        return "a picker";
    }
    if (dialog != nullptr) {
        if (IsLuck(50))
            AskToClose(*dialog);
        else
            // Some questions have to be answered.
            Press(IsLuck(50) ? GDK_KEY_Escape : GDK_KEY_Return);
        return "a dialog";
    }
    if (IsRunning()) {
        Press(GDK_KEY_Escape);
        return "a run";
    }
    return gtk_main_level() > 1 ? "something that waits for events" : nullptr;
}

wxWindow* RandomUser::AnyControl(wxWindow& window) {
    std::vector<wxWindow*> shown;
    CollectShown(window, shown);
    return AnyOf(shown);
}

wxPoint RandomUser::AnyPointIn(const wxWindow& control) {
    const wxSize size = control.GetSize();
    return control.GetScreenPosition() + wxPoint(Number(0, size.x - 1), Number(0, size.y - 1));
}

void RandomUser::MoveInto(wxWindow& control) {
    MoveMouse(AnyPointIn(control));
}

void RandomUser::Press(unsigned key, Modifier modifier) {
    if (test::HasKeyboard())
        PressKey(key, modifier);
}

void RandomUser::AnswerPicker(wxDialog& picker) {
    if (!IsLuck(10))
        return;  // it looks folders up first, and takes no answer meanwhile
    record_.Count("done: answer a picker");
    auto* const files = dynamic_cast<wxFileDialog*>(&picker);
    if (files != nullptr && IsLuck(10))
        files->SetFilterIndex(Number(0, 1));
    else
        Press(IsLuck(85) ? GDK_KEY_Return : GDK_KEY_Escape);
}

void RandomUser::UseMenu() {
    record_.Count("done: key in a menu");
    constexpr std::array keys = {GDK_KEY_Down,   GDK_KEY_Down,   GDK_KEY_Up,
                                 GDK_KEY_Return, GDK_KEY_Return, GDK_KEY_Escape};
    Press(static_cast<unsigned>(AnyOf(keys)));
}

void RandomUser::Click(wxTopLevelWindow& window) {
    MoveInto(*AnyControl(window));
    ClickHere();
}

void RandomUser::DoubleClick(wxTopLevelWindow& window) {
    MoveInto(*AnyControl(window));
    ClickHere();
    ClickHere();
}

void RandomUser::RightClick(wxTopLevelWindow& window) {
    wxWindow* const list = wxWindow::FindWindowByName("lstSongs", &window);
    MoveInto(list != nullptr && IsLuck(50) ? *list : *AnyControl(window));
    ClickHere(kRightButton);
}

void RandomUser::TurnPage(wxTopLevelWindow& window) {
    std::vector<wxWindow*> shown;
    CollectShown(window, shown);
    for (wxWindow* const control : shown)
        if (auto* const book = dynamic_cast<wxBookCtrlBase*>(control)) {
            book->SetSelection(
                static_cast<std::size_t>(Number(0, static_cast<int>(book->GetPageCount()) - 1)));
            if (IsLuck(50))
                ClickButtonIn(*book->GetCurrentPage());
        }
}

void RandomUser::Drag(wxTopLevelWindow& window) {
    wxWindow* const control = AnyControl(window);
    MoveInto(*control);
    PressButton(kLeftButton);
    MoveInto(IsLuck(70) ? *control : *AnyControl(window));
    ReleaseButton(kLeftButton);
}

void RandomUser::ClickButton(wxTopLevelWindow& window) {
    ClickButtonIn(window);
}

void RandomUser::ClickButtonIn(wxWindow& window) {
    std::vector<wxWindow*> shown;
    CollectShown(window, shown);
    std::erase_if(shown, [](const wxWindow* control) {
        return !control->IsEnabled() ||
               (dynamic_cast<const gui::PictureControl*>(control) == nullptr &&
                dynamic_cast<const wxButton*>(control) == nullptr);
    });
    if (shown.empty())
        return;
    MoveInto(*AnyOf(shown));
    ClickHere();
}

void RandomUser::PressAnyKey(wxTopLevelWindow& /*window*/) {
    const auto& [key, modifier] = AnyOf(Keys());
    Press(key, modifier);
}

void RandomUser::Resize(wxTopLevelWindow& window) {
    window.SetSize(Number(100, 1400), Number(100, 1100));
}

void RandomUser::Move(wxTopLevelWindow& window) {
    window.Move(Number(-200, 1000), Number(-200, 800));
}

void RandomUser::Minimise(wxTopLevelWindow& window) {
    if (dialogs_.Top() == nullptr)
        window.Iconize();
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): one of the actions.
void RandomUser::Close(wxTopLevelWindow& window) {
    AskToClose(window);
}

}  // namespace marlo::soak
