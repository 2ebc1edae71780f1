#pragma once

#include <string>
#include <wx/window.h>

namespace marlo::gui {

/// One of the two boxes at the bottom of the window. A text that is too long loses its middle: of a
/// path, both ends tell more.
class StatusBox final : public wxWindow {
  public:
    StatusBox(wxWindow* parent, const wxString& name);

    /// Takes next to no time: only what is painted is decoded and measured.
    /// @param text a field.
    void SetText(const std::string& text);
    const std::string& Text() const { return text_; }

    int NaturalHeight() const;

    bool AcceptsFocus() const override { return false; }

  private:
    void Paint();

    std::string text_;
    bool isDirty_ = false;  ///< it will be painted anyway
};

}  // namespace marlo::gui
