#pragma once

#include <array>
#include <functional>
#include <string>
#include <wx/bitmap.h>
#include <wx/window.h>

#include "app/gui/PicturePanel.h"
#include "app/gui/Pictures.h"

namespace marlo::gui {

/// A control on a picture that is clicked, by mouse, Enter or Space, and draws itself.
class PictureControl : public wxWindow {
  public:
    PictureControl(const PictureControl&) = delete;
    PictureControl& operator=(const PictureControl&) = delete;
    PictureControl(PictureControl&&) = delete;
    PictureControl& operator=(PictureControl&&) = delete;
    ~PictureControl() override { LetGo(); }  // the window may close while the button is down

    std::function<void()> onClick;
    std::function<void()> onMouseMove;

    bool Show(bool show = true) override;

  protected:
    PictureControl(PicturePanel* parent, const wxString& name);

    void SetAccessibleLabel(const wxString& label);
    virtual void Draw(wxDC& dc) = 0;

    PicturePanel& Panel() const { return *panel_; }

  private:
    void DoEnable(bool enable) override;
    void BindMouse();
    void Paint();
    void Press();
    void LetGo();
    void Click();

    PicturePanel* panel_;
    bool isPressed_ = false;
};

/// A command item: a caption like a link's.
class CommandItemControl final : public PictureControl {
  public:
    /// @param naturalSize the size that captions of its kind need, as far as it is known: measuring
    ///        one takes longer than making the control.
    /// @param hasWindowBackground whether it hides the picture.
    CommandItemControl(PicturePanel* parent, std::size_t index, const wxString& caption,
                       const wxFont& font, const wxSize& naturalSize, bool hasWindowBackground);

    void SetCaption(const wxString& caption);
    void SetCaptionFont(const wxFont& font);
    void SetHovered(bool isHovered);
    void SetColours(const wxColour& enabled, const wxColour& disabled, const wxColour& background);
    /// A size that is enough for the caption.
    wxSize NaturalSize() const { return naturalSize_; }

    const wxString& Caption() const { return caption_; }
    bool IsHovered() const { return isHovered_; }

  private:
    void Draw(wxDC& dc) override;

    wxString caption_;
    wxFont font_;  ///< not the toolkit's one for the control, which costs more than the control
    wxSize naturalSize_;
    bool hasWindowBackground_;
    bool isHovered_ = false;
    wxColour enabledColour_;
    wxColour disabledColour_;
    wxColour background_;
};

/// A button that is a picture, in colour while it is enabled and in grey while it is not.
class PictureButton final : public PictureControl {
  public:
    PictureButton(PicturePanel* parent, const wxString& name, const wxString& label,
                  std::string enabledPath, std::string disabledPath);

    /// The picture of the moment, which is loaded for the button's size when that has changed.
    const wxBitmap& ShownPicture();

  private:
    void Draw(wxDC& dc) override;

    std::array<FittedPicture, 2> pictures_;  ///< disabled, enabled
};

}  // namespace marlo::gui
