#include "reports/ReportView.h"

#include <cstdint>

#include "reports/ColumnTitles.h"
#include "reports/PluginReports.h"

namespace marlo {

namespace {

std::string FirstHeader(const std::string& reportKind) {
    if (reportKind == report_kind::kUsed)
        return "Used Plugins";
    if (reportKind == report_kind::kUnused)
        return "Unused Plugins";
    if (reportKind == report_kind::kAll)
        return "Installed Plugins";
    return reportKind == report_kind::kUninstalled ? "Uninstalled Plugins" : "";
}

/// The 1-based indexes of the columns that not every report has; 0 for those that are not there.
struct OptionalColumns {
    std::int16_t type = 0;
    std::int16_t path = 0;
    std::int16_t status = 0;
};

OptionalColumns AddColumns(ResultList& list, const std::string& reportKind,
                           const IgnoreSettings& ignore) {
    const bool isOfUses =
        reportKind == report_kind::kUsed || reportKind == report_kind::kUninstalled;
    OptionalColumns columns;
    list.AddColumn(FirstHeader(reportKind));
    if (!ignore.directX)
        columns.type = list.AddColumn(column_title::kType);
    if (reportKind != report_kind::kUninstalled)
        columns.path = list.AddColumn(column_title::kPath);
    if (isOfUses && !ignore.off)
        columns.status = list.AddColumn(column_title::kStatus);
    return columns;
}

void RunReport(ResultPane& pane, const std::string& reportKind, const OptionalColumns& columns) {
    if (reportKind == report_kind::kUsed)
        ShowUsedPlugins(pane, columns.type, columns.path, columns.status);
    else if (reportKind == report_kind::kUnused)
        ShowUnusedPlugins(pane, columns.type, columns.path);
    else if (reportKind == report_kind::kAll)
        ShowAllPlugins(pane, columns.type, columns.path);
    else if (reportKind == report_kind::kUninstalled)
        ShowUninstalledPlugins(pane, columns.type, columns.status);
}

}  // namespace

void ShowInstalledPlugins(ResultPane& pane, const std::string& reportKind) {
    RunForUser(pane, "ShowInstalledPlugins", [&] {
        ResultList& list = pane.lstSongs;
        const IgnoreSettings ignore = ReadIgnoreSettings(pane.application);
        pane.lastSortColumn = -1;
        BeginRebuild(pane);
        RunReport(pane, reportKind, AddColumns(list, reportKind, ignore));
        FitAndShade(pane);
        list.SetSortKey(0);
        list.SetOrder(SortOrder::Ascending);
        list.SetSorted(true);
        list.SetVisible(true);
    });
}

}  // namespace marlo
