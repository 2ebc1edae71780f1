#pragma once

#include <array>
#include <cstdint>

#include "ui/CommandItems.h"

namespace marlo {

/// Where a control stands in the main window. In twips from the left top of the client area; all
/// controls are placed so, whatever container they are in.
struct Place {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    std::int32_t Right() const { return left + width; }
    std::int32_t Bottom() const { return top + height; }

    bool operator==(const Place&) const = default;
};

/// The places of the main window's controls.
struct FormLayout {
    Place boxMenu;
    Place imgMenu;
    Place Label5;
    Place Image1;
    std::array<Place, kCommandItemCount> cmdbuttons;
    std::array<Place, 2> csvIcons;  ///< beside the items that open a result file
    Place btnDonate;
    std::int32_t cableBottom = 0;  ///< what hangs in the menu pane's picture ends there or above
    Place boxRightPane;
    Place imgRightPane;
    Place cboSearchType;
    Place Label3;
    Place chkIgnoreCase;
    Place txtSearchText;
    Place cmdFind;
    Place lstSongs;
    Place Text1;
    Place Text2;
};

/// A width and a height, in twips.
struct TwipSize {
    std::int32_t width = 0;
    std::int32_t height = 0;
};

/// The sizes that controls need with the fonts and the look of the desktop.
struct NaturalSizes {
    std::array<TwipSize, kCommandItemCount> cmdbuttons;
    TwipSize Label3;
    TwipSize Label5;
    TwipSize cboSearchType;
    TwipSize chkIgnoreCase;
    TwipSize txtSearchText;
    TwipSize statusBox;
};

/// The client area that a new window gets.
inline constexpr TwipSize kDefaultClientSize = {15600, 9900};

/// The layout that the window was drawn in. Controls are as large as they need to be; where the
/// menu's captions do not fit their pane, it grows, and what is right of it moves.
FormLayout DesignLayout(const NaturalSizes& natural);

/// The layout for a client area, worked out from the places of today. A width or height that would
/// be negative is refused: it stays what it is, and the other steps go on with that.
FormLayout LaidOut(FormLayout layout, const TwipSize& client, bool isDonateVisible);

}  // namespace marlo
