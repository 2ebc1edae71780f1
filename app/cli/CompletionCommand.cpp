#include <iostream>

#include "app/cli/CommandSupport.h"
#include "app/cli/Commands.h"
#include "app/cli/Completion.h"

namespace marlo::cli {

namespace {

std::string ScriptFor(Shell shell) {
    switch (shell) {
        case Shell::Bash:
            return BashCompletion();
        case Shell::Zsh:
            return ZshCompletion();
        case Shell::Fish:
            break;
    }
    return FishCompletion();
}

}  // namespace

int PrintCompletion(const CompletionOptions& options) {
    std::cout << ScriptFor(options.shell);
    return FinishOutput(kDone);
}

}  // namespace marlo::cli
