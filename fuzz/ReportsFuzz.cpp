// The four reports and the search over result files with any bytes in them.

#include "core/Settings.h"
#include "fuzz/Sandbox.h"
#include "reports/ReportView.h"
#include "reports/ResultSearch.h"

using namespace marlo;

namespace {

void LookAtAllCells(const ResultList& list) {
    for (std::size_t position = 1; position <= list.RowCount(); ++position)
        for (int column = 1; column < list.ColumnCount(); ++column)
            list.SubItem(list.RowAt(position), column);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Sandbox& sandbox = fuzz::CleanSandbox();
    if (size == 0)
        return 0;
    const unsigned choices = data[0];
    const auto parts = fuzz::PartsOf(fuzz::TextOf(data + 1, size - 1), 4);
    sandbox.folder.Write("resultfiles/tln.csv", parts[0]);
    sandbox.folder.Write("resultfiles/installedplugins.csv", parts[1]);
    sandbox.folder.Write("resultfiles/fln.csv", parts[2]);
    WriteSetting(sandbox.application, setting::kIgnoreDirectX, (choices & 1U) != 0 ? "1" : "0");
    WriteSetting(sandbox.application, setting::kIgnoreOff, (choices & 2U) != 0 ? "1" : "0");

    ResultPane pane{sandbox.application, sandbox.window};
    for (const ReportKind kind :
         {ReportKind::Used, ReportKind::Unused, ReportKind::All, ReportKind::Uninstalled}) {
        ShowInstalledPlugins(pane, NameOf(kind));
        LookAtAllCells(pane.lstSongs);
    }
    cmdFind_Click(pane, {.mode = (choices & 4U) != 0 ? SearchMode::PluginsInProject
                                                     : SearchMode::ProjectsByPlugin,
                         .txtSearchText = parts[3],
                         .cboSearchType = MatchTypeAt(choices / 8 % kMatchTypes.size()),
                         .chkIgnoreCase = (choices & 32U) != 0});
    LookAtAllCells(pane.lstSongs);
    return 0;
}
