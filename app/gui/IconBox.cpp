#include "app/gui/IconBox.h"

#include <utility>
#include <wx/artprov.h>
#include <wx/window.h>

#include "app/gui/Pictures.h"
#include "app/gui/TextConversion.h"
#include "app/gui/TwipScale.h"

namespace marlo::gui {

namespace {

constexpr int kSmallIconSize = 16;  // design pixels

}  // namespace

void IconBox::Clear() {
    picture_ = {};
    if (onChange)
        onChange();
}

void IconBox::Draw(const platform::ShellIcon& icon) {
    const int side = DesignPixels(window_, kSmallIconSize);
    const wxSize size(side, side);
    picture_ = icon.name.starts_with('/')
                   ? LoadPicture(window_, icon.name, size)
                   : wxArtProvider::GetBitmapBundle(Shown(icon.name), wxART_MENU, size)
                         .GetBitmapFor(&window_);
    if (onChange)
        onChange();
}

}  // namespace marlo::gui
