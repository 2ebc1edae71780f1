#include "inventory/InstalledPlugins.h"

#include <system_error>
#include <utility>

#include "core/ErrorLog.h"
#include "core/Files.h"
#include "core/LineWriter.h"
#include "core/RunTimeError.h"
#include "core/Settings.h"
#include "inventory/DirectXPlugins.h"
#include "inventory/ScanVSTFolder.h"
#include "inventory/VstFolders.h"
#include "platform/File.h"

namespace marlo {

namespace {

LineWriter OpenOutput(const Application& application) {
    std::error_code error;
    auto file = platform::File::OpenForAppending(
        ApplicationPath(application, "\\Resultfiles\\installedplugins.csv"), error);
    ThrowOnPath(error);
    return LineWriter(std::move(file));
}

/// Scans the folders of the settings until the user cancels.
void ScanVSTFolders(const Application& application, MainWindow& window, LineWriter& output,
                    InventorySummary& summary) {
    for (const std::string& folder : ReadVstFolders(application)) {
        bool cancelled = false;
        ScanVSTFolder(application, window, folder, true, output, cancelled);
        output.Flush();
        if (cancelled) {
            summary.outcome = InventoryOutcome::Cancelled;
            window.ShowMessage({.text = "Cancelled"});
            return;
        }
    }
}

void FindPlugins(const Application& application, MainWindow& window, InventorySummary& summary) {
    MessageAnswer answer = MessageAnswer::None;
    AskCloseFileInUse(application, window, "\\Resultfiles\\installedplugins.csv", answer);
    if (answer == MessageAnswer::Cancel)
        return;
    LineWriter output = OpenOutput(application);
    window.SetText1("Searching for installed DirectX Plugins...");
    window.Repaint();
    GetDirectXPlugins(application, window, output);
    output.Flush();
    summary.directX = output.LineCount();
    window.SetText1("Searching for installed VST Plugins...");
    summary.outcome = InventoryOutcome::Completed;
    ScanVSTFolders(application, window, output, summary);
    summary.vst = output.LineCount() - summary.directX;
    WriteSetting(application, setting::kLastInventory, SettingDate(application.clock.Now()));
}

}  // namespace

InventorySummary RefreshPlugins(const Application& application, MainWindow& window) {
    InventorySummary summary;
    window.SetCancelTag("");
    window.DisableButtons();
    const bool completed = RunGuarded(application, "RefreshPlugins",
                                      [&] { FindPlugins(application, window, summary); });
    if (!completed) {
        summary.outcome = InventoryOutcome::Failed;
        ShowUnexpectedError(window);
    }
    window.EnableButtons();
    window.ClearStatusBar();
    return summary;
}

InstalledPlugins::InstalledPlugins(const Application& application)
    : application_(application),
      list_(application, "\\resultfiles\\installedplugins.csv",
            [](RecordReader& record, std::string& name) {
                name = record[1];
                return true;
            }) {}

bool InstalledPlugins::PluginIsInstalled(std::string_view name) {
    bool isInstalled = false;
    RunGuarded(application_, "PluginIsInstalled",
               [&] { isInstalled = list_.Find(name).has_value(); });
    return isInstalled;
}

}  // namespace marlo
