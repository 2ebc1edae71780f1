#pragma once

#include <memory>
#include <string>
#include <system_error>

#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Registry.h"

namespace marlo::platform {

/// The clock, the desktop and the registry of the machine that the program runs on. They live as
/// long as the program. On Linux the registry is the user's Wine prefix (`WINEPREFIX`, else
/// "~/.wine"), which is read when something is first asked for; without one it is empty.
const Clock& SystemClock();
const Desktop& SystemDesktop();
Registry& SystemRegistry();

/// Whether registries are Wine prefixes here.
bool HasWinePrefixes();

/// The registry of a Wine prefix.
/// @param folder the prefix's folder, which holds "system.reg".
/// @return nothing, and `error` set, when there is none that can be read.
std::unique_ptr<Registry> OpenWinePrefix(const std::string& folder, std::error_code& error);

}  // namespace marlo::platform
