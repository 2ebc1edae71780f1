#include "reports/ReportView.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "reports/PluginReports.h"

namespace marlo {

namespace {

struct KindTexts {
    ReportKind kind;
    const char* name;
    const char* title;  ///< of the first column
};

constexpr std::array kKinds = {
    KindTexts{ReportKind::Used, "ShowUsed", "Used Plugins"},
    KindTexts{ReportKind::Unused, "ShowUnused", "Unused Plugins"},
    KindTexts{ReportKind::All, "ShowAll", "Installed Plugins"},
    KindTexts{ReportKind::Uninstalled, "ShowUninstalled", "Uninstalled Plugins"},
};

const KindTexts& TextsOf(ReportKind kind) {
    return *std::ranges::find(kKinds, kind, &KindTexts::kind);
}

/// The kind with a name, if there is one.
std::optional<ReportKind> KindNamed(std::string_view name) {
    const auto* const found = std::ranges::find(
        kKinds, name, [](const KindTexts& texts) { return std::string_view(texts.name); });
    return found == kKinds.end() ? std::nullopt : std::optional(found->kind);
}

/// The 1-based indexes of the columns that not every report has; 0 for those that are not there.
struct OptionalColumns {
    std::int16_t type = 0;
    std::int16_t path = 0;
    std::int16_t status = 0;
};

OptionalColumns AddColumns(ResultList& list, std::optional<ReportKind> kind,
                           const IgnoreSettings& ignore) {
    const bool isOfUses = kind == ReportKind::Used || kind == ReportKind::Uninstalled;
    OptionalColumns columns;
    list.AddColumn(Column::Plugin, kind ? TextsOf(*kind).title : "");
    if (!ignore.directX)
        columns.type = list.AddColumn(Column::Type);
    if (kind != ReportKind::Uninstalled)
        columns.path = list.AddColumn(Column::Path);
    if (isOfUses && !ignore.off)
        columns.status = list.AddColumn(Column::Status);
    return columns;
}

void RunReport(ResultPane& pane, ReportKind kind, const OptionalColumns& columns) {
    switch (kind) {
        case ReportKind::Used:
            return ShowUsedPlugins(pane, columns.type, columns.path, columns.status);
        case ReportKind::Unused:
            return ShowUnusedPlugins(pane, columns.type, columns.path);
        case ReportKind::All:
            return ShowAllPlugins(pane, columns.type, columns.path);
        case ReportKind::Uninstalled:
            return ShowUninstalledPlugins(pane, columns.type, columns.status);
    }
}

}  // namespace

const char* NameOf(ReportKind kind) {
    return TextsOf(kind).name;
}

void ShowInstalledPlugins(ResultPane& pane, const std::string& reportKind) {
    RunForUser(pane, "ShowInstalledPlugins", [&] {
        ResultList& list = pane.lstSongs;
        const std::optional<ReportKind> kind = KindNamed(reportKind);
        const IgnoreSettings ignore = ReadIgnoreSettings(pane.application);
        pane.lastSortColumn = -1;
        BeginRebuild(pane);
        const OptionalColumns columns = AddColumns(list, kind, ignore);
        if (kind)
            RunReport(pane, *kind, columns);
        FitAndShade(pane);
        list.SetSortKey(0);
        list.SetOrder(SortOrder::Ascending);
        list.SetSorted(true);
        list.SetVisible(true);
    });
}

}  // namespace marlo
