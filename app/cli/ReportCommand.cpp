#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/ListOutput.h"
#include "app/cli/TerminalWindow.h"
#include "reports/ReportView.h"

namespace marlo::cli {

int RunReport(const Environment& environment, const ReportOptions& options) {
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    ResultPane pane{application, window};
    ShowInstalledPlugins(pane, options.kind);
    const bool hasColumns = pane.lstSongs.ColumnCount() > 0;
    PrintList(pane, hasColumns ? pane.lstSongs.Header(1) : "", options.format);
    return FinishOutput(window.SawFailure() ? kFailed : kDone);
}

}  // namespace marlo::cli
