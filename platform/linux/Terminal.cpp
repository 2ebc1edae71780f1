#include "platform/Terminal.h"

#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <string_view>
#include <sys/ioctl.h>
#include <unistd.h>

namespace marlo::platform {

namespace {

constexpr int kUsualWidth = 80;

// A signal handler may touch nothing else.
volatile std::sig_atomic_t interruptNoted = 0;

void NoteInterrupt(int /*signal*/) {
    interruptNoted = 1;
}

int HandleOf(Stream stream) {
    switch (stream) {
        case Stream::In:
            return STDIN_FILENO;
        case Stream::Out:
            return STDOUT_FILENO;
        case Stream::Error:
            break;
    }
    return STDERR_FILENO;
}

std::string_view Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// Waits until there is something to read. An interrupt that comes at any time, also right before
/// the wait, ends it.
/// @return whether there is something to read.
bool WaitForInput() {
    sigset_t interrupt;
    sigset_t unblocked;
    sigemptyset(&interrupt);
    sigaddset(&interrupt, SIGINT);
    // While the signal is blocked it cannot slip in between the look at the note and the wait.
    pthread_sigmask(SIG_BLOCK, &interrupt, &unblocked);
    pollfd input{STDIN_FILENO, POLLIN, 0};
    const bool ready = interruptNoted == 0 && ppoll(&input, 1, nullptr, &unblocked) == 1;
    pthread_sigmask(SIG_SETMASK, &unblocked, nullptr);
    return ready;
}

}  // namespace

void PrepareStreams() {}

bool IsTerminal(Stream stream) {
    return isatty(HandleOf(stream)) == 1;
}

bool ObeysSequences(Stream stream) {
    return IsTerminal(stream);
}

bool ShowsColours(Stream stream) {
    const std::string_view type = Variable("TERM");
    return IsTerminal(stream) && !type.empty() && type != "dumb";
}

int TerminalWidth(Stream stream) {
    winsize size{};
    if (ioctl(HandleOf(stream), TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return kUsualWidth;
    return size.ws_col;
}

void NoteInterrupts() {
    struct sigaction inherited {};
    sigaction(SIGINT, nullptr, &inherited);
    // A script's background job does not end when somebody interrupts the script's terminal.
    if (inherited.sa_handler == SIG_IGN)
        return;
    struct sigaction action {};
    action.sa_handler = NoteInterrupt;
    sigemptyset(&action.sa_mask);
    // The next interrupt ends a program that does not get round to looking at the first.
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &action, nullptr);
}

bool Interrupted() {
    return interruptNoted != 0;
}

std::optional<std::string> ReadLine() {
    std::string line;
    for (;;) {
        char c = 0;
        if (!WaitForInput() || read(STDIN_FILENO, &c, 1) != 1)
            return std::nullopt;
        if (c == '\n')
            return line;
        line += c;
    }
}

}  // namespace marlo::platform
