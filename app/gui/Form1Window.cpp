#include "app/gui/Form1Window.h"

#include <algorithm>
#include <chrono>
#include <utility>
#include <wx/app.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/evtloop.h>
#include <wx/textctrl.h>

#include "app/gui/AboutDialog.h"
#include "app/gui/MessageBox.h"
#include "app/gui/OptionsDialog.h"
#include "app/gui/Pictures.h"
#include "app/gui/ProgramIcon.h"
#include "app/gui/ResultListMenu.h"
#include "app/gui/TextConversion.h"
#include "app/gui/Theme.h"
#include "platform/FileSystem.h"
#include "platform/Toolkit.h"

namespace marlo::gui {

/// While one of these lives, the user is asked something over the window, which has to be there
/// for the answer: it is closed afterwards when the user, or the system, wants that meanwhile.
class Form1Window::UserIsAsked {
  public:
    explicit UserIsAsked(Form1Window& window) : window_(window) { ++window_.openQuestions_; }
    UserIsAsked(const UserIsAsked&) = delete;
    UserIsAsked& operator=(const UserIsAsked&) = delete;
    UserIsAsked(UserIsAsked&&) = delete;
    UserIsAsked& operator=(UserIsAsked&&) = delete;
    ~UserIsAsked() {
        if (--window_.openQuestions_ == 0 && window_.isCloseDue_)
            wxWakeUpIdle();  // when what the answer leads to is done
    }

  private:
    Form1Window& window_;
};

Form1Window::Form1Window(const Application& application, const std::string& helpSite)
    : wxFrame(nullptr, wxID_ANY, Shown(std::string(kApplicationTitle)), wxDefaultPosition,
              wxDefaultSize, wxDEFAULT_FRAME_STYLE, "Form1"),
      application_(application),
      timer1_(this, wxWindow::NewControlId()),
      folders_(this),
      csvIcons_{IconBox(*this), IconBox(*this)},
      form_(application, *this, helpSite),
      controls_(*this, application.folder, form_.lstSongs(), csvIcons_) {
    SetClientSize(controls_.Scale().Pixels(kDefaultClientSize.width, kDefaultClientSize.height));
    CentreOnScreen();
    form_.Form_Load();
    BindEvents();
    controls_.txtSearchText->SetFocus();
}

bool Form1Window::Show(bool show) {
    const bool hasChanged = wxFrame::Show(show);
    if (show) {
        // While the window manager finds a place for the window.
        platform::FlushDisplay();
        controls_.LoadPictures();
    }
    return hasChanged;
}

void Form1Window::Warn(const std::string& text) {
    Later([this, text] { form_.ShowMessage({.text = text, .icon = MessageIcon::Exclamation}); });
}

/// The window is on a screen of another resolution.
void Form1Window::FollowScreen() {
    controls_.FollowScreen();
    form_.Form_ScaleChange();
    for (IconBox& box : csvIcons_)
        box.Redraw();
    Refresh();
}

void Form1Window::BindEvents() {
    BindWindowEvents();
    BindTimer();
    BindIdle();
    BindMouseMoves();
    BindCommands();
    BindListEvents();
}

void Form1Window::BindWindowEvents() {
    Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
        event.Skip();  // then the window gets its new size
        FollowScreen();
    });
    controls_.background->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        form_.Form_Resize();
    });
    Bind(wxEVT_ICONIZE, [this](wxIconizeEvent& event) {
        event.Skip();
        form_.Form_Resize();  // which leaves a minimised window alone
    });
    Bind(wxEVT_CLOSE_WINDOW, &Form1Window::OnClose, this);
    Bind(wxEVT_CHAR_HOOK, &Form1Window::OnKey, this);
    Bind(wxEVT_CHILD_FOCUS, [this](wxChildFocusEvent& event) {
        event.Skip();
        lastFocused_ = event.GetWindow();
    });
    Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
        event.Skip();
        RenewTheme();
        controls_.ApplyTheme();
    });
}

void Form1Window::BindTimer() {
    Bind(
        wxEVT_TIMER, [this](wxTimerEvent&) { form_.Timer1_Timer(); }, timer1_.GetId());
}

void Form1Window::BindIdle() {
    controls_.background->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
        event.Skip();
        if (!std::exchange(isPainted_, true))
            wxWakeUpIdle();  // when all that is on it is painted, too
    });
    Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        OnIdle();
    });
}

