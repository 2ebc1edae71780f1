#pragma once

#include <string>
#include <vector>

namespace marlo::test {

/// What a scan of one project gives.
struct ScanResult {
    std::vector<std::string> occurrences;
    std::vector<std::string> keys;
    std::vector<std::string> states;
    bool completed = true;   ///< false after a failure
    std::string lastRecord;  ///< the last record built
    int zeroNames = 0;       ///< names that begin with a zero byte
    int droppedNames = 0;    ///< names that run to the end of the file
    int missingZeros = 0;    ///< banks without a zero byte in front
};

/// Scans a project's bytes one at a time, step by step, with nothing clever about it: what the
/// fast scan is compared with.
ScanResult ScanLiterally(const std::string& path, const std::string& bytes);

}  // namespace marlo::test
