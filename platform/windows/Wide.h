#pragma once

#include <string>

#include "platform/WideText.h"

namespace marlo::platform {

/// A path for the system's wide routines, which take a long one only from its root on and marked as
/// such.
std::wstring WidePath(const std::string& path);

/// A path without the mark of a long one.
std::wstring WithoutLongMark(std::wstring path);

}  // namespace marlo::platform
