#include "platform/Announce.h"

#include "platform/MessageBox.h"
#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

std::wstring WideFromUtf8(const std::string& text) {
    const auto length = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(),
                        static_cast<int>(wide.size()));
    return wide;
}

/// @return false when the stream leads nowhere, as a windowed program's does that was started from
///         the desktop.
bool WriteToStream(Stream stream, const std::string& text) {
    const HANDLE handle =
        GetStdHandle(stream == Stream::Out ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    DWORD written = 0;
    return handle != nullptr && handle != INVALID_HANDLE_VALUE &&
           WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) !=
               FALSE;
}

/// @return false when the program was not started from a console.
bool WriteToConsole(const std::wstring& text) {
    AttachConsole(ATTACH_PARENT_PROCESS);  // or it is attached already
    const HANDLE console =
        CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (console == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const BOOL isWritten =
        WriteConsoleW(console, text.c_str(), static_cast<DWORD>(text.size()), &written, nullptr);
    CloseHandle(console);
    return isWritten != FALSE;
}

}  // namespace

void Announce(Stream stream, const std::string& text) {
    const std::wstring wide = WideFromUtf8(text);
    // The shell has not waited: its prompt is there already.
    if (WriteToStream(stream, text) || WriteToConsole(L"\n" + wide))
        return;
    ShowMessageBox(nullptr, wide, L"Marlo", MessageButtons::Ok,
                   stream == Stream::Out ? MessageIcon::Information : MessageIcon::Exclamation);
}

}  // namespace marlo::platform
