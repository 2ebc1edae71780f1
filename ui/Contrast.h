#pragma once

#include <cstdint>

namespace marlo {

/// A colour of the screen.
struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Rgb&) const = default;
};

/// How well one colour can be read on another: 1 for not at all to 21, by the formula that the
/// guidelines for accessible web pages use.
double ContrastOf(Rgb text, Rgb background);

/// What those guidelines ask for: of text, and of what is not only text.
inline constexpr double kTextContrast = 4.5;
inline constexpr double kShapeContrast = 3.0;

/// `text`, made darker or lighter, whichever gets there, until its contrast with the background is
/// enough. Its hue stays.
Rgb MadeReadable(Rgb text, Rgb background, double contrast);

}  // namespace marlo
