#include "ui/Contrast.h"

#include <algorithm>
#include <cmath>

namespace marlo {

namespace {

double Linear(std::uint8_t channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(Rgb colour) {
    return 0.2126 * Linear(colour.red) + 0.7152 * Linear(colour.green) +
           0.0722 * Linear(colour.blue);
}

std::uint8_t Mixed(std::uint8_t channel, std::uint8_t with, double share) {
    return static_cast<std::uint8_t>(std::lround(channel + (with - channel) * share));
}

Rgb Mixed(Rgb colour, Rgb with, double share) {
    return {Mixed(colour.red, with.red, share), Mixed(colour.green, with.green, share),
            Mixed(colour.blue, with.blue, share)};
}

}  // namespace

double ContrastOf(Rgb text, Rgb background) {
    const double a = Luminance(text) + 0.05;
    const double b = Luminance(background) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

Rgb MadeReadable(Rgb text, Rgb background, double contrast) {
    constexpr Rgb black{0, 0, 0};
    constexpr Rgb white{255, 255, 255};
    const Rgb end = ContrastOf(black, background) > ContrastOf(white, background) ? black : white;
    constexpr int steps = 50;
    for (int step = 0; step < steps; ++step) {
        const Rgb mixed = Mixed(text, end, static_cast<double>(step) / steps);
        if (ContrastOf(mixed, background) >= contrast)
            return mixed;
    }
    return end;
}

}  // namespace marlo
