#include "platform/windows/Wide.h"

#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

// A folder's path is refused when it leaves no room for a short file name.
constexpr std::size_t kLongPath = MAX_PATH - 12;

constexpr std::wstring_view kLongMark = LR"(\\?\)";
constexpr std::wstring_view kLongNetworkMark = LR"(\\?\UNC\)";

std::wstring FullWidePath(const std::wstring& path) {
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(
        GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full;
}

}  // namespace

std::wstring WideText(std::string_view text) {
    const auto length = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string NarrowText(std::wstring_view text) {
    const auto length = static_cast<int>(text.size());
    std::string narrow(static_cast<std::size_t>(WideCharToMultiByte(CP_ACP, 0, text.data(), length,
                                                                    nullptr, 0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.data(),
                        static_cast<int>(narrow.size()), nullptr, nullptr);
    return narrow;
}

std::wstring WidePath(const std::string& path) {
    std::wstring wide = WideText(path);
    if (wide.size() < kLongPath || wide.starts_with(kLongMark))
        return wide;
    wide = FullWidePath(wide);
    if (wide.starts_with(LR"(\\)"))
        return wide.replace(0, 2, kLongNetworkMark);
    return wide.insert(0, kLongMark);
}

std::wstring WithoutLongMark(std::wstring path) {
    if (path.starts_with(kLongNetworkMark))
        return path.replace(0, kLongNetworkMark.size(), LR"(\\)");
    if (path.starts_with(kLongMark))
        path.erase(0, kLongMark.size());
    return path;
}

}  // namespace marlo::platform
