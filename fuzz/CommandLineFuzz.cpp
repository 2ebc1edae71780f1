// Command lines, an argument a line. They are read, not obeyed.

#include <iostream>
#include <sstream>

#include "app/cli/CommandLine.h"
#include "fuzz/Sandbox.h"

using namespace marlo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::ostringstream out;
    std::ostringstream complaint;
    auto* const usualOut = std::cout.rdbuf(out.rdbuf());
    auto* const usualComplaint = std::cerr.rdbuf(complaint.rdbuf());
    std::vector<std::string> arguments;
    std::istringstream lines{std::string(fuzz::TextOf(data, size))};
    for (std::string line; std::getline(lines, line);)
        arguments.push_back(line);
    const auto answer = cli::ReadCommandLine(arguments);
    std::cout.rdbuf(usualOut);
    std::cerr.rdbuf(usualComplaint);

    const auto* const request = std::get_if<cli::Request>(&answer);
    if (request != nullptr) {
        fuzz::Require(static_cast<bool>(request->command), "there is something to do");
        return 0;
    }
    const int exitCode = std::get<int>(answer);
    fuzz::Require(exitCode == cli::kDone ? complaint.str().empty() : !complaint.str().empty(),
                  "what is wrong is said");
    for (const char c : complaint.str())
        fuzz::Require(c == '\n' || static_cast<unsigned char>(c) >= ' ', "it is said harmlessly");
    return 0;
}
