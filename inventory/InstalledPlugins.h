#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_set>

#include "core/Application.h"
#include "core/MainWindow.h"
#include "platform/FileSystem.h"

namespace marlo {

enum class InventoryOutcome {
    NotStarted,  ///< the user cancelled the question about the old file, which is as it was
    Completed,
    Cancelled,  ///< the file holds what was found before
    Failed,     ///< the same
};

/// What came of an inventory.
struct InventorySummary {
    InventoryOutcome outcome = InventoryOutcome::NotStarted;
    std::size_t directX = 0;  ///< lines written for DirectX filters
    std::size_t vst = 0;      ///< lines written for VST libraries
};

/// The whole "Find installed Plugins" command: writes "\Resultfiles\installedplugins.csv" anew,
/// a line of type, name and location for each DirectX filter (see `GetDirectXPlugins`) and then
/// for each VST library in the folders of the settings and below them (see `ScanVSTFolder`).
///
/// Writes setting 15 (date and time), also after the user cancelled. Cancel is seen when the scan
/// enters a folder. An unexpected failure is logged under "RefreshPlugins" and told to the user.
/// However the run ends, the file keeps what was written, the buttons are enabled again and the
/// status boxes cleared.
InventorySummary RefreshPlugins(const Application& application, MainWindow& window);

/// Answers which plug-ins are installed, from "\resultfiles\installedplugins.csv". The file is read
/// at the first question, and again when it has changed.
class InstalledPlugins {
  public:
    explicit InstalledPlugins(const Application& application) : application_(application) {}

    /// Whether a plug-in of that name is installed, whatever its type. Case and spaces count.
    /// @return false also when the file is missing or cannot be read, which is logged under
    ///         "PluginIsInstalled" each time. A line that has too few fields is logged when the
    ///         file is read.
    bool PluginIsInstalled(const std::string& name);

  private:
    void ReadIfChanged();

    const Application& application_;
    std::unordered_set<std::string> names_;
    /// The file that the names are from; nothing when it may have changed since, unnoticed.
    std::optional<platform::FileStamp> stamp_;
};

}  // namespace marlo
