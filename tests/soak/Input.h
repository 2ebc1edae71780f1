#pragma once

#include <wx/gdicmn.h>
#include <wx/toplevel.h>

namespace marlo::soak {

// The mouse and the keyboard of the display. Unlike the toolkit's own simulation of them, these
// routines run no events: what they lead to runs in the event loop, as when a user is at them.

enum class Modifier { Nothing, Shift, Control, Alt };

/// Moves the mouse. @param point on the screen.
void MoveMouse(const wxPoint& point);
/// @param button 1 is the left one, 3 the right one, 4 and 5 the wheel.
void PressButton(unsigned button);
void ReleaseButton(unsigned button);

/// Presses a key and releases it. @param key as GDK_KEY_….
void PressKey(unsigned key, Modifier modifier = Modifier::Nothing);

/// Gives a window the keyboard, which a click does not do here: the window manager takes none.
void Activate(const wxTopLevelWindow& window);

}  // namespace marlo::soak
