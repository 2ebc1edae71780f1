#pragma once

#include <cstddef>
#include <string_view>

#include "core/Application.h"
#include "core/MainWindow.h"
#include "core/RecordIndex.h"

namespace marlo {

enum class InventoryOutcome {
    NotStarted,  ///< the user cancelled the question about an old file, which is as it was
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
/// The old file is deleted at the start, once a new one can be written, and the new one is there at
/// the end (see `StagedFile`); what ends the program in between leaves none. However the run ends,
/// the file keeps what was found, or as much of it as the disk took, the buttons are enabled again
/// and the status boxes cleared.
InventorySummary RefreshPlugins(const Application& application, MainWindow& window);

/// Answers for one report or search which plug-ins are installed, from
/// "\resultfiles\installedplugins.csv". The file is read once, as far as the questions need.
class InstalledPlugins {
  public:
    explicit InstalledPlugins(const Application& application);

    /// Whether a plug-in of that name is installed, whatever its type. Case and spaces count.
    /// @return false also when the file is missing or cannot be read, which is logged under
    ///         "PluginIsInstalled" each time. A line that has too few fields is logged when it is
    ///         read.
    bool PluginIsInstalled(std::string_view name);

  private:
    const Application& application_;
    RecordIndex list_;
};

}  // namespace marlo
