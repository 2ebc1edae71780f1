#include "app/gui/TwipScale.h"

#include <cmath>
#include <wx/window.h>

#include "platform/Toolkit.h"

namespace marlo::gui {

TwipScale::TwipScale(const wxWindow& window) {
    constexpr int precision = 1000;
    pixelsPerTwip_ = static_cast<double>(window.FromDIP(precision)) / precision /
                     kTwipsPerDesignPixel * platform::TextScale();
}

int TwipScale::Pixels(std::int32_t twips) const {
    return static_cast<int>(std::lround(twips * pixelsPerTwip_));
}

std::int32_t TwipScale::Twips(int pixels) const {
    return static_cast<std::int32_t>(std::lround(pixels / pixelsPerTwip_));
}

int DesignPixels(const wxWindow& window, int pixels) {
    return TwipScale(window).Pixels(pixels * kTwipsPerDesignPixel);
}

}  // namespace marlo::gui
