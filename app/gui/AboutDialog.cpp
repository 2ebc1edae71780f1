#include "app/gui/AboutDialog.h"

#include <cmath>
#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/statline.h>
#include <wx/stattext.h>

#include "app/gui/Pictures.h"
#include "app/gui/TextConversion.h"
#include "app/gui/TwipScale.h"

namespace marlo::gui {

namespace {

WindowPlace PlaceOf(const wxRect& rect) {
    return {static_cast<double>(rect.x), static_cast<double>(rect.y),
            static_cast<double>(rect.width), static_cast<double>(rect.height)};
}

}  // namespace

AboutDialog::AboutDialog(wxWindow* mainWindow, const std::string& picture) {
    const frmAbout about = LoadAbout({.major = MARLO_VERSION_MAJOR,
                                      .minor = MARLO_VERSION_MINOR,
                                      .revision = MARLO_VERSION_REVISION});
    Create(mainWindow, wxID_ANY, Shown(about.caption), wxDefaultPosition, wxDefaultSize,
           wxDEFAULT_DIALOG_STYLE, "frmAbout");
    auto* const texts = CreateTexts(about);
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    AddPicture(row, picture);
    row->Add(texts, wxSizerFlags(1).CentreVertical());
    auto* const ok = CreateOkButton();
    auto* const all = new wxBoxSizer(wxVERTICAL);
    all->Add(row, wxSizerFlags(1).Expand().Border(wxALL, Pixels(20)));
    all->Add(new wxStaticLine(this), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, Pixels(20)));
    all->Add(ok, wxSizerFlags().Right().Border(wxALL, Pixels(16)));
    SetSizerAndFit(all);
    StayCentred();
    ok->SetFocus();
}

int AboutDialog::Pixels(int designPixels) const {
    return DesignPixels(*this, designPixels);
}

wxSizer* AboutDialog::CreateTexts(const frmAbout& about) {
    const auto label = [this](const std::string& text, const char* name) {
        return new wxStaticText(this, wxID_ANY, Shown(text), wxDefaultPosition, wxDefaultSize, 0,
                                name);
    };
    auto* const title = label(about.lblTitle, "lblTitle");
    title->SetFont(GetFont().Bold().Scaled(1.8F));
    auto* const version = label(about.lblVersion, "lblVersion");
    auto* const description = label(about.lblDescription, "lblDescription");
    description->Wrap(Pixels(300));
    auto* const texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(title);
    texts->Add(version, wxSizerFlags().Border(wxTOP, Pixels(4)));
    texts->Add(description, wxSizerFlags().Border(wxTOP, Pixels(12)));
    return texts;
}

/// Adds the decorative picture to the left of the texts, if it is there; on a screen of another
/// resolution it is loaded again.
void AboutDialog::AddPicture(wxSizer* row, const std::string& path) {
    const auto load = [this, path] {
        const int side = Pixels(96);
        return LoadPicture(*this, path, wxSize(side, side));
    };
    const wxBitmap image = load();
    if (!image.IsOk())
        return;
    auto* const shown =
        new wxStaticBitmap(this, wxID_ANY, image, wxDefaultPosition, wxDefaultSize, 0, "Image1");
    row->Add(shown, wxSizerFlags().CentreVertical().Border(wxRIGHT, Pixels(20)));
    Bind(wxEVT_DPI_CHANGED, [=](wxDPIChangedEvent& event) {
        event.Skip();
        shown->SetBitmap(load());
    });
}

wxButton* AboutDialog::CreateOkButton() {
    auto* const ok = new wxButton(this, wxID_OK, "OK", wxDefaultPosition, wxDefaultSize, 0,
                                  wxDefaultValidator, "cmdOk");
    ok->SetDefault();
    SetEscapeId(wxID_OK);
    return ok;
}

/// Centres the dialog, and centres it again when its size changes: some window managers report the
/// size of a dialog's frame only after the dialog is shown. A dialog that was moved stays there.
void AboutDialog::StayCentred() {
    CentreOverWindow();
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        if (GetPosition() == centre_)
            CentreOverWindow();
    });
}

void AboutDialog::CentreOverWindow() {
    const WindowPlace place = CentredOver(PlaceOf(GetParent()->GetRect()), PlaceOf(GetRect()));
    centre_ = {static_cast<int>(std::lround(place.left)), static_cast<int>(std::lround(place.top))};
    Move(centre_, wxSIZE_ALLOW_MINUS_ONE);
}

}  // namespace marlo::gui
