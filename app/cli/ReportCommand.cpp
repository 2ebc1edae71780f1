#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/ListOutput.h"
#include "app/cli/TerminalWindow.h"

namespace marlo::cli {

namespace {

constexpr const char* kCommand = "report";

}  // namespace

int RunReport(const Environment& environment, const ReportOptions& options) {
    if (options.endsWithNull && options.format != ListFormat::Paths)
        return ComplainOfNull(kCommand);
    if (options.kind == ReportKind::Uninstalled && options.format == ListFormat::Paths)
        return Complain(kCommand, kWrongUsage,
                        "plug-ins that are not installed have no paths to print");
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    ResultPane pane{application, window};
    ShowInstalledPlugins(pane, NameOf(options.kind));
    const bool hasColumns = pane.lstSongs.ColumnCount() > 0;
    PrintList(pane, hasColumns ? pane.lstSongs.Header(1) : "",
              {options.format, options.endsWithNull, options.colours});
    return FinishOutput(window.SawFailure() ? kFailed : kDone);
}

}  // namespace marlo::cli
