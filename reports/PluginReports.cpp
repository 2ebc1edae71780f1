#include "reports/PluginReports.h"

#include <optional>
#include <string>
#include <string_view>

#include "core/RecordIndex.h"
#include "core/RecordReader.h"
#include "core/ResultFileNames.h"
#include "inventory/InstalledPlugins.h"

namespace marlo {

namespace {

constexpr int kFieldCount = 3;

/// What a plug-in is looked up by. Fields have no commas.
void MakePluginKey(std::string& key, std::string_view name, std::string_view type) {
    key.assign(name).append(",").append(type);
}

/// Adds a row unless there is one with that key.
/// @return the new row, if any.
std::optional<ResultRow> AddPlugin(ResultList& list, std::string_view key, std::string_view name) {
    const auto row = list.AddRowUnlessThere(key, name);
    if (row)
        list.SetSmallIcon(*row, kRowIcon);
    return row;
}

/// A line of installedplugins.csv, while it is the last one that was read.
struct InstalledPlugin {
    std::string_view type;
    std::string_view name;
    std::string_view path;

    void Read(RecordReader& record) {
        type = record[0];
        name = record[1];
        path = record[2];
    }
};

/// A line of tln.csv, while it is the last one that was read.
struct UsedPlugin {
    std::string_view name;
    std::string_view type;
    std::string_view state;

    void Read(RecordReader& record) {
        name = record[0];
        type = record[1];
        state = record[2];
    }
};

/// The key of a record of installedplugins.csv.
bool MakeInstalledKey(RecordReader& record, std::string& key) {
    MakePluginKey(key, record[1], record[0]);
    return true;
}

/// What tells the rows of used plug-ins apart.
void MakeUseKey(std::string& key, const UsedPlugin& plugin,
                std::optional<std::string_view> installedPath) {
    key.assign(plugin.name).append(plugin.type);
    if (installedPath)
        key.append(*installedPath);
    key.append(plugin.state);
}

/// Tells of a used plug-in where it is installed.
/// @param installedPath nothing for one that is not.
void ShowWhereInstalled(ResultList& list, ResultRow row, std::int16_t pathColumn,
                        const UsedPlugin& plugin, std::optional<std::string_view> installedPath) {
    if (!installedPath)
        list.SetColumnText(row, pathColumn, kNotInstalled);
    else if (plugin.type == "VST")
        list.SetColumnText(row, pathColumn, *installedPath);
}

/// Adds a row for each installed plug-in that the settings do not ignore and that `isWanted` says
/// yes to.
template <class Predicate>
void AddInstalledPlugins(ResultPane& pane, std::string_view relativePath,
                         const IgnoreSettings& ignore, std::int16_t typeColumn,
                         std::int16_t pathColumn, Predicate isWanted) {
    ResultList& list = pane.lstSongs;
    RecordReader installed(pane.application, relativePath, kFieldCount);
    InstalledPlugin plugin;
    std::string key;
    while (installed.Next()) {
        plugin.Read(installed);
        if ((ignore.directX && plugin.type == "DirectX") || !isWanted(plugin))
            continue;
        key.assign(plugin.name).append(plugin.type).append(plugin.path);
        const auto row = AddPlugin(list, key, plugin.name);
        if (!row)
            continue;
        if (!ignore.directX)
            list.SetColumnText(*row, typeColumn, plugin.type);
        if (plugin.type == "VST")
            list.SetColumnText(*row, pathColumn, plugin.path);
    }
    AddPlaceholderIfEmpty(list, kNoPlugins);
}

}  // namespace

void ShowAllPlugins(ResultPane& pane, std::int16_t typeColumn, std::int16_t pathColumn) {
    RunForUser(pane, "ShowAllPlugins", [&] {
        AddInstalledPlugins(pane, result_file::kInstalledPlugins,
                            ReadIgnoreSettings(pane.application), typeColumn, pathColumn,
                            [](const InstalledPlugin& /*plugin*/) { return true; });
    });
}

void ShowUsedPlugins(ResultPane& pane, std::int16_t typeColumn, std::int16_t pathColumn,
                     std::int16_t statusColumn) {
    RunForUser(pane, "ShowUsedPlugins", [&] {
        ResultList& list = pane.lstSongs;
        const IgnoreSettings ignore = ReadIgnoreSettings(pane.application);
        RecordReader used(pane.application, result_file::kUsedPlugins, kFieldCount);
        RecordIndex installed(pane.application, result_file::kInstalledPlugins, MakeInstalledKey);
        UsedPlugin plugin;
        std::string key;
        while (used.Next()) {
            plugin.Read(used);
            MakePluginKey(key, plugin.name, plugin.type);
            const auto installedPath = installed.Find(key);
            MakeUseKey(key, plugin, installedPath);
            const auto row = AddPlugin(list, key, plugin.name);
            if (!row)
                continue;
            if (!ignore.directX)
                list.SetColumnText(*row, typeColumn, plugin.type);
            ShowWhereInstalled(list, *row, pathColumn, plugin, installedPath);
            if (!ignore.off)
                list.SetColumnText(*row, statusColumn, plugin.state);
            if (!installedPath)
                GreyRow(list, *row);
        }
        AddPlaceholderIfEmpty(list, kNoPlugins);
    });
}

void ShowUnusedPlugins(ResultPane& pane, std::int16_t typeColumn, std::int16_t pathColumn) {
    RunForUser(pane, "ShowUnusedPlugins", [&] {
        const IgnoreSettings ignore = ReadIgnoreSettings(pane.application);
        RecordIndex used(pane.application, result_file::kUsedPlugins,
                         [&](RecordReader& record, std::string& key) {
                             MakePluginKey(key, record[0], record[1]);
                             return !ignore.off || record[2] != "Off";
                         });
        std::string key;
        AddInstalledPlugins(pane, result_file::kInstalledPlugins, ignore, typeColumn, pathColumn,
                            [&](const InstalledPlugin& plugin) {
                                MakePluginKey(key, plugin.name, plugin.type);
                                return !used.Find(key);
                            });
    });
}

void ShowUninstalledPlugins(ResultPane& pane, std::int16_t typeColumn, std::int16_t statusColumn) {
    // The log does not tell this report from the one of unused plug-ins; it never did.
    RunForUser(pane, "ShowUnusedPlugins", [&] {
        ResultList& list = pane.lstSongs;
        const IgnoreSettings ignore = ReadIgnoreSettings(pane.application);
        RecordReader used(pane.application, result_file::kUsedPlugins, kFieldCount);
        InstalledPlugins installed(pane.application);
        UsedPlugin plugin;
        std::string key;
        while (used.Next()) {
            plugin.Read(used);
            if (installed.PluginIsInstalled(plugin.name))
                continue;
            key.assign(plugin.name).append(plugin.type).append(plugin.state);
            const auto row = AddPlugin(list, key, plugin.name);
            if (!row)
                continue;
            if (!ignore.directX)
                list.SetColumnText(*row, typeColumn, plugin.type);
            if (!ignore.off)
                list.SetColumnText(*row, statusColumn, plugin.state);
        }
    });
}

}  // namespace marlo
