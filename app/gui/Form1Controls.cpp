#include "app/gui/Form1Controls.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/dcbuffer.h>
#include <wx/frame.h>
#include <wx/settings.h>
#include <wx/textctrl.h>

#include "app/gui/Theme.h"
#include "platform/Toolkit.h"
#include "reports/AlternateColourOnListview.h"

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

Form1Controls::Form1Controls(wxFrame& window, std::string applicationFolder, ResultList& songs,
                             std::array<IconBox, 2>& csvIcons)
    : window_(window),
      applicationFolder_(std::move(applicationFolder)),
      scale_(window),
      mark_(Picture("menu_mark.svg")) {
    background = new wxPanel(&window_, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL);
    // Asking the program whether it erases the background takes longer than anything else about it.
    window_.SetBackgroundStyle(wxBG_STYLE_SYSTEM);
    background->SetBackgroundStyle(wxBG_STYLE_SYSTEM);
    boxMenu_ = CreatePane(background, "boxMenu");
    imgMenu = new PicturePanel(boxMenu_, "imgMenu", kMenuPaneDrawn);
    label5_ = new PictureLabel(imgMenu, "Label5", "       Menu", HeadingFont());
    // Over the blanks of the label.
    image1_ = CreatePictureView(imgMenu, "Image1", [this] { return mark_.In(*image1_); });
    boxRightPane_ = CreatePane(background, "boxRightPane");
    imgRightPane = new PicturePanel(boxRightPane_, "imgRightPane", kRightPaneDrawn);
    CreateCommandItems(csvIcons);
    btnDonate = new PictureButton(imgMenu, "btnDonate", "Donate", Picture("donate.gif"),
                                  Picture("donate_b&w.gif"));
    CreateSearchControls(songs);
    Text1 = new StatusBox(background, "Text1");
    Text2 = new StatusBox(background, "Text2");
    ApplyTheme();
}

