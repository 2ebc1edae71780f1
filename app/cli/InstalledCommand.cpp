#include <iostream>
#include <string>
#include <system_error>

#include "app/StartOptions.h"
#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/TerminalWindow.h"
#include "inventory/InstalledPlugins.h"
#include "inventory/VstFolders.h"
#include "platform/Terminal.h"

namespace marlo::cli {

namespace {

void PrintSummary(const InventorySummary& summary) {
    std::cout << Counted(summary.directX, "DirectX plug-in") << ", "
              << Counted(summary.vst, "VST plug-in") << ".\n";
}

int ExitCodeOf(const InventorySummary& summary, const TerminalWindow& window) {
    if (summary.outcome == InventoryOutcome::Cancelled || window.WasInterruptedAtQuestion())
        return kCancelled;
    return window.SawFailure() || summary.outcome != InventoryOutcome::Completed ? kFailed : kDone;
}

/// Rebuilds the list with what the environment's registry holds.
int Refresh(const Environment& environment, bool showProgress) {
    TerminalWindow window(ProgressStyleFor(showProgress));
    const Application application = ApplicationOf(environment, window);
    const std::error_code problem = environment.registry.Problem();
    if (problem)
        Complain("installed", kFailed, "the Wine prefix cannot be read: " + problem.message());
    FillInVstFolder(application);
    if (ReadVstFolders(application).empty())
        Complain("installed", kDone,
                 "no VST plug-in folder is known yet; add one with: marlo-cli folders add DIR");
    platform::NoteInterrupts();
    const InventorySummary summary = RefreshPlugins(application, window);
    if (summary.outcome == InventoryOutcome::Completed ||
        summary.outcome == InventoryOutcome::Cancelled)
        PrintSummary(summary);
    const int exitCode = ExitCodeOf(summary, window);
    return FinishOutput(exitCode == kDone && problem ? kFailed : exitCode);
}

}  // namespace

int RunInstalled(const Environment& environment, const InstalledOptions& options) {
    if (!options.winePrefix)
        return Refresh(environment, options.showProgress);
    const OpenedRegistry registry = OpenRegistry(options.winePrefix);
    if (!registry.failure.empty())
        return Complain("installed", kFailed, registry.failure);
    return Refresh(
        {environment.applicationFolder, environment.clock, environment.desktop, registry.Get()},
        options.showProgress);
}

}  // namespace marlo::cli
