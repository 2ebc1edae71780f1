#include <iostream>
#include <string>

#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/TerminalText.h"
#include "app/cli/TerminalWindow.h"
#include "dialogs/RunLog.h"

namespace marlo::cli {

namespace {

void PrintLine(const std::string& label, const std::string& value) {
    std::cout << "  " << label << ':';
    if (!value.empty())
        std::cout << ' ' << Printable(value);
    std::cout << '\n';
}

}  // namespace

int PrintRunLog(const Environment& environment) {
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    const RunLog log = ReadRunLog(application);
    std::cout << "Search SX Projects\n";
    PrintLine("Date", log.searchDate);
    PrintLine("Path", log.searchPath);
    std::cout << "Find installed Plugins\n";
    PrintLine("Date", log.inventoryDate);
    return FinishOutput(window.SawFailure() ? kFailed : kDone);
}

}  // namespace marlo::cli
