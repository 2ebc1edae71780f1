#include "app/gui/LedgerList.h"

#include <algorithm>
#include <wx/dcclient.h>
#include <wx/image.h>
#include <wx/imaglist.h>

#include "app/gui/TextConversion.h"
#include "app/gui/Theme.h"
#include "app/gui/TwipScale.h"
#include "reports/AlternateColourOnListview.h"
#include "reports/ResultPane.h"
#include "ui/CellText.h"
#include "ui/ColumnFit.h"

namespace marlo::gui {

namespace {

// The images of the rows: nothing to be seen, but as high as a row should be.
constexpr int kImageHeight = 20;  // design pixels

constexpr int kCellPadding = 14;    // design pixels
constexpr int kHeaderPadding = 34;  // the same, with room for the sort arrow

// One hostile name must not push the other columns out of reach.
constexpr int kMostColumnWidth = 2000;  // design pixels

class DcMeasure final : public TextMeasure {
  public:
    explicit DcMeasure(wxWindow* window) : dc_(window) { dc_.SetFont(window->GetFont()); }

    int WidthOf(const std::string& text) override {
        return dc_.GetTextExtent(wxString::FromUTF8(text)).x;
    }

  private:
    wxClientDC dc_;
};

}  // namespace

LedgerList::LedgerList(wxWindow* parent, const wxString& name, const ResultList& rows,
                       const wxSize& size, long style)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, size,
                 wxLC_REPORT | wxLC_VIRTUAL | wxLC_NO_HEADER | style, wxDefaultValidator, name),
      rows_(rows),
      hasHeader_((style & wxLC_NO_HEADER) == 0),
      shownRevision_(rows.Revision() - 1) {
    RemoveLedger();
    // The toolkit takes it for a fault when a list without room for a row gets a key.
    Rows().Bind(wxEVT_CHAR, [this](wxKeyEvent& event) {
        if (GetCountPerPage() > 0)
            event.Skip();
        else
            HandleAsNavigationKey(event);
    });
    Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
        event.Skip();
        FollowScreen();
    });
}

/// The list is on a screen of another resolution. Columns and rows are measured again when they are
/// fitted next.
void LedgerList::FollowScreen() {
    SetFont(GetFont());  // the toolkit lets a list keep the one that it was made with
    fittedWidths_.clear();
    spacerHeight_ = 0;
    triedRowHeight_ = 0;
}

void LedgerList::ShowRows(int sortedColumn) {
    ShowSortIndicator(sortedColumn - 1, rows_.Order() == SortOrder::Ascending);
    Show(rows_.IsVisible());
    if (rows_.Revision() == shownRevision_)
        return;
    shownRevision_ = rows_.Revision();
    // Those are for what the user selects.
    wxEventBlocker quiet(this, wxEVT_LIST_ITEM_SELECTED);
    quiet.Block(wxEVT_LIST_ITEM_DESELECTED);
    ShowHeaders();
    SetItemCount(static_cast<long>(rows_.RowCount()));
    ShowSelection();
    Refresh();
}

void LedgerList::ShowHeaders() {
    bool isSame = GetColumnCount() == rows_.ColumnCount();
    for (int column = 1; isSame && column <= rows_.ColumnCount(); ++column) {
        wxListItem item;
        item.SetMask(wxLIST_MASK_TEXT);
        GetColumn(column - 1, item);
        isSame = item.GetText() == Shown(rows_.Header(column));
    }
    if (isSame)
        return;
    DeleteAllColumns();
    SetSingleStyle(wxLC_NO_HEADER, !hasHeader_ || rows_.ColumnCount() == 0);
    for (int column = 1; column <= rows_.ColumnCount(); ++column)
        AppendColumn(Shown(rows_.Header(column)));
}

void LedgerList::ShowSelection() {
    const std::size_t selected = rows_.SelectedPosition();
    constexpr long allRows = -1;
    SetItemState(allRows, 0, wxLIST_STATE_SELECTED);
    if (selected == 0)
        return;
    const long item = static_cast<long>(selected) - 1;
    constexpr long state = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
    SetItemState(item, state, state);
    EnsureVisible(item);
}