/// Closes the window if that is due, or runs the actions of `Later` once the window is painted. A
/// window that is being destroyed gets no idle events.
void Form1Window::OnIdle() {
    if (isCloseDue_ && openQuestions_ == 0) {
        wxFrame::Close();
    } else if (isPainted_ || IsIconized()) {
        for (const auto& action : std::exchange(later_, {}))
            action();
    }
}

void Form1Window::BindMouseMoves() {
    const auto onMotion = [](wxWindow* window, auto handler) {
        window->Bind(wxEVT_MOTION, [handler](wxMouseEvent& event) {
            event.Skip();
            handler();
        });
    };
    onMotion(controls_.background, [this] { form_.Form_MouseMove(); });
    onMotion(controls_.imgMenu, [this] { form_.imgMenu_MouseMove(); });
    onMotion(controls_.imgRightPane, [this] { form_.imgRightPane_MouseMove(); });
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        controls_.cmdbuttons.at(i)->onMouseMove = [this, i] { form_.cmdbuttons_MouseMove(i); };
}

void Form1Window::BindCommands() {
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        controls_.cmdbuttons.at(i)->onClick = [this, i] {
            form_.cmdButtons_Click(static_cast<int>(i));
        };
    controls_.btnDonate->onClick = [this] { form_.btnDonate_Click(); };
    controls_.cmdFind->onClick = [this] { form_.cmdFind_Click(); };
    controls_.txtSearchText->Bind(wxEVT_TEXT_ENTER,
                                  [this](wxCommandEvent&) { form_.txtSearchText_KeyPress('\r'); });
}

void Form1Window::BindListEvents() {
    controls_.lstSongs->Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) {
        if (event.GetColumn() < 0)
            return;
        SelectActiveRow();
        form_.lstSongs_ColumnClick(event.GetColumn() + 1);
    });
    controls_.lstSongs->OnDoubleClick([this] { OpenActiveRow(); });
    controls_.lstSongs->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent&) {
        // A list without a current row asks twice, and selects the row in between.
        if (!std::exchange(isMenuDue_, true))
            CallAfter(&Form1Window::ShowListMenu);
    });
}

void Form1Window::ShowListMenu() {
    isMenuDue_ = false;
    SelectActiveRow();
    const UserIsAsked asked(*this);
    ShowResultListMenu(*controls_.lstSongs, form_);
}

/// Tells the model which row is selected, when it needs to know: events come for each of many rows,
/// and not for a range of them.
void Form1Window::SelectActiveRow() {
    const std::size_t active = controls_.lstSongs->ActivePosition();
    if (active == 0 || active > form_.lstSongs().RowCount())
        form_.lstSongs().SelectNone();
    else
        form_.lstSongs().Select(active);
}

void Form1Window::OpenActiveRow() {
    SelectActiveRow();
    form_.lstSongs_DblClick();
}

void Form1Window::OnClose(wxCloseEvent& event) {
    const bool isRunning = !form_.Form_QueryUnload();  // and closes the window when it has ended
    isCloseDue_ = !isRunning && openQuestions_ > 0;
    if (isRunning || isCloseDue_) {
        if (event.CanVeto())
            event.Veto();
        else
            form_.Form_Unload();  // the desktop is shutting down, and may not wait
        return;
    }
    // It is there until all events are handled. A command would outlive it.
    Disable();
    form_.Form_Unload();
    KeepCopiedRows();
    Destroy();
}

void Form1Window::OnKey(wxKeyEvent& event) {
    if (!IsEnabled())
        return;
    const wxWindow* const focused = FindFocus();
    const bool isInList = focused != nullptr && (focused == controls_.lstSongs ||
                                                 focused->GetParent() == controls_.lstSongs);
    if (event.GetKeyCode() == WXK_ESCAPE && controls_.cmdbuttons.at(kCancelItem)->IsEnabled())
        form_.cmdButtons_Click(static_cast<int>(kCancelItem));
    else if (isInList && event.GetModifiers() == wxMOD_CONTROL && event.GetKeyCode() == 'C')
        CopySelectedRows(*controls_.lstSongs, form_.lstSongs());
    else if (isInList &&
             (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER))
        OpenActiveRow();
    else
        event.Skip();
}

void Form1Window::Show(const FormState& state) {
    FollowFocus(state);
    for (std::size_t i = 0; i < kCommandItemCount; ++i) {
        const FormState::Item& item = state.cmdbuttons.at(i);
        CommandItemControl& control = *controls_.cmdbuttons.at(i);
        control.SetCaption(Shown(item.caption));
        control.Enable(item.isEnabled);
        control.SetHovered(item.isHovered);
    }
    controls_.cmdFind->Enable(state.isFindEnabled);
    controls_.btnDonate->Enable(state.isDonateEnabled);
    controls_.btnDonate->Show(state.isDonateVisible);
}

