#include "platform/Terminal.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <string_view>

#include "platform/windows/System.h"

namespace marlo::platform {

namespace {

constexpr int kUsualWidth = 80;

std::atomic<bool> interruptNoted = false;

/// Called on a thread of its own.
BOOL WINAPI NoteInterrupt(DWORD event) {
    const bool isFirst =
        (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT) && !interruptNoted.exchange(true);
    return isFirst ? TRUE : FALSE;
}

HANDLE HandleOf(Stream stream) {
    switch (stream) {
        case Stream::In:
            return GetStdHandle(STD_INPUT_HANDLE);
        case Stream::Out:
            return GetStdHandle(STD_OUTPUT_HANDLE);
        case Stream::Error:
            break;
    }
    return GetStdHandle(STD_ERROR_HANDLE);
}

}  // namespace

void PrepareStreams() {
    for (std::FILE* const stream : {stdin, stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
    static const UINT pageBefore = GetConsoleOutputCP();
    if (pageBefore == 0 || SetConsoleOutputCP(CP_UTF8) == FALSE)
        return;
    std::atexit([] { SetConsoleOutputCP(pageBefore); });
}

bool IsTerminal(Stream stream) {
    DWORD mode = 0;
    return GetConsoleMode(HandleOf(stream), &mode) != FALSE;
}

bool ObeysSequences(Stream stream) {
    // Consoles since Windows 10 do, once they are asked to.
    DWORD mode = 0;
    const HANDLE handle = HandleOf(stream);
    return GetConsoleMode(handle, &mode) != FALSE &&
           SetConsoleMode(handle, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != FALSE;
}

bool ShowsColours(Stream stream) {
    return ObeysSequences(stream);
}

int TerminalWidth(Stream stream) {
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (GetConsoleScreenBufferInfo(HandleOf(stream), &info) == FALSE)
        return kUsualWidth;
    return info.srWindow.Right - info.srWindow.Left + 1;
}

void NoteInterrupts() {
    SetConsoleCtrlHandler(NoteInterrupt, TRUE);
}

bool Interrupted() {
    return interruptNoted;
}

std::optional<std::string> ReadLine() {
    std::string line;
    for (;;) {
        char c = 0;
        DWORD count = 0;
        const bool isRead =
            !interruptNoted && ReadFile(HandleOf(Stream::In), &c, 1, &count, nullptr) != FALSE;
        if (!isRead || count == 0 || interruptNoted)
            return std::nullopt;
        if (c == '\n') {
            if (line.ends_with('\r'))
                line.pop_back();
            return line;
        }
        line += c;
    }
}

}  // namespace marlo::platform
