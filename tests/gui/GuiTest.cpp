#include "tests/gui/GuiTest.h"

#include <stdexcept>
#include <wx/clipbrd.h>

#include "core/Settings.h"
#include "tools/ProjectWriter.h"

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
}

GuiTest::~GuiTest() {
    if (window_ == nullptr)
        return;
    window_->Destroy();
    EXPECT_TRUE(RunEventsUntil([&] { return window_ == nullptr; }));
}

void GuiTest::Open() {
    window_ = new gui::Form1Window(application, "/help");
    window_->wxFrame::Show();
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

void GuiTest::MoveTo(wxWindow& control, const wxPoint& point) {
    mouse_.MouseMove(control.ClientToScreen(point));
    RunEvents();
}

void GuiTest::MoveTo(wxWindow& control) {
    MoveTo(control, MiddleOf(control));
}

void GuiTest::Click(wxWindow& control) {
    ClickAt(control, MiddleOf(control));
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

void GuiTest::ChooseInPicker(const wxDialog& picker, const std::string& path) {
    Press('L', wxMOD_CONTROL);
    Paste(path);
    // The picker looks the path up first, and takes no answer meanwhile. What comes after it must
    // not get the key.
    RepeatUntil([&] { return !picker.IsModal(); },
                [&] {
                    if (HasKeyboard(picker))
                        mouse_.Char(WXK_RETURN);
                });
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
    return folder.Write("songs/" + name,
                        std::string(100, '\0') + tools::PluginBytes({.name = plugin}));
}

wxWindow& GuiTest::Rows() {
    const wxWindowList& parts = List().GetChildren();
    return parts.empty() ? List() : *parts.GetLast()->GetData();
}

wxPoint GuiTest::RowPoint(long row) {
    wxRect rect;
    List().GetItemRect(row, rect);
    const wxPoint inList(rect.x + 20, rect.y + rect.height / 2);
    return Rows().ScreenToClient(List().ClientToScreen(inList));
}

}  // namespace marlo::test
