#pragma once

#include <string>

#include "core/Application.h"
#include "tests/support/LiteralReader.h"

namespace marlo::test {

/// Scans a project as the program does.
/// @param expected what `ScanLiterally` made of the same file.
/// @return what is not as expected; empty when everything is.
std::string ScanDifference(Application& application, const std::string& path,
                           const ScanResult& expected);

}  // namespace marlo::test
