// Registrations of DirectX filters, and whether Cubase SX can use them.

#include <algorithm>

#include "fuzz/Sandbox.h"
#include "inventory/FilterData.h"

using namespace marlo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Sandbox& sandbox = fuzz::CleanSandbox();
    if (size == 0)
        return 0;
    // The first byte is the type of the value, which is binary in registries that are sound.
    constexpr std::int32_t binary = 3;
    const std::int32_t type = data[0] < 12 ? data[0] : binary;
    sandbox.registry.SetText(platform::kClassesRoot, "Filter", "FriendlyName", "Echo");
    sandbox.registry.Set(platform::kClassesRoot, "Filter", "FilterData", type,
                         {data + 1, data + size});
    const PinTypeTable table =
        GetPluginTypes(sandbox.application, platform::kClassesRoot, "Filter");
    std::string name = "unset";
    const bool isCompatible = IsCubaseCompatible(sandbox.application, table, name);
    fuzz::Require(name == "Echo" || name == "unset" || name.empty(), "the name is the filter's");
    if (isCompatible)
        for (const char* const pin : {"1", "2"})
            fuzz::Require(std::find(table.begin(), table.end(), pin) != table.end(),
                          "an effect has two pins");
    fuzz::Require(sandbox.registry.OpenKeyCount() == 0, "keys are closed");
    return 0;
}
