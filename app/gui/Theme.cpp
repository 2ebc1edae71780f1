#include "app/gui/Theme.h"

#include <cstdint>
#include <wx/settings.h>

#include "platform/Toolkit.h"
#include "ui/Contrast.h"

namespace marlo::gui {

namespace {

const wxColour kLightSearchBar(0xE6, 0xEF, 0xFC);
const wxColour kDarkSearchBar(0x32, 0x3C, 0x4B);

// The bands of a list are light in every theme, so its grey is no theme's; some systems have one
// for it.
constexpr std::int32_t kGreyedRow = 0x6B6B6B;

Rgb RgbOf(const wxColour& colour) {
    return {colour.Red(), colour.Green(), colour.Blue()};
}

wxColour Readable(const wxColour& text, const wxColour& background, double contrast) {
    const Rgb made = MadeReadable(RgbOf(text), RgbOf(background), contrast);
    return {made.red, made.green, made.blue};
}

/// The highlight colour is the items' own; only where it cannot be made out at all, as in some dark
/// themes, it is changed as far as a text needs.
wxColour ItemColour(const wxColour& background) {
    const wxColour highlight = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT);
    if (ContrastOf(RgbOf(highlight), RgbOf(background)) >= kShapeContrast)
        return highlight;
    return Readable(highlight, background, kTextContrast);
}

Theme ReadTheme() {
    const wxColour window = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW);
    Theme theme;
    theme.isDark = wxSystemSettings::GetAppearance().IsUsingDarkBackground();
    theme.itemBackground = window;
    theme.item = ItemColour(window);
    theme.disabledItem =
        Readable(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT), window, kTextContrast);
    theme.heading = theme.isDark ? wxColour(0xE6, 0xEE, 0xFA) : wxColour(0x1E, 0x2A, 0x3A);
    theme.label = theme.heading;
    theme.focusRing = theme.item;
    // Nearly the window's: items with a background of their own must not stand out.
    theme.menuPane = theme.isDark ? wxColour(0x2D, 0x2D, 0x2D) : wxColour(0xFE, 0xFE, 0xFF);
    theme.searchBar = theme.isDark ? kDarkSearchBar : kLightSearchBar;
    theme.itemOnSearchBar = ItemColour(theme.searchBar);
    theme.rightPane = theme.isDark ? wxColour(0x2D, 0x2F, 0x33) : wxColour(0xF4, 0xF8, 0xFE);
    theme.paneFrame = theme.isDark ? wxColour(0x47, 0x4D, 0x57) : wxColour(0xC3, 0xD0, 0xE4);
    theme.greyedRow = ColourOf(platform::ButtonShadowColour().value_or(kGreyedRow));
    return theme;
}

Theme& StoredTheme() {
    static Theme theme = ReadTheme();
    return theme;
}

}  // namespace

const Theme& CurrentTheme() {
    return StoredTheme();
}

void RenewTheme() {
    StoredTheme() = ReadTheme();
}

wxColour ColourOf(int colour) {
    return wxColour(static_cast<unsigned long>(colour));  // the toolkit's own order of bytes
}

}  // namespace marlo::gui
