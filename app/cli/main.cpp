#include <iostream>
#include <string>
#include <variant>

#include "app/ApplicationFolder.h"
#include "app/cli/CommandLine.h"
#include "app/cli/TerminalText.h"
#include "core/RunTimeError.h"
#include "platform/Machine.h"
#include "platform/Terminal.h"

namespace marlo::cli {

namespace {

void Say(const std::string& text) {
    std::cerr << "marlo-cli: " << Printable(text) << '\n';
}

int Run(const Request& request) {
    const ApplicationFolder folder = FindApplicationFolder(request.applicationFolder);
    for (const std::string& warning : folder.warnings)
        Say(warning);
    if (!folder.failure.empty()) {
        Say(folder.failure);
        return kFailed;
    }
    return request.command({folder.path, platform::SystemClock(), platform::SystemDesktop(),
                            platform::SystemRegistry()});
}

int RunCommandLine(int argc, char** argv) {
    platform::PrepareStreams();
    const auto answer = ReadCommandLine({argv + 1, argv + argc});
    const auto* const exitCode = std::get_if<int>(&answer);
    return exitCode != nullptr ? *exitCode : Run(*std::get_if<Request>(&answer));
}

}  // namespace

}  // namespace marlo::cli

int main(int argc, char** argv) {
    try {
        return marlo::cli::RunCommandLine(argc, argv);
    } catch (...) {
        std::cerr << "marlo-cli: " << marlo::CurrentFailure().description << '\n';
        return marlo::cli::kFailed;
    }
}
