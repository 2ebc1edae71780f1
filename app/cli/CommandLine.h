#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "app/cli/Commands.h"

namespace marlo::cli {

/// What the user asks for.
struct Request {
    std::optional<std::string> applicationFolder;  ///< as it was given, if it was
    /// Does it. @return the program's exit code.
    std::function<int(const Environment&)> command;
};

/// Reads a command line.
/// @param arguments without the program's name.
/// @return the exit code instead, when the line is wrong or asks for no more than help, the version
///         or a completion, which is printed.
std::variant<Request, int> ReadCommandLine(std::vector<std::string> arguments);

}  // namespace marlo::cli
