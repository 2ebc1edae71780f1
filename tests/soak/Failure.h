#pragma once

#include <string>

namespace marlo::soak {

/// Ends the program: says what is wrong, where, and which run it was.
[[noreturn]] void Fail(const std::string& text);

/// What is said of the run when it fails.
void SetRunName(const std::string& name);

}  // namespace marlo::soak
