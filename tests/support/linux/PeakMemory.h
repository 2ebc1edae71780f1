#pragma once

#include <fstream>
#include <string>

#include <gtest/gtest.h>

namespace marlo::test {

/// The most memory that this process has used since `ForgetPeakMemory`, in KiB.
inline long PeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "VmHWM:") {
            long kib = 0;
            status >> kib;
            return kib;
        }
    ADD_FAILURE() << "no VmHWM";
    return 0;
}

/// Forgets what earlier steps have used.
inline void ForgetPeakMemory() {
    std::ofstream("/proc/self/clear_refs") << 5;
}

}  // namespace marlo::test
