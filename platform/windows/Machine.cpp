#include "platform/Machine.h"

#include "platform/windows/WindowsClock.h"
#include "platform/windows/WindowsDesktop.h"
#include "platform/windows/WindowsRegistry.h"

namespace marlo::platform {

const Clock& SystemClock() {
    static const WindowsClock clock;
    return clock;
}

const Desktop& SystemDesktop() {
    static const WindowsDesktop desktop;
    return desktop;
}

Registry& SystemRegistry() {
    static WindowsRegistry registry;
    return registry;
}

bool HasWinePrefixes() {
    return false;
}

std::unique_ptr<Registry> OpenWinePrefix(const std::string& /*folder*/, std::error_code& error) {
    error = std::make_error_code(std::errc::function_not_supported);
    return nullptr;
}

}  // namespace marlo::platform
