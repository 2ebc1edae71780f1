#pragma once

#include <functional>
#include <optional>
#include <wx/bitmap.h>

#include "dialogs/GetIcons.h"

class wxWindow;

namespace marlo::gui {

/// Keeps the picture of a program's small icon for a window.
class IconBox final : public PictureBox {
  public:
    /// @param window on whose screen the picture is shown.
    explicit IconBox(const wxWindow& window) : window_(window) {}

    void Clear() override;
    void Draw(const platform::ShellIcon& icon) override;

    /// Draws the picture again, for a screen that has changed.
    void Redraw();

    /// Invalid while the box is empty.
    const wxBitmap& Picture() const { return picture_; }

    /// Called when the picture has changed, if set.
    std::function<void()> onChange;

  private:
    const wxWindow& window_;
    std::optional<platform::ShellIcon> icon_;
    wxBitmap picture_;
};

}  // namespace marlo::gui
