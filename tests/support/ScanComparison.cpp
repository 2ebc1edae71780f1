#include "tests/support/ScanComparison.h"

#include <algorithm>
#include <cstddef>

#include "scan/ProjectPlugins.h"

namespace marlo::test {

std::string ScanDifference(Application& application, const std::string& path,
                           const ScanResult& expected) {
    SearchLists lists;
    std::string procedure;
    application.onErrorLogged = [&](const ErrorEntry& entry) { procedure = entry.procedure; };
    const bool completed = GetPlugins4Project(application, lists, path);
    application.onErrorLogged = nullptr;

    if (completed != expected.completed)
        return completed ? "the scan came to its end" : "the scan failed: " + procedure;
    if (!std::ranges::equal(lists.PluginOccurrences, expected.occurrences, {}, RecordOf))
        return "the occurrences";
    if (lists.ProjectPluginKeys.UpperBound() != expected.keys.size())
        return "the number of keys";
    for (std::size_t i = 0; i < expected.keys.size(); ++i) {
        if (lists.ProjectPluginKeys[i + 1] != expected.keys[i] ||
            lists.ProjectPluginStates[i + 1] != expected.states[i])
            return "key " + std::to_string(i + 1);
    }
    if (!completed && procedure != "GetPlugins4Project " + path + " " + expected.lastRecord)
        return "the log: " + procedure;
    return {};
}

}  // namespace marlo::test
