#include "tests/gui/GuiTest.h"

#include <chrono>
#include <stdexcept>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/utils.h>

#include "core/Settings.h"

namespace marlo::test {

namespace {

using Clock = std::chrono::steady_clock;

void RunDueEvents() {
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    loop->YieldFor(wxEVT_CATEGORY_ALL);
    wxTheApp->ProcessPendingEvents();
}

wxPoint MiddleOf(const wxWindow& control) {
    const wxSize size = control.GetSize();
    return {size.x / 2, size.y / 2};
}

}  // namespace

bool RunEventsUntil(const std::function<bool()>& isReached) {
    const auto end = Clock::now() + std::chrono::seconds(10);
    while (!isReached()) {
        if (Clock::now() > end)
            return false;
        RunDueEvents();
        wxMilliSleep(2);
    }
    return true;
}

void RunEvents() {
    // What a click leads to comes from the display in its own time.
    const auto end = Clock::now() + std::chrono::milliseconds(120);
    while (Clock::now() < end) {
        RunDueEvents();
        wxMilliSleep(2);
    }
}

int DialogHandlers::Enter(wxDialog* dialog) {
    ++count_;
    if (handlers_.empty()) {
        ADD_FAILURE() << "nobody expects the dialog " << dialog->GetTitle();
        return wxID_CANCEL;
    }
    dialog->CallAfter([dialog, handler = handlers_.front()] {
        RunEvents();
        handler(*dialog);
    });
    handlers_.pop_front();
    return wxID_NONE;
}

GuiTest::GuiTest() {
    // Not asked for by most tests, and logged when it is not there.
    WriteSetting(application, setting::kCsvProgram, "/bin/sheets");
}

GuiTest::~GuiTest() {
    if (window_ == nullptr)
        return;
    window_->Destroy();
    RunEvents();
}

void GuiTest::Open() {
    window_ = new gui::Form1Window(application, "/help");
    window_->wxFrame::Show();
    window_->Bind(wxEVT_DESTROY, [this](wxWindowDestroyEvent& event) {
        event.Skip();
        if (event.GetEventObject() == window_)
            window_ = nullptr;
    });
    ASSERT_TRUE(RunEventsUntil([&] { return window_->IsShownOnScreen() && window_->IsActive(); }));
    RunEvents();
}

void GuiTest::CloseWindow() {
    window_->wxFrame::Close();
    ASSERT_TRUE(RunEventsUntil([&] { return window_ == nullptr; }));
}

wxWindow& GuiTest::FindAny(const std::string& name) {
    wxWindow* const found = wxWindow::FindWindowByName(name);
    if (found == nullptr)
        throw std::runtime_error("there is no control " + name);
    return *found;
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

void GuiTest::ClickAt(wxWindow& control, const wxPoint& point) {
    MoveTo(control, point);
    mouse_.MouseClick();
    RunEvents();
}

void GuiTest::DoubleClickAt(wxWindow& control, const wxPoint& point) {
    MoveTo(control, point);
    mouse_.MouseDblClick();
    RunEvents();
}

void GuiTest::Press(int key, int modifiers) {
    mouse_.Char(key, modifiers);
    RunEvents();
}

void GuiTest::Type(const std::string& text) {
    mouse_.Text(text.c_str());
    RunEvents();
}

void GuiTest::ChooseInPicker(const wxDialog& picker, const std::string& path) {
    Press('L', wxMOD_CONTROL);
    Type(path);
    // The picker looks the path up first, and takes no answer meanwhile.
    for (int i = 0; i < 20 && picker.IsModal(); ++i)
        Press(WXK_RETURN);
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
