#pragma once

#include <string>
#include <string_view>

namespace marlo::platform {

// For a system with two forms of every text.

/// A byte string in the code page that the system takes from the program (UTF-8 where it honours
/// the program's wish, else the user's) as UTF-16. A byte that is not part of the code page becomes
/// the system's replacement.
std::wstring WideText(std::string_view text);

/// The same backwards.
std::string NarrowText(std::wstring_view text);

}  // namespace marlo::platform
