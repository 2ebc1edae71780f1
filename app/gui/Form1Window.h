#pragma once

#include <array>
#include <string>
#include <wx/frame.h>
#include <wx/timer.h>

#include "app/gui/IconBox.h"
#include "app/gui/LedgerList.h"
#include "app/gui/Pickers.h"
#include "app/gui/PictureControl.h"
#include "app/gui/StatusBox.h"
#include "app/gui/TwipScale.h"
#include "ui/Form1.h"
#include "ui/Pace.h"

class wxCheckBox;
class wxChoice;
class wxStaticBitmap;
class wxTextCtrl;

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

    Form1& Logic() { return form_; }

  private:
    void Show(const FormState& state) override;
    void ShowText1(const std::string& text) override;
    void ShowText2(const std::string& text) override;
    void ShowList() override;
    NaturalSizes Sizes() const override;
    TwipSize ClientArea() const override;
    bool IsMinimised() const override { return IsIconized(); }
    void Place(const FormLayout& layout) override;
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
    void SetListViewLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                           std::int32_t sizingKind) override;
    void RemoveListViewLedger() override;
    MessageAnswer ShowMessage(const Message& message) override;
    FolderChooser& Folders() override { return folders_; }
    void ShowOptions() override;
    void ShowAbout() override;
    void Close() override;
    using wxFrame::Close;

    void CreateControls();
    void CreateCommandItems();
    void CreateSearchControls();
    wxFont HeadingFont() const;
    wxFont ItemFont() const;
    void LoadMark();
    void ApplyTheme();
    void FollowScreen();
    void BindEvents();
    void BindListEvents();
    void ShowListMenu();
    void SelectActiveRow();
    void OpenActiveRow();
    void OnClose(wxCloseEvent& event);
    void OnKey(wxKeyEvent& event);
    void MoveFocusTo(wxWindow* control);
    void FollowFocus(const FormState& state);
    void PlaceInside(wxWindow* control, const marlo::Place& place, const wxPoint& origin) const;
    std::string Picture(const std::string& name) const;

    const Application& application_;
    TwipScale scale_;
    wxTimer timer1_;
    wxTimer laterTimer_;
    std::vector<std::function<void()>> later_;
    FolderPicker folders_;
    std::array<IconBox, 2> csvIcons_;
    Pace repaintPace_;
    Pace eventPace_;
    std::string paintedPhase_;
    /// Also while another window, such as a question that has just been answered, has the focus.
    wxWindow* lastFocused_ = nullptr;
    wxWindow* focusAfterRun_ = nullptr;
    bool isMenuDue_ = false;

    wxPanel* background_ = nullptr;
    wxPanel* boxMenu_ = nullptr;
    PicturePanel* imgMenu_ = nullptr;
    PictureLabel* label5_ = nullptr;
    wxWindow* image1_ = nullptr;
    wxBitmap mark_;
    std::array<CommandItemControl*, kCommandItemCount> cmdbuttons_{};
    std::array<wxWindow*, 2> csvIconViews_{};
    PictureButton* btnDonate_ = nullptr;
    wxPanel* boxRightPane_ = nullptr;
    PicturePanel* imgRightPane_ = nullptr;
    wxChoice* cboSearchType_ = nullptr;
    PictureLabel* label3_ = nullptr;
    wxCheckBox* chkIgnoreCase_ = nullptr;
    wxTextCtrl* txtSearchText_ = nullptr;
    PictureButton* cmdFind_ = nullptr;
    LedgerList* lstSongs_ = nullptr;
    StatusBox* text1_ = nullptr;
    StatusBox* text2_ = nullptr;

    Form1 form_;
};

}  // namespace marlo::gui
