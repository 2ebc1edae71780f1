// Scans of projects, which must find what a plain byte-at-a-time scan finds.

#include "fuzz/Sandbox.h"
#include "tests/support/ScanComparison.h"

using namespace marlo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Sandbox& sandbox = fuzz::CleanSandbox();
    const std::string bytes(fuzz::TextOf(data, size));
    const std::string path = sandbox.folder.Write("project.cpr", bytes);
    const test::ScanResult expected = test::ScanLiterally(path, bytes);
    const std::string difference = test::ScanDifference(sandbox.application, path, expected);
    fuzz::Require(difference.empty(), "both scans agree on " + difference);
    return 0;
}
