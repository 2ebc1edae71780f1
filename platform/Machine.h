#pragma once

#include "platform/Clock.h"
#include "platform/Desktop.h"

namespace marlo::platform {

/// The clock and the desktop of the machine that the program runs on. They live as long as the
/// program.
const Clock& SystemClock();
const Desktop& SystemDesktop();

}  // namespace marlo::platform
