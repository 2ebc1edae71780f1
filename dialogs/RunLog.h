#pragma once

#include <string>

#include "core/Application.h"

namespace marlo {

/// What is told of the last runs. Empty texts for what has never run.
struct RunLog {
    std::string searchDate;     ///< see `SettingDate`
    std::string searchPath;     ///< the folder, and whether its subfolders were included
    std::string inventoryDate;  ///< see `SettingDate`
};

/// Reads the log of the last runs from the settings 1, 3, 11 and 15.
RunLog ReadRunLog(const Application& application);

}  // namespace marlo
