#include "reports/ResultSearch.h"

#include <string_view>
#include <system_error>

#include "core/RecordReader.h"
#include "core/ResultFileNames.h"
#include "core/RunTimeError.h"
#include "core/Settings.h"
#include "core/Text.h"
#include "inventory/InstalledPlugins.h"
#include "platform/FileSystem.h"
#include "reports/DateText.h"

namespace marlo {

namespace {

/// The columns that every search has, 1-based, and those that not every one has; 0 for one that is
/// not there.
constexpr int kModifiedColumn = 2;
constexpr int kPluginColumn = 3;

struct OptionalColumns {
    std::int16_t type = 0;
    std::int16_t status = 0;
};

OptionalColumns AddColumns(ResultList& list, const IgnoreSettings& ignore) {
    OptionalColumns columns;
    list.AddColumn(Column::Project);
    list.AddColumn(Column::Modified);
    list.AddColumn(Column::Plugin);
    if (!ignore.directX)
        columns.type = list.AddColumn(Column::Type);
    if (!ignore.off)
        columns.status = list.AddColumn(Column::Status);
    return columns;
}

/// Whether the search finds a line.
bool IsHit(RecordReader& line, const SearchPane& search, SearchMatch& match,
           const IgnoreSettings& ignore) {
    if ((ignore.directX && line[2] == "DirectX") || (ignore.off && line[3] == "Off"))
        return false;
    return match.Matches(line[search.mode == SearchMode::PluginsInProject ? 0 : 1]);
}

std::string ModifiedText(const std::string& project) {
    std::error_code error;
    const std::tm modified = platform::LastModified(project, error);
    ThrowOn(error);
    return GeneralDate(modified);
}

}  // namespace

MatchType ReadMatchType(const Application& application) {
    return MatchTypeAt(LeadingNumber(getSetting(application, setting::kSearchType)))
        .value_or(MatchType::Exact);
}

bool ReadIgnoreCase(const Application& application) {
    return LeadingNumber(getSetting(application, setting::kIgnoreCase)) == 1;
}

void SearchResultFiles(ResultPane& pane, const SearchPane& search, std::int16_t typeColumn,
                       std::int16_t statusColumn) {
    RunForUser(pane, "SearchResultFiles", [&] {
        ResultList& list = pane.lstSongs;
        const IgnoreSettings ignore = ReadIgnoreSettings(pane.application);
        SearchMatch match(search.cboSearchType, search.txtSearchText, search.chkIgnoreCase);
        RecordReader lines(pane.application, result_file::kProjectPlugins, 4);
        InstalledPlugins installed(pane.application);
        std::string key;
        while (lines.Next()) {
            if (!IsHit(lines, search, match, ignore))
                continue;
            const std::string project(lines[0]);
            const std::string_view name = lines[1];
            const std::string_view type = lines[2];
            const std::string_view state = lines[3];
            key.assign(project).append(name).append(type).append(state);
            const ResultRow row = list.AddRow(key, project);
            list.SetSmallIcon(row, kRowIcon);
            list.SetColumnText(row, kModifiedColumn, ModifiedText(project));
            list.SetColumnText(row, kPluginColumn, name);
            if (!ignore.directX)
                list.SetColumnText(row, typeColumn, type);
            if (!ignore.off)
                list.SetColumnText(row, statusColumn, state);
            if (!installed.PluginIsInstalled(name))
                GreyRow(list, row);
        }
        AddPlaceholderIfEmpty(list, kNoProjects);
    });
}

void cmdFind_Click(ResultPane& pane, const SearchPane& search) {
    RunForUser(pane, "cmdFind_Click", [&] {
        const IgnoreSettings ignore = ReadIgnoreSettings(pane.application);
        pane.lastSortColumn = -1;
        BeginRebuild(pane);
        const OptionalColumns columns = AddColumns(pane.lstSongs, ignore);
        pane.window.SetHourglass(true);
        pane.window.SetText1("Searching...");
        pane.window.Repaint();
        SearchResultFiles(pane, search, columns.type, columns.status);
        pane.window.SetHourglass(false);
        FitAndShade(pane);
        pane.lstSongs.SetVisible(true);
        pane.window.ClearStatusBar();
    });
}

}  // namespace marlo
