#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Application.h"
#include "tests/support/Fakes.h"
#include "tests/support/MemoryRegistry.h"
#include "tests/support/TempFolder.h"

namespace marlo::fuzz {

/// An application that a fuzzing process runs its inputs through, one after the other. What it logs
/// is not kept.
struct Sandbox {
    Sandbox() { folder.MakeFolder("resultfiles"); }

    test::TempFolder folder;
    test::FakeClock clock;
    test::FakeDesktop desktop;
    test::MemoryRegistry registry;
    test::RecordingWindow window;
    Application application{folder.Path(), clock, desktop, registry, {}};
};

/// The process's sandbox, for the next input: without what the one before it left in memory, and
/// without the log's file.
Sandbox& CleanSandbox();

/// The bytes of an input as text.
std::string_view TextOf(const std::uint8_t* data, std::size_t size);

/// Takes an input apart into as many texts, at the lines "----"; those that are missing are empty.
std::vector<std::string> PartsOf(std::string_view input, std::size_t count);

/// Ends the process, which the fuzzer reports with its input, unless something holds.
/// @param what that does not hold, if so.
void Require(bool holds, std::string_view what);

}  // namespace marlo::fuzz
