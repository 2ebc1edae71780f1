#include "app/gui/Form1Window.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <string_view>
#include <utility>
#include <wx/app.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/dcbuffer.h>
#include <wx/evtloop.h>
#include <wx/settings.h>
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
#include "reports/Ledger.h"

namespace marlo::gui {

namespace {

// The widths that the panes' pictures were drawn for.
constexpr int kMenuPaneDrawn = 176;
constexpr int kRightPaneDrawn = 800;

constexpr int kSearchBarHeight = 120;  // design pixels

// For a control that the layout places. Without a size of its own the toolkit would work out the
// best one while the control is still empty.
const wxSize kPlacedLater(1, 1);

constexpr double kSmallestItemFont = 0.8;  // of the desktop's usual one
constexpr int kLater = 50;                 // milliseconds

/// What is only looked at.
class PictureView final : public wxWindow {
  public:
    bool AcceptsFocus() const override { return false; }
};

/// A window that shows a picture on a panel's picture.
template <class PictureOf>
wxWindow* CreatePictureView(PicturePanel* parent, const wxString& name, PictureOf pictureOf) {
    auto* const view = new PictureView;
    view->SetBackgroundStyle(wxBG_STYLE_PAINT);
    view->Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE, name);
    view->Bind(wxEVT_PAINT, [=](wxPaintEvent&) {
        wxAutoBufferedPaintDC dc(view);
        parent->PaintBehind(dc, view->GetPosition());
        const wxBitmap picture = pictureOf();
        if (picture.IsOk())
            dc.DrawBitmap(picture, 0, 0, true);
    });
    return view;
}

/// Paints a container as a frame around its picture.
wxPanel* CreatePane(wxWindow* parent, const wxString& name) {
    auto* const pane = new wxPanel;
    pane->SetBackgroundStyle(wxBG_STYLE_PAINT);
    pane->Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxTAB_TRAVERSAL | wxFULL_REPAINT_ON_RESIZE, name);
    pane->Bind(wxEVT_PAINT, [pane](wxPaintEvent&) {
        wxAutoBufferedPaintDC dc(pane);
        dc.SetBackground(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
        dc.Clear();
        const Theme& theme = CurrentTheme();
        dc.SetPen(theme.paneFrame);
        dc.SetBrush(theme.itemBackground);
        dc.DrawRoundedRectangle(pane->GetClientRect(), DesignPixels(*pane, 4));
    });
    return pane;
}

/// The caption of a pane that is the widest, too.
const char* LongestCaption(Pane pane) {
    const char* longest = "";
    for (const CommandItem& item : kCommandItems)
        if (item.pane == pane &&
            std::string_view(item.caption).size() > std::string_view(longest).size())
            longest = item.caption;
    return longest;
}

}  // namespace

Form1Window::Form1Window(const Application& application, const std::string& helpSite)
    : wxFrame(nullptr, wxID_ANY, Shown(std::string(kApplicationTitle)), wxDefaultPosition,
              wxDefaultSize, wxDEFAULT_FRAME_STYLE, "Form1"),
      application_(application),
      scale_(*this),
      timer1_(this, wxWindow::NewControlId()),
      laterTimer_(this, wxWindow::NewControlId()),
      folders_(this),
      csvIcons_{IconBox(*this), IconBox(*this)},
      form_(application, *this, helpSite) {
    CreateControls();
    ApplyTheme();
    SetClientSize(scale_.Pixels(kDefaultClientSize.width, kDefaultClientSize.height));
    CentreOnScreen();
    form_.Form_Load();
    BindEvents();
    txtSearchText_->SetFocus();
}

bool Form1Window::Show(bool show) {
    const bool hasChanged = wxFrame::Show(show);
    if (show) {
        // While the window manager finds a place for the window.
        platform::FlushDisplay();
        imgMenu_->LoadPictures();
        imgRightPane_->LoadPictures();
        btnDonate_->ShownPicture();
        cmdFind_->ShownPicture();
        LoadMark();
    }
    return hasChanged;
}

void Form1Window::LoadMark() {
    mark_ = LoadPicture(*image1_, Picture("menu_mark.svg"), image1_->GetClientSize());
}

std::string Form1Window::Picture(const std::string& name) const {
    return PicturePath(application_.folder, name);
}

