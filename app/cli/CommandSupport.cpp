#include "app/cli/CommandSupport.h"

#include <iostream>
#include <limits>

#include "app/cli/TerminalText.h"
#include "core/Settings.h"
#include "platform/Terminal.h"

namespace marlo::cli {

Application ApplicationOf(const Environment& environment, TerminalWindow& window) {
    return {environment.applicationFolder, environment.clock, environment.desktop,
            environment.registry,
            [&window](const ErrorEntry& entry) { window.ShowLogEntry(entry); }};
}

ProgressStyle ProgressStyleFor(bool wantedAnyway) {
    if (platform::ObeysSequences(platform::Stream::Error))
        return ProgressStyle::Redrawn;
    return wantedAnyway ? ProgressStyle::Lines : ProgressStyle::None;
}

int Complain(const std::string& command, int exitCode, const std::string& text) {
    std::cerr << "marlo-cli: " << command << ": " << Printable(text) << '\n';
    return exitCode;
}

int ComplainOfPath(const std::string& command, const std::string& path) {
    return Complain(command, kFailed,
                    path + ": a path with a space at its end or of more than " +
                        std::to_string(kMaxSettingLength) + " bytes cannot be kept");
}

int ComplainOfNull(const std::string& command) {
    return Complain(command, kWrongUsage, "--null goes with --format paths only");
}

std::string Counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

int MaxColumnWidth() {
    constexpr int onTerminal = 60;
    return platform::IsTerminal(platform::Stream::Out) ? onTerminal
                                                       : std::numeric_limits<int>::max();
}

void PrintField(const std::string& field) {
    std::cout << (platform::IsTerminal(platform::Stream::Out) ? Printable(field) : field) << '\n';
}

int FinishOutput(int exitCode) {
    std::cout.flush();
    if (std::cout)
        return exitCode;
    std::cerr << "marlo-cli: the output cannot be written\n";
    return kFailed;
}

}  // namespace marlo::cli
