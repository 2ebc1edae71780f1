#include "tests/gui/Display.h"

#include <algorithm>
#include <cstddef>

namespace marlo::test {

wxImage PictureOf(wxWindow& control) {
    return PictureOf(control, control.GetClientRect());
}

wxColour ColourAt(wxWindow& control, const wxPoint& point) {
    const wxImage pixel = PictureOf(control, wxRect(point, wxSize(1, 1)));
    return {pixel.GetRed(0, 0), pixel.GetGreen(0, 0), pixel.GetBlue(0, 0)};
}

bool AreEqual(const wxImage& a, const wxImage& b) {
    const auto size = std::size_t{3} * static_cast<std::size_t>(a.GetWidth()) *
                      static_cast<std::size_t>(a.GetHeight());
    return a.GetSize() == b.GetSize() && std::equal(a.GetData(), a.GetData() + size, b.GetData());
}

}  // namespace marlo::test
