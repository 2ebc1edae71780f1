#pragma once

#include <array>
#include <string>
#include <wx/frame.h>
#include <wx/timer.h>

#include "app/gui/Form1Controls.h"
#include "app/gui/IconBox.h"
#include "app/gui/Pickers.h"
#include "ui/Form1.h"
#include "ui/Pace.h"

namespace marlo::gui {

/// The main window's controls. They forward what the user does to `Form1`, and show what it says.
class Form1Window final : public wxFrame, private FormView {
  public:
    /// @param helpSite see `Form1`.
    Form1Window(const Application& application, const std::string& helpSite);
    Form1Window(const Form1Window&) = delete;
    Form1Window& operator=(const Form1Window&) = delete;
    Form1Window(Form1Window&&) = delete;
    Form1Window& operator=(Form1Window&&) = delete;
    ~Form1Window() override { DestroyChildren(); }  // which tell the logic what happens to them

    bool Show(bool show = true) override;

    /// Shows the user a message over the window once that is there.
    void Warn(const std::string& text);

    Form1& Logic() { return form_; }

  private:
    void Show(const FormState& state) override;
    void ShowText1(const std::string& text) override;
    void ShowText2(const std::string& text) override;
    void ShowList() override;
    NaturalSizes Sizes() const override { return controls_.Sizes(); }
    TwipSize ClientArea() const override { return controls_.ClientArea(); }
    bool IsMinimised() const override { return IsIconized(); }
    void Place(const FormLayout& layout) override { controls_.Place(layout); }
    void FillSearchTypes(const std::vector<std::string>& types) override;
    int SearchType() const override;
    void SetSearchType(int index) override;
    bool IgnoreCase() const override;
    void SetIgnoreCase(bool isChecked) override;
    std::string SearchText() const override;
    void StartTimer(int interval) override { timer1_.Start(interval); }
    void StopTimer() override { timer1_.Stop(); }
    void Later(const std::function<void()>& action) override;
    void SetProgramIcon(const std::string& path) override;
    PictureBox& CsvIcon(std::size_t index) override { return csvIcons_.at(index); }
    void Repaint() override;
    void LetEventsRun() override;
    void SetHourglass(bool isShown) override;
    void AutoSizeListViewColumns() override;
    LedgerView& Ledger() override { return *controls_.lstSongs; }
    MessageAnswer ShowMessage(const Message& message) override;
    FolderChooser& Folders() override { return folders_; }
    void ShowOptions() override;
    void ShowAbout() override;
    void Close() override;
    using wxFrame::Close;

    class UserIsAsked;

    void FollowScreen();
    void BindEvents();
    void BindWindowEvents();
    void BindTimer();
    void BindIdle();
    void BindMouseMoves();
    void BindCommands();
    void BindListEvents();
    void ShowListMenu();
    void SelectActiveRow();
    void OpenActiveRow();
    void OnIdle();
    void OnClose(wxCloseEvent& event);
    void OnKey(wxKeyEvent& event);
    void MoveFocusTo(wxWindow* control);
    void FollowFocus(const FormState& state);

    const Application& application_;
    wxTimer timer1_;
    std::vector<std::function<void()>> later_;
    bool isPainted_ = false;
    FolderPicker folders_;
    std::array<IconBox, 2> csvIcons_;
    Pace repaintPace_;
    Pace eventPace_;
    std::string paintedPhase_;
    /// Also while another window, such as a question that has just been answered, has the focus.
    wxWindow* lastFocused_ = nullptr;
    wxWindow* focusAfterRun_ = nullptr;
    bool isMenuDue_ = false;
    int openQuestions_ = 0;    ///< menus and dialogs over the window that wait for the user
    bool isCloseDue_ = false;  ///< once they are answered

    Form1 form_;
    Form1Controls controls_;
};

}  // namespace marlo::gui
