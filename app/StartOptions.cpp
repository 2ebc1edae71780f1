#include "app/StartOptions.h"

#include <system_error>

#include "platform/Machine.h"

namespace marlo {

platform::Registry& OpenedRegistry::Get() const {
    return prefix ? *prefix : platform::SystemRegistry();
}

OpenedRegistry OpenRegistry(const std::optional<std::string>& winePrefix) {
    if (!winePrefix)
        return {};
    std::error_code error;
    OpenedRegistry opened{.prefix = platform::OpenWinePrefix(*winePrefix, error), .failure = {}};
    if (!opened.prefix)
        opened.failure =
            *winePrefix + ": no Wine prefix that can be read (" + error.message() + ")";
    return opened;
}

}  // namespace marlo