void Form1Window::CreateControls() {
    background_ = new wxPanel(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL);
    // Asking the program whether it erases the background takes longer than anything else about it.
    SetBackgroundStyle(wxBG_STYLE_SYSTEM);
    background_->SetBackgroundStyle(wxBG_STYLE_SYSTEM);
    boxMenu_ = CreatePane(background_, "boxMenu");
    imgMenu_ = new PicturePanel(boxMenu_, "imgMenu", kMenuPaneDrawn);
    label5_ = new PictureLabel(imgMenu_, "Label5", "       Menu", HeadingFont());
    // Over the blanks of the label.
    image1_ = CreatePictureView(imgMenu_, "Image1", [this] { return mark_; });
    boxRightPane_ = CreatePane(background_, "boxRightPane");
    imgRightPane_ = new PicturePanel(boxRightPane_, "imgRightPane", kRightPaneDrawn);
    CreateCommandItems();
    btnDonate_ = new PictureButton(imgMenu_, "btnDonate", "Donate", Picture("donate.gif"),
                                   Picture("donate_b&w.gif"));
    CreateSearchControls();
    text1_ = new StatusBox(background_, "Text1");
    text2_ = new StatusBox(background_, "Text2");
}

void Form1Window::CreateCommandItems() {
    // From the top, which is the order that Tab goes by.
    std::array<std::size_t, kCommandItemCount> order{};
    for (std::size_t i = 0; i < order.size(); ++i)
        order.at(i) = i;
    std::sort(order.begin(), order.end(), [](std::size_t a, std::size_t b) {
        return kCommandItems.at(a).top < kCommandItems.at(b).top;
    });
    const wxFont font = ItemFont();
    const auto sizeIn = [&](Pane pane) { return imgMenu_->TextSize(LongestCaption(pane), font); };
    const std::map<Pane, wxSize> sizes{{Pane::Menu, sizeIn(Pane::Menu)},
                                       {Pane::Right, sizeIn(Pane::Right)}};
    std::size_t icon = 0;
    for (const std::size_t i : order) {
        const CommandItem& item = kCommandItems.at(i);
        PicturePanel* const panel = item.pane == Pane::Menu ? imgMenu_ : imgRightPane_;
        auto* const control = new CommandItemControl(panel, i, item.caption, font,
                                                     sizes.at(item.pane), item.hasWindowBackground);
        control->onClick = [this, i] { form_.cmdButtons_Click(static_cast<int>(i)); };
        control->onMouseMove = [this, i] { form_.cmdbuttons_MouseMove(i); };
        cmdbuttons_.at(i) = control;
        if (item.command != Command::OpenResults)
            continue;
        IconBox& box = csvIcons_.at(icon);
        wxWindow* const view = CreatePictureView(panel, wxString::Format("Picture%zu", icon + 2),
                                                 [&box] { return box.Picture(); });
        view->Hide();
        box.onChange = [view, &box] {
            view->Show(box.Picture().IsOk());
            view->Refresh();
        };
        csvIconViews_.at(icon++) = view;
    }
}

void Form1Window::CreateSearchControls() {
    cboSearchType_ = new wxChoice(imgRightPane_, wxID_ANY, wxDefaultPosition, kPlacedLater, 0,
                                  nullptr, 0, wxDefaultValidator, "cboSearchType");
    platform::SetAccessibleName(cboSearchType_->GetHandle(), "Kind of match");
    // Some systems tell what a list has besides its text only when there is room for that.
    cboSearchType_->SetSize(scale_.Pixels(kCommandItemWidth, kCommandItemHeight));
    label3_ = new PictureLabel(imgRightPane_, "Label3", "Ignore Case:", GetFont());
    chkIgnoreCase_ = new wxCheckBox(imgRightPane_, wxID_ANY, "", wxDefaultPosition, kPlacedLater, 0,
                                    wxDefaultValidator, "chkIgnoreCase");
    platform::SetAccessibleName(chkIgnoreCase_->GetHandle(), "Ignore Case:");
    txtSearchText_ = new wxTextCtrl(imgRightPane_, wxID_ANY, "", wxDefaultPosition, kPlacedLater,
                                    wxTE_PROCESS_ENTER, wxDefaultValidator, "txtSearchText");
    platform::SetAccessibleName(txtSearchText_->GetHandle(), "Text to search for");
    cmdFind_ = new PictureButton(imgRightPane_, "cmdFind", "Search", Picture("search.gif"),
                                 Picture("search_b&w.gif"));
    lstSongs_ =
        new LedgerList(imgRightPane_, "lstSongs", form_.lstSongs(), kPlacedLater, wxBORDER_NONE);
    platform::SetAccessibleName(lstSongs_->GetHandle(), "Results");
}

