#include "ui/ResultListView.h"

#include <optional>
#include <string>

#include "core/Text.h"
#include "platform/FileSystem.h"
#include "reports/DateText.h"

namespace marlo {

namespace {

/// Replaces the second cell of every row.
template <class Convert>
void ConvertDates(ResultPane& pane, const char* procedure, Convert convert) {
    RunGuarded(pane.application, procedure, [&] {
        ResultList& list = pane.lstSongs;
        for (std::size_t position = 1; position <= list.RowCount(); ++position) {
            const ResultRow row = list.RowAt(position);
            list.SetSubItem(row, 1, convert(pane.application, std::string(list.SubItem(row, 1))));
        }
    });
}

SortOrder Flipped(SortOrder order) {
    return order == SortOrder::Ascending ? SortOrder::Descending : SortOrder::Ascending;
}

void Open(const ResultPane& pane, const platform::ShellRequest& request) {
    // A project that cannot be opened has never had a message of its own.
    if (pane.application.desktop.ShellExecute(request) <= platform::kLastShellFailure)
        pane.window.ShowMessage(
            {.text = "Cannot open the folder at the moment", .icon = MessageIcon::Information});
}

void OpenFolderOf(const ResultPane& pane, const std::string& path) {
    const std::optional<std::string> folder = platform::ParentPath(path);
    if (folder)
        Open(pane, {.file = "explorer.exe", .parameters = *folder});
}

}  // namespace

void lstSongs_ColumnClick(ResultPane& pane, int column) {
    RunGuarded(pane.application, "lstSongs_ColumnClick", [&] {
        ResultList& list = pane.lstSongs;
        list.SetSortKey(column - 1);
        const bool isDate = list.ColumnAt(column) == Column::Modified;
        if (isDate)
            FormatDateColumn(pane);
        if (column == pane.lastSortColumn || pane.lastSortColumn == -1)
            list.SetOrder(Flipped(list.Order()));
        pane.lastSortColumn = column;
        list.SetSorted(true);
        if (isDate)
            UnFormatDateColumn(pane);
        list.SetSorted(false);
    });
}

void FormatDateColumn(ResultPane& pane) {
    ConvertDates(pane, "FormatDateColumn", FormatDate);
}

void UnFormatDateColumn(ResultPane& pane) {
    ConvertDates(pane, "UnFormatDateColumn", UnFormatDate);
}

void lstSongs_DblClick(ResultPane& pane) {
    RunGuarded(pane.application, "lstSongs_dblClick", [&] {
        const ResultList& list = pane.lstSongs;
        for (int column = 1; column <= list.ColumnCount(); ++column) {
            // A path in the first column, which no report has, is refused as one without sub-item.
            if (list.ColumnAt(column) == Column::Path)
                return OpenFolderOf(
                    pane, std::string(TrimSpaces(list.SubItem(list.SelectedRow(), column - 1))));
            if (list.ColumnAt(column) == Column::Project)
                return Open(pane, {.file = std::string(list.Text(list.SelectedRow()))});
        }
    });
}

}  // namespace marlo
