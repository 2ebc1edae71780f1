#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/Application.h"
#include "tests/support/Fakes.h"
#include "tests/support/MemoryRegistry.h"
#include "tests/support/TempFolder.h"

namespace marlo::test {

/// A test with an application in a temporary folder, its result folder in place.
class ApplicationTest : public testing::Test {
  protected:
    ApplicationTest() { folder.MakeFolder("resultfiles"); }

    /// The text of the error log; empty when there is none.
    std::string Log() const {
        const std::string name = "resultfiles/errorlog.txt";
        return folder.Exists(name) ? folder.Read(name) : "";
    }

    /// A line of the error log as it is written at the fake clock's time.
    static std::string LogLine(const std::string& procedure, int number,
                               const std::string& description) {
        return "Date: 03:10:22 15/11/2026 Procedure: " + procedure +
               " Error No.: " + std::to_string(number) + " Description: " + description + "\r\n";
    }

    TempFolder folder;
    FakeClock clock;
    FakeDesktop desktop;
    RecordingWindow window;
    MemoryRegistry registry;
    Application application{folder.Path(), clock, desktop, registry, {}};
};

}  // namespace marlo::test
