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
#include "dialogs/frmAbout.h"

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
    const auto pixels = [this](int length) { return DesignPixels(*this, length); };
    const auto label = [this](const std::string& text, const char* name) {
        return new wxStaticText(this, wxID_ANY, Shown(text), wxDefaultPosition, wxDefaultSize, 0,
                                name);
    };

    auto* const title = label(about.lblTitle, "lblTitle");
    title->SetFont(GetFont().Bold().Scaled(1.8F));
    auto* const version = label(about.lblVersion, "lblVersion");
    auto* const description = label(about.lblDescription, "lblDescription");
    description->Wrap(pixels(300));

    auto* const texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(title);
    texts->Add(version, wxSizerFlags().Border(wxTOP, pixels(4)));
    texts->Add(description, wxSizerFlags().Border(wxTOP, pixels(12)));
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    const auto load = [this, picture] {
        const int side = DesignPixels(*this, 96);
        return LoadPicture(*this, picture, wxSize(side, side));
    };
    const wxBitmap image = load();
    if (image.IsOk()) {
        auto* const shown = new wxStaticBitmap(this, wxID_ANY, image, wxDefaultPosition,
                                               wxDefaultSize, 0, "Image1");
        row->Add(shown, wxSizerFlags().CentreVertical().Border(wxRIGHT, pixels(20)));
        Bind(wxEVT_DPI_CHANGED, [=, this](wxDPIChangedEvent& event) {
            event.Skip();
            shown->SetBitmap(load());
        });
    }
    row->Add(texts, wxSizerFlags(1).CentreVertical());

    auto* const ok = new wxButton(this, wxID_OK, "OK", wxDefaultPosition, wxDefaultSize, 0,
                                  wxDefaultValidator, "cmdOk");
    ok->SetDefault();
    SetEscapeId(wxID_OK);
    auto* const all = new wxBoxSizer(wxVERTICAL);
    all->Add(row, wxSizerFlags(1).Expand().Border(wxALL, pixels(20)));
    all->Add(new wxStaticLine(this), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, pixels(20)));
    all->Add(ok, wxSizerFlags().Right().Border(wxALL, pixels(16)));
    SetSizerAndFit(all);

    const WindowPlace place = CentredOver(PlaceOf(mainWindow->GetRect()), PlaceOf(GetRect()));
    SetPosition(
        {static_cast<int>(std::lround(place.left)), static_cast<int>(std::lround(place.top))});
    ok->SetFocus();
}

}  // namespace marlo::gui
