#include "scan/ResultFiles.h"

#include <string>
#include <string_view>

#include "core/ErrorLog.h"
#include "core/Files.h"
#include "core/Records.h"
#include "core/ResultFileNames.h"

namespace marlo {

namespace {

/// Writes a line for each of `plugins`.
template <class PluginStates>
bool WriteStates(const Application& application, MainWindow& window, std::string_view relativePath,
                 const PluginStates& plugins) {
    StagedFile file(application, window, relativePath);
    if (!file.Create())
        return false;
    for (const PluginState& plugin : plugins)
        file.Lines().WriteLine(RecordOf(plugin));
    return file.MoveIntoPlace();
}

/// Merges the plug-ins of all projects by name and type.
/// @param ok set to false when a key could not be split.
MergedStates MergeProjects(const Application& application, const MergedStates& projectPlugins,
                           bool& ok) {
    MergedStates merged;
    for (const auto& [key, state] : projectPlugins) {
        const auto fields = SplitRecord(application, key, 3);
        if (fields.empty()) {
            WriteErrorLog(application,
                          "Problem writing " + std::string(key) + ". See " + application.folder +
                              result_file::kErrorLog + " for details.",
                          0, "n/a");
            ok = false;
            continue;
        }
        merged.Merge(QuotedFields({fields[1], fields[2]}), state);
    }
    return merged;
}

}  // namespace

bool CreateResultFiles(const Application& application, MainWindow& window,
                       const SearchLists& lists) {
    bool ok = true;
    const bool completed = RunGuarded(application, "CreateResultFiles", [&] {
        if (!WriteStates(application, window, result_file::kOccurrences, lists.PluginOccurrences))
            return;
        if (!WriteStates(application, window, result_file::kProjectPlugins,
                         lists.ProjectPluginKeys))
            return;
        const auto merged = MergeProjects(application, lists.ProjectPluginKeys, ok);
        WriteStates(application, window, result_file::kUsedPlugins, merged);
    });
    return ok && completed;
}

}  // namespace marlo