wxFont Form1Window::HeadingFont() const {
    return GetFont().Bold().Scaled(1.15F);
}

/// The items' places were drawn for small texts. They are as large as fits in there, but not much
/// smaller than the user's other texts; where that is too large, the layout makes room.
wxFont Form1Window::ItemFont() const {
    const wxFont usual = GetFont();
    const int widest = imgMenu_->TextSize(LongestCaption(Pane::Menu), usual).x;
    const double fitting = static_cast<double>(scale_.Pixels(kCommandItemWidth)) / widest;
    return usual.Scaled(static_cast<float>(std::clamp(fitting, kSmallestItemFont, 1.0)));
}

void Form1Window::ApplyTheme() {
    const Theme& theme = CurrentTheme();
    const auto drawing = [&](const char* name) {
        return Picture(name + std::string(theme.isDark ? "_dark.svg" : ".svg"));
    };
    imgMenu_->SetPictures({theme.menuPane, theme.menuPane, 0},
                          {{drawing("menu_cable"), wxRect(8, 50, 14, 342)},
                           {drawing("menu_top"), wxRect(0, 0, 176, 58)},
                           {drawing("menu_foot"), wxRect(0, -28, 176, 28), wxBOTTOM}});
    imgRightPane_->SetPictures({theme.searchBar, theme.rightPane, kSearchBarHeight},
                               {{drawing("waves"), wxRect(200, 0, 600, 100)}});
    label5_->SetColour(theme.heading);
    label3_->SetColour(theme.label);
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        cmdbuttons_.at(i)->SetColours(
            kCommandItems.at(i).pane == Pane::Menu ? theme.item : theme.itemOnSearchBar,
            theme.disabledItem, theme.itemBackground);
    txtSearchText_->SetBackgroundColour(ColourOf(kLedgerBar2));
    txtSearchText_->SetForegroundColour(kTextOnLight);
}

/// The window is on a screen of another resolution.
void Form1Window::FollowScreen() {
    scale_ = TwipScale(*this);
    const wxFont font = ItemFont();
    for (CommandItemControl* const item : cmdbuttons_)
        item->SetCaptionFont(font);
    label5_->SetTextFont(HeadingFont());
    label3_->SetTextFont(GetFont());
    form_.Form_ScaleChange();
    LoadMark();
    for (IconBox& box : csvIcons_)
        box.Redraw();
    Refresh();
}

void Form1Window::BindEvents() {
    Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
        event.Skip();  // then the window gets its new size
        FollowScreen();
    });
    background_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        form_.Form_Resize();
    });
    Bind(
        wxEVT_TIMER, [this](wxTimerEvent&) { form_.Timer1_Timer(); }, timer1_.GetId());
    Bind(
        wxEVT_TIMER,
        [this](wxTimerEvent&) {
            for (const auto& action : std::exchange(later_, {}))
                action();
        },
        laterTimer_.GetId());
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
        ApplyTheme();
    });
    const auto onMotion = [](wxWindow* window, auto handler) {
        window->Bind(wxEVT_MOTION, [handler](wxMouseEvent& event) {
            event.Skip();
            handler();
        });
    };
    onMotion(background_, [this] { form_.Form_MouseMove(); });
    onMotion(imgMenu_, [this] { form_.imgMenu_MouseMove(); });
    onMotion(imgRightPane_, [this] { form_.imgRightPane_MouseMove(); });
    btnDonate_->onClick = [this] { form_.btnDonate_Click(); };
    cmdFind_->onClick = [this] { form_.cmdFind_Click(); };
    txtSearchText_->Bind(wxEVT_TEXT_ENTER,
                         [this](wxCommandEvent&) { form_.txtSearchText_KeyPress('\r'); });
    BindListEvents();
}

