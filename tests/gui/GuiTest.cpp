#include "tests/gui/GuiTest.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <wx/clipbrd.h>

#include "core/Settings.h"
#include "tests/support/Projects.h"

namespace marlo::test {

namespace {

wxPoint MiddleOf(const wxWindow& control) {
    const wxSize size = control.GetSize();
    return {size.x / 2, size.y / 2};
}

}  // namespace

GuiTest::GuiTest() {
    // Not asked for by most tests, and logged when it is not there.
    WriteSetting(application, setting::kCsvProgram, "/bin/sheets");
    mouse_.MouseMove(0, 0);  // a window that opens below it would take it for moved
}

GuiTest::~GuiTest() {
    if (window_ == nullptr)
        return;
    window_->Destroy();
    EXPECT_TRUE(RunEventsUntil([&] { return window_ == nullptr; }));
}

void GuiTest::Open() {
    window_ = new gui::Form1Window(application, "https://marlo.example");
    window_->Show();
    window_->Bind(wxEVT_DESTROY, [this](wxWindowDestroyEvent& event) {
        event.Skip();
        if (event.GetEventObject() == window_)
            window_ = nullptr;
    });
    ASSERT_TRUE(RunEventsUntil([&] { return window_->IsActive() && HasKeyboard(*window_); }));
    RunEvents();
}

void GuiTest::CloseWindow() {
    window_->wxFrame::Close();
    ASSERT_TRUE(RunEventsUntil([&] { return window_ == nullptr; }));
}

wxWindow& GuiTest::FindAny(const std::string& name, const wxWindow* window) {
    wxWindow* const found = wxWindow::FindWindowByName(name, window);
    if (found == nullptr)
        throw std::runtime_error("there is no control " + name);
    return *found;
}

std::string GuiTest::StatusText(const std::string& box) {
    return Find<gui::StatusBox>(box).Text();
}

wxRect GuiTest::PlaceOf(const wxWindow& control) const {
    // Without asking the screen, on which the window manager may move the window meanwhile.
    wxPoint corner = control.GetPosition();
    for (const wxWindow* parent = control.GetParent(); parent != window_;
         parent = parent->GetParent())
        corner += parent->GetPosition() + parent->GetClientAreaOrigin();
    return {corner, control.GetSize()};
}

std::set<std::size_t> GuiTest::EnabledItems() {
    std::set<std::size_t> enabled;
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        if (Item(i).IsEnabled())
            enabled.insert(i);
    return enabled;
}

std::string GuiTest::FocusedName() {
    const wxWindow* control = FocusIn(*window_);
    if (control == nullptr)
        return "";
    // Some systems' list has its rows in a window of their own.
    if (dynamic_cast<const gui::LedgerList*>(control->GetParent()) != nullptr)
        control = control->GetParent();
    return control->GetName().utf8_string();
}

void GuiTest::MoveTo(wxWindow& control, const wxPoint& point) {
    mouse_.MouseMove(control.ClientToScreen(point));
    RunEvents();
}

void GuiTest::MoveTo(wxWindow& control) {
    MoveTo(control, MiddleOf(control));
}

void GuiTest::Click(wxWindow& control) {
    // Here and there in turn, so that two clicks are no double click.
    constexpr int aside = 4;
    isClickOnTheLeft_ = !isClickOnTheLeft_;
    ClickAt(control, MiddleOf(control) + wxPoint(isClickOnTheLeft_ ? -aside : aside, 0));
}

void GuiTest::ClickAt(wxWindow& control, const wxPoint& point, int button) {
    MoveTo(control, point);
    mouse_.MouseClick(button);
    RunEvents();
}

void GuiTest::DoubleClickAt(wxWindow& control, const wxPoint& point) {
    MoveTo(control, point);
    mouse_.MouseDblClick();
    RunEvents();
}

void GuiTest::Press(int key, int modifiers) {
    // After a dialog, the window gets it back from the window manager in its own time.
    EXPECT_TRUE(RunEventsUntil([] { return HasKeyboard(); })) << "keys go nowhere";
    mouse_.Char(key, modifiers);
    RunEvents();
}

void GuiTest::Type(const std::string& text) {
    mouse_.Text(text.c_str());
    RunEvents();
}

void GuiTest::Paste(const std::string& text) {
    const wxClipboardLocker clipboard;
    wxTheClipboard->SetData(new wxTextDataObject(wxString::FromUTF8(text)));
    Press('V', wxMOD_CONTROL);
}

void GuiTest::ExpectMessageBox(const Dialog& box, const std::string& text, long style,
                               const std::string& title) {
    EXPECT_EQ(box.Message(), text);
    EXPECT_EQ(box.Title(), title) << text;
    EXPECT_EQ(box.MessageStyle(), style) << text;
}

void GuiTest::ReadFoldersTo(const std::string& path) {
    std::error_code ignored;
    for (std::filesystem::path part(path); part.has_relative_path(); part = part.parent_path())
        std::filesystem::directory_iterator(part, ignored);
}

void GuiTest::ChooseInPicker(Dialog& picker, const std::string& path) {
    ReadFoldersTo(path);
    picker.EnterPath(path);
    // The picker looks the path up first, and takes no answer meanwhile. What comes after it must
    // not get the key.
    RepeatUntil([&] { return !picker.IsOpen(); },
                [&] {
                    if (picker.HasKeyboard())
                        mouse_.Char(WXK_RETURN);
                });
}

void GuiTest::AddPictures() const {
    std::filesystem::copy(MARLO_ICONS, folder.Path("icons"));
}

void GuiTest::WriteResultFiles() const {
    const std::string song = AddProject("song.cpr");
    const auto write = [&](const std::string& name, const std::string& text) {
        folder.Write("resultfiles/" + name, text);
    };
    const std::string uses = "\"" + song + "\",\"Reverb\",\"VST    \",\"On\"\r\n\"" + song +
                             "\",\"Echo\",\"DirectX\",\"Off\"\r\n";
    write("results.csv", uses);
    write("fln.csv", uses);
    write("tln.csv", "\"Reverb\",\"VST    \",\"On\"\r\n\"Echo\",\"DirectX\",\"Off\"\r\n");
    write("installedplugins.csv", "\"VST\",\"Reverb\",\"/vst/Reverb.dll\"\r\n");
}

std::string GuiTest::AddProject(const std::string& name, const std::string& plugin) const {
    return test::AddProject(folder, name, {{.name = plugin}});
}

}  // namespace marlo::test
