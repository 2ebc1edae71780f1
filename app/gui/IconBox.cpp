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
    Change("");
}

void IconBox::Draw(const platform::ShellIcon& icon) {
    Change(icon.name);
}

void IconBox::Change(const std::string& name) {
    name_ = name;
    picture_ = {};
    isLoaded_ = name.empty();
    if (onChange)
        onChange();
}

const wxBitmap& IconBox::Picture() {
    if (std::exchange(isLoaded_, true))
        return picture_;
    const int side = DesignPixels(window_, kSmallIconSize);
    const wxSize size(side, side);
    picture_ =
        name_.starts_with('/')
            ? LoadPicture(window_, name_, size)
            : wxArtProvider::GetBitmapBundle(Shown(name_), wxART_MENU, size).GetBitmapFor(&window_);
    return picture_;
}

}  // namespace marlo::gui
