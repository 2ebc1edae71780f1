#pragma once

#include <wx/colour.h>

namespace marlo::gui {

/// The colours that the program chooses by itself, for the desktop's theme of the moment.
struct Theme {
    bool isDark = false;
    wxColour item;  ///< the text of a command item
    wxColour itemOnSearchBar;
    wxColour disabledItem;
    wxColour itemBackground;
    wxColour heading;    ///< "Menu"
    wxColour label;      ///< a text on a pane's picture
    wxColour menuPane;   ///< the ground of the menu pane
    wxColour searchBar;  ///< the ground of the right pane, behind the search
    wxColour rightPane;  ///< the same, below the search bar
    wxColour paneFrame;
    wxColour focusRing;
    wxColour greyedRow;  ///< on both bands of a list
};

/// The texts on the bands of a list and in the search box, which are light in every theme.
inline const wxColour kTextOnLight(0x1A, 0x1A, 0x1A);

/// The theme as it was when the program started, or when it was renewed last.
const Theme& CurrentTheme();
void RenewTheme();

/// A colour value with blue in the high byte and red in the low one.
wxColour ColourOf(int colour);

}  // namespace marlo::gui
