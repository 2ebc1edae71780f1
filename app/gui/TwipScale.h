#pragma once

#include <cstdint>
#include <wx/gdicmn.h>

class wxWindow;

namespace marlo::gui {

/// How many of a window's pixels lengths have: by the resolution of its screen, and by how much
/// larger the user has texts drawn, so that the window grows with them.
class TwipScale {
  public:
    explicit TwipScale(const wxWindow& window);

    int Pixels(std::int32_t twips) const;
    std::int32_t Twips(int pixels) const;
    wxSize Pixels(std::int32_t width, std::int32_t height) const {
        return {Pixels(width), Pixels(height)};
    }

  private:
    double pixelsPerTwip_;
};

/// Of a design for 96 dots per inch.
inline constexpr int kTwipsPerDesignPixel = 1440 / 96;

/// A length of a design for 96 dots per inch, in a window's pixels.
int DesignPixels(const wxWindow& window, int pixels);

}  // namespace marlo::gui
