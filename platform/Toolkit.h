#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace marlo::platform {

// What the window's toolkit does not tell or do on every system. To be called when the toolkit is
// running, on its thread.

/// Has the toolkit's library begin to look the system's fonts up, which it does on a thread of its
/// own. The first text waits for that, and before it the toolkit has to read its theme.
void StartReadingFonts();

/// Has the arrows of drop-down lists taken from the toolkit itself where that looks the same.
/// Finding them in the icon theme takes longer than everything else about such a list. To be called
/// before any is made.
void ShortenWayToArrows();

/// How much larger than the screen's resolution calls for the user wants texts: 1 for not at all.
double TextScale();

/// The system's colour of the shadow of buttons, which is the grey of texts in a list too: blue in
/// the high byte, red in the low one. Nothing where the program has a grey of its own for those.
std::optional<std::int32_t> ButtonShadowColour();

/// Sends the display what was asked of it and is still being collected.
void FlushDisplay();

enum class ControlRole { Button, Text, Picture };

/// Tells assistive technology what a control is that the program draws by itself, or what one is
/// about that has no text of its own.
/// @param control the toolkit's own handle of it.
/// @param name in UTF-8.
void SetAccessibleName(void* control, ControlRole role, const std::string& name);
/// The same, where the role is known from the kind of control.
void SetAccessibleName(void* control, const std::string& name);

}  // namespace marlo::platform
