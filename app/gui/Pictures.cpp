#include "app/gui/Pictures.h"

#include <cmath>
#include <system_error>
#include <wx/bmpbndl.h>
#include <wx/image.h>
#include <wx/log.h>
#include <wx/window.h>

#include "app/ApplicationFolder.h"
#include "app/gui/TextConversion.h"
#include "core/Application.h"
#include "platform/FileSystem.h"

namespace marlo::gui {

namespace {

/// The size in the dots of the window's screen.
wxSize Dots(const wxWindow& window, const wxSize& size) {
    const double scale = window.GetContentScaleFactor();
    return {static_cast<int>(std::lround(size.x * scale)),
            static_cast<int>(std::lround(size.y * scale))};
}

wxBitmap Sharp(const wxWindow& window, wxBitmap bitmap) {
    if (bitmap.IsOk())
        bitmap.SetScaleFactor(window.GetContentScaleFactor());
    return bitmap;
}

bool IsDrawing(const std::string& path) {
    return path.ends_with(".svg");
}

}  // namespace

std::string PicturePath(const std::string& applicationFolder, const std::string& name) {
    const std::string relativePath = "\\icons\\" + name;
    std::error_code error;
    const std::string own = ApplicationPath(applicationFolder, relativePath);
    return platform::IsFile(own, error) ? own : ApplicationPath(ProgramFiles(), relativePath);
}

wxBitmap LoadPicture(const wxWindow& window, const std::string& path, const wxSize& size) {
    std::error_code error;
    if (size.x < 1 || size.y < 1 || !platform::IsFile(path, error))
        return {};
    const wxLogNull quiet;  // a picture that cannot be shown is left out
    const wxSize dots = Dots(window, size);
    if (IsDrawing(path))
        return Sharp(window, wxBitmapBundle::FromSVGFile(ToolkitPath(path), dots).GetBitmap(dots));
    wxImage image;
    if (!image.LoadFile(ToolkitPath(path)))
        return {};
    if (!image.HasAlpha())
        image.InitAlpha();  // else the mask's colour bleeds into the edges
    return Sharp(window, wxBitmap(image.Scale(dots.x, dots.y, wxIMAGE_QUALITY_HIGH)));
}

const wxBitmap& FittedPicture::In(const wxWindow& window) {
    const wxSize dots = Dots(window, window.GetClientSize());
    if (loadedFor_ != dots) {
        loadedFor_ = dots;
        bitmap_ = LoadPicture(window, path_, window.GetClientSize());
    }
    return bitmap_;
}

}  // namespace marlo::gui
