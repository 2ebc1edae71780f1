#include "platform/Machine.h"

#include "platform/linux/LinuxClock.h"
#include "platform/linux/LinuxDesktop.h"

namespace marlo::platform {

const Clock& SystemClock() {
    static const LinuxClock clock;
    return clock;
}

const Desktop& SystemDesktop() {
    static const LinuxDesktop desktop;
    return desktop;
}

}  // namespace marlo::platform