void Form1Window::MoveFocusTo(wxWindow* control) {
    control->SetFocus();
    lastFocused_ = control;  // no event tells it while another window has the keyboard
}

/// A command that locks itself for its run hands the keyboard to Cancel, and gets it back.
void Form1Window::FollowFocus(const FormState& state) {
    CommandItemControl* const cancel = controls_.cmdbuttons.at(kCancelItem);
    const bool isRunning = state.cmdbuttons.at(kCancelItem).isEnabled;
    if (isRunning == cancel->IsEnabled())
        return;
    if (isRunning) {
        const auto* const found =
            std::find(controls_.cmdbuttons.begin(), controls_.cmdbuttons.end(), lastFocused_);
        if (found == controls_.cmdbuttons.end())
            return;
        focusAfterRun_ = *found;
        cancel->Enable();
        MoveFocusTo(cancel);
    } else if (focusAfterRun_ != nullptr && lastFocused_ == cancel) {
        focusAfterRun_->Enable();
        MoveFocusTo(std::exchange(focusAfterRun_, nullptr));
    }
}

void Form1Window::ShowText1(const std::string& text) {
    if (text.empty())
        paintedPhase_.clear();  // the same phase may come again
    controls_.Text1->SetText(text);
}

void Form1Window::ShowText2(const std::string& text) {
    controls_.Text2->SetText(text);
}

void Form1Window::ShowList() {
    controls_.lstSongs->ShowRows(form_.SortedColumn());
}

void Form1Window::FillSearchTypes(const std::vector<std::string>& types) {
    controls_.cboSearchType->Clear();
    for (const std::string& type : types)
        controls_.cboSearchType->Append(Shown(type));
}

int Form1Window::SearchType() const {
    return controls_.cboSearchType->GetSelection();
}

void Form1Window::SetSearchType(int index) {
    controls_.cboSearchType->SetSelection(index);
}

bool Form1Window::IgnoreCase() const {
    return controls_.chkIgnoreCase->GetValue();
}

void Form1Window::SetIgnoreCase(bool isChecked) {
    controls_.chkIgnoreCase->SetValue(isChecked);
}

std::string Form1Window::SearchText() const {
    return FieldOf(controls_.txtSearchText->GetValue());
}

void Form1Window::SetProgramIcon(const std::string& path) {
    Later([this, path] {
        std::error_code error;
        ShowProgramIcon(*this, platform::IsFile(path, error)
                                   ? path
                                   : PicturePath(application_.folder, "plug_48x48.ico"));
    });
}

void Form1Window::Later(const std::function<void()>& action) {
    later_.push_back(action);
    wxWakeUpIdle();
}

void Form1Window::Repaint() {
    // A new phase may begin with something that blocks. A percentage is no phase.
    std::string phase = controls_.Text1->Text();
    std::erase_if(phase, [](char c) { return c >= '0' && c <= '9'; });
    const bool isNewPhase = !phase.empty() && phase != paintedPhase_;
    if (!repaintPace_.IsDue(std::chrono::steady_clock::now()) && !isNewPhase)
        return;
    paintedPhase_ = std::move(phase);
    Update();
}

void Form1Window::LetEventsRun() {
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    if (loop != nullptr && !loop->IsYielding() &&
        eventPace_.IsDue(std::chrono::steady_clock::now()))
        loop->YieldFor(wxEVT_CATEGORY_ALL);
}

void Form1Window::SetHourglass(bool isShown) {
    // A search that failed leaves it; the toolkit counts.
    if (isShown == wxIsBusy())
        return;
    if (isShown)
        wxBeginBusyCursor();
    else
        wxEndBusyCursor();
}

void Form1Window::AutoSizeListViewColumns() {
    controls_.lstSongs->AutoSizeColumns();
}

MessageAnswer Form1Window::ShowMessage(const Message& message) {
    const UserIsAsked asked(*this);
    return ShowMessageBox(this, message);
}

void Form1Window::ShowOptions() {
    const UserIsAsked asked(*this);
    OptionsDialog(this, application_, csvIcons_[0], csvIcons_[1]).ShowModal();
}

void Form1Window::ShowAbout() {
    const UserIsAsked asked(*this);
    AboutDialog(this, PicturePath(application_.folder, "about.gif")).ShowModal();
}

void Form1Window::Close() {
    wxFrame::Close();
}

}  // namespace marlo::gui
