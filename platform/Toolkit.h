#pragma once

#include <string>

namespace marlo::platform {

// What the window's toolkit does not tell or do on every system. To be called when the toolkit is
// running, on its thread.

/// How much larger than the screen's resolution calls for the user wants texts: 1 for not at all.
double TextScale();

enum class ControlRole { Button, Text, Picture };

/// Tells assistive technology what a control is that the program draws by itself, or what one is
/// about that has no text of its own.
/// @param control the toolkit's own handle of it.
/// @param name in UTF-8.
void SetAccessibleName(void* control, ControlRole role, const std::string& name);
/// The same, where the role is known from the kind of control.
void SetAccessibleName(void* control, const std::string& name);

}  // namespace marlo::platform
