#pragma once

#include <string>
#include <wx/image.h>
#include <wx/toplevel.h>

namespace marlo::test {

// What the toolkit does not tell about the display.

// Loops of the toolkit's own would not do: inside of one, dialogs do not close.

/// Waits for an event, the display's or the toolkit's own, and runs it; or does what is done when
/// there is none.
void RunNextEvent();

/// Runs the events that the display has sent up to now, what they lead to, and what is done when
/// there are no more.
void RunDueEvents();

/// Whether keys that are pressed go to the program.
bool HasKeyboard();
/// The same, for one of its windows; it may be one of the desktop's own dialogs.
bool HasKeyboard(const wxWindow& window);

/// The control that gets the keys when they go to a window; nullptr for none. The toolkit itself
/// does not know it for each kind of control.
wxWindow* FocusIn(wxWindow& window);

/// The key that opens a context menu, by the name that it has here.
int MenuKey();

/// The title that a window shows.
std::string TitleOf(const wxWindow& window);

/// Whether a window shows an icon of its own.
bool HasIcon(const wxTopLevelWindow& window);

/// Whether the screen shows a window in the size that it was given last.
bool HasItsSize(const wxTopLevelWindow& window);

/// Brings a minimised window back, as the user does.
void Restore(wxTopLevelWindow& window);

/// What is to be seen in a part of a control, once it is painted.
/// @param area in the coordinates of its client area.
wxImage PictureOf(wxWindow& control, const wxRect& area);
/// The same, for the whole of it.
wxImage PictureOf(wxWindow& control);
/// The colour of a point.
wxColour ColourAt(wxWindow& control, const wxPoint& point);

/// Whether two pictures of the same size are the same.
bool AreEqual(const wxImage& a, const wxImage& b);

}  // namespace marlo::test
