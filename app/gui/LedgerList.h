#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>
#include <wx/listctrl.h>

#include "reports/AlternateColourOnListview.h"
#include "reports/ResultList.h"

namespace marlo::gui {

/// Shows a list's model, without rows of its own: the rows in two bands of colour in turn, greyed
/// ones in grey.
class LedgerList final : public wxListCtrl, public LedgerView {
  public:
    /// @param rows outlives this.
    LedgerList(wxWindow* parent, const wxString& name, const ResultList& rows, const wxSize& size,
               long style);

    /// Updates the control from the model. Changes of the selection send no events.
    /// @param sortedColumn the column whose header tells that it orders the rows, 1-based; 0 for
    ///        none.
    void ShowRows(int sortedColumn = 0);

    /// Fits each column to the wider of its header and its cells, up to a width that no name or
    /// path needs.
    void AutoSizeColumns();

    /// With bands as high as the sizing kind calls for, where the toolkit lets them.
    void SetLedger(std::int32_t bar1Colour, std::int32_t bar2Colour,
                   std::int32_t sizingKind) override;
    void RemoveLedger() override;

    /// The positions of the selected rows, 1-based, from the top.
    std::vector<std::size_t> SelectedPositions() const;
    /// The one that an action goes by: the focused row if it is selected, else the first selected
    /// one; 0 for none.
    std::size_t ActivePosition() const;

    /// Calls `handler` for a double click anywhere on the rows or the space below them.
    void OnDoubleClick(const std::function<void()>& handler);

  private:
    wxString OnGetItemText(long item, long column) const override;
    wxItemAttr* OnGetItemAttr(long item) const override;
    int OnGetItemImage(long item) const override;

    wxWindow& Rows();
    void ShowHeaders();
    void ShowSelection();
    void SetRowHeight(int pixels);
    void FollowScreen();

    const ResultList& rows_;
    const bool hasHeader_;  // once there are columns
    std::size_t shownRevision_ = 0;
    std::size_t fittedRevision_ = 0;
    std::vector<int> fittedWidths_;
    int spacerHeight_ = 0;
    int triedRowHeight_ = 0;
    mutable wxItemAttr bands_[2][2];  ///< by parity, and whether the row is greyed
};

}  // namespace marlo::gui
