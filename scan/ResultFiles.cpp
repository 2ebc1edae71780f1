#include "scan/ResultFiles.h"

#include <string>
#include <string_view>

#include "core/ErrorLog.h"
#include "core/Files.h"
#include "core/Records.h"
#include "core/ResultFileNames.h"

namespace marlo {

namespace {

/// Writes the lines of the plug-ins that `pluginAt` gives for the indexes from 1 to `count`.
/// @return false when the user cancels.
template <class PluginAt>
bool WriteStates(const Application& application, MainWindow& window, std::string_view relativePath,
                 std::size_t count, PluginAt pluginAt) {
    StagedFile file(application, window, relativePath);
    if (!file.Create())
        return false;
    for (std::size_t index = 1; index <= count; ++index)
        file.Lines().WriteLine(RecordOf(pluginAt(index)));
    return file.MoveIntoPlace();
}

bool WriteStates(const Application& application, MainWindow& window, std::string_view relativePath,
                 const KeyList& keys, const StateList& states) {
    return WriteStates(application, window, relativePath, keys.UpperBound(),
                       [&](std::size_t index) {
                           return PluginState{keys[index], states[index]};
                       });
}

/// Merges the plug-ins of all projects by name and type.
/// @return false when a key could not be split.
bool MergeProjects(const Application& application, const SearchLists& lists, KeyList& tlnKeys,
                   StateList& tlnStates) {
    bool ok = true;
    for (std::size_t index = 1; index <= lists.ProjectPluginKeys.UpperBound(); ++index) {
        const std::string_view key = lists.ProjectPluginKeys[index];
        const auto fields = SplitRecord(application, key, 3);
        if (fields.empty()) {
            WriteErrorLog(application,
                          "Problem writing " + std::string(key) + ". See " + application.folder +
                              result_file::kErrorLog + " for details.",
                          0, "n/a");
            ok = false;
            continue;
        }
        MergeState(tlnKeys, tlnStates, QuotedFields({fields[1], fields[2]}),
                   lists.ProjectPluginStates[index]);
    }
    return ok;
}

}  // namespace

bool CreateResultFiles(const Application& application, MainWindow& window,
                       const SearchLists& lists) {
    bool ok = true;
    const bool completed = RunGuarded(application, "CreateResultFiles", [&] {
        const auto& occurrences = lists.PluginOccurrences;
        if (!WriteStates(application, window, result_file::kOccurrences, occurrences.size(),
                         [&](std::size_t index) { return occurrences[index - 1]; }))
            return;
        if (!WriteStates(application, window, result_file::kProjectPlugins, lists.ProjectPluginKeys,
                         lists.ProjectPluginStates))
            return;
        KeyList tlnKeys;
        StateList tlnStates;
        ok = MergeProjects(application, lists, tlnKeys, tlnStates);
        WriteStates(application, window, result_file::kUsedPlugins, tlnKeys, tlnStates);
    });
    return ok && completed;
}

}  // namespace marlo