void Form1Controls::CreateCommandItems(std::array<IconBox, 2>& csvIcons) {
    // From the top, which is the order that Tab goes by.
    std::array<std::size_t, kCommandItemCount> order{};
    for (std::size_t i = 0; i < order.size(); ++i)
        order.at(i) = i;
    std::sort(order.begin(), order.end(), [](std::size_t a, std::size_t b) {
        return kCommandItems.at(a).top < kCommandItems.at(b).top;
    });
    const wxFont font = ItemFont();
    const auto sizeIn = [&](Pane pane) { return imgMenu->TextSize(LongestCaption(pane), font); };
    const std::map<Pane, wxSize> sizes{{Pane::Menu, sizeIn(Pane::Menu)},
                                       {Pane::Right, sizeIn(Pane::Right)}};
    std::size_t icon = 0;
    for (const std::size_t i : order) {
        const CommandItem& item = kCommandItems.at(i);
        PicturePanel* const panel = item.pane == Pane::Menu ? imgMenu : imgRightPane;
        auto* const control = new CommandItemControl(panel, i, item.caption, font,
                                                     sizes.at(item.pane), item.hasWindowBackground);
        cmdbuttons.at(i) = control;
        if (item.command != Command::OpenResults)
            continue;
        IconBox& box = csvIcons.at(icon);
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

void Form1Controls::CreateSearchControls(ResultList& songs) {
    cboSearchType = new wxChoice(imgRightPane, wxID_ANY, wxDefaultPosition, kPlacedLater, 0,
                                 nullptr, 0, wxDefaultValidator, "cboSearchType");
    platform::SetAccessibleName(cboSearchType->GetHandle(), "Kind of match");
    // Some systems tell what a list has besides its text only when there is room for that.
    cboSearchType->SetSize(scale_.Pixels(kCommandItemWidth, kCommandItemHeight));
    label3_ = new PictureLabel(imgRightPane, "Label3", "Ignore Case:", window_.GetFont());
    chkIgnoreCase = new wxCheckBox(imgRightPane, wxID_ANY, "", wxDefaultPosition, kPlacedLater, 0,
                                   wxDefaultValidator, "chkIgnoreCase");
    platform::SetAccessibleName(chkIgnoreCase->GetHandle(), "Ignore Case:");
    txtSearchText = new wxTextCtrl(imgRightPane, wxID_ANY, "", wxDefaultPosition, kPlacedLater,
                                   wxTE_PROCESS_ENTER, wxDefaultValidator, "txtSearchText");
    platform::SetAccessibleName(txtSearchText->GetHandle(), "Text to search for");
    cmdFind = new PictureButton(imgRightPane, "cmdFind", "Search", Picture("search.gif"),
                                Picture("search_b&w.gif"));
    lstSongs = new LedgerList(imgRightPane, "lstSongs", songs, kPlacedLater, wxBORDER_NONE);
    platform::SetAccessibleName(lstSongs->GetHandle(), "Results");
}

std::string Form1Controls::Picture(const std::string& name) const {
    return PicturePath(applicationFolder_, name);
}

void Form1Controls::LoadPictures() {
    imgMenu->LoadPictures();
    imgRightPane->LoadPictures();
    btnDonate->ShownPicture();
    cmdFind->ShownPicture();
    mark_.In(*image1_);
}

wxFont Form1Controls::HeadingFont() const {
    return window_.GetFont().Bold().Scaled(1.15F);
}

/// The items' places were drawn for small texts. They are as large as fits in there, but not much
/// smaller than the user's other texts; where that is too large, the layout makes room.
wxFont Form1Controls::ItemFont() const {
    const wxFont usual = window_.GetFont();
    const int widest = imgMenu->TextSize(LongestCaption(Pane::Menu), usual).x;
    const double fitting = static_cast<double>(scale_.Pixels(kCommandItemWidth)) / widest;
    return usual.Scaled(static_cast<float>(std::clamp(fitting, kSmallestItemFont, 1.0)));
}

void Form1Controls::ApplyTheme() {
    const Theme& theme = CurrentTheme();
    const auto drawing = [&](const char* name) {
        return Picture(name + std::string(theme.isDark ? "_dark.svg" : ".svg"));
    };
    // The foot is so low that it fits below the lowest control.
    imgMenu->SetPictures({theme.menuPane, theme.menuPane, 0},
                         {{drawing("menu_cable"), wxRect(8, 50, 14, 342), wxTOP, true},
                          {drawing("menu_top"), wxRect(0, 0, 176, 58)},
                          {drawing("menu_foot"), wxRect(0, -6, 176, 6), wxBOTTOM}});
    imgRightPane->SetPictures({theme.searchBar, theme.rightPane, kSearchBarHeight},
                              {{drawing("waves"), wxRect(200, 0, 600, 100)}});
    label5_->SetColour(theme.heading);
    label3_->SetColour(theme.label);
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        cmdbuttons.at(i)->SetColours(
            kCommandItems.at(i).pane == Pane::Menu ? theme.item : theme.itemOnSearchBar,
            theme.disabledItem, theme.itemBackground);
    txtSearchText->SetBackgroundColour(ColourOf(kLedgerBar2));
    txtSearchText->SetForegroundColour(kTextOnLight);
}

void Form1Controls::FollowScreen() {
    scale_ = TwipScale(window_);
    const wxFont font = ItemFont();
    for (CommandItemControl* const item : cmdbuttons)
        item->SetCaptionFont(font);
    label5_->SetTextFont(HeadingFont());
    label3_->SetTextFont(window_.GetFont());
}

NaturalSizes Form1Controls::Sizes() const {
    const auto twips = [this](const wxSize& size) {
        return TwipSize{scale_.Twips(size.x), scale_.Twips(size.y)};
    };
    NaturalSizes sizes;
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        sizes.cmdbuttons.at(i) = twips(cmdbuttons.at(i)->NaturalSize());
    sizes.Label3 = twips(label3_->TextSize());
    sizes.Label5 = twips(label5_->TextSize());
    sizes.cboSearchType = twips(cboSearchType->GetBestSize());
    sizes.chkIgnoreCase = twips(chkIgnoreCase->GetBestSize());
    sizes.txtSearchText = twips(txtSearchText->GetBestSize());
    sizes.statusBox = twips({0, Text1->NaturalHeight()});
    return sizes;
}

TwipSize Form1Controls::ClientArea() const {
    const wxSize size = background->GetClientSize();
    return {scale_.Twips(size.x), scale_.Twips(size.y)};
}

void Form1Controls::PlaceInside(wxWindow* control, const marlo::Place& place,
                                const wxPoint& origin) const {
    const int left = scale_.Pixels(place.left);
    const int top = scale_.Pixels(place.top);
    control->SetSize(left - origin.x, top - origin.y, scale_.Pixels(place.Right()) - left,
                     scale_.Pixels(place.Bottom()) - top);
}

void Form1Controls::Place(const FormLayout& layout) const {
    const auto originOf = [this](const marlo::Place& container) {
        return wxPoint(scale_.Pixels(container.left), scale_.Pixels(container.top));
    };
    const wxPoint none;
    const wxPoint menu = originOf(layout.imgMenu);
    const wxPoint right = originOf(layout.imgRightPane);
    PlaceInside(boxMenu_, layout.boxMenu, none);
    PlaceInside(imgMenu, layout.imgMenu, originOf(layout.boxMenu));
    imgMenu->SetHangingEnd(scale_.Pixels(layout.cableBottom) - menu.y);
    PlaceInside(label5_, layout.Label5, menu);
    PlaceInside(image1_, layout.Image1, menu);
    PlaceInside(btnDonate, layout.btnDonate, menu);
    for (std::size_t i = 0; i < csvIconViews_.size(); ++i)
        PlaceInside(csvIconViews_.at(i), layout.csvIcons.at(i), menu);
    for (std::size_t i = 0; i < kCommandItemCount; ++i)
        PlaceInside(cmdbuttons.at(i), layout.cmdbuttons.at(i),
                    kCommandItems.at(i).pane == Pane::Menu ? menu : right);
    PlaceInside(boxRightPane_, layout.boxRightPane, none);
    PlaceInside(imgRightPane, layout.imgRightPane, originOf(layout.boxRightPane));
    PlaceInside(cboSearchType, layout.cboSearchType, right);
    PlaceInside(label3_, layout.Label3, right);
    PlaceInside(chkIgnoreCase, layout.chkIgnoreCase, right);
    PlaceInside(txtSearchText, layout.txtSearchText, right);
    PlaceInside(cmdFind, layout.cmdFind, right);
    PlaceInside(lstSongs, layout.lstSongs, right);
    PlaceInside(Text1, layout.Text1, none);
    PlaceInside(Text2, layout.Text2, none);
}

}  // namespace marlo::gui
