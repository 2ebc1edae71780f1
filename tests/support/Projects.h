#pragma once

#include <string>
#include <vector>

#include "tests/support/TempFolder.h"
#include "tools/ProjectWriter.h"

namespace marlo::test {

/// Writes a project with these plug-ins into "songs". @return its path.
inline std::string AddProject(const TempFolder& folder, const std::string& name,
                              const std::vector<tools::PluginSlot>& slots) {
    std::string bytes(100, '\0');
    for (const auto& slot : slots)
        bytes += tools::PluginBytes(slot);
    return folder.Write("songs/" + name, bytes);
}

}  // namespace marlo::test
