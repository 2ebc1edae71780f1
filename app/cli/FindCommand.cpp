#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/ListOutput.h"
#include "app/cli/TerminalWindow.h"
#include "reports/ResultSearch.h"

namespace marlo::cli {

int RunFind(const Environment& environment, const FindOptions& options) {
    if (options.endsWithNull && options.format != ListFormat::Paths)
        return ComplainOfNull("find");
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    const SearchPane search{
        .mode = options.where == FindOptions::Where::Projects ? SearchMode::PluginsInProject
                                                              : SearchMode::ProjectsByPlugin,
        .txtSearchText = options.text,
        .cboSearchType = options.matchType ? options.matchType : ReadMatchType(application),
        .chkIgnoreCase = options.ignoreCase ? *options.ignoreCase : ReadIgnoreCase(application)};
    ResultPane pane{application, window};
    cmdFind_Click(pane, search);
    PrintList(pane, search.Title(), {options.format, options.endsWithNull, options.colours});
    return FinishOutput(window.SawFailure() ? kFailed : kDone);
}

}  // namespace marlo::cli