void Form1Window::BindListEvents() {
    lstSongs_->Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) {
        if (event.GetColumn() < 0)
            return;
        SelectActiveRow();
        form_.lstSongs_ColumnClick(event.GetColumn() + 1);
    });
    lstSongs_->OnDoubleClick([this] { OpenActiveRow(); });
    lstSongs_->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent&) {
        // A list without a current row asks twice, and selects the row in between.
        if (!std::exchange(isMenuDue_, true))
            CallAfter(&Form1Window::ShowListMenu);
    });
}

void Form1Window::ShowListMenu() {
    isMenuDue_ = false;
    SelectActiveRow();
    ShowResultListMenu(*lstSongs_, form_);
}

/// Tells the model which row is selected, when it needs to know: events come for each of many rows,
/// and not for a range of them.
void Form1Window::SelectActiveRow() {
    const std::size_t active = lstSongs_->ActivePosition();
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
    if (!form_.Form_QueryUnload()) {
        if (event.CanVeto())
            event.Veto();
        else
            form_.Form_Unload();  // the desktop is shutting down, and may not wait for the run
        return;
    }
    form_.Form_Unload();
    KeepCopiedRows();
    Destroy();
}

void Form1Window::OnKey(wxKeyEvent& event) {
    const wxWindow* const focused = FindFocus();
    const bool isInList =
        focused != nullptr && (focused == lstSongs_ || focused->GetParent() == lstSongs_);
    if (event.GetKeyCode() == WXK_ESCAPE && cmdbuttons_.at(kCancelItem)->IsEnabled())
        form_.cmdButtons_Click(static_cast<int>(kCancelItem));
    else if (isInList && event.GetModifiers() == wxMOD_CONTROL && event.GetKeyCode() == 'C')
        CopySelectedRows(*lstSongs_, form_.lstSongs());
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
        CommandItemControl& control = *cmdbuttons_.at(i);
        control.SetCaption(Shown(item.caption));
        control.Enable(item.isEnabled);
        control.SetHovered(item.isHovered);
    }
    cmdFind_->Enable(state.isFindEnabled);
    btnDonate_->Enable(state.isDonateEnabled);
    btnDonate_->Show(state.isDonateVisible);
}

void Form1Window::MoveFocusTo(wxWindow* control) {
    control->SetFocus();
    lastFocused_ = control;  // no event tells it while another window has the keyboard
}

