// The registry files of Wine prefixes, walked as far as they lead.

#include <memory>
#include <system_error>

#include "fuzz/Sandbox.h"
#include "platform/Machine.h"

using namespace marlo;

namespace {

constexpr int kDeepest = 6;

void Walk(platform::Registry& registry, platform::RegistryKey hive, const std::string& path,
          int depth) {
    using namespace platform::registry_result;
    platform::RegistryKey key = 0;
    if (registry.OpenKey(hive, path, key) != kSuccess)
        return;
    for (const char* const name : {"", "FriendlyName", "Merit", "VSTPluginsPath"}) {
        std::int32_t type = 0;
        std::uint32_t length = 0;
        std::vector<unsigned char> buffer(64);
        if (registry.QueryValue(key, name, type, buffer, length) == kSuccess)
            fuzz::Require(length <= buffer.size(), "a value fits its buffer");
    }
    std::uint32_t count = 0;
    std::uint32_t longest = 0;
    fuzz::Require(registry.QueryInfo(key, count, longest) == kSuccess, "an open key has a size");
    std::vector<char> buffer(longest + 1);
    for (std::uint32_t i = 0; i < count && depth > 0; ++i) {
        std::uint32_t length = 0;
        fuzz::Require(registry.EnumerateKey(key, i, buffer, length) == kSuccess,
                      "every key that is counted has a name that fits");
        Walk(registry, hive, path + (path.empty() ? "" : "\\") + std::string(buffer.data(), length),
             depth - 1);
    }
    registry.CloseKey(key);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Sandbox& sandbox = fuzz::CleanSandbox();
    const auto files = fuzz::PartsOf(fuzz::TextOf(data, size), 2);
    sandbox.folder.Write("system.reg", files[0]);
    sandbox.folder.Write("user.reg", files[1]);
    std::error_code error;
    const auto registry = platform::OpenWinePrefix(sandbox.folder.Path(), error);
    if (!registry)
        return 0;
    for (const platform::RegistryKey hive :
         {platform::kClassesRoot, platform::kCurrentUser, platform::kLocalMachine})
        for (const char* const path : {"", "Software", "CLSID", "Software\\VST"})
            Walk(*registry, hive, path, kDeepest);
    return 0;
}
