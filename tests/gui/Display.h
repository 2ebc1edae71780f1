#pragma once

#include <string>
#include <wx/image.h>
#include <wx/window.h>

namespace marlo::test {

// What the toolkit does not tell about the display.

/// Waits for the events that the display has sent up to now; they are run with the next ones.
void FetchEvents();

/// Whether keys that are pressed go to the program.
bool HasKeyboard();
/// The same, for one of its windows; it may be one of the desktop's own dialogs.
bool HasKeyboard(const wxWindow& window);

/// The title that a window shows.
std::string TitleOf(const wxWindow& window);

/// What is to be seen in a part of the screen.
wxImage PictureOf(const wxRect& area);
/// The same, for a whole control.
wxImage PictureOf(const wxWindow& control);
/// The colour of a point in a control.
wxColour ColourAt(const wxWindow& control, const wxPoint& point);

}  // namespace marlo::test