void LedgerList::AutoSizeColumns() {
    ShowRows(GetSortIndicator() + 1);
    if (fittedRevision_ != rows_.Revision() || fittedWidths_.empty()) {
        fittedRevision_ = rows_.Revision();
        DcMeasure measure(this);
        fittedWidths_ = WidestCells(rows_, measure);
        for (int column = 1; column <= rows_.ColumnCount(); ++column) {
            int& width = fittedWidths_[static_cast<std::size_t>(column) - 1];
            width = std::max(
                width + DesignPixels(*this, kCellPadding),
                GetTextExtent(Shown(rows_.Header(column))).x + DesignPixels(*this, kHeaderPadding));
            width = std::min(width, DesignPixels(*this, kMostColumnWidth));
        }
    }
    for (std::size_t i = 0; i < fittedWidths_.size(); ++i)
        SetColumnWidth(static_cast<int>(i), fittedWidths_[i]);
}

void LedgerList::SetLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                           std::int32_t sizingKind) {
    const Theme& theme = CurrentTheme();
    for (int parity = 0; parity < 2; ++parity)
        for (int isGreyed = 0; isGreyed < 2; ++isGreyed)
            bands_[parity][isGreyed] = {isGreyed == 1 ? theme.greyedRow : kTextOnLight,
                                        ColourOf(parity == 0 ? bar1Colour : bar2Colour), wxFont()};
    const TwipScale scale(*this);
    SetRowHeight(scale.Pixels(LedgerBandHeight(scale.Twips(GetTextExtent("W").y),
                                               kTwipsPerDesignPixel, kImageHeight, sizingKind)));
    Refresh();
}

void LedgerList::RemoveLedger() {
    for (auto& band : bands_) {
        band[0] = {kTextOnLight, *wxWHITE, wxFont()};
        band[1] = {CurrentTheme().greyedRow, *wxWHITE, wxFont()};
    }
    Refresh();
}

/// The toolkit makes a row as high as its image and adds something of its own.
void LedgerList::SetRowHeight(int pixels) {
    // A font may be too large for it; another attempt would not help.
    if (GetItemCount() == 0 || pixels == triedRowHeight_)
        return;
    triedRowHeight_ = pixels;
    const auto setSpacer = [this](int height) {
        spacerHeight_ = height;
        wxImage nothing(1, height);
        nothing.InitAlpha();
        std::fill_n(nothing.GetAlpha(), height, wxALPHA_TRANSPARENT);
        auto* const images = new wxImageList(1, height, false);
        images->Add(wxBitmap(nothing));
        AssignImageList(images, wxIMAGE_LIST_SMALL);
    };
    wxRect row;
    GetItemRect(0, row);
    if (row.height == pixels && spacerHeight_ > 0)
        return;
    if (spacerHeight_ == 0) {
        setSpacer(pixels);
        GetItemRect(0, row);
    }
    setSpacer(std::max(spacerHeight_ - (row.height - pixels), 1));
}

std::vector<std::size_t> LedgerList::SelectedPositions() const {
    std::vector<std::size_t> positions;
    for (long item = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED); item >= 0;
         item = GetNextItem(item, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED))
        positions.push_back(static_cast<std::size_t>(item) + 1);
    return positions;
}

std::size_t LedgerList::ActivePosition() const {
    const long focused = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_FOCUSED);
    const bool isSelected =
        focused >= 0 && GetItemState(focused, wxLIST_STATE_SELECTED) == wxLIST_STATE_SELECTED;
    return static_cast<std::size_t>(
               isSelected ? focused : GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED)) +
           1;
}

void LedgerList::OnDoubleClick(const std::function<void()>& handler) {
    Rows().Bind(wxEVT_LEFT_DCLICK, [handler](wxMouseEvent& event) {
        event.Skip();
        handler();
    });
}

/// Some systems' list has its rows in a window of their own, and its headers in another.
wxWindow& LedgerList::Rows() {
    const wxWindowList& parts = GetChildren();
    return parts.empty() ? *this : *parts.GetFirst()->GetData();
}

wxString LedgerList::OnGetItemText(long item, long column) const {
    const std::size_t position = static_cast<std::size_t>(item) + 1;
    // While events run in the middle of a command, the model may have less than what is painted.
    if (position > rows_.RowCount() || column >= rows_.ColumnCount())
        return {};
    const ResultRow row = rows_.RowAt(position);
    return wxString::FromUTF8(CellText(rows_.ColumnText(row, static_cast<int>(column) + 1)));
}

wxItemAttr* LedgerList::OnGetItemAttr(long item) const {
    const std::size_t position = static_cast<std::size_t>(item) + 1;
    const bool isGreyed = position <= rows_.RowCount() && IsGreyed(rows_, rows_.RowAt(position));
    return &bands_[item % 2][isGreyed ? 1 : 0];
}

int LedgerList::OnGetItemImage(long /*item*/) const {
    return spacerHeight_ > 0 ? 0 : -1;
}

}  // namespace marlo::gui
