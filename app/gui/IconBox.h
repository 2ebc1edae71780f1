#pragma once

#include <functional>
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

    /// Invalid while the box is empty. Looked up when it is first asked for.
    const wxBitmap& Picture();
    bool IsLoaded() const { return isLoaded_; }

    /// Called when the picture has changed, if set.
    std::function<void()> onChange;

  private:
    void Change(const std::string& name);

    const wxWindow& window_;
    std::string name_;  ///< of the icon; empty while the box is
    wxBitmap picture_;
    bool isLoaded_ = true;
};

}  // namespace marlo::gui