/// A command that locks itself for its run hands the keyboard to Cancel, and gets it back.
void Form1Window::FollowFocus(const FormState& state) {
    CommandItemControl* const cancel = cmdbuttons_.at(kCancelItem);
    const bool isRunning = state.cmdbuttons.at(kCancelItem).isEnabled;
    if (isRunning == cancel->IsEnabled())
        return;
    if (isRunning) {
        const auto* const found = std::find(cmdbuttons_.begin(), cmdbuttons_.end(), lastFocused_);
        if (found == cmdbuttons_.end())
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
    text1_->SetText(text);
}

void Form1Window::ShowText2(const std::string& text) {
    text2_->SetText(text);
}

void Form1Window::ShowList() {
    lstSongs_->ShowRows(form_.SortedColumn());
}

NaturalSizes Form1Window::Sizes() const {
    const auto twips = [this](const wxSize& size) {
        return TwipSize{scale_.Twips(size.x), scale_.Twips(size.y)};
    };
    NaturalSizes sizes;
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        sizes.cmdbuttons.at(i) = twips(cmdbuttons_.at(i)->NaturalSize());
    sizes.Label3 = twips(label3_->TextSize());
    sizes.Label5 = twips(label5_->TextSize());
    sizes.cboSearchType = twips(cboSearchType_->GetBestSize());
    sizes.chkIgnoreCase = twips(chkIgnoreCase_->GetBestSize());
    sizes.txtSearchText = twips(txtSearchText_->GetBestSize());
    sizes.statusBox = twips({0, text1_->NaturalHeight()});
    return sizes;
}

TwipSize Form1Window::ClientArea() const {
    const wxSize size = background_->GetClientSize();
    return {scale_.Twips(size.x), scale_.Twips(size.y)};
}

void Form1Window::PlaceInside(wxWindow* control, const marlo::Place& place,
                              const wxPoint& origin) const {
    const int left = scale_.Pixels(place.left);
    const int top = scale_.Pixels(place.top);
    control->SetSize(left - origin.x, top - origin.y, scale_.Pixels(place.Right()) - left,
                     scale_.Pixels(place.Bottom()) - top);
}

void Form1Window::Place(const FormLayout& layout) {
    const auto originOf = [this](const marlo::Place& container) {
        return wxPoint(scale_.Pixels(container.left), scale_.Pixels(container.top));
    };
    const wxPoint none;
    const wxPoint menu = originOf(layout.imgMenu);
    const wxPoint right = originOf(layout.imgRightPane);
    PlaceInside(boxMenu_, layout.boxMenu, none);
    PlaceInside(imgMenu_, layout.imgMenu, originOf(layout.boxMenu));
    PlaceInside(label5_, layout.Label5, menu);
    PlaceInside(image1_, layout.Image1, menu);
    PlaceInside(btnDonate_, layout.btnDonate, menu);
    for (std::size_t i = 0; i < csvIconViews_.size(); ++i)
        PlaceInside(csvIconViews_.at(i), layout.csvIcons.at(i), menu);
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        PlaceInside(cmdbuttons_.at(i), layout.cmdbuttons.at(i),
                    kCommandItems.at(i).pane == Pane::Menu ? menu : right);
    PlaceInside(boxRightPane_, layout.boxRightPane, none);
    PlaceInside(imgRightPane_, layout.imgRightPane, originOf(layout.boxRightPane));
    PlaceInside(cboSearchType_, layout.cboSearchType, right);
    PlaceInside(label3_, layout.Label3, right);
    PlaceInside(chkIgnoreCase_, layout.chkIgnoreCase, right);
    PlaceInside(txtSearchText_, layout.txtSearchText, right);
    PlaceInside(cmdFind_, layout.cmdFind, right);
    PlaceInside(lstSongs_, layout.lstSongs, right);
    PlaceInside(text1_, layout.Text1, none);
    PlaceInside(text2_, layout.Text2, none);
}

void Form1Window::FillSearchTypes(const std::vector<std::string>& types) {
    cboSearchType_->Clear();
    for (const std::string& type : types)
        cboSearchType_->Append(Shown(type));
}

int Form1Window::SearchType() const {
    return cboSearchType_->GetSelection();
}

void Form1Window::SetSearchType(int index) {
    cboSearchType_->SetSelection(index);
}

bool Form1Window::IgnoreCase() const {
    return chkIgnoreCase_->GetValue();
}

void Form1Window::SetIgnoreCase(bool isChecked) {
    chkIgnoreCase_->SetValue(isChecked);
}

std::string Form1Window::SearchText() const {
    return FieldOf(txtSearchText_->GetValue());
}

void Form1Window::SetProgramIcon(const std::string& path) {
    Later([this, path] {
        std::error_code error;
        ShowProgramIcon(*this, platform::IsFile(path, error) ? path : Picture("plug_48x48.ico"));
    });
}

void Form1Window::Later(const std::function<void()>& action) {
    later_.push_back(action);
    laterTimer_.StartOnce(kLater);
}

void Form1Window::Repaint() {
    // A new phase may begin with something that blocks. A percentage is no phase.
    std::string phase = text1_->Text();
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
    lstSongs_->AutoSizeColumns();
}

void Form1Window::SetListViewLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                                    std::int32_t sizingKind) {
    lstSongs_->SetLedger(bar1Colour, bar2Colour, sizingKind);
}

void Form1Window::RemoveListViewLedger() {
    lstSongs_->RemoveLedger();
}

MessageAnswer Form1Window::ShowMessage(const Message& message) {
    return ShowMessageBox(this, message);
}

void Form1Window::ShowOptions() {
    OptionsDialog(this, application_, csvIcons_[0], csvIcons_[1]).ShowModal();
}

void Form1Window::ShowAbout() {
    AboutDialog(this, Picture("about.gif")).ShowModal();
}

void Form1Window::Close() {
    wxFrame::Close();
}

}  // namespace marlo::gui
