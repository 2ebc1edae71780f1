#include "platform/Machine.h"

#include "platform/File.h"
#include "platform/FileSystem.h"
#include "platform/linux/LinuxClock.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/WinePrefix.h"

namespace marlo::platform {

const Clock& SystemClock() {
    static const LinuxClock clock;
    return clock;
}

const Desktop& SystemDesktop() {
    static const LinuxDesktop desktop;
    return desktop;
}

Registry& SystemRegistry() {
    static WinePrefix prefix(WinePrefix::UsersFolder());
    return prefix;
}

bool HasWinePrefixes() {
    return true;
}

std::unique_ptr<Registry> OpenWinePrefix(const std::string& folder, std::error_code& error) {
    File::OpenForReading(JoinPath(folder, "system.reg"), error);
    return error ? nullptr : std::make_unique<WinePrefix>(folder);
}

}  // namespace marlo::platform
