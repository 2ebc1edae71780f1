#include <iostream>
#include <string>
#include <system_error>
#include <variant>

#include "app/cli/CommandLine.h"
#include "app/cli/TerminalText.h"
#include "core/RunTimeError.h"
#include "platform/FileSystem.h"
#include "platform/Machine.h"
#include "platform/Terminal.h"

namespace marlo::cli {

namespace {

int Run(const Request& request) {
    std::error_code error;
    const std::string folder = platform::FullPath(request.applicationFolder, error);
    if (error || !platform::IsFolder(folder, error)) {
        std::cerr << "marlo-cli: the application folder " << Printable(request.applicationFolder)
                  << " does not exist\n";
        return kFailed;
    }
    return request.command(
        {folder, platform::SystemClock(), platform::SystemDesktop(), platform::SystemRegistry()});
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
        std::cerr << "marlo-cli: " << marlo::CurrentFailure().Description() << '\n';
        return marlo::cli::kFailed;
    }
}
