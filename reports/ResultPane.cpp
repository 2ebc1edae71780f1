#include "reports/ResultPane.h"

#include <algorithm>

#include "core/Settings.h"
#include "reports/AlternateColourOnListview.h"

namespace marlo {

IgnoreSettings ReadIgnoreSettings(const Application& application) {
    return {.directX = getSetting(application, setting::kIgnoreDirectX) == "1",
            .off = getSetting(application, setting::kIgnoreOff) == "1"};
}

int SortedColumn(const ResultPane& pane) {
    if (pane.lstSongs.IsSorted())
        return pane.lstSongs.SortKey() + 1;
    return std::max(pane.lastSortColumn, 0);
}

void BeginRebuild(ResultPane& pane) {
    for (int columns = pane.lstSongs.ColumnCount(); columns > 0; --columns)
        pane.lstSongs.RemoveColumn(1);
    pane.lstSongs.ClearRows();
    pane.lstSongs.SetVisible(false);
}

void FitAndShade(ResultPane& pane) {
    pane.window.AutoSizeListViewColumns();
    pane.window.SetListViewLedger(kLedgerBar1, kLedgerBar2, ledger::kIcons);
}

bool IsGreyed(const ResultList& list, ResultRow row) {
    return list.Colour(row) == TextColour::Greyed;
}

void GreyRow(ResultList& list, ResultRow row) {
    list.SetColour(row, TextColour::Greyed);
    for (int subItem = 1; subItem < list.ColumnCount(); ++subItem)
        list.SetSubItemColour(row, subItem, TextColour::Greyed);
}

void AddPlaceholderIfEmpty(ResultList& list, std::string_view text) {
    if (list.RowCount() == 0)
        list.SetSmallIcon(list.AddRow(text, text), kRowIcon);
}

bool HoldsPlaceholder(const ResultList& list) {
    if (list.RowCount() != 1)
        return false;
    const std::string_view key = list.Key(list.RowAt(1));
    return key == kNoPlugins || key == kNoProjects;
}

}  // namespace marlo
