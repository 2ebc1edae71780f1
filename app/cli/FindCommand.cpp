#include <array>

#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/ListOutput.h"
#include "app/cli/TerminalWindow.h"
#include "core/Settings.h"
#include "core/Text.h"
#include "reports/ResultSearch.h"

namespace marlo::cli {

namespace {

/// The match type that was chosen last.
std::string ChosenMatchType(const Application& application) {
    constexpr std::array types = {match_type::kExact, match_type::kStartsWith,
                                  match_type::kEndsWith, match_type::kContains};
    const double chosen = LeadingNumber(getSetting(application, setting::kSearchType));
    const bool isKnown = chosen > 0 && chosen < static_cast<double>(types.size());
    return types.at(isKnown ? static_cast<std::size_t>(chosen) : 0);
}

bool ChosenIgnoreCase(const Application& application) {
    return LeadingNumber(getSetting(application, setting::kIgnoreCase)) == 1;
}

}  // namespace

int RunFind(const Environment& environment, const FindOptions& options) {
    TerminalWindow window(ProgressStyle::None);
    const Application application = ApplicationOf(environment, window);
    const SearchPane search{
        .mode = options.mode,
        .txtSearchText = options.text,
        .cboSearchType = options.matchType ? *options.matchType : ChosenMatchType(application),
        .chkIgnoreCase = options.ignoreCase ? *options.ignoreCase : ChosenIgnoreCase(application)};
    ResultPane pane{application, window};
    cmdFind_Click(pane, search);
    PrintList(pane, options.mode + ": " + options.text, options.format);
    return FinishOutput(window.SawFailure() ? kFailed : kDone);
}

}  // namespace marlo::cli
