#include "inventory/InstalledPlugins.h"

#include "core/ErrorLog.h"
#include "core/Files.h"
#include "core/LineWriter.h"
#include "core/ResultFileNames.h"
#include "core/Settings.h"
#include "inventory/GetInstalledPlugins.h"
#include "inventory/VstFolders.h"

namespace marlo {

namespace {

/// Scans the folders of the settings until the user cancels.
void ScanVSTFolders(const Application& application, MainWindow& window, LineWriter& output,
                    InventorySummary& summary) {
    VisitVstFolders(application, [&](const std::string& folder) {
        bool cancelled = false;
        ScanVSTFolder(application, window, folder, true, output, cancelled);
        if (cancelled) {
            summary.outcome = InventoryOutcome::Cancelled;
            window.ShowMessage({.text = "Cancelled"});
        }
        return !cancelled;
    });
}

void FindPlugins(const Application& application, MainWindow& window, LineWriter& output,
                 InventorySummary& summary) {
    window.SetText1("Searching for installed DirectX Plugins...");
    window.Repaint();
    GetDirectXPlugins(application, window, output);
    summary.directX = output.LineCount();
    window.SetText1("Searching for installed VST Plugins...");
    summary.outcome = InventoryOutcome::Completed;
    ScanVSTFolders(application, window, output, summary);
    summary.vst = output.LineCount() - summary.directX;
    output.FlushToDisk();
}

/// Logs a failure of `body`.
template <class Body>
void RunPart(const Application& application, InventorySummary& summary, Body body) {
    if (!RunGuarded(application, "RefreshPlugins", body))
        summary.outcome = InventoryOutcome::Failed;
}

void ReplaceList(const Application& application, MainWindow& window, InventorySummary& summary) {
    // Before the old list is deleted: where there is no room for a new one, the old one stays.
    StagedFile list(application, window, result_file::kInstalledPlugins);
    if (!list.Create())
        return;
    MessageAnswer answer = MessageAnswer::None;
    AskCloseFileInUse(application, window, result_file::kInstalledPlugins, answer);
    if (answer == MessageAnswer::Cancel)
        return;
    RunPart(application, summary, [&] { FindPlugins(application, window, list.Lines(), summary); });
    // Also after a failure: what was found until then is kept.
    if (!list.MoveWhatIsWrittenIntoPlace())
        summary = {};
    else if (summary.outcome != InventoryOutcome::Failed)
        WriteSetting(application, setting::kLastInventory, SettingDate(application.clock.Now()));
}

}  // namespace

InventorySummary RefreshPlugins(const Application& application, MainWindow& window) {
    InventorySummary summary;
    RunPart(application, summary, [&] {
        window.SetCancelTag("");
        window.DisableButtons();
        ReplaceList(application, window, summary);
    });
    // Each of these is reached whatever happens to the one before.
    if (summary.outcome == InventoryOutcome::Failed)
        RunPart(application, summary, [&] { ShowUnexpectedError(window); });
    RunPart(application, summary, [&] { window.EnableButtons(); });
    RunPart(application, summary, [&] { window.ClearStatusBar(); });
    return summary;
}

InstalledPlugins::InstalledPlugins(const Application& application)
    : application_(application),
      list_(application, result_file::kInstalledPlugins,
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
