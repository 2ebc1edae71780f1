#include "platform/windows/ShellIcons.h"

#include <algorithm>
#include <cstdint>

#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

constexpr UINT kIconFlags = SHGFI_SYSICONINDEX | SHGFI_EXETYPE | SHGFI_TYPENAME |
                            SHGFI_DISPLAYNAME | SHGFI_SHELLICONSIZE | SHGFI_SMALLICON;

/// A picture to draw on, of one colour at first.
class Canvas {
  public:
    Canvas(int width, int height, COLORREF ground) : context_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO format{};
        format.bmiHeader.biSize = sizeof format.bmiHeader;
        format.bmiHeader.biWidth = width;
        format.bmiHeader.biHeight = -height;  // the upper row first
        format.bmiHeader.biPlanes = 1;
        format.bmiHeader.biBitCount = 32;
        void* pixels = nullptr;
        bitmap_ = CreateDIBSection(context_, &format, DIB_RGB_COLORS, &pixels, nullptr, 0);
        pixels_ = static_cast<const std::uint32_t*>(pixels);
        if (bitmap_ == nullptr)
            return;
        before_ = SelectObject(context_, bitmap_);
        const RECT area{0, 0, width, height};
        const HBRUSH brush = CreateSolidBrush(ground);
        FillRect(context_, &area, brush);
        DeleteObject(brush);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    Canvas(Canvas&&) = delete;
    Canvas& operator=(Canvas&&) = delete;
    ~Canvas() {
        if (bitmap_ != nullptr) {
            SelectObject(context_, before_);
            DeleteObject(bitmap_);
        }
        DeleteDC(context_);
    }

    HDC Context() const { return context_; }
    /// nullptr when there is no memory for them. Blue is the lowest byte.
    const std::uint32_t* Pixels() const { return pixels_; }

  private:
    HDC context_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ before_ = nullptr;
    const std::uint32_t* pixels_ = nullptr;
};

unsigned char ByteOf(std::uint32_t pixel, int index) {
    return static_cast<unsigned char>(pixel >> (8 * index));
}

/// What a pixel is that looks like this on black and on white. Not every icon has opacities of its
/// own.
void AddPixel(std::vector<unsigned char>& pixels, std::uint32_t onBlack, std::uint32_t onWhite) {
    constexpr int full = 255;
    const int opacity = full - (ByteOf(onWhite, 1) - ByteOf(onBlack, 1));
    for (const int colour : {2, 1, 0})
        pixels.push_back(static_cast<unsigned char>(
            opacity <= 0 ? 0 : std::min(full, ByteOf(onBlack, colour) * full / opacity)));
    pixels.push_back(static_cast<unsigned char>(std::clamp(opacity, 0, full)));
}

/// @return the shell's own list of images; nullptr when it knows no image for the file.
HIMAGELIST SystemImages(const std::string& path, SHFILEINFOA& info) {
    const auto ask = [&](UINT flags) {
        return reinterpret_cast<HIMAGELIST>(
            SHGetFileInfoA(path.c_str(), 0, &info, sizeof info, flags));
    };
    const HIMAGELIST images = ask(kIconFlags);
    // Some shells tell the kind of a program alone or not at all.
    return images == nullptr ? ask(kIconFlags & ~SHGFI_EXETYPE) : images;
}

}  // namespace

std::optional<ShellIcon> DrawnSmallIcon(const std::string& path) {
    if (path.empty())
        return std::nullopt;  // some shells take it for the working folder
    SHFILEINFOA info{};
    const HIMAGELIST list = SystemImages(path, info);
    ShellIcon icon;
    if (list == nullptr || ImageList_GetIconSize(list, &icon.width, &icon.height) == FALSE)
        return std::nullopt;
    const Canvas onBlack(icon.width, icon.height, RGB(0, 0, 0));
    const Canvas onWhite(icon.width, icon.height, RGB(255, 255, 255));
    if (onBlack.Pixels() == nullptr || onWhite.Pixels() == nullptr)
        return std::nullopt;
    for (const Canvas* const canvas : {&onBlack, &onWhite})
        ImageList_Draw(list, info.iIcon, canvas->Context(), 0, 0, ILD_TRANSPARENT);
    GdiFlush();
    const int count = icon.width * icon.height;
    icon.pixels.reserve(static_cast<std::size_t>(count) * 4);
    for (int i = 0; i < count; ++i)
        AddPixel(icon.pixels, onBlack.Pixels()[i], onWhite.Pixels()[i]);
    return icon;
}

}  // namespace marlo::platform
