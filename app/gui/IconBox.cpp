#include "app/gui/IconBox.h"

#include <wx/artprov.h>
#include <wx/image.h>
#include <wx/window.h>

#include "app/gui/Pictures.h"
#include "app/gui/TextConversion.h"
#include "app/gui/TwipScale.h"

namespace marlo::gui {

namespace {

constexpr int kSmallIconSize = 16;  // design pixels

wxBitmap PictureOf(const platform::ShellIcon& icon, const wxWindow& window, const wxSize& size) {
    wxImage picture(icon.width, icon.height, false);
    picture.InitAlpha();
    const unsigned char* pixel = icon.pixels.data();
    for (int y = 0; y < icon.height; ++y)
        for (int x = 0; x < icon.width; ++x, pixel += 4) {
            picture.SetRGB(x, y, pixel[0], pixel[1], pixel[2]);
            picture.SetAlpha(x, y, pixel[3]);
        }
    wxBitmap bitmap(picture.Scale(size.x, size.y, wxIMAGE_QUALITY_HIGH));
    bitmap.SetScaleFactor(window.GetDPIScaleFactor());  // else lists enlarge it once more
    return bitmap;
}

}  // namespace

void IconBox::Clear() {
    icon_.reset();
    picture_ = wxBitmap();
    if (onChange)
        onChange();
}

void IconBox::Draw(const platform::ShellIcon& icon) {
    icon_ = icon;
    Redraw();
}

void IconBox::Redraw() {
    if (!icon_)
        return;
    const platform::ShellIcon& icon = *icon_;
    const int side = DesignPixels(window_, kSmallIconSize);
    const wxSize size(side, side);
    if (!icon.pixels.empty())
        picture_ = PictureOf(icon, window_, size);
    else if (icon.name.starts_with('/'))
        picture_ = LoadPicture(window_, icon.name, size);
    else
        picture_ = wxArtProvider::GetBitmapBundle(Shown(icon.name), wxART_MENU, size)
                       .GetBitmapFor(&window_);
    if (onChange)
        onChange();
}

}  // namespace marlo::gui
