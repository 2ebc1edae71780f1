#pragma once

#include <string>
#include <string_view>

namespace marlo::platform {

/// A byte string in the code page that the system takes from the program (UTF-8 where it honours
/// the program's wish, else the user's) as UTF-16. A byte that is not part of the code page becomes
/// the system's replacement.
std::wstring WideText(std::string_view text);

/// The same backwards.
std::string NarrowText(std::wstring_view text);

/// A path for the system's wide routines, which take a long one only from its root on and marked as
/// such.
std::wstring WidePath(const std::string& path);

}  // namespace marlo::platform
